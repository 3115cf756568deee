#pragma once

#include <gtest/gtest.h>

#include <QImage>
#include <QString>
#include <QWidget>
#include <algorithm>
#include <cstdlib>
#include <functional>

#include "FakeKeyValueStore.h"
#include "FakePlatform.h"
#include "ManualScheduler.h"
#include "controlpanel/ControlPanelModel.h"
#include "sampling/SystemMonitor.h"
#include "settings/AppSettings.h"

namespace brimly::testing {

// What the settings window observes, all fake: a monitor over a fake machine driven by hand, the
// settings over an in-memory store, and the control card's model. The first sample is taken.
struct SettingsWorld {
  explicit SettingsWorld(FakeMachine machine = FakeMachine::typicalLaptop())
      : platform(std::move(machine), scheduler) {
    monitor.start();
    scheduler.advanceBy(0);
  }

  // Changes the fake machine and lets the monitor take its next sample (5 s later).
  void nextSample(const std::function<void(FakeMachine&)>& change) {
    platform.change(change);
    scheduler.advanceBy(5.0);
  }

  ManualScheduler scheduler;
  FakePlatform platform;
  SystemMonitor monitor{platform, scheduler};
  FakeKeyValueStore store;
  AppSettings settings{store};
  ControlPanelModel control{false, false, false, "1.2.0"};
};

// `widget` drawn into an image, on a screen of `ratio` physical pixels a point.
inline QImage rendered(QWidget& widget, double ratio = 1.0) {
  QImage image(widget.size() * ratio, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(Qt::transparent);
  widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
  return image;
}

inline QString referencePath(const char* name) {
  return QStringLiteral(BRIMLY_REFERENCE_DIR "/") + name;
}

// The colour `colour` shows as over an opaque `background`.
inline QColor over(const QColor& colour, const QColor& background) {
  const float a = colour.alphaF();
  return QColor::fromRgbF(colour.redF() * a + background.redF() * (1 - a),
                          colour.greenF() * a + background.greenF() * (1 - a),
                          colour.blueF() * a + background.blueF() * (1 - a));
}

inline ::testing::AssertionResult near(QColor actual, QColor expected, int tolerance = 3) {
  const int delta = std::max({std::abs(actual.red() - expected.red()),
                              std::abs(actual.green() - expected.green()),
                              std::abs(actual.blue() - expected.blue())});
  if (delta <= tolerance) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure()
         << "(" << actual.red() << ", " << actual.green() << ", " << actual.blue() << ") is not ("
         << expected.red() << ", " << expected.green() << ", " << expected.blue() << ")";
}

}  // namespace brimly::testing
