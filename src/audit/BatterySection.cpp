#include <array>
#include <string_view>

#include "audit/Audit.h"
#include "audit/ReportText.h"
#include "audit/SortedEntries.h"

namespace brimly::Audit {

namespace {

// The battery entry's integer properties that the report quotes, in this order.
constexpr std::array<std::string_view, 8> kBatteryRegistryKeys{
    "Voltage",     "Amperage",   "InstantAmperage", "AppleRawCurrentCapacity",
    "Temperature", "CycleCount", "DesignCapacity",  "MaxCapacity"};

}  // namespace

void dumpBattery(const Environment& environment, ReportWriter& writer) {
  const ReportWording& wording = reportWording(environment.flavour);
  writer.open(wording.batteryHeader);
  const auto port = environment.platform->makePowerSourcePort();
  const auto sources = port->readPowerSourceDescriptions();
  if (!sources) {
    writer.row(wording.batteryNoSources);
    writer.close();
    return;
  }
  if (sources->empty() && environment.flavour == ReportFlavour::gnuLinux) {
    // The kernel lists no supply at all: say so instead of leaving the box empty.
    writer.row(wording.batteryNoSources);
  }
  for (const auto& description : *sources) {
    if (!description) continue;
    for (const auto* entry : sortedEntries(*description)) {
      writer.row(entry->first + ": " + describe(entry->second));
    }
  }
  if (!wording.batteryCompare.empty()) writer.row(wording.batteryCompare);
  writer.close();

  writer.open(wording.batteryRegistryHeader);
  if (const auto battery = port->readSmartBatteryProperties()) {
    for (std::string_view key : kBatteryRegistryKeys) {
      if (const auto value = battery->integer(key)) {
        writer.row(std::string(key) + ": " + ReportText::integer(*value));
      }
    }
  }
  writer.close();
}

}  // namespace brimly::Audit
