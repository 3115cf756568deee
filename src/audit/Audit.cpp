#include "audit/Audit.h"

#include "audit/ReportText.h"

namespace brimly::Audit {

int run(const Environment& environment, std::ostream& out) {
  const ReportWording& wording = reportWording(environment.flavour);
  ReportWriter writer(out);
  writer.line("Brimly diagnostic dump — all values read live from system APIs.");
  writer.line("Date: " + ReportText::utcTimestamp(environment.now()));
  writer.line("");

  writer.line(wording.memoryTitle);
  dumpMemory(environment, writer);
  writer.line(wording.diskTitle);
  dumpDisk(environment, writer);
  writer.line(wording.batteryTitle);
  dumpBattery(environment, writer);
  writer.line(wording.gpuTitle);
  dumpGPU(environment, writer);
  writer.line(wording.temperaturesTitle);
  dumpTemperatureSensors(environment, writer);
  writer.line(wording.energyTitle);
  dumpEnergy(environment, writer);

  writer.lineAfterBlank("Compare against:");
  for (const auto& command : wording.compareAgainst)
    writer.line(command);

  writer.lineAfterBlank("→ Live SystemMonitor (2 sample cycles)");
  dumpLive(environment, writer);
  return 0;
}

}  // namespace brimly::Audit
