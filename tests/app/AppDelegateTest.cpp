#include "app/AppDelegate.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <QGuiApplication>
#include <QImage>
#include <QScreen>
#include <QTest>

#include <QApplication>
#include <QKeyEvent>
#include "FakeControlPanelPorts.h"
#include "FakeKeyValueStore.h"
#include "FakePlatform.h"
#include "about/AboutWindowController.h"
#include "controlpanel/ControlPanelController.h"
#include "controlpanel/ControlPanelModel.h"
#include "controlpanel/views/ControlPanelWindow.h"
#include "desktop/DesktopIntegration.h"
#include "desktop/QtScreenPort.h"
#include "panel/FakeHoverZonePort.h"
#include "panel/FakePointerPort.h"
#include "panel/views/PanelWindow.h"
#include "panel/views/QtGeometry.h"
#include "panel/views/RootView.h"
#include "settingswindow/views/SettingsWindow.h"
#include "settingswindow/views/SettingsWindowController.h"
#include "usage/MetricCellContent.h"
#include "usage/views/UsageView.h"

namespace brimly {
namespace {

using testing::FakeHoverZonePort;
using testing::FakePlatform;
using testing::FakePointerPort;
using Zone = HoverZonePort::Zone;

// Qt's offscreen platform has one screen that reserves no top bar, so the notch is the fallback
// 200 x 32 and the 600 x 148 panel hangs from the middle of its top edge.
QRect screenGeometry() {
  return QGuiApplication::primaryScreen()->geometry();
}
QRect panelGeometry() {
  return QRect(screenGeometry().center().x() + 1 - 300, 0, 600, 148);
}
double screenTop() {
  return screenGeometry().height();
}
double screenMiddle() {
  return screenGeometry().width() / 2.0;
}

class FakeDesktop final : public DesktopIntegration {
 public:
  const ScreenPort& screens() const override { return screens_; }
  PointerPort& pointer() override { return pointer_; }
  HoverZonePort* hoverZone() override { return zone; }
  void overlayShown(PanelWindow& window) override {
    ++shownCalls;
    wasVisibleWhenShown = window.isVisible();
  }
  void prepareOverlay(PanelWindow& window) override {
    ++prepareCalls;
    hadNativeWindowWhenPrepared = window.internalWinId() != 0;
    wasVisibleWhenPrepared = window.isVisible();
  }
  void rootViewReplaced(PanelWindow&) override { ++rootViewReplacements; }
  std::optional<std::string> hoverNotice() const override {
    ++noticeRequests;
    return std::nullopt;
  }
  StatusItemPort& statusItem() override { return statusItem_; }
  OutsideClickMonitorPort& outsideClicks() override { return outsideClicks_; }
  LoginItemPort& loginItem() override { return loginItem_; }
  std::optional<Rect> controlsAnchor() const override { return anchor; }
  bool controlCardGrabsPointer() const override { return popUpCard; }
  bool supportsTranslucency() const override { return translucent; }
  void prepareControlCard(QWidget&) override { ++cardPreparations; }
  void controlCardShown(QWidget&) override { ++cardShowings; }
  void titledWindowReady(QWidget& window) override { titledWindowsReady.push_back(&window); }
  bool startWindowDrag(QWidget& window) override {
    windowsDragged.push_back(&window);
    return true;
  }

  testing::FakeStatusItem statusItem_;
  testing::FakeOutsideClickMonitor outsideClicks_;
  testing::FakeLoginItem loginItem_;
  bool translucent = true;
  bool popUpCard = false;
  // Where the controls open unasked: high enough for a card of any face to hang below it.
  std::optional<Rect> anchor = Rect{400, 450, 24, 24};
  int cardPreparations = 0;
  int cardShowings = 0;
  std::vector<QWidget*> titledWindowsReady;
  std::vector<QWidget*> windowsDragged;

  QtScreenPort screens_;
  FakePointerPort pointer_;
  HoverZonePort* zone = nullptr;  // a desktop that tells only enter and leave, when set
  int prepareCalls = 0;
  int shownCalls = 0;
  bool wasVisibleWhenShown = false;
  bool hadNativeWindowWhenPrepared = false;
  bool wasVisibleWhenPrepared = true;
  int rootViewReplacements = 0;
  mutable int noticeRequests = 0;
};

class AppDelegateTest : public ::testing::Test {
 protected:
  AppDelegate& launch() {
    delegate_ = std::make_unique<AppDelegate>(platform_, defaults_, desktop_);
    delegate_->applicationDidFinishLaunching();
    return *delegate_;
  }
  UsageView* grid() const {
    return qobject_cast<UsageView*>(delegate_->window()->rootView()->grid());
  }

