#include "desktop/statusnotifier/StatusNotifierItem.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusConnectionInterface>
#include <QDBusObjectPath>
#include <QFile>
#include <QSignalSpy>
#include <QTest>
#include <optional>

#include "FakeTrayHost.h"
#include "PrivateSessionBus.h"

namespace brimly {
namespace {

using testing::FakeTrayHost;
using testing::PrivateSessionBus;

const QString itemInterface = QStringLiteral("org.kde.StatusNotifierItem");
constexpr int patience = 5000;  // ms for the other side of the bus to answer

// The test program's own name as the system knows it: the host in these tests.
QString thisProgram() {
  QFile name(QStringLiteral("/proc/self/comm"));
  return name.open(QIODevice::ReadOnly) ? QString::fromUtf8(name.readAll()).trimmed() : QString();
}

StatusNotifierItem::Look brimlyLook() {
  return {QStringLiteral("brimly"),
          QStringLiteral("Brimly"),
          QStringLiteral("Brimly — system stats"),
          {NotifierPixmap{2, 1, QByteArray("\xff\x01\x02\x03\xff\x04\x05\x06", 8)}}};
}

// An item on a bus of the test's own, beside a tray that comes and goes as the test says.
class StatusNotifierItemTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!bus.isRunning()) GTEST_SKIP() << "dbus-daemon is not installed";
    tray.emplace(bus.address());
  }

  void TearDown() override {
    item.reset();
    tray.reset();
    QDBusConnection::disconnectFromBus(QStringLiteral("brimly-item"));
  }

  void makeItem(bool namesMenu = false,
                StatusNotifierItem::Clock now = StatusNotifierItem::steadyMilliseconds) {
    item.emplace(bus.connect(QStringLiteral("brimly-item")), brimlyLook(), namesMenu, now);
  }

  QVariantMap propertiesOfItem() {
    tray->readProperties(item->serviceName(), itemInterface);
    EXPECT_TRUE(QTest::qWaitFor([this] { return tray->properties().has_value(); }, patience));
    return tray->properties().value_or(QVariantMap{});
  }

  PrivateSessionBus bus;
  std::optional<FakeTrayHost> tray;
  std::optional<StatusNotifierItem> item;
};

TEST_F(StatusNotifierItemTest, WithoutAWatcherTheItemIsNotShown) {
  makeItem();
  EXPECT_FALSE(item->isShown());
}

TEST_F(StatusNotifierItemTest, RegistersWithAWatcherThatIsThereAndIsShownByItsHost) {
  tray->start(/*withHost=*/true);
  makeItem();
  EXPECT_TRUE(item->isShown());
  EXPECT_EQ(tray->registeredItems(), QStringList{item->serviceName()});
  EXPECT_TRUE(item->serviceName().startsWith(
      QStringLiteral("org.kde.StatusNotifierItem-%1-").arg(QCoreApplication::applicationPid())));
}

TEST_F(StatusNotifierItemTest, AWatcherWithoutAHostDoesNotShowTheItemUntilAHostComes) {
  tray->start(/*withHost=*/false);
  makeItem();
  EXPECT_FALSE(item->isShown());
  EXPECT_EQ(tray->registeredItems().size(), 1);
  tray->registerHost();
  EXPECT_TRUE(QTest::qWaitFor([this] { return item->isShown(); }, patience));
}

TEST_F(StatusNotifierItemTest, RegistersWithAWatcherThatComesLater) {
  makeItem();
  QSignalSpy shown(&*item, &StatusNotifierItem::shownChanged);
  tray->start(/*withHost=*/true);
  EXPECT_TRUE(QTest::qWaitFor([this] { return item->isShown(); }, patience));
  EXPECT_EQ(tray->registeredItems(), QStringList{item->serviceName()});
  EXPECT_EQ(shown.count(), 1);
}

TEST_F(StatusNotifierItemTest, IsNotShownWhileTheWatcherIsGoneAndRegistersAgainWhenItComesBack) {
  tray->start(/*withHost=*/true);
  makeItem();
  tray->stop();
  EXPECT_TRUE(QTest::qWaitFor([this] { return !item->isShown(); }, patience));
  tray->start(/*withHost=*/true);
  EXPECT_TRUE(QTest::qWaitFor([this] { return item->isShown(); }, patience));
  EXPECT_EQ(tray->registeredItems(), QStringList({item->serviceName(), item->serviceName()}));
}

TEST_F(StatusNotifierItemTest, EachClickOfTheHostComesWithItsPositionAndTheCallingProgram) {
  tray->start(/*withHost=*/true);
  makeItem();
  QSignalSpy clicks(&*item, &StatusNotifierItem::clicked);
  tray->click(item->serviceName(), QStringLiteral("Activate"), 1400, 12);
  tray->click(item->serviceName(), QStringLiteral("ContextMenu"), -1900, 1070);
  tray->click(item->serviceName(), QStringLiteral("SecondaryActivate"), 0, 0);
  ASSERT_TRUE(QTest::qWaitFor([&] { return clicks.count() == 3; }, patience));
  EXPECT_EQ(clicks.at(0).at(0).toPoint(), QPoint(1400, 12));
  EXPECT_EQ(clicks.at(1).at(0).toPoint(), QPoint(-1900, 1070));
  EXPECT_EQ(clicks.at(2).at(0).toPoint(), QPoint(0, 0));
  for (const QList<QVariant>& click : clicks)
    EXPECT_EQ(click.at(1).toString(), thisProgram());
}

