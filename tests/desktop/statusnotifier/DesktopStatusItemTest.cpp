#include "desktop/statusnotifier/DesktopStatusItem.h"

#include <gtest/gtest.h>

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QSystemTrayIcon>
#include <QTest>
#include <optional>

#include "FakeControlPanelPorts.h"
#include "FakeTrayHost.h"
#include "PrivateSessionBus.h"
#include "controlpanel/ControlPanelController.h"

namespace brimly {
namespace {

using testing::FakeCard;
using testing::FakeOutsideClickMonitor;
using testing::FakeTrayHost;
using testing::PrivateSessionBus;

constexpr int patience = 5000;  // ms for the other side of the bus to answer

// The status item of a Linux desktop with the control card's rules behind it, on a bus of the
// test's own with a tray that comes and goes, on Qt's offscreen screen: one device pixel a point,
// with nothing reserved by panels.
class DesktopStatusItemTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!bus.isRunning()) GTEST_SKIP() << "dbus-daemon is not installed";
    tray.emplace(bus.address());
    const QScreen* screen = QGuiApplication::primaryScreen();
    ASSERT_NE(screen, nullptr);
    ASSERT_EQ(screen->geometry().topLeft(), QPoint(0, 0));
    ASSERT_EQ(screen->availableGeometry(), screen->geometry());
    ASSERT_EQ(screen->devicePixelRatio(), 1.0);
    width = screen->geometry().width();
    height = screen->geometry().height();
  }

  void TearDown() override {
    controller.reset();
    item.reset();
    tray.reset();
    QDBusConnection::disconnectFromBus(QStringLiteral("brimly-item"));
  }

  // Makes the item, installs it and puts the card's rules behind its clicks; answers whether
  // the item found somewhere to show.
  bool install(bool pointerReadable = false) {
    item.emplace(bus.connect(QStringLiteral("brimly-item")), pointerReadable, false);
    controller.emplace(*item, monitor, card, [] {});
    return item->install(StatusItemAppearance{{}, "Brimly", "Brimly — system stats"},
                         [this] { controller->statusItemClicked(); });
  }

  QString notifierName() const {
    const QStringList items = tray->registeredItems();
    return items.isEmpty() ? QString() : items.last();
  }

  // The host clicks the item at (x, y), and the card's rules run. Two clicks in a row land a
  // pixel apart: the same call again at once would be taken for the host's echo of the first.
  void hostClicks(const QString& method, int x, int y) {
    const std::size_t before = card.shownAt.size() + card.closes;
    tray->click(notifierName(), method, x, y);
    ASSERT_TRUE(
        QTest::qWaitFor([&] { return card.shownAt.size() + card.closes > before; }, patience));
  }

  // The card's top edge and right edge in Qt's top-left coordinates.
  double cardTop() const { return height - (card.shownAt.back().y + card.size.height); }
  double cardLeft() const { return card.shownAt.back().x; }

  QSystemTrayIcon* trayIcon() const { return item->findChild<QSystemTrayIcon*>(); }

  int width = 0;
  int height = 0;
  PrivateSessionBus bus;
  std::optional<FakeTrayHost> tray;
  std::optional<DesktopStatusItem> item;
  FakeOutsideClickMonitor monitor;
  FakeCard card;
  std::optional<ControlPanelController> controller;
};

TEST_F(DesktopStatusItemTest, AClickOfTheHostOpensTheCardCentredUnderThePositionItPasses) {
  tray->start(/*withHost=*/true);
  EXPECT_TRUE(install());
  hostClicks("Activate", 400, 12);
  ASSERT_TRUE(card.visible);
  // The item is taken to be a 24-point icon around the click: the card hangs under it.
  EXPECT_DOUBLE_EQ(cardLeft(), 400 - 150);
  EXPECT_DOUBLE_EQ(cardTop(), 12 + 12);
}

TEST_F(DesktopStatusItemTest, NearTheRightEdgeTheCardEndsSixPointsInside) {
  tray->start(/*withHost=*/true);
  install();
  hostClicks("Activate", width - 10, 12);
  EXPECT_DOUBLE_EQ(cardLeft() + card.size.width, width - 6);
}

