#pragma once

#include "desktop/QtScreenPort.h"
#include "desktop/none/UnwatchedPointerPort.h"
#include "desktop/tray/TrayDesktopIntegration.h"

namespace brimly {

// The panel on a desktop Brimly cannot reach below Qt (a native Wayland session, or a headless
// platform chosen on purpose): Qt's window flags are all the overlay gets, and the pointer is not
// followed, so the panel opens only when pinned.
class PlainDesktopIntegration final : public TrayDesktopIntegration {
 public:
  // `tellAboutHover`: print the notice that hovering is off (not on headless platforms).
  explicit PlainDesktopIntegration(bool tellAboutHover) : tellAboutHover_(tellAboutHover) {}

  const ScreenPort& screens() const override { return screens_; }
  PointerPort& pointer() override { return pointer_; }
  void prepareOverlay(PanelWindow&) override {}
  void overlayShown(PanelWindow& window) override;
  void rootViewReplaced(PanelWindow&) override {}
  std::optional<std::string> hoverNotice() const override;

  bool supportsTranslucency() const override;

 private:
  bool tellAboutHover_;
  QtScreenPort screens_;
  UnwatchedPointerPort pointer_;
};

}  // namespace brimly
