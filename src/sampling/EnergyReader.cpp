#include "sampling/EnergyReader.h"

#include <algorithm>
#include <cctype>
#include <cmath>

namespace brimly {

EnergyReader::EnergyReader(std::unique_ptr<EnergyCounterPort> port, const MonotonicClock& clock)
    : port_(std::move(port)), clock_(clock) {}

EnergyReader::~EnergyReader() = default;

bool EnergyReader::isEnergyChannel(std::string_view channel) {
  constexpr std::string_view word = "energy";
  const auto it =
      std::search(channel.begin(), channel.end(), word.begin(), word.end(),
                  [](char a, char b) { return std::tolower(static_cast<unsigned char>(a)) == b; });
  return it != channel.end();
}

std::optional<std::int64_t> EnergyReader::counterDelta(const EnergyCounter& earlier,
                                                       const EnergyCounter& later) {
  std::int64_t delta = 0;
  if (__builtin_sub_overflow(later.value, earlier.value, &delta)) return std::nullopt;
  if (delta < 0 && earlier.wrapsAt > 0) {
    // Up to the wrap point, then from 0 to the new value.
    std::int64_t beforeWrap = 0;
    if (__builtin_sub_overflow(earlier.wrapsAt, earlier.value, &beforeWrap)) return std::nullopt;
    if (__builtin_add_overflow(beforeWrap, later.value, &delta)) return std::nullopt;
  }
  return delta;
}

std::optional<std::int64_t> EnergyReader::energyDelta(const std::vector<EnergyCounter>& earlier,
                                                      const std::vector<EnergyCounter>& later) {
  if (earlier.size() != later.size()) return std::nullopt;
  std::int64_t total = 0;
  for (std::size_t i = 0; i < later.size(); ++i) {
    if (earlier[i].channel != later[i].channel) return std::nullopt;
    if (!isEnergyChannel(later[i].channel)) continue;
    const auto delta = counterDelta(earlier[i], later[i]);
    if (!delta) return std::nullopt;
    if (__builtin_add_overflow(total, *delta, &total)) return std::nullopt;
  }
  return total;
}

bool EnergyReader::hasCounters() const {
  return previousSample_ &&
         std::any_of(previousSample_->begin(), previousSample_->end(),
                     [](const EnergyCounter& counter) { return isEnergyChannel(counter.channel); });
}

std::optional<double> EnergyReader::sampleSystemPower() {
  if (!port_ || !port_->isAvailable()) return std::nullopt;
  std::optional<std::vector<EnergyCounter>> current = port_->readCounters();
  if (!current) return std::nullopt;
  const double now = clock_.nowSeconds();

  std::optional<double> watts;
  if (previousSample_ && now - previousTime_ > minimumIntervalSeconds) {
    const double joulesPerUnit = port_->joulesPerUnit();
    const auto units = energyDelta(*previousSample_, *current);
    if (units && joulesPerUnit > 0 && std::isfinite(joulesPerUnit)) {
      // Dividing by units-per-joule (1e9 for nanojoules) rather than multiplying by its inverse
      // keeps round figures exact.
      watts = static_cast<double>(*units) / (1.0 / joulesPerUnit) / (now - previousTime_);
    }
  }
  previousSample_ = std::move(current);
  previousTime_ = now;
  if (watts && std::isfinite(*watts) && *watts >= 0.0 && *watts < maximumWatts) return watts;
  return std::nullopt;
}

}  // namespace brimly
