#include "desktop/tray/TrayStatusItem.h"

#include <gtest/gtest.h>

#include <QSystemTrayIcon>

namespace brimly {
namespace {

// The clicks as the tray reports them to the icon: a click soon after the one before comes as a
// double click alone, and must open or close the card all the same.
class TrayStatusItemTest : public ::testing::Test {
 protected:
  TrayStatusItemTest() {
    item.install(StatusItemAppearance{}, [this] { ++clicks; });
    icon = item.findChild<QSystemTrayIcon*>();
  }

  void activate(QSystemTrayIcon::ActivationReason reason) const {
    ASSERT_NE(icon, nullptr);
    emit icon->activated(reason);
  }

  TrayStatusItem item;
  QSystemTrayIcon* icon = nullptr;
  int clicks = 0;
};

TEST_F(TrayStatusItemTest, AClickSoonAfterTheOneBeforeIsAClickToo) {
  activate(QSystemTrayIcon::Trigger);
  activate(QSystemTrayIcon::DoubleClick);
  EXPECT_EQ(clicks, 2);
}

TEST_F(TrayStatusItemTest, LeftAndRightClicksAreClicksAndTheMiddleButtonIsNot) {
  activate(QSystemTrayIcon::Trigger);
  activate(QSystemTrayIcon::Context);
  activate(QSystemTrayIcon::MiddleClick);
  activate(QSystemTrayIcon::Unknown);
  EXPECT_EQ(clicks, 2);
}

}  // namespace
}  // namespace brimly
