#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "sampling/MetricSample.h"

// The texts and bar values of the metric cells, computed from one sample. Pure functions: they
// read only their arguments, and never the user's locale.
namespace brimly::MetricFormat {

// Shown for a main value that could not be read (an em dash).
inline constexpr const char* missingPrimary = "\u2014";
// Shown as the detail line of a cell that has none, so that every cell has the same height.
inline constexpr const char* missingSecondary = " ";

// The fraction as a whole percentage, rounded half away from zero: 0.426 gives "43%". A fraction
// that is not finite or whose percentage does not fit a 64-bit integer is a fatal error.
std::string percent(double fraction);

// The temperature rounded to whole degrees, "48°C" or, converted, "118°F"; "—" without a reading.
std::string tempPrimary(const MetricSample& sample, bool useFahrenheit);

// "used / total unit" in binary gigabytes, or terabytes from 1000 GiB of total on. The total alone
// decides how many fraction digits both numbers get.
std::string formatPair(std::int64_t used, std::int64_t total);

// Swap in use: "1.5G" from one binary gigabyte on, else whole binary megabytes ("512M").
std::string formatSwap(std::uint64_t bytes);

// "8.5 / 16 GB", followed by " · swap 512M" while swap is in use; " " without a memory total.
std::string ramSecondary(const MetricSample& sample);

// "234 / 460 GB"; " " without a positive disk total.
std::string diskSecondary(const MetricSample& sample);

// The power flow: "7.4 W" on battery, "+31.0 W" while charging, else the system draw when there
// is one above 0.1 W, or "AC" on mains and "—" when the source is unknown.
std::string powerPrimary(const MetricSample& sample);

// The power source in words, with the battery charge when there is one: "battery · 85%".
std::string powerSecondary(const MetricSample& sample);

// The power bar: the flow on a 50 W scale on battery and while charging, the system draw on a
// 20 W scale otherwise; never above 1.
double powerBarValue(const MetricSample& sample);

// The temperature bar: 30 °C or less is empty, 100 °C or more is full; 0 without a reading.
double temperatureBarValue(const MetricSample& sample);

}  // namespace brimly::MetricFormat
