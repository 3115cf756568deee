#include "ui/Switch.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QImage>
#include <QSignalSpy>
#include <QTest>
#include <optional>

#include "ui/SectionLabel.h"
#include "usage/Theme.h"
#include "usage/views/QtColor.h"

namespace brimly {
namespace {

QImage rendered(QWidget& widget) {
  QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::black);
  widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
  return image;
}

TEST(Switch, AClickAsksForTheOtherStateButDoesNotFlipIt) {
  Switch toggle(Switch::Size::small);
  toggle.resize(toggle.sizeHint());
  QSignalSpy requests(&toggle, &Switch::switchRequested);
  QTest::mouseClick(&toggle, Qt::LeftButton);
  ASSERT_EQ(requests.count(), 1);
  EXPECT_TRUE(requests.at(0).at(0).toBool());
  EXPECT_FALSE(toggle.isOn());

  toggle.setOn(true);
  QTest::mouseClick(&toggle, Qt::LeftButton);
  EXPECT_FALSE(requests.at(1).at(0).toBool());
  EXPECT_TRUE(toggle.isOn());
}

TEST(Switch, SpaceAndReturnAskToo) {
  Switch toggle(Switch::Size::mini);
  QSignalSpy requests(&toggle, &Switch::switchRequested);
  QTest::keyClick(&toggle, Qt::Key_Space);
  QTest::keyClick(&toggle, Qt::Key_Return);
  EXPECT_EQ(requests.count(), 2);
}

TEST(Switch, ADisabledSwitchAsksNothing) {
  Switch toggle(Switch::Size::mini);
  toggle.resize(toggle.sizeHint());
  toggle.setEnabled(false);
  QSignalSpy requests(&toggle, &Switch::switchRequested);
  QTest::mouseClick(&toggle, Qt::LeftButton);
  QTest::keyClick(&toggle, Qt::Key_Return);
  EXPECT_EQ(requests.count(), 0);
}

TEST(Switch, TakesKeyboardFocusAndTellsAssistiveToolsItsState) {
  Switch toggle(Switch::Size::small);
  toggle.setAccessibleName("Keep panel visible");
  toggle.setOn(true);
  EXPECT_EQ(toggle.focusPolicy(), Qt::StrongFocus);
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&toggle);
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->text(QAccessible::Name), "Keep panel visible");
  EXPECT_TRUE(accessible->state().checkable);
  EXPECT_TRUE(accessible->state().checked);
}

TEST(Switch, IsACheckBoxThatAToggleFromAScreenReaderAsksLikeAClick) {
  Switch toggle(Switch::Size::small);
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&toggle);
  EXPECT_EQ(accessible->role(), QAccessible::CheckBox);
  QSignalSpy requests(&toggle, &Switch::switchRequested);
  accessible->actionInterface()->doAction(QAccessibleActionInterface::toggleAction());
  ASSERT_EQ(requests.count(), 1);
  EXPECT_TRUE(requests.at(0).at(0).toBool());
  EXPECT_FALSE(toggle.isOn());
  EXPECT_FALSE(accessible->state().checked);
  toggle.setOn(true);
  EXPECT_TRUE(accessible->state().checked);
}

TEST(Switch, AnOnTrackIsTheAccentAndAnOffTrackIsFaintWhite) {
  Switch toggle(Switch::Size::small);
  toggle.resize(toggle.sizeHint());
  toggle.setOn(true);
  // Just inside the track's left end, left of the knob when on.
  const QPoint trackPoint(toggle.width() / 2 - 8, toggle.height() / 2);
  EXPECT_EQ(rendered(toggle).pixelColor(trackPoint).rgb(), toQColor(Theme::accent).rgb());
  toggle.setOn(false);
  const QPoint offTrackPoint(toggle.width() / 2 + 8, toggle.height() / 2);
  const QColor off = rendered(toggle).pixelColor(offTrackPoint);
  EXPECT_NEAR(off.red(), 41, 2);  // white at 16 % over black
  EXPECT_EQ(off.red(), off.blue());
}

TEST(Switch, SizesAreTheTwoControlSizes) {
  EXPECT_EQ(Switch::trackSize(Switch::Size::small), QSize(30, 18));
  EXPECT_EQ(Switch::trackSize(Switch::Size::mini), QSize(24, 14));
}

TEST(SectionLabel, IsReadOutByItsTextAndSizedToIt) {
  SectionLabel label("SETTINGS");
  EXPECT_EQ(label.accessibleName(), "SETTINGS");
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&label)->role(), QAccessible::StaticText);
  EXPECT_GT(label.sizeHint().width(), 40);
  EXPECT_LT(label.sizeHint().height(), 20);
  EXPECT_TRUE(label.font().bold() || label.font().weight() == QFont::DemiBold);
}

}  // namespace
}  // namespace brimly
