#include "app/AppDelegate.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <cstdio>

#include "about/AboutWindowController.h"
#include "app/SettingsShortcutFilter.h"
#include "controlpanel/ControlPanelActions.h"
#include "controlpanel/ControlPanelController.h"
#include "controlpanel/ControlPanelModel.h"
#include "controlpanel/views/ControlPanelWindow.h"
#include "core/Appearance.h"
#include "core/VersionText.h"
#include "desktop/DesktopIntegration.h"
#include "desktop/QtScreenPort.h"
#include "panel/views/PanelWindow.h"
#include "platform/KeyValueStore.h"
#include "platform/LoginItemPort.h"
#include "platform/StatusItemPort.h"
#include "platform/SystemLog.h"
#include "settingswindow/views/SettingsWindow.h"
#include "settingswindow/views/SettingsWindowController.h"
#include "ui/BackgroundDrag.h"
#include "usage/views/UsageView.h"
#include "usage/views/UsageViewBinding.h"

namespace brimly {

AppDelegate::AppDelegate(const PlatformFactory& platform, KeyValueStore& defaults,
                         DesktopIntegration& desktop, QObject* parent)
    : QObject(parent),
      desktop_(desktop),
      screens_(desktop.screens()),
      monitor_(platform, samplingQueue_),
      tracker_(desktop.pointer(), screens_, desktop.hoverZone()),
      settings_(defaults),
      proximity_(panelState_, monitor_, scheduler_, tracker_),
      launch_(proximity_, tracker_, monitor_),
      aboutController_(std::make_unique<AboutWindowController>()) {
  settings_.setWriteFailureLog(writeSystemLogLine);
  // A first launch leaves out what this machine cannot measure at all; a stored order stays.
  connect(&monitor_, &SystemMonitor::sourcesFound, &settings_,
          [this] { settings_.leaveOutOfDefaultOrder(*monitor_.kindsWithoutSource()); });
  aboutController_->onWindowMade = [this](QWidget& window) { titledWindowMade(window); };
  aboutController_->onShown = [this](QWidget& window) { desktop_.titledWindowReady(window); };
}

AppDelegate::~AppDelegate() {
  // The tracker must not outlive its watch: a movement call would reach a dead object.
  tracker_.stop();
  removeSettingsShortcut();
}

void AppDelegate::applicationDidFinishLaunching() {
  PanelLaunchHooks hooks;
  hooks.recomputeNotch = [this] { recomputeNotch(); };
  hooks.buildWindow = [this] { buildWindow(); };
  hooks.buildStatusItem = [this] { buildStatusItem(); };
  hooks.placePanel = [this] { placePanel(); };
  hooks.applyTrackerGeometry = [this] { applyTrackerGeometry(); };
  hooks.observeScreenChanges = [this] { observeScreenChanges(); };
  hooks.installSettingsShortcut = [this] { installSettingsShortcut(); };
  // A pinned panel takes no click, where the desktop lets it take any (a hover zone).
  tracker_.setPinned(settings_.isPinned());
  connect(&settings_, &AppSettings::isPinnedChanged, this,
          [this](bool pinned) { tracker_.setPinned(pinned); });
  launch_.launch(settings_.isPinned(), hooks);
  connect(&settings_, &AppSettings::panelSizeChanged, this, &AppDelegate::refitPanel);

  // Said once, after the tracker has tried to watch the pointer.
  if (const std::optional<std::string> notice = desktop_.hoverNotice()) {
    std::fprintf(stderr, "%s\n", notice->c_str());
  }
}

void AppDelegate::applicationWillTerminate() {
  if (terminated_) return;
  terminated_ = true;
  PanelShutdownHooks hooks;
  hooks.cancelSamplingTimer = [this] { monitor_.cancelTimer(); };
  hooks.removeSettingsShortcut = [this] { removeSettingsShortcut(); };
  launch_.shutdown(hooks);
}

void AppDelegate::recomputeNotch() {
  placement_ = NotchGeometry::place(screens_, notchSize_, panelScale());
  notchSize_ = placement_.notchSize;
}

double AppDelegate::panelScale() const {
  return scaleOf(settings_.panelSize());
}

void AppDelegate::buildWindow() {
  window_ = std::make_unique<PanelWindow>(
      panelState_, notchSize_, placement_.hasNotch,
      [this]() -> QWidget* { return makePanelGrid(monitor_, settings_, panelState_); },
      panelScale());
  window_->setWindowTitle("Brimly");
  window_->winId();  // the native window, so that the desktop's hints go on before it is shown
  desktop_.prepareOverlay(*window_);
}

void AppDelegate::buildStatusItem() {
  StatusItemAppearance appearance;
  appearance.symbolNames = {"gauge.with.dots.needle.bottom.50percent", "speedometer"};
  appearance.accessibilityDescription = "Brimly";
  appearance.toolTip = "Brimly — system stats";
  hasStatusItem_ = desktop_.statusItem().install(appearance, [this] {
    if (controlPanel_) controlPanel_->statusItemClicked();
  });
  if (!hasStatusItem_) {
    std::fprintf(stderr,
                 "Brimly: this desktop shows no system tray; run brimly again to open its "
                 "controls\n");
  }
  buildControlPanel();
}

void AppDelegate::buildControlPanel() {
  const QString shortVersion = QCoreApplication::applicationVersion();
  controlModel_ = std::make_unique<ControlPanelModel>(
      settings_.useFahrenheit(), proximity_.isPinned(), desktop_.loginItem().isEnabled(),
      versionText(shortVersion.isEmpty() ? std::nullopt
                                         : std::optional(shortVersion.toStdString())));
  controlServices_ = std::make_shared<ControlPanelServices>(ControlPanelServices{
      settings_, proximity_, desktop_.loginItem(), writeSystemLogLine,
      [this] { controlPanel_->closeControlPanel(); }, [this] { showSettingsBesideTheCard(); },
      [this] { aboutController_->show(); }});
  connectControlPanelActions(*controlModel_, controlServices_);
  settingsController_ =
      std::make_unique<SettingsWindowController>(settings_, *controlModel_, monitor_);
  settingsController_->onWindowMade = [this](SettingsWindow& window) { titledWindowMade(window); };
  settingsController_->onShown = [this](SettingsWindow& window) {
    desktop_.titledWindowReady(window);
  };

  controlPanelWindow_ = std::make_unique<ControlPanelWindow>(
      *controlModel_, desktop_.controlCardGrabsPointer() ? ControlPanelWindow::Kind::popUp
                                                         : ControlPanelWindow::Kind::keyWindow);
  controlPanelWindow_->winId();
  desktop_.prepareControlCard(*controlPanelWindow_);
  controlPanel_ = std::make_unique<ControlPanelController>(
      desktop_.statusItem(), desktop_.outsideClicks(), *controlPanelWindow_, [this] {
        refreshControlPanelModel(*controlModel_, *controlServices_);
        fitControlCardToDesktop();
      });
  // A compositing manager may come or go while the card is open, and at any time before it shows.
  desktop_.followTranslucency([this] {
    if (controlPanelWindow_->isVisible()) fitControlCardToDesktop();
  });
  controlPanelWindow_->onEscape = [this] { controlPanel_->closeControlPanel(); };
  controlPanelWindow_->onPressOutside = [this](Point pointer) {
    return controlPanel_->pressOutsideCard(pointer);
  };
  controlPanelWindow_->onShown = [this] { desktop_.controlCardShown(*controlPanelWindow_); };
}

void AppDelegate::titledWindowMade(QWidget& window) {
  desktop_.titledWindowReady(window);
  // Moved by its background as by its title bar; the drag is the window's child, and goes with it.
  new BackgroundDrag(window,
                     [this](QWidget& dragged) { return desktop_.startWindowDrag(dragged); });
}

void AppDelegate::fitControlCardToDesktop() {
  // Translucent around its rounded corners and shadow where windows can be; cut to its shape
  // where transparent pixels would show black.
  controlPanelWindow_->setCutToShape(!desktop_.supportsTranslucency());
}

void AppDelegate::showSettingsBesideTheCard() {
  const bool cardShown = controlPanelWindow_->isVisible();
  settingsController_->show();
  // Qt closes every pop-up when a window of its own is shown; the card (a pop-up on X11) is
  // meant to stay where it is, so it comes straight back.
  if (cardShown && !controlPanelWindow_->isVisible()) controlPanel_->showControlPanelAgain();
}

void AppDelegate::showControlsOnRequest() {
  // Where the item is in the tray, a second launch only leaves: the controls are a click away.
  if (!controlPanel_ || hasStatusItem_) return;
  if (desktop_.statusItem().buttonFrame()) {
    controlPanel_->showControlPanel();
    return;
  }
  if (const std::optional<Rect> anchor = desktop_.controlsAnchor()) {
    controlPanel_->showControlPanelAt(*anchor);
  }
}

void AppDelegate::installSettingsShortcut() {
  // Whatever window has the keyboard, the control card among them: the same as its "Settings".
  commaMonitor_ = std::make_unique<SettingsShortcutFilter>([this] {
    if (settingsController_) showSettingsBesideTheCard();
  });
  QCoreApplication::instance()->installEventFilter(commaMonitor_.get());
}

void AppDelegate::removeSettingsShortcut() {
  if (commaMonitor_ && QCoreApplication::instance() != nullptr) {
    QCoreApplication::instance()->removeEventFilter(commaMonitor_.get());
  }
}

void AppDelegate::placePanel() {
  if (placement_.panelFrame) {
    window_->setFrame(QtScreenPort::desktopCoordinates().toTopLeft(*placement_.panelFrame));
  }
  window_->show();
  desktop_.overlayShown(*window_);
}

void AppDelegate::applyTrackerGeometry() {
  tracker_.setGeometry(placement_.tracker);
}

void AppDelegate::observeScreenChanges() {
  auto* application = qGuiApp;
  connect(application, &QGuiApplication::screenAdded, this, [this](QScreen* screen) {
    observeScreen(screen);
    queueScreenParamsChanged();
  });
  connect(application, &QGuiApplication::screenRemoved, this,
          &AppDelegate::queueScreenParamsChanged);
  connect(application, &QGuiApplication::primaryScreenChanged, this,
          &AppDelegate::queueScreenParamsChanged);
  for (QScreen* screen : QGuiApplication::screens())
    observeScreen(screen);
}

void AppDelegate::observeScreen(QScreen* screen) {
  connect(screen, &QScreen::geometryChanged, this, &AppDelegate::queueScreenParamsChanged);
  connect(screen, &QScreen::availableGeometryChanged, this, &AppDelegate::queueScreenParamsChanged);
}

void AppDelegate::queueScreenParamsChanged() {
  if (screenChangeQueued_) return;
  screenChangeQueued_ = true;
  QTimer::singleShot(0, this, [this] {
    screenChangeQueued_ = false;
    screenParamsChanged();
  });
}

void AppDelegate::screenParamsChanged() {
  if (controlPanel_) controlPanel_->screensChanged();
  refitPanel();
}

void AppDelegate::refitPanel() {
  recomputeNotch();
  if (window_) {
    window_->rebuildRootView(notchSize_, placement_.hasNotch, panelScale());
    desktop_.rootViewReplaced(*window_);
  }
  applyTrackerGeometry();
  if (window_ && placement_.panelFrame) {
    window_->setFrame(QtScreenPort::desktopCoordinates().toTopLeft(*placement_.panelFrame));
  }
}

}  // namespace brimly