TEST_F(DesktopStatusItemTest, FromABottomPanelTheCardOpensUpwards) {
  tray->start(/*withHost=*/true);
  install();
  hostClicks("Activate", 100, height - 12);
  EXPECT_DOUBLE_EQ(cardLeft(), 6);
  EXPECT_DOUBLE_EQ(cardTop() + card.size.height, height - 24);
}

TEST_F(DesktopStatusItemTest, TheRightAndTheMiddleButtonOpenTheCardAsTheLeftDoes) {
  tray->start(/*withHost=*/true);
  install();
  hostClicks("ContextMenu", 400, 12);
  EXPECT_TRUE(card.visible);
  hostClicks("ContextMenu", 401, 12);
  EXPECT_FALSE(card.visible);
  hostClicks("SecondaryActivate", 300, 12);
  EXPECT_TRUE(card.visible);
  EXPECT_DOUBLE_EQ(cardLeft(), 300 - 150);
}

TEST_F(DesktopStatusItemTest, ASecondClickOfTheHostClosesTheCard) {
  tray->start(/*withHost=*/true);
  install();
  hostClicks("Activate", 400, 12);
  hostClicks("Activate", 401, 12);
  EXPECT_FALSE(card.visible);
  EXPECT_EQ(card.shownAt.size(), 1u);
}

TEST_F(DesktopStatusItemTest, WithoutAPositionTheCardHangsFromTheTopRightCorner) {
  tray->start(/*withHost=*/true);
  install(/*pointerReadable=*/false);
  hostClicks("Activate", 0, 0);
  EXPECT_DOUBLE_EQ(cardLeft() + card.size.width, width - 6);
  EXPECT_DOUBLE_EQ(cardTop(), 32);  // under a usual bar, where no panel reserves a strip
}

TEST_F(DesktopStatusItemTest, WithoutAPositionTheCardOpensAtThePointerWhereItCanBeRead) {
  tray->start(/*withHost=*/true);
  install(/*pointerReadable=*/true);
  QCursor::setPos(300, 200);
  if (QCursor::pos() != QPoint(300, 200))
    GTEST_SKIP() << "this Qt platform cannot place the pointer";
  hostClicks("Activate", 0, 0);
  EXPECT_DOUBLE_EQ(cardLeft(), 300 - 150);
  EXPECT_DOUBLE_EQ(cardTop(), 200 + 12);
}

TEST_F(DesktopStatusItemTest, WithoutAWatcherQtsTrayIconStandsInForTheItem) {
  EXPECT_EQ(install(), QSystemTrayIcon::isSystemTrayAvailable());
  EXPECT_NE(trayIcon(), nullptr);
}

TEST_F(DesktopStatusItemTest, AWatcherWithoutAHostLeavesTheTrayIconInPlace) {
  tray->start(/*withHost=*/false);
  install();
  EXPECT_NE(trayIcon(), nullptr);
  tray->registerHost();
  EXPECT_TRUE(QTest::qWaitFor([this] { return trayIcon() == nullptr; }, patience));
}

TEST_F(DesktopStatusItemTest, FollowsAWatcherThatComesAndGoesWhileBrimlyRuns) {
  install();
  ASSERT_NE(trayIcon(), nullptr);
  tray->start(/*withHost=*/true);
  EXPECT_TRUE(QTest::qWaitFor([this] { return trayIcon() == nullptr; }, patience));
  hostClicks("Activate", 400, 12);
  EXPECT_TRUE(card.visible);
  tray->stop();
  EXPECT_TRUE(QTest::qWaitFor([this] { return trayIcon() != nullptr; }, patience));
}

TEST_F(DesktopStatusItemTest, WhileTheHostShowsTheItemQtPutsNoTrayIconBesideIt) {
  tray->start(/*withHost=*/true);
  EXPECT_TRUE(install());
  EXPECT_EQ(trayIcon(), nullptr);
  EXPECT_EQ(tray->registeredItems().size(), 1);
}

}  // namespace
}  // namespace brimly
