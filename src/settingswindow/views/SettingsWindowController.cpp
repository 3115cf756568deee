#include "settingswindow/views/SettingsWindowController.h"

#include <QApplication>
#include <QGuiApplication>
#include <QScreen>

#include "settingswindow/views/SettingsView.h"

namespace brimly {

SettingsWindowController::SettingsWindowController(AppSettings& settings,
                                                   ControlPanelModel& control,
                                                   const SystemMonitor& monitor)
    : settings_(settings), control_(control), monitor_(monitor) {}

SettingsWindowController::~SettingsWindowController() {
  delete window_.data();
}

SettingsView* SettingsWindowController::view() const {
  return window_ ? &window_->view() : nullptr;
}

void SettingsWindowController::show() {
  if (!window_) {
    window_ = new SettingsWindow(settings_, control_, monitor_);
    window_->winId();  // the native window, for what the desktop sets before the first show
    if (const QScreen* screen = QGuiApplication::primaryScreen()) {
      // The frame is centred, title bar included, as far as the desktop has told us of it.
      QRect frame = window_->frameGeometry();
      frame.moveCenter(screen->availableGeometry().center());
      window_->move(frame.topLeft());
    }
    if (onWindowMade) onWindowMade(*window_);
  }
  window_->show();
  window_->raise();
  // A pop-up that holds the keyboard (the control card on X11) would be closed by taking the
  // focus from it; the window gets the keyboard with the first click into it instead.
  if (QApplication::activePopupWidget() == nullptr) window_->activateWindow();
  if (onShown) onShown(*window_);
}

}  // namespace brimly
