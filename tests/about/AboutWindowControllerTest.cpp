#include "about/AboutWindowController.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QScreen>
#include <QTest>

#include "WindowColours.h"
#include "about/AboutTheme.h"
#include "about/AboutView.h"
#include "usage/Theme.h"
#include "usage/views/QtColor.h"

namespace brimly {
namespace {

int aboutWindowsOpen() {
  int count = 0;
  for (const QWidget* widget : QApplication::topLevelWidgets()) {
    count += widget->windowTitle() == QStringLiteral("About Brimly");
  }
  return count;
}

TEST(AboutWindowControllerTest, HasNoWindowBeforeItIsShown) {
  AboutWindowController controller;
  EXPECT_EQ(controller.window(), nullptr);
}

TEST(AboutWindowControllerTest, ShowingTwiceMakesOneWindow) {
  AboutWindowController controller;
  controller.show();
  QWidget* first = controller.window();
  ASSERT_NE(first, nullptr);
  controller.show();
  EXPECT_EQ(controller.window(), first);
  EXPECT_EQ(aboutWindowsOpen(), 1);
  EXPECT_TRUE(first->isVisible());
}

TEST(AboutWindowControllerTest, ClosingOnlyHidesTheWindowForTheNextShow) {
  AboutWindowController controller;
  controller.show();
  QWidget* window = controller.window();
  EXPECT_FALSE(window->testAttribute(Qt::WA_DeleteOnClose));
  EXPECT_TRUE(window->close());
  EXPECT_FALSE(window->isVisible());
  controller.show();
  EXPECT_EQ(controller.window(), window);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(aboutWindowsOpen(), 1);
}

TEST(AboutWindowControllerTest, EscapeAndTheCloseShortcutHideIt) {
  AboutWindowController controller;
  controller.show();
  QWidget* window = controller.window();
  QTest::keyClick(window, Qt::Key_Escape);
  EXPECT_FALSE(window->isVisible());

  controller.show();
  ASSERT_TRUE(window->isVisible());
  const QKeyCombination close = QKeySequence(QKeySequence::Close)[0];
  QTest::keyClick(window, close.key(), close.keyboardModifiers());
  EXPECT_FALSE(window->isVisible());
}

TEST(AboutWindowControllerTest, IsAFixedTitledWindowTheSizeOfItsView) {
  AboutWindowController controller;
  controller.show();
  QWidget* window = controller.window();
  EXPECT_TRUE(window->isWindow());
  EXPECT_EQ(window->windowTitle(), QStringLiteral("About Brimly"));

  const auto* view = window->findChild<AboutView*>();
  ASSERT_NE(view, nullptr);
  EXPECT_EQ(window->size(), view->sizeHint());
  EXPECT_EQ(window->minimumSize(), window->maximumSize());  // not resizable
  EXPECT_EQ(window->width(), 300);

  const Qt::WindowFlags flags = window->windowFlags();
  EXPECT_TRUE(flags.testFlag(Qt::WindowCloseButtonHint));
  EXPECT_FALSE(flags.testFlag(Qt::WindowMinimizeButtonHint));
  EXPECT_FALSE(flags.testFlag(Qt::WindowMaximizeButtonHint));
}

TEST(AboutWindowControllerTest, IsReadAsAWindowWithItsTitle) {
  AboutWindowController controller;
  controller.show();
  QAccessibleInterface* window = QAccessible::queryAccessibleInterface(controller.window());
  EXPECT_EQ(window->role(), QAccessible::Window);
  EXPECT_EQ(window->text(QAccessible::Name), QStringLiteral("About Brimly"));
}

TEST(AboutWindowControllerTest, OpensInTheMiddleOfTheScreen) {
  AboutWindowController controller;
  controller.show();
  const QWidget* window = controller.window();
  const QPoint middle = window->screen()->availableGeometry().center();
  const QPoint centre = window->frameGeometry().center();
  EXPECT_LE(std::abs(centre.x() - middle.x()), 1);
  EXPECT_LE(std::abs(centre.y() - middle.y()), 1);
}

TEST(AboutWindowControllerTest, IsDrawnDarkOnTheSurfaceColour) {
  AboutWindowController controller;
  controller.show();
  testing::expectDrawnOnSurface(*controller.window(), toQColor(AboutTheme::surface),
                                toQColor(Theme::primaryForeground));
}

}  // namespace
}  // namespace brimly
