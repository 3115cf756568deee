#include "ui/AccentFollower.h"

#include "settings/AppSettings.h"
#include "ui/Accent.h"
#include "usage/AccentColors.h"

namespace brimly {

AccentFollower::AccentFollower(const AppSettings& settings, QObject* parent)
    : QObject(parent), settings_(settings) {
  connect(&settings_, &AppSettings::accentColorChanged, this, &AccentFollower::follow);
  connect(&desktop_, &DesktopAccent::changed, this, &AccentFollower::follow);
  follow();
}

void AccentFollower::follow() {
  Accent::shared().setColor(AccentColors::of(settings_.accentColor(), desktop_.color()));
}

}  // namespace brimly
