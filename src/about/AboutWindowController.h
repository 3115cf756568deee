#pragma once

#include <QWidget>
#include <functional>
#include <memory>

namespace brimly {

// Owns the About window: made on the first `show()`, then only hidden (closing it, Escape or the
// platform's close shortcut) and shown again, so there is never more than one.
class AboutWindowController {
 public:
  AboutWindowController();
  ~AboutWindowController();
  AboutWindowController(const AboutWindowController&) = delete;
  AboutWindowController& operator=(const AboutWindowController&) = delete;

  // Makes the window on first use, centred on the screen; then shows it, brings it to the front
  // and gives it the keyboard.
  void show();

  // What the desktop adds, if anything: run once the window's native window exists and before it
  // is first shown, and right after every show.
  std::function<void(QWidget& window)> onWindowMade;
  std::function<void(QWidget& window)> onShown;

  // The window, once made (null before the first `show()`).
  QWidget* window() const { return window_.get(); }

 private:
  std::unique_ptr<QWidget> window_;
};

}  // namespace brimly