  FakePlatform platform_;
  FakeKeyValueStore defaults_;
  // The zone a desktop may hand over; it outlives the delegate, which stops watching it.
  FakeHoverZonePort zone_;
  FakeDesktop desktop_;
  std::unique_ptr<AppDelegate> delegate_;
};

TEST_F(AppDelegateTest, LaunchShowsTheClosedPanelAtTheTopCentreOfTheScreen) {
  AppDelegate& delegate = launch();
  ASSERT_NE(delegate.window(), nullptr);
  EXPECT_TRUE(delegate.window()->isVisible());
  EXPECT_EQ(delegate.window()->geometry(), panelGeometry());
  EXPECT_EQ(delegate.notchSize(), (Size{200, 32}));
  EXPECT_FALSE(delegate.panelState().isOpen());
}

TEST_F(AppDelegateTest, OnAScreenWithoutANotchTheClosedPanelDrawsNothing) {
  AppDelegate& delegate = launch();
  ASSERT_NE(delegate.window()->rootView(), nullptr);
  EXPECT_FALSE(delegate.window()->rootView()->metrics().hasNotch);
  QImage image(delegate.window()->size(), QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  delegate.window()->render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
  int drawn = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x)
      drawn += qAlpha(image.pixel(x, y)) != 0 ? 1 : 0;
  }
  EXPECT_EQ(drawn, 0);
}

TEST_F(AppDelegateTest, DesktopHintsGoOnTheNativeWindowBeforeItIsShown) {
  launch();
  EXPECT_EQ(desktop_.prepareCalls, 1);
  EXPECT_TRUE(desktop_.hadNativeWindowWhenPrepared);
  EXPECT_FALSE(desktop_.wasVisibleWhenPrepared);
}

TEST_F(AppDelegateTest, DesktopSettingsAreReappliedOnceThePanelIsShown) {
  launch();
  EXPECT_EQ(desktop_.shownCalls, 1);
  EXPECT_TRUE(desktop_.wasVisibleWhenShown);
}

TEST_F(AppDelegateTest, LaunchSamplesAtTheClosedRate) {
  AppDelegate& delegate = launch();
  EXPECT_TRUE(delegate.monitor().hasTimer());
  EXPECT_EQ(delegate.monitor().timerInterval(), 5.0);
  EXPECT_FALSE(delegate.monitor().panelOpen());
}

TEST_F(AppDelegateTest, PersistedPinOpensThePanelFromTheStartAtTheOpenRate) {
  defaults_.values["isPinned"] = true;
  AppDelegate& delegate = launch();
  EXPECT_TRUE(delegate.panelState().isOpen());
  EXPECT_TRUE(delegate.monitor().panelOpen());
  EXPECT_EQ(delegate.monitor().timerInterval(), 1.0);
  EXPECT_TRUE(delegate.proximity().isPinned());
}

TEST_F(AppDelegateTest, AFirstLaunchHidesWhatTheMachineCannotMeasureAndStoresNothing) {
  platform_.setMachine(testing::FakeMachine::bareMachine());
  AppDelegate& delegate = launch();
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return delegate.monitor().kindsWithoutSource().has_value(); }, 5000));
  EXPECT_EQ(delegate.settings().metricOrder(),
            (std::vector<MetricKind>{MetricKind::cpu, MetricKind::ram, MetricKind::disk}));
  EXPECT_TRUE(defaults_.writes.empty());
}

TEST_F(AppDelegateTest, AStoredOrderStaysWhatTheMachineCannotMeasure) {
  platform_.setMachine(testing::FakeMachine::bareMachine());
  defaults_.values["metricOrder"] = std::vector<std::string>{"gpu", "cpu"};
  AppDelegate& delegate = launch();
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return delegate.monitor().kindsWithoutSource().has_value(); }, 5000));
  EXPECT_EQ(delegate.settings().metricOrder(),
            (std::vector<MetricKind>{MetricKind::gpu, MetricKind::cpu}));
}

