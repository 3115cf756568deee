#pragma once

#include <QObject>

#include "ui/DesktopAccent.h"

namespace brimly {

class AppSettings;

// Keeps the shared `Accent` on the user's choice: at once, whenever the choice changes, and, while
// the choice is "System", whenever the desktop's accent does.
class AccentFollower : public QObject {
  Q_OBJECT

 public:
  // `settings` must outlive the follower.
  explicit AccentFollower(const AppSettings& settings, QObject* parent = nullptr);

  const DesktopAccent& desktop() const { return desktop_; }

 private:
  void follow();

  const AppSettings& settings_;
  DesktopAccent desktop_;
};

}  // namespace brimly
