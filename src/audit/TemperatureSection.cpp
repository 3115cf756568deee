#include <algorithm>

#include "audit/Audit.h"
#include "audit/ReportText.h"
#include "sampling/SensorReader.h"

namespace brimly::Audit {

namespace {

constexpr std::size_t kNameWidth = 50;
constexpr std::size_t kValueWidth = 8;
constexpr std::size_t kRuleLength = 62;

// Readings outside this open range are listed but marked: no working sensor reports them.
std::string valueText(double celsius) {
  if (celsius > -50.0 && celsius < 200.0) return ReportText::fixed(celsius, 1);
  return "INVALID";
}

std::string tableRow(std::string_view name, std::string_view value) {
  return ReportText::padded(name, kNameWidth) + "  " + ReportText::padded(value, kValueWidth);
}

}  // namespace

void dumpTemperatureSensors(const Environment& environment, ReportWriter& writer) {
  const ReportWording& wording = reportWording(environment.flavour);
  writer.openTight(wording.temperatureHeader);
  SensorReader reader(environment.platform->makeTemperatureSensorPort());
  std::vector<SensorReading> readings = reader.allTemperatures();
  writer.row("Sensors found: " + std::to_string(readings.size()));
  writer.row(tableRow("NAME", "°C"));
  writer.row(ReportText::repeated("─", kRuleLength));
  if (readings.empty() && !wording.temperatureNoSensors.empty()) {
    writer.row(wording.temperatureNoSensors);
  }
  std::stable_sort(readings.begin(), readings.end(),
                   [](const SensorReading& a, const SensorReading& b) { return a.name < b.name; });
  for (const auto& reading : readings)
    writer.row(tableRow(reading.name, valueText(reading.value)));
  if (const auto hottest = reader.currentCPUTemperature()) {
    writer.row(wording.temperatureLiveLabel + ReportText::fixed(*hottest, 1) + " °C");
  }
  if (environment.flavour == ReportFlavour::gnuLinux && environment.kernelFigures != nullptr) {
    for (const std::string& note : environment.kernelFigures->temperatureNotes())
      writer.row(note);
  }
  if (!wording.temperatureCompare.empty()) writer.row(wording.temperatureCompare);
  writer.close();
}

}  // namespace brimly::Audit
