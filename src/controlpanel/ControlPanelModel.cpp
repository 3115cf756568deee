#include "controlpanel/ControlPanelModel.h"

#include <utility>

namespace brimly {

ControlPanelModel::ControlPanelModel(bool useFahrenheit, bool isPinned, bool launchAtLogin,
                                     std::string version, QObject* parent)
    : QObject(parent),
      useFahrenheit_(useFahrenheit),
      isPinned_(isPinned),
      launchAtLogin_(launchAtLogin),
      version_(std::move(version)) {}

void ControlPanelModel::setUseFahrenheit(bool on) {
  useFahrenheit_ = on;
  emit changed();
}

void ControlPanelModel::setPinned(bool on) {
  isPinned_ = on;
  emit changed();
}

void ControlPanelModel::setLaunchAtLogin(bool on) {
  launchAtLogin_ = on;
  emit changed();
}

void ControlPanelModel::invoke(const Toggle& toggle, bool on) {
  if (toggle) toggle(on);
}

void ControlPanelModel::invoke(const Action& action) {
  if (action) action();
}

}  // namespace brimly
