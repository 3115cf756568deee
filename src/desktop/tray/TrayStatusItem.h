#pragma once

#include <QObject>
#include <QPoint>
#include <memory>
#include <optional>

#include "platform/StatusItemPort.h"

class QSystemTrayIcon;

namespace brimly {

// The status item as Qt's tray icon: an icon in an XEmbed system tray. Trays that report where
// their icons sit give the card its place under the icon; a tray that does not leaves the pointer's
// position at the click as the best guess of it.
class TrayStatusItem final : public QObject, public StatusItemPort {
  Q_OBJECT

 public:
  explicit TrayStatusItem(QObject* parent = nullptr);
  ~TrayStatusItem() override;

  bool install(const StatusItemAppearance& appearance, std::function<void()> onClick) override;
  std::optional<Rect> buttonFrame() const override;
  std::optional<Rect> buttonScreenVisibleFrame() const override;
  std::optional<Rect> mainScreenVisibleFrame() const override;

 private:
  // Where the icon is on Qt's desktop (global points, top-left origin).
  std::optional<Rect> iconGeometry() const;

  std::unique_ptr<QSystemTrayIcon> tray_;
  std::function<void()> onClick_;
  std::optional<QPoint> lastClick_;
};

}  // namespace brimly
