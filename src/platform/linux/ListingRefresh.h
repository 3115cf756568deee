#pragma once

#include <optional>

#include "platform/MonotonicClock.h"

namespace brimly {

// When a reader lists a folder of devices that come and go (sys/class/power_supply,
// sys/class/hwmon, sys/class/thermal) again. Listing such a folder and finding out what each entry
// is costs more than reading the figures themselves, and its entries change only when a device is
// plugged in or out or a driver is loaded, which sysfs reports to no file watch. So the list is
// kept and made afresh at the first reading, at the first reading `intervalSeconds` or more after
// the last listing (a battery or a sensor chip that appears is found within that time), and at the
// next reading after one of its entries was found gone.
class ListingRefresh {
 public:
  static constexpr double intervalSeconds = 30.0;

  // `clock` must outlive the refresh.
  explicit ListingRefresh(const MonotonicClock& clock) : clock_(clock) {}

  // Whether the list must be made now; when it must, the listing counts as made now. A clock that
  // went back, or reads no number, asks for a listing.
  bool due();
  // An entry of the list has gone away: list again at the next reading.
  void entryGone() { listedAt_.reset(); }

 private:
  const MonotonicClock& clock_;
  std::optional<double> listedAt_;
};

}  // namespace brimly
