#include "settingswindow/views/SettingsWindowController.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScreen>
#include <QTest>

#include "SettingsWorld.h"
#include "WindowColours.h"
#include "settingswindow/SettingsTheme.h"
#include "settingswindow/views/MetricsTab.h"
#include "settingswindow/views/SettingsView.h"
#include "settingswindow/views/SettingsWindow.h"
#include "settingswindow/views/TabButton.h"
#include "ui/TextStyle.h"
#include "usage/views/QtColor.h"

namespace brimly {
namespace {

using testing::SettingsWorld;

int settingsWindowCount() {
  int count = 0;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (qobject_cast<SettingsWindow*>(widget) != nullptr) ++count;
  }
  return count;
}

class SettingsWindowControllerTest : public ::testing::Test {
 protected:
  SettingsWorld world;
  SettingsWindowController controller{world.settings, world.control, world.monitor};
};

TEST_F(SettingsWindowControllerTest, NothingIsMadeBeforeTheFirstShow) {
  EXPECT_EQ(controller.window(), nullptr);
  EXPECT_EQ(controller.view(), nullptr);
  EXPECT_EQ(settingsWindowCount(), 0);
}

TEST_F(SettingsWindowControllerTest, ShowingTwiceMakesOneWindow) {
  controller.show();
  SettingsWindow* first = controller.window();
  ASSERT_NE(first, nullptr);
  controller.show();
  EXPECT_EQ(controller.window(), first);
  EXPECT_EQ(settingsWindowCount(), 1);
  EXPECT_TRUE(first->isVisible());
}

TEST_F(SettingsWindowControllerTest, ClosingOnlyHidesAndTheNextShowBringsBackTheSameWindow) {
  controller.show();
  SettingsWindow* window = controller.window();
  EXPECT_FALSE(window->testAttribute(Qt::WA_DeleteOnClose));
  EXPECT_TRUE(window->close());
  EXPECT_FALSE(window->isVisible());
  controller.show();
  EXPECT_EQ(controller.window(), window);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(settingsWindowCount(), 1);
}

TEST_F(SettingsWindowControllerTest, TheSelectedTabSurvivesClosingAndShowingAgain) {
  controller.show();
  EXPECT_EQ(controller.view()->tab(), SettingsTab::general);
  controller.view()->tabButton(SettingsTab::metrics).click();
  controller.window()->close();
  controller.show();
  EXPECT_EQ(controller.view()->tab(), SettingsTab::metrics);
  EXPECT_TRUE(controller.view()->metricsTab().isVisible());
}

TEST_F(SettingsWindowControllerTest, TheWindowCannotBeResizedAndItsContentIs360By468) {
  controller.show();
  SettingsWindow* window = controller.window();
  EXPECT_EQ(window->size(), QSize(360, 468));
  EXPECT_EQ(window->minimumSize(), QSize(360, 468));
  EXPECT_EQ(window->maximumSize(), QSize(360, 468));
  EXPECT_EQ(controller.view()->size(), QSize(360, 468));
  EXPECT_EQ(controller.view()->geometry(), QRect(0, 0, 360, 468));
  window->resize(500, 600);
  EXPECT_EQ(window->size(), QSize(360, 468));
}

TEST_F(SettingsWindowControllerTest, TitledWithACloseButtonButNoMinimiseOrMaximise) {
  controller.show();
  SettingsWindow* window = controller.window();
  EXPECT_EQ(window->windowTitle(), QStringLiteral("Brimly Settings"));
  EXPECT_TRUE(window->isWindow());
  const Qt::WindowFlags flags = window->windowFlags();
  EXPECT_TRUE(flags & Qt::WindowCloseButtonHint);
  EXPECT_TRUE(flags & Qt::WindowTitleHint);
  EXPECT_FALSE(flags & Qt::WindowMinimizeButtonHint);
  EXPECT_FALSE(flags & Qt::WindowMaximizeButtonHint);
}

TEST_F(SettingsWindowControllerTest, EscapeAndTheCloseShortcutHideTheWindow) {
  controller.show();
  SettingsWindow* window = controller.window();
  QTest::keyClick(window, Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());
  controller.show();
  QTest::keySequence(window, QKeySequence(QKeySequence::Close));
  EXPECT_FALSE(window->isVisible());
  controller.show();
  EXPECT_TRUE(window->isVisible());
}

TEST_F(SettingsWindowControllerTest, EscapeFromAFocusedControlReachesTheWindow) {
  controller.show();
  TabButton& metrics = controller.view()->tabButton(SettingsTab::metrics);
  QTest::keyClick(&metrics, Qt::Key_Escape);
  EXPECT_FALSE(controller.window()->isVisible());
}

TEST_F(SettingsWindowControllerTest, TheWindowFirstAppearsCentredOnTheScreen) {
  controller.show();
  const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
  const QRect frame = controller.window()->frameGeometry();
  EXPECT_LE(std::abs(frame.center().x() - available.center().x()), 1);
  EXPECT_LE(std::abs(frame.center().y() - available.center().y()), 1);
}

TEST_F(SettingsWindowControllerTest, TheDesktopIsToldOnceOfTheWindowAndOfEveryShow) {
  int made = 0;
  int shown = 0;
  SettingsWindow* madeWindow = nullptr;
  controller.onWindowMade = [&](SettingsWindow& window) {
    ++made;
    madeWindow = &window;
    EXPECT_FALSE(window.isVisible());
    EXPECT_NE(window.windowHandle(), nullptr);
  };
  controller.onShown = [&](SettingsWindow& window) {
    ++shown;
    EXPECT_TRUE(window.isVisible());
  };
  controller.show();
  controller.show();
  controller.window()->hide();
  controller.show();
  EXPECT_EQ(made, 1);
  EXPECT_EQ(shown, 3);
  EXPECT_EQ(madeWindow, controller.window());
}

TEST_F(SettingsWindowControllerTest, TheWindowIsDrawnDarkOnTheSurfaceColour) {
  controller.show();
  testing::expectDrawnOnSurface(*controller.window(), toQColor(SettingsTheme::surface),
                                textColor(TextStyle::primary));
}

}  // namespace
}  // namespace brimly
