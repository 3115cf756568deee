#include "desktop/layershell/StaleAreas.h"

#include <utility>

namespace brimly {

void StaleAreas::reset(int count, const QRect& whole) {
  stale_.assign(static_cast<std::size_t>(count), QRegion(whole));
}

void StaleAreas::addBuffer(const QRect& whole) {
  stale_.emplace_back(whole);
}

void StaleAreas::add(const QRegion& region) {
  for (QRegion& stale : stale_)
    stale += region;
}

QRegion StaleAreas::take(int index) {
  return std::exchange(stale_.at(static_cast<std::size_t>(index)), QRegion());
}

}  // namespace brimly
