#include "core/MetricKind.h"

namespace brimly {

namespace {

struct KindNames {
  MetricKind::Value value;
  std::string_view rawValue;
  std::string_view displayName;
};

constexpr std::array<KindNames, 6> kNames{{
    {MetricKind::cpu, "cpu", "CPU"},
    {MetricKind::gpu, "gpu", "GPU"},
    {MetricKind::ram, "ram", "RAM"},
    {MetricKind::disk, "disk", "DISK"},
    {MetricKind::temp, "temp", "TEMP"},
    {MetricKind::pwr, "pwr", "PWR"},
}};

}  // namespace

std::optional<MetricKind> MetricKind::fromRawValue(std::string_view rawValue) {
  for (const auto& names : kNames) {
    if (names.rawValue == rawValue) return MetricKind(names.value);
  }
  return std::nullopt;
}

std::string_view MetricKind::rawValue() const { return kNames[value_].rawValue; }

std::string_view MetricKind::displayName() const { return kNames[value_].displayName; }

const std::vector<MetricKind>& MetricKind::allCases() {
  static const std::vector<MetricKind> kinds{cpu, gpu, ram, disk, temp, pwr};
  return kinds;
}

const std::vector<MetricKind>& MetricKind::defaultOrder() {
  static const std::vector<MetricKind> order{cpu, gpu, ram, disk, temp, pwr};
  return order;
}

}  // namespace brimly
