#include "usage/MetricFormat.h"

#include <cmath>
#include <limits>

#include "core/Precondition.h"
#include "usage/DecimalFormatter.h"
#include "usage/NumberText.h"

namespace brimly::MetricFormat {

namespace {

constexpr double gibibyte = 1073741824.0;             // 2^30
constexpr double tebibyte = 1099511627776.0;          // 2^40
constexpr double mebibyte = 1048576.0;                // 2^20
constexpr double int64Bound = 9223372036854775808.0;  // 2^63

std::int64_t toSigned(std::uint64_t value) {
  BRIMLY_REQUIRE(value <= static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max()),
                 "byte count beyond the signed range");
  return static_cast<std::int64_t>(value);
}

// "%.1f W" of the watts.
std::string watts(double value) {
  return NumberText::fixed(value, 1) + " W";
}

// Caps a bar value at 1; a NaN counts as a full bar.
double cappedAtOne(double value) {
  return value < 1.0 ? value : 1.0;
}

std::optional<double> measurableSystemDraw(const MetricSample& sample) {
  if (sample.systemPowerWatts && *sample.systemPowerWatts > 0.1) return sample.systemPowerWatts;
  return std::nullopt;
}

}  // namespace

std::string percent(double fraction) {
  const double rounded = std::round(fraction * 100.0);
  BRIMLY_REQUIRE(std::isfinite(rounded) && rounded >= -int64Bound && rounded < int64Bound,
                 "percentage out of the integer range");
  return std::to_string(static_cast<std::int64_t>(rounded)) + "%";
}

std::string tempPrimary(const MetricSample& sample, bool useFahrenheit) {
  if (!sample.temperatureC) return missingPrimary;
  double t = *sample.temperatureC;
  if (useFahrenheit) t = t * 9.0 / 5.0 + 32.0;
  // Rounded before printing, so that -0.4 becomes a negative zero and prints as "-0".
  return NumberText::fixed(std::round(t), 0) + (useFahrenheit ? "\u00B0F" : "\u00B0C");
}

std::string formatPair(std::int64_t used, std::int64_t total) {
  const double totalG = static_cast<double>(total) / gibibyte;
  // The switch comes at 1000 binary gigabytes while the division is by 1024, so a total just
  // above the switch shows as a little under one terabyte.
  const bool terabytes = totalG >= 1000.0;
  const double totalShown = terabytes ? totalG / 1024.0 : totalG;
  const double usedShown = static_cast<double>(used) / (terabytes ? tebibyte : gibibyte);
  const int digits = totalShown >= 100.0 ? 0 : (terabytes ? 2 : 1);
  const DecimalFormatter formatter(digits);
  const auto text = [&formatter](double value) {
    return formatter.string(value).value_or(NumberText::shortest(value));
  };
  return text(usedShown) + " / " + text(totalShown) + (terabytes ? " TB" : " GB");
}

std::string formatSwap(std::uint64_t bytes) {
  const double gib = static_cast<double>(bytes) / gibibyte;
  if (gib >= 1.0) return NumberText::fixed(gib, 1) + "G";
  return NumberText::fixed(static_cast<double>(bytes) / mebibyte, 0) + "M";
}

std::string ramSecondary(const MetricSample& sample) {
  if (sample.memoryTotalBytes == 0) return missingSecondary;
  std::string text =
      formatPair(toSigned(sample.memoryUsedBytes), toSigned(sample.memoryTotalBytes));
  if (sample.swapUsedBytes == 0) return text;
  return text + " \u00B7 swap " + formatSwap(sample.swapUsedBytes);
}

std::string diskSecondary(const MetricSample& sample) {
  if (sample.diskTotalBytes < 1) return missingSecondary;
  return formatPair(sample.diskUsedBytes, sample.diskTotalBytes);
}

std::string powerPrimary(const MetricSample& sample) {
  const PowerState& state = sample.powerState;
  switch (state.kind()) {
    case PowerState::Kind::discharging:
      return watts(state.watts());
    case PowerState::Kind::charging:
      return "+" + watts(state.watts());
    case PowerState::Kind::acIdle:
      if (const auto draw = measurableSystemDraw(sample)) return watts(*draw);
      return "AC";
    case PowerState::Kind::unknown:
      if (const auto draw = measurableSystemDraw(sample)) return watts(*draw);
      return missingPrimary;
  }
  return missingPrimary;
}

std::string powerSecondary(const MetricSample& sample) {
  std::string word;
  switch (sample.powerState.kind()) {
    case PowerState::Kind::discharging:
      word = "battery";
      break;
    case PowerState::Kind::charging:
      word = "charging";
      break;
    case PowerState::Kind::acIdle:
      word = "plugged in";
      break;
    case PowerState::Kind::unknown:
      break;
  }
  if (!sample.batteryPercent) return word;
  const std::string charge = std::to_string(*sample.batteryPercent) + "%";
  if (word.empty()) return charge;
  return word + " \u00B7 " + charge;
}

double powerBarValue(const MetricSample& sample) {
  const PowerState& state = sample.powerState;
  switch (state.kind()) {
    case PowerState::Kind::discharging:
    case PowerState::Kind::charging:
      // No lower bound: a negative flow gives a negative value.
      return cappedAtOne(state.watts() / 50.0);
    case PowerState::Kind::acIdle:
    case PowerState::Kind::unknown:
      break;
  }
  if (!sample.systemPowerWatts) return 0.0;
  return cappedAtOne(*sample.systemPowerWatts / 20.0);
}

double temperatureBarValue(const MetricSample& sample) {
  if (!sample.temperatureC) return 0.0;
  // Always on the Celsius scale, whatever unit the text uses.
  double value = (*sample.temperatureC - 30.0) / 70.0;
  if (value < 0.0) value = 0.0;
  if (!(value < 1.0)) value = 1.0;
  return value;
}

}  // namespace brimly::MetricFormat
