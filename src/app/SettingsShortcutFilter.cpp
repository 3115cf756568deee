#include "app/SettingsShortcutFilter.h"

#include <QKeyEvent>
#include <utility>

#include "controlpanel/SettingsShortcut.h"

namespace brimly {

SettingsShortcutFilter::SettingsShortcutFilter(std::function<void()> openSettings, QObject* parent)
    : QObject(parent), openSettings_(std::move(openSettings)) {}

bool SettingsShortcutFilter::eventFilter(QObject* watched, QEvent* event) {
  // A press is offered to the shortcut system first; claiming it there keeps a focused widget
  // from also acting on it.
  if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride) {
    return QObject::eventFilter(watched, event);
  }
  const auto* key = static_cast<QKeyEvent*>(event);
  const bool commandHeld = key->modifiers().testFlag(Qt::ControlModifier);
  const char* characters = key->key() == Qt::Key_Comma ? "," : "";
  if (!isSettingsShortcut(commandHeld, characters)) return QObject::eventFilter(watched, event);
  if (event->type() == QEvent::KeyPress && openSettings_) openSettings_();
  event->accept();
  return true;
}

}  // namespace brimly
