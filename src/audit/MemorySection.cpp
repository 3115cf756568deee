#include <array>
#include <string_view>

#include "audit/Audit.h"
#include "audit/ReportText.h"

namespace brimly::Audit {

namespace {

using ReportText::fixed;
using ReportText::gigabytes;

// The /proc/meminfo fields quoted in the Linux report, in this order. Used memory is computed from
// the first three; the rest let a reader check it against `free`.
constexpr std::array<std::string_view, 7> kQuotedMeminfoFields{
    "MemTotal", "MemAvailable", "MemFree", "Buffers", "Cached", "SwapTotal", "SwapFree"};

constexpr std::size_t kLabelWidth = 20;  // "Page size:          "

std::string label(std::string_view name) {
  return ReportText::padded(std::string(name) + ":", kLabelWidth);
}

// The raw meminfo lines; false when the file could not be read at all.
bool quoteMeminfo(KernelFigureSource& kernel, ReportWriter& writer) {
  const auto fields = kernel.meminfoKiB();
  if (!fields) return false;
  for (std::string_view wanted : kQuotedMeminfoFields) {
    const KernelFigure* found = nullptr;
    for (const auto& field : *fields) {
      if (field.name == wanted) {
        found = &field;
        break;
      }
    }
    if (found == nullptr) {
      writer.row(label(wanted) + "❌ missing");
    } else {
      writer.row(label(wanted) +
                 fixed(gigabytes(static_cast<double>(found->value) * 1024.0), 7, 3) + " GB");
    }
  }
  return true;
}

}  // namespace

void dumpMemory(const Environment& environment, ReportWriter& writer) {
  const ReportWording& wording = reportWording(environment.flavour);
  writer.open(wording.memoryHeader);
  const bool onLinux = environment.flavour == ReportFlavour::gnuLinux;

  if (onLinux && environment.kernelFigures != nullptr &&
      !quoteMeminfo(*environment.kernelFigures, writer)) {
    writer.row(wording.memoryFailed);
    writer.close();
    return;
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
