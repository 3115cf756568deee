#include "audit/Audit.h"
#include "audit/ReportText.h"

namespace brimly::Audit {

namespace {

using ReportText::fixed;
using ReportText::gigabytes;

// statvfs's own figures, each in bytes, so that `df -B1 /` can be read beside them.
void quoteRootFilesystem(KernelFigureSource& kernel, ReportWriter& writer) {
  const auto figures = kernel.rootFilesystem();
  if (!figures) {
    writer.row("❌ statvfs(\"/\") failed");
    return;
  }
  const auto bytes = [&](std::uint64_t blocks) {
    return fixed(
               gigabytes(static_cast<double>(blocks) * static_cast<double>(figures->fragmentSize)),
               8, 2) +
           " GB";
  };
  writer.row("f_frsize:               " + ReportText::integer(figures->fragmentSize) + " bytes");
  writer.row("f_blocks × f_frsize:    " + bytes(figures->blocks));
  writer.row("f_bfree × f_frsize:     " + bytes(figures->freeBlocks));
  writer.row("f_bavail × f_frsize:    " + bytes(figures->availableBlocks));
}

}  // namespace

void dumpDisk(const Environment& environment, ReportWriter& writer) {
  const ReportWording& wording = reportWording(environment.flavour);
  writer.open(wording.diskHeader);
  if (environment.flavour == ReportFlavour::gnuLinux && environment.kernelFigures != nullptr) {
    quoteRootFilesystem(*environment.kernelFigures, writer);
  }

  // A failed query and a missing figure both count as 0.
  const auto capacities = environment.platform->makeDiskPort()->readDiskCapacities();
  const double total = static_cast<double>(capacities ? capacities->total.value_or(0) : 0);
  const double available = static_cast<double>(capacities ? capacities->available.value_or(0) : 0);
  const double used = total - available;

  writer.row(wording.diskTotalLabel + fixed(gigabytes(total), 8, 2) + " GB");
  writer.row(wording.diskAvailableLabel + fixed(gigabytes(available), 8, 2) + " GB");
  // With a total of 0 the percentage is whatever the division gives ("nan").
  writer.row("► Used = Total − Avail = " + fixed(gigabytes(used), 2) + " GB (" +
             fixed(used / total * 100.0, 1) + "%)");
  writer.row(wording.diskCompare);
  writer.close();
}

}  // namespace brimly::Audit
