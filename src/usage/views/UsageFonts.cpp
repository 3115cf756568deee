#include "usage/views/UsageFonts.h"

#include <QPaintDevice>
#include <utility>

namespace brimly {

UsageFonts::UsageFonts(UsageTypography typography) : typography_(std::move(typography)) {}

const UsageFontSet& UsageFonts::on(const QPaintDevice& device) {
  const int dpi = device.logicalDpiY();
  if (dpi != dpi_ || dpi_ == 0) {
    fonts_ = {typography_.labelFont(device), typography_.valueFont(device),
              typography_.detailFont(device), typography_.dashFont(device)};
    dpi_ = dpi;
  }
  return fonts_;
}

}  // namespace brimly
