#pragma once

namespace brimly {

// The part of the system monitor that the panel drives: the open/closed flag and the timer
// restart that switches between the fast and the slow sampling rate.
class SamplingRateControl {
 public:
  static constexpr double openInterval = 1.0;    // seconds between samples while the panel is open
  static constexpr double closedInterval = 5.0;  // … and while it is closed

  virtual ~SamplingRateControl() = default;
  virtual bool panelOpen() const = 0;
  // Writes the flag only; the caller restarts the timer itself.
  virtual void setPanelOpenFlag(bool open) = 0;
  // Replaces the timer with one whose first tick comes at once and then every `intervalSeconds`.
  virtual void restartTimer(double intervalSeconds) = 0;
};

}  // namespace brimly