TEST_F(AppDelegateTest, TrackerWatchesThePointerAroundTheMeasuredNotch) {
  AppDelegate& delegate = launch();
  EXPECT_TRUE(desktop_.pointer_.isWatching());
  const TrackerGeometry& geometry = delegate.tracker().geometry();
  EXPECT_EQ(geometry.screenFrame, (Rect{0, 0, static_cast<double>(screenGeometry().width()),
                                        static_cast<double>(screenGeometry().height())}));
  EXPECT_EQ(geometry.triggerWidthHidden, 220.0);
  EXPECT_EQ(geometry.triggerWidthShown, 616.0);
  EXPECT_EQ(geometry.triggerHeightHidden, 32.0);
  EXPECT_EQ(geometry.triggerHeightShown, 162.0);
}

TEST_F(AppDelegateTest, PointerReachingTheNotchOpensThePanelAndSpeedsUpSampling) {
  AppDelegate& delegate = launch();
  desktop_.pointer_.moveTo(Point{screenMiddle(), screenTop() - 5});
  EXPECT_TRUE(delegate.panelState().isOpen());
  EXPECT_TRUE(delegate.monitor().panelOpen());
  EXPECT_EQ(delegate.monitor().timerInterval(), 1.0);
}

TEST_F(AppDelegateTest, PointerLeavingClosesThePanelAfterTheGracePeriod) {
  AppDelegate& delegate = launch();
  desktop_.pointer_.moveTo(Point{screenMiddle(), screenTop() - 5});
  desktop_.pointer_.moveTo(Point{screenMiddle(), 100});
  EXPECT_TRUE(delegate.panelState().isOpen());  // the grace period runs on the main loop
  EXPECT_TRUE(QTest::qWaitFor([&] { return !delegate.panelState().isOpen(); }, 5000));
  EXPECT_EQ(delegate.monitor().timerInterval(), 5.0);
}

TEST_F(AppDelegateTest, WithAHoverZoneEnteringOpensThePanelAndLeavingClosesIt) {
  desktop_.zone = &zone_;
  AppDelegate& delegate = launch();
  EXPECT_FALSE(desktop_.pointer_.isWatching());
  EXPECT_EQ(zone_.zones, (std::vector<Zone>{Zone::closedOutline}));
  zone_.enter();
  EXPECT_TRUE(delegate.panelState().isOpen());
  EXPECT_EQ(zone_.zones.back(), Zone::openCard);
  zone_.leave();
  EXPECT_EQ(zone_.zones.back(), Zone::closedOutline);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !delegate.panelState().isOpen(); }, 5000));
}

TEST_F(AppDelegateTest, WithAHoverZoneThePinTakesTheZoneAwayAndGivesItBack) {
  desktop_.zone = &zone_;
  AppDelegate& delegate = launch();
  delegate.controlModel()->onTogglePin(true);
  EXPECT_TRUE(delegate.panelState().isOpen());
  EXPECT_EQ(zone_.zones.back(), Zone::none);
  delegate.controlModel()->onTogglePin(false);
  EXPECT_FALSE(delegate.panelState().isOpen());
  EXPECT_EQ(zone_.zones.back(), Zone::closedOutline);
}

TEST_F(AppDelegateTest, WithAHoverZoneAPersistedPinStartsWithNoZone) {
  defaults_.values["isPinned"] = true;
  desktop_.zone = &zone_;
  AppDelegate& delegate = launch();
  EXPECT_TRUE(delegate.panelState().isOpen());
  EXPECT_EQ(zone_.zones, (std::vector<Zone>{Zone::none}));
}

TEST_F(AppDelegateTest, HoverNoticeIsAskedForOnceAtLaunch) {
  launch();
  EXPECT_EQ(desktop_.noticeRequests, 1);
}

TEST_F(AppDelegateTest, OpenPanelsGridShowsTheMonitorsSamplesInTheSettingsOrder) {
  AppDelegate& delegate = launch();
  ASSERT_NE(grid(), nullptr);
  bool applied = false;
  QObject::connect(&delegate.monitor(), &SystemMonitor::sampleApplied, [&] { applied = true; });
  delegate.proximity().handleProximity(true);  // opens, and takes a fresh sample at once
  ASSERT_TRUE(QTest::qWaitFor([&] { return applied; }, 5000));

  const std::vector<MetricKind>& order = delegate.settings().metricOrder();
  ASSERT_EQ(grid()->cells().size(), order.size());
  for (std::size_t i = 0; i < order.size(); ++i) {
    EXPECT_EQ(grid()->cells()[i],
              MetricCellContent::of(order[i], delegate.monitor().current(), false));
  }
}

