#pragma once

#include <QObject>
#include <functional>
#include <string>

namespace brimly {

// What the control card and the settings window's General tab show and change: the three switches,
// the version text for the header, and one callback per user action. The views never act on the
// system themselves: a switch only calls its callback, and the switch shows a new state once the
// callback has written it back here. That keeps "Launch at login" truthful when registering fails.
//
// Main thread only. Every write of a switch is announced, so both views stay in step.
class ControlPanelModel : public QObject {
  Q_OBJECT

 public:
  using Toggle = std::function<void(bool on)>;
  using Action = std::function<void()>;

  ControlPanelModel(bool useFahrenheit, bool isPinned, bool launchAtLogin, std::string version,
                    QObject* parent = nullptr);

  bool useFahrenheit() const { return useFahrenheit_; }
  bool isPinned() const { return isPinned_; }
  bool launchAtLogin() const { return launchAtLogin_; }
  const std::string& version() const { return version_; }

  void setUseFahrenheit(bool on);
  void setPinned(bool on);
  void setLaunchAtLogin(bool on);

  // Filled once, right after the model is made; all start empty.
  Toggle onTogglePin;
  Toggle onToggleLaunch;
  Toggle onToggleFahrenheit;
  Action onShowPanel;
  Action onAbout;
  Action onOpenSettings;
  Action onQuit;

  // What the views call: the callback when it is set, nothing otherwise.
  static void invoke(const Toggle& toggle, bool on);
  static void invoke(const Action& action);

 signals:
  // One of the three switches was written (also with the value it already had).
  void changed();

 private:
  bool useFahrenheit_;
  bool isPinned_;
  bool launchAtLogin_;
  const std::string version_;
};

}  // namespace brimly
