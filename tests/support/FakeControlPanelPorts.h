#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "controlpanel/ControlCardWindow.h"
#include "platform/LoginItemPort.h"
#include "platform/OutsideClickMonitorPort.h"
#include "platform/StatusItemPort.h"

namespace brimly::testing {

// A status item whose button and screens the test sets; `click()` stands for the user's click.
class FakeStatusItem final : public StatusItemPort {
 public:
  std::optional<Rect> button;
  std::optional<Rect> buttonScreen;
  std::optional<Rect> mainScreen;
  bool available = true;
  std::optional<StatusItemAppearance> installedAppearance;
  std::function<void()> onClick;

  bool install(const StatusItemAppearance& appearance, std::function<void()> click) override {
    installedAppearance = appearance;
    onClick = std::move(click);
    return available;
  }
  std::optional<Rect> buttonFrame() const override { return button; }
  std::optional<Rect> buttonScreenVisibleFrame() const override { return buttonScreen; }
  std::optional<Rect> mainScreenVisibleFrame() const override { return mainScreen; }

  void click() const {
    if (onClick) onClick();
  }
};

// Outside-click monitors as a table of live tokens; `click(p)` delivers a click to each.
class FakeOutsideClickMonitor final : public OutsideClickMonitorPort {
 public:
  bool refuses = false;
  int installs = 0;
  int removals = 0;
  std::map<Token, std::function<void(std::optional<Point>)>> live;

  std::optional<Token> install(std::function<void(std::optional<Point>)> onClick) override {
    ++installs;
    if (refuses) return std::nullopt;
    const Token token = nextToken_++;
    live.emplace(token, std::move(onClick));
    return token;
  }
  void remove(Token token) override {
    ++removals;
    live.erase(token);
  }

  // A click at `pointer`, or one the desktop tells no place of (nothing).
  void click(std::optional<Point> pointer) const {
    // A copy: a click may remove the monitor it is delivered by.
    const auto monitors = live;
    for (const auto& [token, onClick] : monitors)
      onClick(pointer);
  }

 private:
  Token nextToken_ = 1;
};

// A card window that records where it was shown.
class FakeCard final : public ControlCardWindow {
 public:
  bool visible = false;
  Size size{300, 330};
  std::vector<Point> shownAt;
  int closes = 0;

  bool isVisible() const override { return visible; }
  Size fittingSize() override { return size; }
  void showAt(Point origin, Size) override {
    visible = true;
    shownAt.push_back(origin);
  }
  void close() override {
    visible = false;
    ++closes;
  }
};

// A login item that is registered or not, and that can be told to fail the next toggles.
class FakeLoginItem final : public LoginItemPort {
 public:
  bool enabled = false;
  std::optional<std::string> failure;
  std::vector<bool> requests;

  bool isEnabled() const override { return enabled; }
  std::optional<std::string> setEnabled(bool on) override {
    requests.push_back(on);
    if (failure) return failure;
    enabled = on;
    return std::nullopt;
  }
};

}  // namespace brimly::testing