TEST_F(AppDelegateTest, GridFollowsChangesOfTheShownMetrics) {
  AppDelegate& delegate = launch();
  delegate.settings().setMetricOrder({MetricKind::ram, MetricKind::cpu});
  ASSERT_EQ(grid()->cells().size(), 2u);
  EXPECT_EQ(grid()->cells()[0].label, "RAM");
  EXPECT_EQ(grid()->cells()[1].label, "CPU");
}

TEST_F(AppDelegateTest, ScreenChangeRebuildsTheRootViewAndReplacesThePanel) {
  AppDelegate& delegate = launch();
  const RootView* before = delegate.window()->rootView();
  delegate.screenParamsChanged();
  EXPECT_NE(delegate.window()->rootView(), before);
  EXPECT_EQ(desktop_.rootViewReplacements, 1);
  EXPECT_EQ(delegate.window()->geometry(), panelGeometry());
  EXPECT_NE(grid(), nullptr);
}

TEST_F(AppDelegateTest, ALargerPanelSizeRefitsThePanelTheGridAndTheTrackerAtOnce) {
  AppDelegate& delegate = launch();
  delegate.panelState().setOpen(true);
  delegate.settings().setPanelSize(PanelSize::large);
  // 750 × (32 + 145), still hanging from the middle of the screen's top edge.
  const QRect large(screenGeometry().center().x() + 1 - 375, 0, 750, 177);
  EXPECT_EQ(delegate.window()->geometry(), large);
  EXPECT_EQ(delegate.window()->rootView()->metrics(),
            RootViewMetrics::forNotch({200, 32}, false, 1.25));
  EXPECT_EQ(desktop_.rootViewReplacements, 1);
  ASSERT_NE(grid(), nullptr);
  EXPECT_EQ(grid()->scale(), 1.25);
  EXPECT_TRUE(delegate.panelState().isOpen());
  const TrackerGeometry& geometry = delegate.tracker().geometry();
  EXPECT_EQ(geometry.triggerWidthHidden, 220.0);  // the notch's, whatever the panel's size
  EXPECT_EQ(geometry.triggerHeightHidden, 32.0);
  EXPECT_EQ(geometry.triggerWidthShown, 770.0);
  EXPECT_EQ(geometry.triggerHeightShown, 32.0 + 162.5);

  delegate.settings().setPanelSize(PanelSize::regular);
  EXPECT_EQ(delegate.window()->geometry(), panelGeometry());
  EXPECT_EQ(grid()->scale(), 1.0);
  EXPECT_EQ(delegate.tracker().geometry().triggerWidthShown, 616.0);
}

TEST_F(AppDelegateTest, AStoredLargerPanelSizeIsTheSizeFromLaunch) {
  defaults_.writeString(AppSettings::panelSizeKey, "large");
  AppDelegate& delegate = launch();
  EXPECT_EQ(delegate.window()->size(), QSize(750, 177));
  EXPECT_EQ(grid()->scale(), 1.25);
  EXPECT_EQ(delegate.tracker().geometry().triggerWidthShown, 770.0);
  EXPECT_EQ(desktop_.rootViewReplacements, 0);
}

TEST_F(AppDelegateTest, TerminationStopsSamplingAndPointerTracking) {
  AppDelegate& delegate = launch();
  delegate.applicationWillTerminate();
  EXPECT_FALSE(delegate.monitor().hasTimer());
  EXPECT_FALSE(desktop_.pointer_.isWatching());
  EXPECT_FALSE(delegate.tracker().isWatching());
  // A second termination notice changes nothing.
  delegate.applicationWillTerminate();
  EXPECT_FALSE(delegate.monitor().hasTimer());
}

