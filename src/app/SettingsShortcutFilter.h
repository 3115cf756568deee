#pragma once

#include <QObject>
#include <functional>

namespace brimly {

// Watches the key presses that reach Brimly's own windows and opens the settings window on
// Command-comma (Qt reports macOS's Command key as Control, so Ctrl-comma on Linux is the same
// test). A matching press is always consumed, also when nothing can be opened; every other key
// goes on unchanged.
class SettingsShortcutFilter : public QObject {
  Q_OBJECT

 public:
  explicit SettingsShortcutFilter(std::function<void()> openSettings, QObject* parent = nullptr);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  std::function<void()> openSettings_;
};

}  // namespace brimly
