#pragma once

#include <optional>
#include <vector>

#include "platform/ScreenPort.h"

namespace brimly::testing {

// A desktop whose screens the test sets; counts how often the screen list is asked for.
class FakeScreenPort final : public ScreenPort {
 public:
  std::vector<ScreenDescription> screenList;
  std::optional<ScreenDescription> main;
  double thickness = 0.0;
  mutable int screenListReads = 0;

  std::vector<ScreenDescription> screens() const override {
    ++screenListReads;
    return screenList;
  }
  std::optional<ScreenDescription> mainScreen() const override { return main; }
  double statusBarThickness() const override { return thickness; }
};

}  // namespace brimly::testing
