#include "ui/FocusRing.h"

#include <gtest/gtest.h>

#include <QHBoxLayout>
#include <QImage>
#include <QTest>

#include "settingswindow/SettingsViewLayout.h"
#include "ui/Switch.h"
#include "usage/views/QtColor.h"

namespace brimly {
namespace {

Color fromPixel(const QColor& pixel) {
  return Color::sRGB(pixel.redF(), pixel.greenF(), pixel.blueF());
}

// Two switches in an active window, the keyboard focus on the first, and the pointer used last.
class FocusRingTest : public ::testing::Test {
 protected:
  void SetUp() override {
    auto* layout = new QHBoxLayout(&window);
    layout->addWidget(&first);
    layout->addWidget(&second);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    first.setFocus(Qt::OtherFocusReason);
    FocusRing::followPointer();
  }

  // The switch drawn on the windows' surface.
  static QImage rendered(Switch& toggle) {
    QImage image(toggle.size(), QImage::Format_ARGB32);
    image.fill(toQColor(Theme::surface));
    toggle.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
  }

  QWidget window;
  Switch first{Switch::Size::small};
  Switch second{Switch::Size::small};
};

TEST_F(FocusRingTest, FocusGivenByTheProgramShowsNoRing) {
  EXPECT_TRUE(first.hasFocus());
  EXPECT_FALSE(FocusRing::isShown(first));
}

TEST_F(FocusRingTest, TabShowsTheRingOnTheNextControl) {
  QTest::keyClick(&first, Qt::Key_Tab);
  ASSERT_TRUE(second.hasFocus());
  EXPECT_TRUE(FocusRing::isShown(second));
  EXPECT_FALSE(FocusRing::isShown(first));
}

TEST_F(FocusRingTest, AClickNeverLeavesARing) {
  QTest::keyClick(&first, Qt::Key_Tab);
  ASSERT_TRUE(FocusRing::isShown(second));
  QTest::mouseClick(&first, Qt::LeftButton);
  EXPECT_TRUE(first.hasFocus());
  EXPECT_FALSE(FocusRing::isShown(first));
  // Clicked again while it has the focus, after a Tab had shown its ring.
  QTest::keyClick(&first, Qt::Key_Tab);
  QTest::mouseClick(&second, Qt::LeftButton);
  EXPECT_TRUE(second.hasFocus());
  EXPECT_FALSE(FocusRing::isShown(second));
}

TEST_F(FocusRingTest, AKeyPressedOnAClickedControlShowsItsRing) {
  QTest::mouseClick(&first, Qt::LeftButton);
  QTest::keyClick(&first, Qt::Key_Space);
  EXPECT_TRUE(FocusRing::isShown(first));
}

TEST_F(FocusRingTest, AModifierAloneShowsNoRing) {
  QTest::keyClick(&first, Qt::Key_Control);
  QTest::keyClick(&first, Qt::Key_Shift);
  EXPECT_FALSE(FocusRing::isShown(first));
}

TEST_F(FocusRingTest, FollowingThePointerHidesTheRing) {
  QTest::keyClick(&first, Qt::Key_Tab);
  FocusRing::followPointer();
  EXPECT_FALSE(FocusRing::isShown(second));
}

TEST_F(FocusRingTest, OnlyTheRingChangesTheDrawing) {
  const QImage without = rendered(second);
  QTest::keyClick(&first, Qt::Key_Tab);
  const QImage with = rendered(second);
  EXPECT_NE(with, without);
  QTest::mouseClick(&second, Qt::LeftButton);
  EXPECT_EQ(rendered(second), without);
}

// WCAG 2's least contrast for what marks a control's state: 3 : 1.
constexpr double leastContrast = 3.0;

TEST(FocusRing, StandsOutFromTheSurfaceAndFromAnAccentFill) {
  const Color band = Theme::accent.over(Theme::surface);
  EXPECT_GE(contrastRatio(band, Theme::surface), leastContrast);
  // A switch that is on is filled with the accent; the ring's inner line lies on its edge.
  EXPECT_GE(contrastRatio(FocusRing::line, Theme::accent.over(Theme::surface)), leastContrast);
  // The band against the inner line, so that the two read as one ring.
  EXPECT_GE(contrastRatio(band, FocusRing::line), leastContrast);
}

TEST(FocusRing, StandsOutFromTheSelectedTabAndAHoveredButton) {
  const Color selectedTab =
      Theme::accent.withOpacity(SettingsViewLayout::selectedTabOpacity).over(Theme::surface);
  EXPECT_GE(contrastRatio(Theme::accent.over(selectedTab), selectedTab), leastContrast);
  const Color hovered = Color::sRGB(1, 1, 1, 0.08).over(Theme::surface);
  EXPECT_GE(contrastRatio(Theme::accent.over(hovered), hovered), leastContrast);
}

TEST_F(FocusRingTest, OnASwitchThatIsOnTheDrawnRingHasItsContrast) {
  second.setOn(true);
  QTest::keyClick(&first, Qt::Key_Tab);
  ASSERT_TRUE(FocusRing::isShown(second));
  const QImage image = rendered(second);
  // Along the middle of the track's left end: the band in the 2-pixel margin outside the track,
  // the inner line on the track's edge, the track's accent further in.
  const int middle = second.height() / 2;
  const QSize track = Switch::trackSize(Switch::Size::small);
  const int trackLeft = (second.width() - track.width()) / 2;
  const Color band = fromPixel(image.pixelColor(trackLeft - 1, middle));
  const Color line = fromPixel(image.pixelColor(trackLeft, middle));
  const Color fill = fromPixel(image.pixelColor(trackLeft + 3, middle));
  EXPECT_GE(contrastRatio(band, Theme::surface), leastContrast);
  EXPECT_GE(contrastRatio(line, fill), leastContrast);
  EXPECT_GE(contrastRatio(band, line), leastContrast);
  EXPECT_EQ(image.pixelColor(trackLeft + 3, middle).rgb(), toQColor(Theme::accent).rgb());
}

}  // namespace
}  // namespace brimly