TEST_F(AppDelegateTest, TheStatusItemIsTheGaugeWithItsToolTipAndTogglesTheCard) {
  desktop_.statusItem_.button = Rect{500, 700, 24, 24};
  AppDelegate& delegate = launch();
  ASSERT_TRUE(desktop_.statusItem_.installedAppearance.has_value());
  const StatusItemAppearance& look = *desktop_.statusItem_.installedAppearance;
  EXPECT_EQ(look.symbolNames,
            (std::vector<std::string>{"gauge.with.dots.needle.bottom.50percent", "speedometer"}));
  EXPECT_EQ(look.accessibilityDescription, "Brimly");
  EXPECT_EQ(look.toolTip, "Brimly — system stats");
  EXPECT_TRUE(delegate.hasStatusItem());

  desktop_.statusItem_.click();
  ASSERT_NE(delegate.controlPanel(), nullptr);
  EXPECT_TRUE(delegate.controlPanel()->isVisible());
  EXPECT_EQ(desktop_.cardShowings, 1);
  // The card's top edge lies on the item's bottom edge.
  const QRect card = delegate.controlPanel()->geometry();
  const Rect bottomLeft = QtScreenPort::desktopCoordinates().toBottomLeft(toRect(card));
  EXPECT_DOUBLE_EQ(bottomLeft.maxY(), 700);
  desktop_.statusItem_.click();
  EXPECT_FALSE(delegate.controlPanel()->isVisible());
}

TEST_F(AppDelegateTest, TheCardStartsFromTheSettingsThePinAndTheLoginItem) {
  defaults_.values["useFahrenheit"] = true;
  defaults_.values["isPinned"] = true;
  desktop_.loginItem_.enabled = true;
  AppDelegate& delegate = launch();
  ASSERT_NE(delegate.controlModel(), nullptr);
  EXPECT_TRUE(delegate.controlModel()->useFahrenheit());
  EXPECT_TRUE(delegate.controlModel()->isPinned());
  EXPECT_TRUE(delegate.controlModel()->launchAtLogin());
  EXPECT_EQ(delegate.controlModel()->version(),
            QCoreApplication::applicationVersion().isEmpty()
                ? "dev"
                : QCoreApplication::applicationVersion().toStdString());
}

TEST_F(AppDelegateTest, WithoutAnApplicationVersionTheCardSaysDev) {
  const QString saved = QCoreApplication::applicationVersion();
  QCoreApplication::setApplicationVersion("");
  AppDelegate& delegate = launch();
  EXPECT_EQ(delegate.controlModel()->version(), "dev");
  QCoreApplication::setApplicationVersion(saved);
}

TEST_F(AppDelegateTest, ShowingTheCardRefreshesTheLoginSwitchFromTheSystem) {
  desktop_.statusItem_.button = Rect{500, 700, 24, 24};
  AppDelegate& delegate = launch();
  desktop_.loginItem_.enabled = true;  // changed in the desktop's own settings meanwhile
  desktop_.statusItem_.click();
  EXPECT_TRUE(delegate.controlModel()->launchAtLogin());
}

TEST_F(AppDelegateTest, FlippingFahrenheitInTheCardChangesThePanelsUnitAndIsStored) {
  AppDelegate& delegate = launch();
  ControlPanelModel::invoke(delegate.controlModel()->onToggleFahrenheit, true);
  EXPECT_TRUE(delegate.settings().useFahrenheit());
  EXPECT_EQ(defaults_.values["useFahrenheit"], FakeKeyValueStore::Value(true));
}

TEST_F(AppDelegateTest, ShowPanelClosesTheCardAndOpensThePanel) {
  desktop_.statusItem_.button = Rect{500, 700, 24, 24};
  AppDelegate& delegate = launch();
  desktop_.statusItem_.click();
  ControlPanelModel::invoke(delegate.controlModel()->onShowPanel);
  EXPECT_FALSE(delegate.controlPanel()->isVisible());
  EXPECT_TRUE(delegate.panelState().isOpen());
}

TEST_F(AppDelegateTest, SettingsLeavesTheCardOpenAndAboutClosesIt) {
  desktop_.statusItem_.button = Rect{500, 700, 24, 24};
  AppDelegate& delegate = launch();
  desktop_.statusItem_.click();
  ControlPanelModel::invoke(delegate.controlModel()->onOpenSettings);
  EXPECT_TRUE(delegate.controlPanel()->isVisible());
  ASSERT_NE(delegate.settingsController()->window(), nullptr);
  EXPECT_TRUE(delegate.settingsController()->window()->isVisible());
  ControlPanelModel::invoke(delegate.controlModel()->onAbout);
  EXPECT_FALSE(delegate.controlPanel()->isVisible());
  ASSERT_NE(delegate.aboutController().window(), nullptr);
  EXPECT_TRUE(delegate.aboutController().window()->isVisible());
  delegate.settingsController()->window()->hide();
  delegate.aboutController().window()->hide();
}

