#include "controlpanel/ControlPanelActions.h"

#include <QCoreApplication>
#include <optional>

#include "controlpanel/ControlPanelModel.h"
#include "panel/ProximityController.h"
#include "platform/LoginItemPort.h"
#include "settings/AppSettings.h"

namespace brimly {
namespace {

// A callback that runs `body` with the services while they exist.
template <typename... Args, typename Body>
std::function<void(Args...)> whileAlive(const std::shared_ptr<ControlPanelServices>& services,
                                        Body body) {
  std::weak_ptr<ControlPanelServices> weak = services;
  return [weak, body](Args... args) {
    if (const std::shared_ptr<ControlPanelServices> alive = weak.lock()) body(*alive, args...);
  };
}

}  // namespace

void refreshControlPanelModel(ControlPanelModel& model, const ControlPanelServices& services) {
  model.setUseFahrenheit(services.settings.useFahrenheit());
  model.setPinned(services.proximity.isPinned());
  model.setLaunchAtLogin(services.loginItem.isEnabled());
}

void connectControlPanelActions(ControlPanelModel& model,
                                const std::shared_ptr<ControlPanelServices>& services) {
  // The pin is taken by the proximity rules, which hand it back here before the panel moves.
  services->proximity.setOnPinChange(
      whileAlive<bool>(services, [&model](ControlPanelServices& alive, bool pinned) {
        alive.settings.setPinned(pinned);
        model.setPinned(pinned);
      }));
  // Only a pin that was stored is taken: one that would be lost at the next launch is not shown.
  model.onTogglePin = whileAlive<bool>(services, [](ControlPanelServices& alive, bool pinned) {
    alive.proximity.setPinned(alive.settings.storePinned(pinned));
  });
  model.onToggleFahrenheit =
      whileAlive<bool>(services, [&model](ControlPanelServices& alive, bool on) {
        alive.settings.setUseFahrenheit(on);
        model.setUseFahrenheit(alive.settings.useFahrenheit());
      });
  model.onToggleLaunch = whileAlive<bool>(services, [&model](ControlPanelServices& alive, bool on) {
    if (const std::optional<std::string> failure = alive.loginItem.setEnabled(on)) {
      if (alive.log) alive.log(loginItemFailurePrefix + *failure);
    }
    model.setLaunchAtLogin(alive.loginItem.isEnabled());
  });
  model.onShowPanel = whileAlive<>(services, [](ControlPanelServices& alive) {
    if (alive.closeCard) alive.closeCard();
    alive.proximity.showPanelTemporarily(showPanelDuration);
  });
  model.onAbout = whileAlive<>(services, [](ControlPanelServices& alive) {
    if (alive.closeCard) alive.closeCard();
    if (alive.showAbout) alive.showAbout();
  });
  // Deliberately leaves the card open: it closes only in the ways every card closes.
  model.onOpenSettings = whileAlive<>(services, [](ControlPanelServices& alive) {
    if (alive.showSettings) alive.showSettings();
  });
  // Ends the event loop; the application's termination steps run on the way out.
  model.onQuit = [] { QCoreApplication::quit(); };
}

}  // namespace brimly
