#include <string_view>

#include "audit/Audit.h"
#include "audit/ReportText.h"

namespace brimly::Audit {

namespace {

using ReportText::fixed;
using ReportText::gigabytes;

constexpr std::size_t kLabelWidth = 20;  // "Page size:          "

std::string label(std::string_view name) {
  return ReportText::padded(std::string(name) + ":", kLabelWidth);
}

// The raw meminfo lines; false when the file could not be read at all.
bool quoteMeminfo(const MeminfoFigures& meminfo, ReportWriter& writer) {
  if (!meminfo.error.empty()) return false;
  for (const auto& [name, kib] : meminfo.fieldsKiB) {
    if (kib) {
      writer.row(label(name) + fixed(gigabytes(static_cast<double>(*kib) * 1024.0), 7, 3) + " GB");
    } else {
      writer.row(label(name) + "❌ missing");
    }
  }
  return true;
}

}  // namespace

void dumpMemory(const Environment& environment, ReportWriter& writer) {
  const ReportWording& wording = reportWording(environment.flavour);
  writer.open(wording.memoryHeader);
  const bool onLinux = environment.flavour == ReportFlavour::gnuLinux;

  if (onLinux && environment.kernelFigures != nullptr) {
    const MeminfoFigures meminfo = environment.kernelFigures->meminfo();
    if (!quoteMeminfo(meminfo, writer)) {
      writer.row(wording.memoryFailed + " (" + meminfo.error + ")");
      writer.close();
      return;
    }
  }

  const MemoryReading reading = environment.platform->makeMemoryPort()->readMemory();
  if (!reading.vm) {
    writer.row(wording.memoryFailed);
    writer.close();
    return;
  }
  const double page = static_cast<double>(reading.pageSize);
  const VmStatistics& vm = *reading.vm;
  const double active = page * static_cast<double>(vm.activePages);
  const double wired = page * static_cast<double>(vm.wiredPages);
  const double compressed = page * static_cast<double>(vm.compressedPages);
  const double physical = static_cast<double>(reading.physicalBytes);
  const double used = active + wired + compressed;

  if (!onLinux) {
    writer.row("Page size:          " + ReportText::integer(reading.pageSize) + " bytes");
    writer.row("Active:             " + fixed(gigabytes(active), 7, 3) + " GB");
    writer.row("Wired:              " + fixed(gigabytes(wired), 7, 3) + " GB");
    writer.row("Compressed:         " + fixed(gigabytes(compressed), 7, 3) + " GB");
    writer.row("Inactive:           " +
               fixed(gigabytes(page * static_cast<double>(vm.inactivePages)), 7, 3) + " GB");
    writer.row("Free:               " +
               fixed(gigabytes(page * static_cast<double>(vm.freePages)), 7, 3) + " GB");
  }
  writer.row(wording.memoryUsedLabel + fixed(gigabytes(used), 3) + " GB");
  writer.row("Total physical:     " + fixed(gigabytes(physical), 7, 3) + " GB");
  writer.row("► Used %: " + fixed(used / physical * 100.0, 1) + "%");
  if (!wording.memoryCompare.empty()) writer.row(wording.memoryCompare);
  writer.close();
}

}  // namespace brimly::Audit
