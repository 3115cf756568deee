#include "ui/BackgroundDrag.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QTest>
#include <QWidget>

namespace brimly {
namespace {

// A window with a button in its top-left corner and background everywhere else.
class BackgroundDragTest : public ::testing::Test {
 protected:
  BackgroundDragTest() {
    window.setGeometry(200, 150, 300, 200);
    button->setGeometry(0, 0, 80, 30);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
    start = window.pos();
  }
  ~BackgroundDragTest() override { window.hide(); }

  // A press at `from` in the window, the pointer moved by `by`, and the button released.
  void drag(QPoint from, QPoint by, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mousePress(&window, button, Qt::NoModifier, from);
    // The window moves under the pointer, which stays where it went on the screen.
    const QPoint global = window.mapToGlobal(from) + by;
    QMouseEvent move(QEvent::MouseMove, window.mapFromGlobal(global), global, button, button,
                     Qt::NoModifier);
    QApplication::sendEvent(&window, &move);
    QTest::mouseRelease(&window, button, Qt::NoModifier, window.mapFromGlobal(global));
  }

  // A window system that counts the moves it is offered, and takes them or declines them.
  BackgroundDrag::SystemMove windowSystem(bool takes) {
    return [this, takes](QWidget&) {
      ++systemMoves;
      return takes;
    };
  }

  QWidget window;
  QPushButton* button = new QPushButton(QStringLiteral("Control"), &window);
  QPoint start;  // where the window's frame is before any drag
  int systemMoves = 0;
};

TEST_F(BackgroundDragTest, ThePressGoesToTheWindowSystemFirst) {
  BackgroundDrag moves(window, windowSystem(true));
  drag(QPoint(150, 100), QPoint(40, 30));
  EXPECT_EQ(systemMoves, 1);
  // The window system moves it; Brimly does not as well.
  EXPECT_EQ(window.pos(), start);
}

TEST_F(BackgroundDragTest, WhereTheSystemDeclinesTheWindowFollowsThePointer) {
  BackgroundDrag moves(window, windowSystem(false));
  drag(QPoint(150, 100), QPoint(40, 30));
  EXPECT_EQ(systemMoves, 1);
  EXPECT_EQ(window.pos(), start + QPoint(40, 30));
  // Released, it stays where it was put.
  const QPoint global = window.mapToGlobal(QPoint(10, 10));
  QMouseEvent move(QEvent::MouseMove, QPoint(10, 10), global, Qt::NoButton, Qt::NoButton,
                   Qt::NoModifier);
  QApplication::sendEvent(&window, &move);
  EXPECT_EQ(window.pos(), start + QPoint(40, 30));
}

TEST_F(BackgroundDragTest, APressOnAControlIsTheControlsAlone) {
  BackgroundDrag moves(window, windowSystem(false));
  int clicks = 0;
  QObject::connect(button, &QPushButton::clicked, [&] { ++clicks; });
  QTest::mousePress(button, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
  QTest::mouseMove(button, QPoint(30, 20));
  QTest::mouseRelease(button, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(systemMoves, 0);
  EXPECT_EQ(window.pos(), start);
}

TEST_F(BackgroundDragTest, OnlyTheLeftButtonDrags) {
  BackgroundDrag moves(window, windowSystem(false));
  drag(QPoint(150, 100), QPoint(40, 30), Qt::RightButton);
  EXPECT_EQ(systemMoves, 0);
  EXPECT_EQ(window.pos(), start);
}

}  // namespace
}  // namespace brimly
