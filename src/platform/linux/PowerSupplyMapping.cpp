#include "platform/linux/PowerSupplyMapping.h"

#include <cmath>
#include <cstdint>
#include <limits>

namespace brimly {
namespace {

struct Battery {
  const PowerSupply* supply = nullptr;
  std::string status;
  std::optional<std::int64_t> voltageMicrovolts;  // > 0 only
  std::optional<double> currentMilliamps;         // magnitude
  std::optional<double> powerMicrowatts;          // magnitude
};

bool isDeviceScope(const PowerSupplyProperties& properties) {
  const std::string* scope = properties.find("scope");
  return scope != nullptr && *scope == "Device";
}

bool isBattery(const PowerSupplyProperties& properties) {
  const std::string* type = properties.find("type");
  return type != nullptr && *type == "Battery";
}

double magnitude(std::int64_t value) {
  return std::fabs(static_cast<double>(value));
}

// A finite double as a 64-bit integer, rounding halves away from zero and saturating.
std::int64_t roundedInteger(double value) {
  constexpr double kLimit = 9.0e18;
  if (!std::isfinite(value)) return 0;
  if (value >= kLimit) return static_cast<std::int64_t>(kLimit);
  if (value <= -kLimit) return -static_cast<std::int64_t>(kLimit);
  return static_cast<std::int64_t>(std::llround(value));
}

Battery readBattery(const PowerSupply& supply) {
  const PowerSupplyProperties& p = supply.properties;
  Battery battery;
  battery.supply = &supply;
  if (const std::string* status = p.find("status")) battery.status = *status;
  if (auto voltage = p.integer("voltage_now"); voltage && *voltage > 0) {
    battery.voltageMicrovolts = voltage;
  }
  const std::optional<std::int64_t> current = p.integer("current_now");
  const std::optional<std::int64_t> power = p.integer("power_now");
  if (power) battery.powerMicrowatts = magnitude(*power);
  if (current) {
    battery.currentMilliamps = magnitude(*current) / 1000.0;
  } else if (power && battery.voltageMicrovolts) {
    battery.currentMilliamps =
        *battery.powerMicrowatts / static_cast<double>(*battery.voltageMicrovolts) * 1000.0;
  }
  if (!battery.powerMicrowatts && battery.currentMilliamps && battery.voltageMicrovolts) {
    battery.powerMicrowatts =
        *battery.currentMilliamps * static_cast<double>(*battery.voltageMicrovolts) / 1000.0;
  }
  return battery;
}

double direction(const Battery& battery, bool onAC) {
  if (battery.status == "Charging") return 1.0;
  if (battery.status == "Discharging") return -1.0;
  return onAC ? 1.0 : -1.0;
}

void setChargeLevel(PropertyDict& description, const PowerSupplyProperties& p) {
  static constexpr std::pair<const char*, const char*> kPairs[] = {{"energy_now", "energy_full"},
                                                                   {"charge_now", "charge_full"}};
  if (auto capacity = p.integer("capacity")) {
    description.set("Current Capacity", *capacity);
    description.set("Max Capacity", std::int64_t{100});
    return;
  }
  for (const auto& [now, full] : kPairs) {
    const auto level = p.integer(now);
    const auto maximum = p.integer(full);
    if (level && maximum) {
      description.set("Current Capacity", *level);
      description.set("Max Capacity", *maximum);
      return;
    }
  }
}

std::string sourceState(bool onAC) {
  return onAC ? "AC Power" : "Battery Power";
}

PropertyDict describeBattery(const Battery& battery, bool onAC) {
  const PowerSupplyProperties& p = battery.supply->properties;
  PropertyDict description;
  description.set("Name", battery.supply->name);
  description.set("Type", std::string("Battery"));
  if (!battery.status.empty()) description.set("Status", battery.status);
  description.set("Power Source State", sourceState(onAC));
  description.set("Is Charging", battery.status == "Charging");
  if (battery.currentMilliamps) {
    description.set("Current",
                    roundedInteger(direction(battery, onAC) * *battery.currentMilliamps));
  }
  if (battery.voltageMicrovolts) {
    description.set("Voltage",
                    roundedInteger(static_cast<double>(*battery.voltageMicrovolts) / 1000));
  }
  setChargeLevel(description, p);
  return description;
}

// Sums one figure over every battery; nothing when one of them lacks it or the sum overflows.
std::optional<std::int64_t> sumOver(const std::vector<Battery>& batteries, const char* name) {
  std::int64_t total = 0;
  for (const Battery& battery : batteries) {
    const auto value = battery.supply->properties.integer(name);
    if (!value || *value < 0) return std::nullopt;
    if (total > std::numeric_limits<std::int64_t>::max() - *value) return std::nullopt;
    total += *value;
  }
  return total;
}

PropertyDict describeCombined(const std::vector<Battery>& batteries, bool onAC) {
  PropertyDict description;
  description.set("Name", std::string("Combined"));
  description.set("Type", std::string("Battery"));
  description.set("Power Source State", sourceState(onAC));
  bool charging = false;
  double signedMicrowatts = 0.0;
  bool powerKnown = true;
  for (const Battery& battery : batteries) {
    charging = charging || battery.status == "Charging";
    if (battery.powerMicrowatts) {
      signedMicrowatts += direction(battery, onAC) * *battery.powerMicrowatts;
    } else {
      powerKnown = false;
    }
  }
  description.set("Is Charging", charging);
  const std::optional<std::int64_t> voltage = batteries.front().voltageMicrovolts;
  if (voltage) {
    description.set("Voltage", roundedInteger(static_cast<double>(*voltage) / 1000));
    if (powerKnown) {
      description.set("Current",
                      roundedInteger(signedMicrowatts / static_cast<double>(*voltage) * 1000.0));
    }
  }
  static constexpr std::pair<const char*, const char*> kPairs[] = {
      {"energy_now", "energy_full"}, {"charge_now", "charge_full"}, {"capacity", nullptr}};
  for (const auto& [now, full] : kPairs) {
    const auto level = sumOver(batteries, now);
    const auto maximum = full != nullptr
                             ? sumOver(batteries, full)
                             : std::optional<std::int64_t>(100 * std::int64_t(batteries.size()));
    if (level && maximum) {
      description.set("Current Capacity", *level);
      description.set("Max Capacity", *maximum);
      break;
    }
  }
  return description;
}

PropertyDict describeLine(const PowerSupply& supply, bool onAC) {
  PropertyDict description;
  description.set("Name", supply.name);
  if (const std::string* type = supply.properties.find("type")) description.set("Type", *type);
  description.set("Power Source State", sourceState(onAC));
  description.set("Is Charging", false);
  if (auto online = supply.properties.integer("online")) description.set("Online", *online);
  return description;
}

PropertyDict smartBatteryProperties(const Battery& battery, bool onAC) {
  const PowerSupplyProperties& p = battery.supply->properties;
  PropertyDict properties;
  if (battery.voltageMicrovolts) {
    properties.set("Voltage",
                   roundedInteger(static_cast<double>(*battery.voltageMicrovolts) / 1000));
  }
  if (battery.currentMilliamps) {
    const std::int64_t amperage =
        roundedInteger(direction(battery, onAC) * *battery.currentMilliamps);
    properties.set("Amperage", amperage);
    properties.set("InstantAmperage", amperage);
  }
  if (auto cycles = p.integer("cycle_count")) properties.set("CycleCount", *cycles);
  // Capacities in mAh exist only for drivers that count charge (µAh).
  if (auto design = p.integer("charge_full_design")) {
    properties.set("DesignCapacity", roundedInteger(static_cast<double>(*design) / 1000));
  }
  if (auto full = p.integer("charge_full")) {
    properties.set("MaxCapacity", roundedInteger(static_cast<double>(*full) / 1000));
  }
  return properties;
}

}  // namespace

PowerSupplySnapshot describePowerSupplies(const std::vector<PowerSupply>& supplies) {
  std::vector<Battery> batteries;
  std::vector<const PowerSupply*> lines;
  for (const PowerSupply& supply : supplies) {
    const PowerSupplyProperties& p = supply.properties;
    if (isDeviceScope(p)) continue;
    if (isBattery(p)) {
      if (p.integer("present").value_or(1) != 0) batteries.push_back(readBattery(supply));
    } else if (p.integer("online")) {
      lines.push_back(&supply);
    }
  }

  bool onAC = false;
  for (const PowerSupply* line : lines) {
    onAC = onAC || line->properties.integer("online").value_or(0) >= 1;
  }
  if (lines.empty()) {
    for (const Battery& battery : batteries) {
      onAC = onAC || battery.status == "Charging" || battery.status == "Full" ||
             battery.status == "Not charging";
    }
  }

  PowerSupplySnapshot snapshot;
  if (batteries.size() >= 2) snapshot.descriptions.emplace_back(describeCombined(batteries, onAC));
  for (const Battery& battery : batteries) {
    snapshot.descriptions.emplace_back(describeBattery(battery, onAC));
  }
  for (const PowerSupply* line : lines)
    snapshot.descriptions.emplace_back(describeLine(*line, onAC));
  if (!batteries.empty()) snapshot.smartBattery = smartBatteryProperties(batteries.front(), onAC);
  return snapshot;
}

}  // namespace brimly
