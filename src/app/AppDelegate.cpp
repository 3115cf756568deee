#include "app/AppDelegate.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <cstdio>

#include "app/DesktopIntegration.h"
#include "app/QtScreenPort.h"
#include "panel/views/PanelWindow.h"
#include "platform/KeyValueStore.h"
#include "usage/views/UsageView.h"
#include "usage/views/UsageViewBinding.h"

namespace brimly {

AppDelegate::AppDelegate(const PlatformFactory& platform, KeyValueStore& defaults,
                         DesktopIntegration& desktop, QObject* parent)
    : QObject(parent),
      desktop_(desktop),
      screens_(desktop.screens()),
      monitor_(platform, samplingQueue_),
      tracker_(desktop.pointer(), screens_),
      settings_(defaults),
      proximity_(panelState_, monitor_, scheduler_, tracker_),
      launch_(proximity_, tracker_, monitor_) {}

AppDelegate::~AppDelegate() {
  // The tracker must not outlive its watch: a movement call would reach a dead object.
  tracker_.stop();
}

void AppDelegate::applicationDidFinishLaunching() {
  PanelLaunchHooks hooks;
  hooks.recomputeNotch = [this] { recomputeNotch(); };
  hooks.buildWindow = [this] { buildWindow(); };
  hooks.buildStatusItem = [this] { buildStatusItem(); };
  hooks.placePanel = [this] { placePanel(); };
  hooks.applyTrackerGeometry = [this] { applyTrackerGeometry(); };
  hooks.observeScreenChanges = [this] { observeScreenChanges(); };
  launch_.launch(settings_.isPinned(), hooks);

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
  launch_.shutdown(hooks);
}

void AppDelegate::recomputeNotch() {
  placement_ = NotchGeometry::place(screens_, notchSize_);
  notchSize_ = placement_.notchSize;
}

void AppDelegate::buildWindow() {
  window_ = std::make_unique<PanelWindow>(
      panelState_, notchSize_, [this]() -> QWidget* { return makePanelGrid(monitor_, settings_); });
  window_->setWindowTitle("Brimly");
  window_->winId();  // the native window, so that the desktop's hints go on before it is shown
  desktop_.prepareOverlay(*window_);
}

void AppDelegate::buildStatusItem() {
  // The status item, its control panel and the settings window attach here.
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
  recomputeNotch();
  if (window_) {
    window_->rebuildRootView(notchSize_);
    desktop_.rootViewReplaced(*window_);
  }
  applyTrackerGeometry();
  if (window_ && placement_.panelFrame) {
    window_->setFrame(QtScreenPort::desktopCoordinates().toTopLeft(*placement_.panelFrame));
  }
}

}  // namespace brimly
