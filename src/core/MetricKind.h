#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <vector>

namespace brimly {

// One of the six metrics the panel can show. The declaration order is significant: it is the
// enumeration order of `allCases` and the default display order.
class MetricKind {
 public:
  enum Value : std::uint8_t { cpu, gpu, ram, disk, temp, pwr };

  constexpr MetricKind(Value value) : value_(value) {}  // NOLINT: implicit like an enum case

  // The kind whose persisted identifier is exactly `rawValue` (case-sensitive, no trimming).
  static std::optional<MetricKind> fromRawValue(std::string_view rawValue);

  // The persisted identifier: "cpu", "gpu", "ram", "disk", "temp", "pwr".
  std::string_view rawValue() const;
  // The on-screen label: "CPU", "GPU", "RAM", "DISK", "TEMP", "PWR".
  std::string_view displayName() const;

  constexpr Value value() const { return value_; }
  constexpr operator Value() const { return value_; }  // NOLINT: lets a kind drive a switch

  // Every kind, in declaration order.
  static const std::vector<MetricKind>& allCases();
  // The order shown when nothing usable is stored. Equal to `allCases` today, kept apart because
  // the two play different roles.
  static const std::vector<MetricKind>& defaultOrder();

 private:
  Value value_;
};

static_assert(sizeof(MetricKind) == 1, "a metric kind is one byte wide");

}  // namespace brimly

template <>
struct std::hash<brimly::MetricKind> {
  std::size_t operator()(brimly::MetricKind kind) const noexcept {
    return std::hash<std::string_view>{}(kind.rawValue());
  }
};
