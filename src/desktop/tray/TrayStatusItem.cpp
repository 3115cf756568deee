#include "desktop/tray/TrayStatusItem.h"

#include <QCursor>
#include <QSystemTrayIcon>
#include <utility>

#include "artwork/Symbols.h"
#include "desktop/tray/ItemFrames.h"
#include "desktop/tray/ItemPlace.h"
#include "panel/views/QtGeometry.h"

namespace brimly {

TrayStatusItem::TrayStatusItem(QObject* parent) : QObject(parent) {}

TrayStatusItem::~TrayStatusItem() = default;

bool TrayStatusItem::install(const StatusItemAppearance& appearance,
                             std::function<void()> onClick) {
  onClick_ = std::move(onClick);
  tray_ = std::make_unique<QSystemTrayIcon>(applicationIcon(), this);
  tray_->setToolTip(QString::fromStdString(appearance.toolTip));
  connect(tray_.get(), &QSystemTrayIcon::activated, this,
          [this](QSystemTrayIcon::ActivationReason reason) {
            // A left and a right click alike. A click soon after the one before is reported as
            // a double click, and as nothing else: it is a click all the same.
            if (reason != QSystemTrayIcon::Trigger && reason != QSystemTrayIcon::Context &&
                reason != QSystemTrayIcon::DoubleClick) {
              return;
            }
            lastClick_ = QCursor::pos();
            if (onClick_) onClick_();
          });
  // Shown even without a tray: Qt puts the icon into one as soon as one appears.
  tray_->show();
  return QSystemTrayIcon::isSystemTrayAvailable();
}

std::optional<Rect> TrayStatusItem::iconGeometry() const {
  if (!tray_ || !tray_->isVisible()) return std::nullopt;
  const QRect geometry = tray_->geometry();
  if (geometry.isValid() && !geometry.isEmpty()) return toRect(geometry);
  // A tray that keeps its icons' places to itself: the icon is taken to be around the pointer at
  // the click.
  if (!lastClick_) return std::nullopt;
  return ItemPlace::around(Point{double(lastClick_->x()), double(lastClick_->y())});
}

std::optional<Rect> TrayStatusItem::buttonFrame() const {
  return ItemFrames::button(iconGeometry());
}

std::optional<Rect> TrayStatusItem::buttonScreenVisibleFrame() const {
  return ItemFrames::buttonScreenVisible(iconGeometry());
}

std::optional<Rect> TrayStatusItem::mainScreenVisibleFrame() const {
  return ItemFrames::mainScreenVisible();
}

}  // namespace brimly
