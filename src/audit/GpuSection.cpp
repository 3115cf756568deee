#include <string>

#include "audit/Audit.h"
#include "audit/SortedEntries.h"

namespace brimly::Audit {

namespace {

// On Linux, what each card and the NVIDIA library gave, so that a missing figure is explained.
void explainLinuxSources(const Environment& environment, ReportWriter& writer) {
  if (environment.flavour != ReportFlavour::gnuLinux || environment.kernelFigures == nullptr) {
    return;
  }
  for (const std::string& note : environment.kernelFigures->gpuNotes())
    writer.row(note);
}

}  // namespace

void dumpGPU(const Environment& environment, ReportWriter& writer) {
  const ReportWording& wording = reportWording(environment.flavour);
  writer.open(wording.gpuHeader);
  const auto services = environment.platform->makeAcceleratorPort()->readAcceleratorServices();
  if (!services || services->empty()) {
    writer.row(wording.gpuNotFound);
    explainLinuxSources(environment, writer);
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
  explainLinuxSources(environment, writer);
  if (!wording.gpuCompare.empty()) writer.row(wording.gpuCompare);
  writer.close();
}

}  // namespace brimly::Audit
