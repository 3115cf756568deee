#include "controlpanel/ControlPanelController.h"

#include <utility>

#include "controlpanel/ControlCardWindow.h"
#include "controlpanel/ControlPanelPlacement.h"
#include "platform/StatusItemPort.h"

namespace brimly {

ControlPanelController::ControlPanelController(StatusItemPort& statusItem,
                                               OutsideClickMonitorPort& outsideClicks,
                                               ControlCardWindow& card,
                                               std::function<void()> refreshModel)
    : statusItem_(statusItem),
      outsideClicks_(outsideClicks),
      card_(card),
      refreshModel_(std::move(refreshModel)),
      self_(std::make_shared<ControlPanelController*>(this)) {}

ControlPanelController::~ControlPanelController() {
  removeControlClickMonitor();
}

void ControlPanelController::statusItemClicked() {
  if (card_.isVisible()) {
    closeControlPanel();
  } else {
    showControlPanel();
  }
}

void ControlPanelController::showControlPanel() {
  if (const std::optional<Rect> button = statusItem_.buttonFrame()) showControlPanelAt(*button);
}

void ControlPanelController::showControlPanelAgain() {
  if (lastAnchor_) showControlPanelAt(*lastAnchor_);
}

void ControlPanelController::showControlPanelAt(const Rect& anchor) {
  lastAnchor_ = anchor;
  // Changes made elsewhere (the settings window, the system's own login-item list) show at once.
  if (refreshModel_) refreshModel_();
  const Size size = card_.fittingSize();
  const Rect area = ControlPanelPlacement::boundingArea(
      statusItem_.buttonScreenVisibleFrame(), statusItem_.mainScreenVisibleFrame(), anchor);
  card_.showAt(ControlPanelPlacement::cardOrigin(anchor, area, size), size);
  removeControlClickMonitor();
  installControlClickMonitor();
}

void ControlPanelController::closeControlPanel() {
  card_.close();
  removeControlClickMonitor();
}

void ControlPanelController::screensChanged() {
  if (card_.isVisible()) closeControlPanel();
}

void ControlPanelController::outsideClick(std::optional<Point> pointer) {
  if (pointer && pointerOnStatusItem(*pointer)) return;
  closeControlPanel();
}

bool ControlPanelController::pressOutsideCard(Point pointer) {
  closeControlPanel();
  return !pointerOnStatusItem(pointer);
}

bool ControlPanelController::pointerOnStatusItem(Point pointer) const {
  const std::optional<Rect> button = statusItem_.buttonFrame();
  return button && button->contains(pointer);
}

void ControlPanelController::installControlClickMonitor() {
  std::weak_ptr<ControlPanelController*> weak = self_;
  controlClickMonitor_ = outsideClicks_.install([weak](std::optional<Point> pointer) {
    if (auto self = weak.lock()) (*self)->outsideClick(pointer);
  });
}

void ControlPanelController::removeControlClickMonitor() {
  if (!controlClickMonitor_) return;
  outsideClicks_.remove(*controlClickMonitor_);
  controlClickMonitor_.reset();
}

}  // namespace brimly
