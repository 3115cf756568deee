#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "AccessibleTree.h"
#include "controlpanel/ControlPanelModel.h"
#include "controlpanel/views/ActionButton.h"
#include "controlpanel/views/ControlPanelView.h"
#include "controlpanel/views/ControlPanelWindow.h"
#include "ui/FocusRing.h"
#include "ui/Switch.h"

namespace brimly {
namespace {

using Kind = ControlPanelWindow::Kind;

// The application's windows as an assistive technology finds them.
AccessibleNode application() {
  return readAccessible(*qApp);
}

const AccessibleNode* card(const AccessibleNode& app) {
  return findAccessible(app, QAccessible::Dialog, "Brimly");
}

class ControlCardAccessibilityTest : public ::testing::TestWithParam<Kind> {
 protected:
  void open() {
    window.showAt(Point{100, 100}, window.fittingSize());
    if (GetParam() == Kind::keyWindow) {
      window.activateWindow();
      ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    }
  }

  ControlPanelModel model{false, false, true, "1.2"};
  ControlPanelWindow window{model, GetParam()};
  ControlPanelView& view = window.view();
};

TEST_P(ControlCardAccessibilityTest, WhileOpenItIsTheDialogBrimlyWithItsSwitchesAndButtons) {
  open();
  const AccessibleNode app = application();
  const AccessibleNode* dialog = card(app);
  ASSERT_NE(dialog, nullptr) << describeAccessible(app);
  EXPECT_EQ(
      accessibleNames(*dialog, QAccessible::CheckBox),
      (std::vector<std::string>{"Keep panel visible", "Launch at login", "Show in Fahrenheit"}));
  const std::vector<const AccessibleNode*> checked =
      findAccessible(*dialog, [](const AccessibleNode& node) {
        return node.role == QAccessible::CheckBox && node.state.checked;
      });
  ASSERT_EQ(checked.size(), 1u);
  EXPECT_EQ(checked[0]->name, "Launch at login");
  EXPECT_EQ(accessibleNames(*dialog, QAccessible::Button),
            (std::vector<std::string>{"Settings", "Show Panel", "About", "Quit"}));
  EXPECT_EQ(accessibleNames(*dialog, QAccessible::StaticText),
            (std::vector<std::string>{"Brimly", "v1.2", "SETTINGS"}));
}

TEST_P(ControlCardAccessibilityTest, AClosedCardIsNotReadAsOpen) {
  open();
  window.close();
  const AccessibleNode app = application();
  const AccessibleNode* dialog = card(app);
  EXPECT_TRUE(dialog == nullptr || !dialog->showing()) << describeAccessible(app);
}

TEST_P(ControlCardAccessibilityTest, ASwitchReadsTheModelAsItChanges) {
  open();
  model.setPinned(true);
  const AccessibleNode tree = readAccessible(window);
  const AccessibleNode* pin = findAccessible(tree, QAccessible::CheckBox, "Keep panel visible");
  ASSERT_NE(pin, nullptr);
  EXPECT_TRUE(pin->state.checked);
}

// The card's focus widget has the keyboard focus, or has it as soon as the card is active.
TEST_P(ControlCardAccessibilityTest, OpensWithTheFocusOnItsFirstSwitchEveryTime) {
  open();
  EXPECT_EQ(window.focusWidget(), &view.pinSwitch());
  EXPECT_FALSE(FocusRing::isShown(view.pinSwitch()));
  // Walked on to "Settings" with the keyboard, then closed and opened again.
  for (int i = 0; i < 3; ++i)
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  ASSERT_TRUE(view.button(0).hasFocus());
  ASSERT_TRUE(FocusRing::isShown(view.button(0)));
  window.close();
  open();
  EXPECT_EQ(window.focusWidget(), &view.pinSwitch());
  EXPECT_FALSE(FocusRing::isShown(view.pinSwitch()));
}

TEST_P(ControlCardAccessibilityTest, AClickedControlWearsNoRingUntilTheKeyboardMoves) {
  open();
  QTest::mouseClick(&view.launchSwitch(), Qt::LeftButton);
  EXPECT_TRUE(view.launchSwitch().hasFocus());
  EXPECT_FALSE(FocusRing::isShown(view.launchSwitch()));
  QTest::keyClick(&view.launchSwitch(), Qt::Key_Tab);
  EXPECT_TRUE(FocusRing::isShown(view.fahrenheitSwitch()));
}

INSTANTIATE_TEST_SUITE_P(BothKinds, ControlCardAccessibilityTest,
                         ::testing::Values(Kind::popUp, Kind::keyWindow),
                         [](const ::testing::TestParamInfo<Kind>& info) {
                           return info.param == Kind::popUp ? "PopUp" : "KeyWindow";
                         });

}  // namespace
}  // namespace brimly
