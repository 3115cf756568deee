#include "desktop/tray/KeyboardLossMonitor.h"

#include <QGuiApplication>
#include <utility>

namespace brimly {

KeyboardLossMonitor::KeyboardLossMonitor() {
  connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
          [this](Qt::ApplicationState state) {
            if (state != Qt::ApplicationActive) keyboardLost();
          });
}

std::optional<OutsideClickMonitorPort::Token> KeyboardLossMonitor::install(
    std::function<void(std::optional<Point>)> onClick) {
  const Token token = nextToken_++;
  monitors_.emplace(token, std::move(onClick));
  return token;
}

void KeyboardLossMonitor::remove(Token token) {
  monitors_.erase(token);
}

void KeyboardLossMonitor::keyboardLost() {
  // A copy: a monitor's click may remove it, or another.
  const auto monitors = monitors_;
  for (const auto& [token, onClick] : monitors) {
    if (monitors_.contains(token)) onClick(std::nullopt);
  }
}

}  // namespace brimly
