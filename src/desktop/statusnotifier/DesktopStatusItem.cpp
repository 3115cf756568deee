#include "desktop/statusnotifier/DesktopStatusItem.h"

#include <QImage>
#include <utility>

#include "artwork/Symbols.h"
#include "desktop/PointerMapping.h"
#include "desktop/statusnotifier/HostPosition.h"
#include "desktop/statusnotifier/StatusNotifierItem.h"
#include "desktop/tray/ItemFrames.h"
#include "desktop/tray/ItemPlace.h"
#include "desktop/tray/TrayStatusItem.h"
#include "panel/views/QtGeometry.h"

namespace brimly {
namespace {

// The icon in the sizes hosts ask for, large ones for screens with more pixels a point.
NotifierPixmaps iconPictures() {
  NotifierPixmaps pictures;
  for (const int size : {16, 22, 24, 32, 48, 64}) {
    pictures << notifierPixmap(applicationIcon().pixmap(size).toImage());
  }
  return pictures;
}

}  // namespace

DesktopStatusItem::DesktopStatusItem(const QDBusConnection& bus, bool pointerReadable,
                                     bool namesMenu, QObject* parent)
    : QObject(parent), bus_(bus), pointerReadable_(pointerReadable), namesMenu_(namesMenu) {}

DesktopStatusItem::~DesktopStatusItem() = default;

bool DesktopStatusItem::install(const StatusItemAppearance& appearance,
                                std::function<void()> onClick) {
  appearance_ = appearance;
  onClick_ = std::move(onClick);
  notifier_ = std::make_unique<StatusNotifierItem>(
      bus_,
      StatusNotifierItem::Look{QStringLiteral("brimly"),
                               QString::fromStdString(appearance.accessibilityDescription),
                               QString::fromStdString(appearance.toolTip), iconPictures()},
      namesMenu_);
  connect(notifier_.get(), &StatusNotifierItem::clicked, this,
          [this](QPoint hostPosition, const QString& hostProgram) {
            clickPlace_ = placeOfClick(screenPositionOfClick(hostPosition, hostProgram));
            if (onClick_) onClick_();
          });
  connect(notifier_.get(), &StatusNotifierItem::shownChanged, this,
          &DesktopStatusItem::followHosts);
  followHosts(notifier_->isShown());
  return notifier_->isShown() || trayIconShown_;
}

void DesktopStatusItem::followHosts(bool notifierShown) {
  if (notifierShown) {
    trayIcon_.reset();
    trayIconShown_ = false;
  } else if (!trayIcon_) {
    // Made only while no host is there: Qt would otherwise put its own icon on the bus beside ours.
    trayIcon_ = std::make_unique<TrayStatusItem>(this);
    trayIconShown_ = trayIcon_->install(appearance_, onClick_);
  }
}

std::optional<Rect> DesktopStatusItem::placeOfClick(std::optional<QPoint> screenPosition) const {
  if (screenPosition) {
    const QPointF click = logicalFromNative(*screenPosition, qtScreenScales());
    return ItemPlace::around(Point{click.x(), click.y()});
  }
  return ItemFrames::placeWithoutPosition(pointerReadable_);
}

std::optional<Rect> DesktopStatusItem::buttonFrame() const {
  if (trayIcon_) return trayIcon_->buttonFrame();
  return ItemFrames::button(clickPlace_);
}

std::optional<Rect> DesktopStatusItem::buttonScreenVisibleFrame() const {
  if (trayIcon_) return trayIcon_->buttonScreenVisibleFrame();
  return ItemFrames::buttonScreenVisible(clickPlace_);
}

std::optional<Rect> DesktopStatusItem::mainScreenVisibleFrame() const {
  return ItemFrames::mainScreenVisible();
}

}  // namespace brimly