TEST_F(AppDelegateTest, CommandCommaOpensTheSettingsFromAnyOfBrimlysWindows) {
  AppDelegate& delegate = launch();
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Comma, Qt::ControlModifier, ",");
  QApplication::sendEvent(delegate.window(), &press);
  ASSERT_NE(delegate.settingsController()->window(), nullptr);
  EXPECT_TRUE(delegate.settingsController()->window()->isVisible());
  EXPECT_TRUE(press.isAccepted());
  delegate.settingsController()->window()->hide();
}

// A window of Brimly's that keeps the keys that reach it.
class KeyRecorder final : public QWidget {
 public:
  std::vector<int> keys;

 protected:
  void keyPressEvent(QKeyEvent* event) override { keys.push_back(event->key()); }
};

TEST_F(AppDelegateTest, CommandOptionCommaMatchesButCommandPeriodAndAPlainCommaPassThrough) {
  AppDelegate& delegate = launch();
  KeyRecorder window;
  QKeyEvent period(QEvent::KeyPress, Qt::Key_Period, Qt::ControlModifier, ".");
  QApplication::sendEvent(&window, &period);
  QKeyEvent comma(QEvent::KeyPress, Qt::Key_Comma, Qt::NoModifier, ",");
  QApplication::sendEvent(&window, &comma);
  EXPECT_EQ(delegate.settingsController()->window(), nullptr);
  EXPECT_EQ(window.keys, (std::vector<int>{Qt::Key_Period, Qt::Key_Comma}));

  QKeyEvent optionComma(QEvent::KeyPress, Qt::Key_Comma, Qt::ControlModifier | Qt::AltModifier,
                        QString());
  QApplication::sendEvent(&window, &optionComma);
  ASSERT_NE(delegate.settingsController()->window(), nullptr);
  EXPECT_TRUE(delegate.settingsController()->window()->isVisible());
  // The shortcut is taken: the window never sees it.
  EXPECT_EQ(window.keys, (std::vector<int>{Qt::Key_Period, Qt::Key_Comma}));
  delegate.settingsController()->window()->hide();
}

TEST_F(AppDelegateTest, CommandCommaInTheOpenCardOpensTheSettingsAndLeavesTheCardAsSettingsDoes) {
  // The pop-up card of X11, which Qt closes whenever another of its windows shows.
  desktop_.statusItem_.button = Rect{500, 700, 24, 24};
  desktop_.popUpCard = true;
  AppDelegate& delegate = launch();
  desktop_.statusItem_.click();
  ASSERT_TRUE(delegate.controlPanel()->isVisible());
  const QPoint where = delegate.controlPanel()->pos();
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Comma, Qt::ControlModifier, ",");
  QApplication::sendEvent(delegate.controlPanel(), &press);
  ASSERT_NE(delegate.settingsController()->window(), nullptr);
  EXPECT_TRUE(delegate.settingsController()->window()->isVisible());
  EXPECT_TRUE(delegate.controlPanel()->isVisible());
  EXPECT_EQ(delegate.controlPanel()->pos(), where);
  delegate.controlPanel()->close();
  delegate.settingsController()->window()->hide();
}

TEST_F(AppDelegateTest, AfterTerminationTheShortcutIsGone) {
  AppDelegate& delegate = launch();
  delegate.applicationWillTerminate();
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Comma, Qt::ControlModifier, ",");
  QApplication::sendEvent(delegate.window(), &press);
  EXPECT_EQ(delegate.settingsController()->window(), nullptr);
}

