#include "sampling/PowerReading.h"

#include <cmath>
#include <string>

namespace brimly {

namespace {

constexpr const char* kStateKey = "Power Source State";
constexpr const char* kOnMains = "AC Power";
constexpr const char* kChargingKey = "Is Charging";
constexpr const char* kCurrentKey = "Current";
constexpr const char* kInstantAmperageKey = "InstantAmperage";
constexpr const char* kVoltageKey = "Voltage";
constexpr const char* kCurrentCapacityKey = "Current Capacity";
constexpr const char* kMaxCapacityKey = "Max Capacity";

}  // namespace

PowerReading PowerReading::fromSources(
    const std::optional<std::vector<std::optional<PropertyDict>>>& sources,
    const std::function<std::int64_t()>& readBatteryVoltageMV) {
  if (!sources || sources->empty()) return {};
  const std::int64_t registryVoltage = readBatteryVoltageMV ? readBatteryVoltageMV() : 0;
  for (const auto& description : *sources) {
    if (description) return fromDescription(*description, registryVoltage);
  }
  return {};
}

PowerReading PowerReading::fromDescription(const PropertyDict& description,
                                           std::int64_t registryVoltageMV) {
  // A missing or non-string state counts as running from the battery.
  const std::string* state = description.string(kStateKey);
  const bool onMains = state != nullptr && *state == kOnMains;
  const bool charging = description.boolean(kChargingKey).value_or(false);

  std::int64_t currentMA = 0;
  if (const auto current = description.integer(kCurrentKey)) {
    currentMA = *current;
  } else if (const auto instant = description.integer(kInstantAmperageKey)) {
    currentMA = *instant;
  }
  std::int64_t voltageMV = registryVoltageMV;
  if (const auto voltage = description.integer(kVoltageKey); voltage && *voltage > 0) {
    voltageMV = *voltage;
  }

  PowerReading reading;
  reading.batteryPercent = batteryPercentFrom(description);
  // Milliamperes times millivolts are microwatts.
  const double watts =
      std::fabs(static_cast<double>(currentMA) * static_cast<double>(voltageMV)) / 1'000'000.0;
  if (!onMains) {
    reading.watts = -watts;
    reading.state = PowerState::discharging(watts);
  } else if (charging && watts > chargingThresholdWatts) {
    reading.watts = watts;
    reading.state = PowerState::charging(watts);
  } else {
    reading.watts = 0.0;
    reading.state = PowerState::acIdle();
  }
  return reading;
}

std::optional<std::int64_t> PowerReading::batteryPercentFrom(const PropertyDict& description) {
  const auto current = description.integer(kCurrentCapacityKey);
  const auto maximum = description.integer(kMaxCapacityKey);
  if (!current || !maximum || *maximum < 1) return std::nullopt;
  const double percent =
      std::round(static_cast<double>(*current) / static_cast<double>(*maximum) * 100.0);
  // 2^63 is the first value that no longer fits; everything below it converts exactly.
  constexpr double twoTo63 = 9223372036854775808.0;
  if (!(percent >= -twoTo63 && percent < twoTo63)) return std::nullopt;
  return static_cast<std::int64_t>(percent);
}

std::int64_t PowerReading::batteryVoltageMV(const std::optional<PropertyDict>& smartBattery) {
  if (!smartBattery) return 0;
  const auto voltage = smartBattery->integer(kVoltageKey);
  if (!voltage || *voltage < 1) return 0;
  return *voltage;
}

}  // namespace brimly