TEST_F(StatusNotifierItemTest, TwoCallsAtOnceForOneClickAreOneClick) {
  tray->start(/*withHost=*/true);
  makeItem(/*namesMenu=*/false, [] { return qint64{1000}; });  // every call at the same moment
  QSignalSpy clicks(&*item, &StatusNotifierItem::clicked);
  // As waybar 0.9 calls from its second click on; then a click elsewhere on the icon.
  tray->click(item->serviceName(), QStringLiteral("Activate"), 11, 9);
  tray->click(item->serviceName(), QStringLiteral("Activate"), 11, 9);
  tray->click(item->serviceName(), QStringLiteral("Activate"), 4, 9);
  ASSERT_TRUE(QTest::qWaitFor([&] { return clicks.count() == 2; }, patience));
  QCoreApplication::processEvents();
  EXPECT_EQ(clicks.count(), 2);
  EXPECT_EQ(clicks.at(0).at(0).toPoint(), QPoint(11, 9));
  EXPECT_EQ(clicks.at(1).at(0).toPoint(), QPoint(4, 9));
}

TEST_F(StatusNotifierItemTest, TheWheelIsNoClick) {
  tray->start(/*withHost=*/true);
  makeItem();
  QSignalSpy clicks(&*item, &StatusNotifierItem::clicked);
  tray->call(item->serviceName(), QStringLiteral("Scroll"), {120, QStringLiteral("vertical")});
  tray->click(item->serviceName(), QStringLiteral("Activate"), 5, 5);
  // The host's calls arrive in order: once the click is in, the scroll before it was too.
  ASSERT_TRUE(QTest::qWaitFor([&] { return !clicks.isEmpty(); }, patience));
  EXPECT_EQ(clicks.count(), 1);
  EXPECT_EQ(clicks.at(0).at(0).toPoint(), QPoint(5, 5));
}

TEST_F(StatusNotifierItemTest, TellsTheHostWhatItShows) {
  tray->start(/*withHost=*/true);
  makeItem();
  const QVariantMap properties = propertiesOfItem();
  EXPECT_EQ(properties.value("Id").toString(), "brimly");
  EXPECT_EQ(properties.value("Title").toString(), "Brimly");
  EXPECT_EQ(properties.value("Category").toString(), "ApplicationStatus");
  EXPECT_EQ(properties.value("Status").toString(), "Active");
  EXPECT_EQ(properties.value("IconName").toString(), "");
  EXPECT_FALSE(properties.value("ItemIsMenu").toBool());
  const auto icon = qdbus_cast<NotifierPixmaps>(properties.value("IconPixmap"));
  ASSERT_EQ(icon.size(), 1);
  EXPECT_EQ(icon[0].width, 2);
  EXPECT_EQ(icon[0].height, 1);
  EXPECT_EQ(icon[0].pixels, QByteArray("\xff\x01\x02\x03\xff\x04\x05\x06", 8));
  const auto toolTip = qdbus_cast<NotifierToolTip>(properties.value("ToolTip"));
  EXPECT_EQ(toolTip.title, "Brimly — system stats");
  EXPECT_TRUE(toolTip.description.isEmpty());
}

TEST_F(StatusNotifierItemTest, NamesNoMenuSoThatHostsSendTheRightClick) {
  tray->start(/*withHost=*/true);
  makeItem(/*namesMenu=*/false);
  EXPECT_FALSE(propertiesOfItem().contains("Menu"));
}

TEST_F(StatusNotifierItemTest, NamesAMenuForTheHostsThatShowNoItemWithoutOne) {
  tray->start(/*withHost=*/true);
  makeItem(/*namesMenu=*/true);
  const QVariantMap properties = propertiesOfItem();
  ASSERT_TRUE(properties.contains("Menu"));
  const QString menu = qvariant_cast<QDBusObjectPath>(properties.value("Menu")).path();
  EXPECT_FALSE(menu.isEmpty());
  EXPECT_NE(menu, "/NO_DBUSMENU");
  EXPECT_EQ(properties.value("Id").toString(), "brimly");
}

TEST_F(StatusNotifierItemTest, LeavesTheBusWhenItGoes) {
  tray->start(/*withHost=*/true);
  makeItem();
  const QString name = item->serviceName();
  QDBusConnection connection = QDBusConnection::connectToBus(bus.address(), "brimly-onlooker");
  EXPECT_TRUE(connection.interface()->isServiceRegistered(name).value());
  item.reset();
  EXPECT_FALSE(connection.interface()->isServiceRegistered(name).value());
  QDBusConnection::disconnectFromBus("brimly-onlooker");
}

}  // namespace
}  // namespace brimly
