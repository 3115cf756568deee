#include "audit/Audit.h"
#include "audit/ReportText.h"

#include <algorithm>

#include "sampling/DiskUsage.h"

namespace brimly::Audit {

namespace {

using ReportText::fixed;
using ReportText::gigabytes;

// statvfs's own figures, the counts as they come and each in bytes beside it, so that
// `df -B1 /` can be read beside them.
void quoteRootFilesystem(KernelFigureSource& kernel, ReportWriter& writer) {
  const auto figures = kernel.rootFilesystem();
  if (!figures) {
    writer.row("❌ statvfs(\"/\") failed");
    return;
  }
  const auto count = [&](const std::string& label, std::uint64_t blocks) {
    const double bytes = static_cast<double>(blocks) * static_cast<double>(figures->fragmentSize);
    writer.row(label + ReportText::integer(blocks) + " × f_frsize = " + fixed(gigabytes(bytes), 2) +
               " GB");
  };
  writer.row("f_frsize:               " + ReportText::integer(figures->fragmentSize) + " bytes");
  writer.row("f_bsize:                " + ReportText::integer(figures->blockSize) + " bytes");
  count("f_blocks:               ", figures->blocks);
  count("f_bfree:                ", figures->freeBlocks);
  count("f_bavail:               ", figures->availableBlocks);
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
  const auto gb = [](double bytes) { return fixed(gigabytes(bytes), 8, 2) + " GB"; };

  writer.row(wording.diskTotalLabel + gb(total));
  if (capacities && capacities->used) {
    // The volume counts its used space itself (Linux): the share is of what users can have, as
    // df's Use% is, and the panel shows it rounded up the same way.
    const double used = static_cast<double>(*capacities->used);
    writer.row(wording.diskUsedLabel + gb(used));
    writer.row(wording.diskAvailableLabel + gb(available));
    writer.row(wording.diskHeldBackLabel + gb(std::max(0.0, total - used - available)));
    const auto usage = DiskUsage::from(*capacities);
    const std::string shown =
        usage && usage->usePercent ? ReportText::integer(*usage->usePercent) + "%" : "none";
    writer.row("► Use% = Used ÷ (Used + Avail) = " + fixed(used / (used + available) * 100.0, 2) +
               "%, rounded up: " + shown);
  } else {
    const double used = total - available;
    writer.row(wording.diskAvailableLabel + gb(available));
    // With a total of 0 the percentage is whatever the division gives ("nan").
    writer.row("► Used = Total − Avail = " + fixed(gigabytes(used), 2) + " GB (" +
               fixed(used / total * 100.0, 1) + "%)");
  }
  writer.row(wording.diskCompare);
  writer.close();
}

}  // namespace brimly::Audit
