#include "sampling/SampleHistory.h"

#include "core/Precondition.h"

namespace brimly {

void SampleHistory::record(double takenAt, const MetricSample& sample) {
  if (size_ < capacity) {
    slots_[(oldest_ + size_) % capacity] = {takenAt, sample};
    ++size_;
    return;
  }
  // Full: the newest takes the oldest's slot, and the next oldest becomes the first.
  slots_[oldest_] = {takenAt, sample};
  oldest_ = (oldest_ + 1) % capacity;
}

const TimedSample& SampleHistory::at(std::size_t index) const {
  BRIMLY_REQUIRE(index < size_, "sample history index out of range");
  return slots_[(oldest_ + index) % capacity];
}

std::optional<double> SampleHistory::newestTime() const {
  if (size_ == 0) return std::nullopt;
  return at(size_ - 1).takenAt;
}

}  // namespace brimly
