#include "ui/Accent.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPalette>
#include <QSignalSpy>

#include "FakeKeyValueStore.h"
#include "settings/AppSettings.h"
#include "ui/AccentFollower.h"
#include "ui/DesktopAccent.h"
#include "ui/Switch.h"
#include "usage/AccentColors.h"
#include "usage/views/QtColor.h"

namespace brimly {
namespace {

// Every test leaves the shared accent and the application's palette as it found them.
class AccentTest : public ::testing::Test {
 protected:
  ~AccentTest() override {
    QApplication::setPalette(palette_);
    Accent::shared().setColor(Theme::accent);
  }

  QPalette palette_ = QApplication::palette();
};

QPalette withHighlight(const QColor& highlight) {
  QPalette palette = QApplication::palette();
  palette.setColor(QPalette::Highlight, highlight);
  return palette;
}

TEST_F(AccentTest, StartsAsTheGreenBrimlyHasAlwaysHad) {
  EXPECT_EQ(Accent::current(), Theme::accent);
}

TEST_F(AccentTest, AChangeIsAnnouncedOnceAndTheSameColourNotAgain) {
  QSignalSpy changes(&Accent::shared(), &Accent::changed);
  const Color blue = AccentColors::of(AccentChoice::blue);
  Accent::shared().setColor(blue);
  Accent::shared().setColor(blue);
  EXPECT_EQ(changes.count(), 1);
  EXPECT_EQ(Accent::current(), blue);
}

TEST_F(AccentTest, ASwitchThatIsOnIsDrawnInTheCurrentAccent) {
  Switch toggle(Switch::Size::small);
  toggle.resize(toggle.sizeHint());
  toggle.setOn(true);
  Accent::shared().setColor(AccentColors::of(AccentChoice::pink));
  QImage image(toggle.size(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::black);
  toggle.render(&image);
  // Left of the knob, in the middle of the track.
  const QPoint track(toggle.width() / 2 - Switch::trackSize(Switch::Size::small).width() / 2 + 3,
                     toggle.height() / 2);
  EXPECT_EQ(image.pixelColor(track).rgb(), toQColor(AccentColors::of(AccentChoice::pink)).rgb());
}

TEST_F(AccentTest, QtsOwnFallbackHighlightIsNoDesktopAccent) {
  EXPECT_EQ(DesktopAccent::fromHighlight(QColor(0x30, 0x8c, 0xc6)), std::nullopt);
  EXPECT_EQ(DesktopAccent::fromHighlight(QColor()), std::nullopt);
  EXPECT_EQ(DesktopAccent::fromHighlight(QColor(255, 0, 0, 128)), std::nullopt);
}

TEST_F(AccentTest, ADesktopsHighlightIsItsAccent) {
  const std::optional<Color> accent = DesktopAccent::fromHighlight(QColor(61, 174, 233));
  ASSERT_TRUE(accent.has_value());
  EXPECT_EQ(toQColor(*accent).rgb(), QColor(61, 174, 233).rgb());
}

TEST_F(AccentTest, FollowsTheUsersChoiceAtOnceAndOnEveryChange) {
  FakeKeyValueStore store;
  store.writeString(AppSettings::accentColorKey, "orange");
  AppSettings settings(store);
  AccentFollower follower(settings);
  EXPECT_EQ(Accent::current(), AccentColors::of(AccentChoice::orange));
  settings.setAccentColor(AccentChoice::graphite);
  EXPECT_EQ(Accent::current(), AccentColors::of(AccentChoice::graphite));
}

TEST_F(AccentTest, SystemFollowsTheDesktopsPaletteAndFallsBackToGreen) {
  QApplication::setPalette(withHighlight(QColor(0x30, 0x8c, 0xc6)));
  FakeKeyValueStore store;
  AppSettings settings(store);
  AccentFollower follower(settings);
  settings.setAccentColor(AccentChoice::system);
  EXPECT_EQ(Accent::current(), Theme::accent);

  QApplication::setPalette(withHighlight(QColor(233, 84, 32)));
  EXPECT_EQ(toQColor(Accent::current()).rgb(), QColor(233, 84, 32).rgb());

  // A fixed choice no longer follows the desktop.
  settings.setAccentColor(AccentChoice::blue);
  QApplication::setPalette(withHighlight(QColor(20, 200, 20)));
  EXPECT_EQ(Accent::current(), AccentColors::of(AccentChoice::blue));
}

}  // namespace
}  // namespace brimly
