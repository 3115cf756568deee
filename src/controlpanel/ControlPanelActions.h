#pragma once

#include <functional>
#include <memory>
#include <string>

namespace brimly {

class AppSettings;
class ControlPanelModel;
class LoginItemPort;
class ProximityController;

// What the control card's switches and buttons act on. Held by the application for its whole
// life; the callbacks it fills hold it weakly and do nothing once it is gone.
struct ControlPanelServices {
  AppSettings& settings;
  ProximityController& proximity;
  LoginItemPort& loginItem;
  // Writes one line to the system's log.
  std::function<void(const std::string& line)> log;
  std::function<void()> closeCard;
  std::function<void()> showSettings;
  std::function<void()> showAbout;
};

// The prefix of the one line logged when registering or unregistering the login item fails; the
// system's reason follows it.
inline constexpr const char* loginItemFailurePrefix = "Brimly: login item toggle failed — ";
// How long "Show Panel" shows the notch panel, in seconds.
inline constexpr double showPanelDuration = 5.0;

// The model's switches as they really are: Fahrenheit and the pin from the settings, the login
// item from the system.
void refreshControlPanelModel(ControlPanelModel& model, const ControlPanelServices& services);

// Fills the model's seven callbacks:
// - the pin switch stores the pin, then pins or releases the panel as the store now holds it, and
//   shows that in the model;
// - the Fahrenheit switch stores the unit, then shows in the model the unit the settings hold
//   (the one before, when the store failed to take the new one);
// - the login switch registers or unregisters the login item, logs one line when that fails, and
//   then shows the real registration state whatever happened;
// - "Show Panel" closes the card and shows the notch panel for a while; "About" closes the card
//   and shows About; "Settings" shows the settings window and leaves the card open;
// - "Quit" ends the application's event loop.
void connectControlPanelActions(ControlPanelModel& model,
                                const std::shared_ptr<ControlPanelServices>& services);

}  // namespace brimly