TEST_F(AppDelegateTest, WithoutATrayASecondLaunchShowsTheCardWhereTheDesktopSays) {
  desktop_.statusItem_.available = false;
  desktop_.statusItem_.mainScreen = toRect(screenGeometry());
  AppDelegate& delegate = launch();
  EXPECT_FALSE(delegate.hasStatusItem());
  delegate.showControlsOnRequest();
  ASSERT_TRUE(delegate.controlPanel()->isVisible());
  // Centred under the desktop's anchor (unless that leaves the screen), the card's top on the
  // anchor's bottom, in Qt's top-left coordinates.
  const QRect card = delegate.controlPanel()->geometry();
  const int width = screenGeometry().width();
  EXPECT_EQ(card.left(), std::min(412 - card.width() / 2, width - 6 - card.width()));
  EXPECT_EQ(card.top(), screenGeometry().height() - 450);
  delegate.controlPanel()->close();
}

TEST_F(AppDelegateTest, WithoutATrayOrAScreenASecondLaunchShowsNothing) {
  desktop_.statusItem_.available = false;
  desktop_.anchor.reset();
  AppDelegate& delegate = launch();
  delegate.showControlsOnRequest();
  EXPECT_FALSE(delegate.controlPanel()->isVisible());
}

TEST_F(AppDelegateTest, TheDesktopDressesTheSettingsAndAboutWindowsWhenMadeAndEachShow) {
  AppDelegate& delegate = launch();
  ControlPanelModel::invoke(delegate.controlModel()->onOpenSettings);
  QWidget* settings = delegate.settingsController()->window();
  ASSERT_NE(settings, nullptr);
  EXPECT_EQ(desktop_.titledWindowsReady, (std::vector<QWidget*>{settings, settings}));
  ControlPanelModel::invoke(delegate.controlModel()->onAbout);
  ControlPanelModel::invoke(delegate.controlModel()->onAbout);
  QWidget* about = delegate.aboutController().window();
  EXPECT_EQ(desktop_.titledWindowsReady,
            (std::vector<QWidget*>{settings, settings, about, about, about}));
  settings->hide();
  about->hide();
}

TEST_F(AppDelegateTest, TheSettingsAndAboutWindowsAreMovedByTheirBackground) {
  AppDelegate& delegate = launch();
  ControlPanelModel::invoke(delegate.controlModel()->onOpenSettings);
  ControlPanelModel::invoke(delegate.controlModel()->onAbout);
  QWidget* settings = delegate.settingsController()->window();
  QWidget* about = delegate.aboutController().window();
  // Near the top-left corner both show only their surface.
  QTest::mousePress(settings, Qt::LeftButton, Qt::NoModifier, QPoint(6, 6));
  QTest::mouseRelease(settings, Qt::LeftButton, Qt::NoModifier, QPoint(6, 6));
  QTest::mousePress(about, Qt::LeftButton, Qt::NoModifier, QPoint(6, 6));
  QTest::mouseRelease(about, Qt::LeftButton, Qt::NoModifier, QPoint(6, 6));
  // Shown again, each still has one drag of its own.
  ControlPanelModel::invoke(delegate.controlModel()->onAbout);
  QTest::mousePress(about, Qt::LeftButton, Qt::NoModifier, QPoint(6, 6));
  QTest::mouseRelease(about, Qt::LeftButton, Qt::NoModifier, QPoint(6, 6));
  EXPECT_EQ(desktop_.windowsDragged, (std::vector<QWidget*>{settings, about, about}));
  settings->hide();
  about->hide();
}

TEST_F(AppDelegateTest, WithATrayASecondLaunchLeavesTheRunningOneAlone) {
  desktop_.statusItem_.button = Rect{500, 700, 24, 24};
  AppDelegate& delegate = launch();
  ASSERT_TRUE(delegate.hasStatusItem());
  delegate.showControlsOnRequest();
  EXPECT_FALSE(delegate.controlPanel()->isVisible());
}

TEST_F(AppDelegateTest, WithoutATraySettingsLeavesThePopUpCardWhereItWas) {
  desktop_.statusItem_.available = false;
  desktop_.popUpCard = true;
  AppDelegate& delegate = launch();
  delegate.showControlsOnRequest();
  ASSERT_TRUE(delegate.controlPanel()->isVisible());
  const QPoint where = delegate.controlPanel()->pos();
  ControlPanelModel::invoke(delegate.controlModel()->onOpenSettings);
  EXPECT_TRUE(delegate.controlPanel()->isVisible());
  EXPECT_EQ(delegate.controlPanel()->pos(), where);
  delegate.controlPanel()->close();
  delegate.settingsController()->window()->hide();
}

}  // namespace
}  // namespace brimly
