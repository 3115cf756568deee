#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "core/Geometry.h"
#include "platform/OutsideClickMonitorPort.h"

namespace brimly {

class ControlCardWindow;
class StatusItemPort;

// Opens and closes the control card under the status item: a click on the item toggles it;
// Escape, a click anywhere outside it, "Show Panel", "About" and a change of the screens close it.
// Showing refreshes the switches from the truth first, sizes the card to fit, places it under the
// item, and installs a fresh outside-click monitor (never a second one). Main thread only.
class ControlPanelController {
 public:
  // `refreshModel` writes the switches' real states into the card's model. All must outlive the
  // controller.
  ControlPanelController(StatusItemPort& statusItem, OutsideClickMonitorPort& outsideClicks,
                         ControlCardWindow& card, std::function<void()> refreshModel);
  ~ControlPanelController();

  ControlPanelController(const ControlPanelController&) = delete;
  ControlPanelController& operator=(const ControlPanelController&) = delete;

  // The status item's action: shows the card when it is hidden, closes it when it is shown.
  void statusItemClicked();
  // Shows the card under the status item; nothing when the item has no button on screen.
  void showControlPanel();
  // Shows the card under `anchor` (global bottom-left-origin points), standing in for the
  // button where the desktop shows no status item.
  void showControlPanelAt(const Rect& anchor);
  // Shows the card again at the place it was last shown at (under the item, or at the anchor
  // that stood in for it); nothing when it has never been shown.
  void showControlPanelAgain();
  void closeControlPanel();
  // The screens changed: one shrank, moved, came or went. An open card may now lie off every
  // screen, where it would still hold the pointer and the keyboard unseen; it closes.
  void screensChanged();

  // A click that went to another application, where the desktop tells it. A click on the status
  // item is left to the item's own action, which toggles the card; any other closes it.
  void outsideClick(std::optional<Point> pointer);
  // A press outside the card while the card holds the pointer (an X11 pop-up): nothing else sees
  // it, so it closes the card here. Answers whether the press may go on to where it landed:
  // not when it landed on the status item, whose action would open the card again.
  bool pressOutsideCard(Point pointer);

  bool hasOutsideClickMonitor() const { return controlClickMonitor_.has_value(); }

 private:
  bool pointerOnStatusItem(Point pointer) const;
  void installControlClickMonitor();
  void removeControlClickMonitor();

  StatusItemPort& statusItem_;
  OutsideClickMonitorPort& outsideClicks_;
  ControlCardWindow& card_;
  std::function<void()> refreshModel_;
  std::optional<Rect> lastAnchor_;
  std::optional<OutsideClickMonitorPort::Token> controlClickMonitor_;
  // Monitor callbacks hold this weakly, so that they do nothing once the controller is gone.
  std::shared_ptr<ControlPanelController*> self_;
};

}  // namespace brimly
