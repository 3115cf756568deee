#include "desktop/tray/TrayStatusItem.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QSystemTrayIcon>
#include <utility>

#include "artwork/Symbols.h"
#include "panel/views/QtGeometry.h"

namespace brimly {
namespace {

// A tray that keeps its icons' places to itself: the icon is taken to be a square of this size
// around the pointer at the click.
constexpr int guessedIconSize = 24;

std::optional<Rect> visibleFrameOf(const QScreen* screen) {
  if (screen == nullptr) return std::nullopt;
  return qtDesktopCoordinates().toBottomLeft(toRect(screen->availableGeometry()));
}

}  // namespace

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

std::optional<QRect> TrayStatusItem::iconGeometry() const {
  if (!tray_ || !tray_->isVisible()) return std::nullopt;
  const QRect geometry = tray_->geometry();
  if (geometry.isValid() && !geometry.isEmpty()) return geometry;
  if (!lastClick_) return std::nullopt;
  return QRect(*lastClick_ - QPoint(guessedIconSize / 2, guessedIconSize / 2),
               QSize(guessedIconSize, guessedIconSize));
}

std::optional<Rect> TrayStatusItem::buttonFrame() const {
  const std::optional<QRect> geometry = iconGeometry();
  if (!geometry) return std::nullopt;
  return qtDesktopCoordinates().toBottomLeft(toRect(*geometry));
}

std::optional<Rect> TrayStatusItem::buttonScreenVisibleFrame() const {
  const std::optional<QRect> geometry = iconGeometry();
  if (!geometry) return std::nullopt;
  return visibleFrameOf(QGuiApplication::screenAt(geometry->center()));
}

std::optional<Rect> TrayStatusItem::mainScreenVisibleFrame() const {
  return visibleFrameOf(QGuiApplication::primaryScreen());
}

}  // namespace brimly
