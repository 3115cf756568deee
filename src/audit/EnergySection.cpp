#include "audit/Audit.h"
#include "audit/ReportText.h"
#include "sampling/EnergyReader.h"

namespace brimly::Audit {

namespace {

constexpr double kSamplingSeconds = 0.5;

// Why the counters gave nothing, as precisely as the kernel's files tell.
std::string unavailableText(const Environment& environment, const ReportWording& wording) {
  if (environment.flavour != ReportFlavour::gnuLinux || environment.kernelFigures == nullptr) {
    return wording.energyUnavailable;
  }
  switch (environment.kernelFigures->energyCounterAccess()) {
    case EnergyCounterAccess::noZones:
      return "❌ no RAPL package zone under /sys/class/powercap";
    case EnergyCounterAccess::notPermitted:
      return "❌ RAPL energy counters not readable (permission)";
    case EnergyCounterAccess::readable:
      break;
  }
  return wording.energyUnavailable;
}

}  // namespace

void dumpEnergy(const Environment& environment, ReportWriter& writer) {
  const ReportWording& wording = reportWording(environment.flavour);
  writer.open(wording.energyHeader);
  EnergyReader reader(environment.platform->makeEnergyCounterPort(), environment.platform->clock());
  reader.sampleSystemPower();  // primes the reader: the first call never gives a rate
  environment.blockingWait(kSamplingSeconds);
  if (const auto watts = reader.sampleSystemPower()) {
    writer.row("Sampled over 500ms");
    writer.row(wording.energyTotalLabel + ReportText::fixed(*watts, 3) + " W");
    writer.row(wording.energyCompare);
  } else {
    writer.row(unavailableText(environment, wording));
    if (environment.flavour == ReportFlavour::gnuLinux && environment.kernelFigures != nullptr) {
      for (const std::string& note : environment.kernelFigures->energyNotes())
        writer.row(note);
    }
  }
  writer.close();
}

}  // namespace brimly::Audit
