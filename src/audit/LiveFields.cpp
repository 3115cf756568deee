#include <cmath>
#include <cstdint>

#include "audit/Audit.h"
#include "audit/PowerStateText.h"
#include "audit/ReportText.h"
#include "core/Precondition.h"

namespace brimly::Audit {

namespace {

// A fraction as a whole percentage, halves rounded away from zero. A value that has no integer
// form (not finite, or beyond 64 bits) is a programming error, not a reading to print.
std::string percent(double fraction) {
  const double rounded = std::round(fraction * 100.0);
  BRIMLY_REQUIRE(std::isfinite(rounded) && std::fabs(rounded) < 9.2e18,
                 "a live percentage has no integer form");
  return ReportText::integer(static_cast<std::int64_t>(rounded)) + "%";
}

}  // namespace

void printLiveFields(const MetricSample& published, const ReportWording& wording,
                     ReportWriter& writer) {
  using ReportText::fixed;
  writer.row("PWR state:           " + powerStateText(published.powerState));
  writer.row("Battery flow watts:  " + fixed(published.powerWatts, 2) + " W");
  if (published.systemPowerWatts) {
    writer.row(wording.liveSystemPowerLabel + fixed(*published.systemPowerWatts, 2) + " W");
  } else {
    writer.row(wording.liveSystemPowerMissing);
  }
  writer.row("Battery %:           " + (published.batteryPercent
                                            ? ReportText::integer(*published.batteryPercent) + "%"
                                            : std::string("nil")));
  writer.row("CPU:                 " + percent(published.cpu));
  writer.row("GPU:                 " +
             (published.gpu ? percent(*published.gpu) : wording.liveGpuMissing));
  writer.row("RAM:                 " + percent(published.memory));
  writer.row("Temp:                " + (published.temperatureC
                                            ? fixed(*published.temperatureC, 1) + "°C"
                                            : std::string("nil")));
}

}  // namespace brimly::Audit
