#pragma once

#include <vector>

#include "sampling/SamplingRateControl.h"

namespace brimly::testing {

// Records what the panel asks of the system monitor.
class FakeSamplingRateControl final : public SamplingRateControl {
 public:
  bool flag = false;
  std::vector<bool> flagWrites;
  std::vector<double> restartedIntervals;

  bool panelOpen() const override { return flag; }
  void setPanelOpenFlag(bool open) override {
    flag = open;
    flagWrites.push_back(open);
  }
  void restartTimer(double intervalSeconds) override {
    restartedIntervals.push_back(intervalSeconds);
  }
};

}  // namespace brimly::testing
