#include <string>

#include "audit/Audit.h"
#include "audit/SortedEntries.h"

namespace brimly::Audit {

void dumpGPU(const Environment& environment, ReportWriter& writer) {
  const ReportWording& wording = reportWording(environment.flavour);
  writer.open(wording.gpuHeader);
  const auto services = environment.platform->makeAcceleratorPort()->readAcceleratorServices();
  if (!services || services->empty()) {
    writer.row(wording.gpuNotFound);
    writer.close();
    return;
  }
  int number = 0;
  for (const auto& properties : *services) {
    const int index = number++;  // an unreadable service still uses up its number
    if (!properties) continue;
    const std::string* ioClass = properties->string("IOClass");
    writer.row("Service[" + std::to_string(index) + "]: " + (ioClass ? *ioClass : "?"));
    const PropertyDict* statistics = properties->dict("PerformanceStatistics");
    if (statistics == nullptr) {
      writer.row("  (no PerformanceStatistics)");
      continue;
    }
    for (const auto* entry : sortedEntries(*statistics)) {
      writer.row("  " + entry->first + ": " + describe(entry->second));
    }
  }
  if (!wording.gpuCompare.empty()) writer.row(wording.gpuCompare);
  writer.close();
}

}  // namespace brimly::Audit
