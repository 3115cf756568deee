#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QPoint>
#include <memory>
#include <optional>

#include "platform/StatusItemPort.h"

namespace brimly {

class StatusNotifierItem;
class TrayStatusItem;

// The status item on a Linux desktop: Brimly's own StatusNotifierItem wherever a watcher with a
// host is on the session bus (Plasma, GNOME with its AppIndicator extension, waybar), and Qt's
// tray icon in an XEmbed tray where none is (trayer, older panels). It changes from one to the
// other as a watcher comes or goes while Brimly runs.
//
// A host passes a position with each click, not the item's rectangle: the item is taken to be a
// tray icon around that position. Where the host tells no place on the screen (see
// screenPositionOfClick), it is taken to be around the pointer where Qt can read the pointer
// anywhere on the desktop (an X11 session), else in the top-right corner of the primary screen.
class DesktopStatusItem final : public QObject, public StatusItemPort {
  Q_OBJECT

 public:
  // `bus`: the session bus (may be unconnected). `pointerReadable`: whether Qt reads the pointer
  // wherever it is (X11), not only over Brimly's own windows (Wayland, XWayland). `namesMenu`:
  // whether the item names a menu, for hosts that show no item without one (GNOME's).
  DesktopStatusItem(const QDBusConnection& bus, bool pointerReadable, bool namesMenu,
                    QObject* parent = nullptr);
  ~DesktopStatusItem() override;

  bool install(const StatusItemAppearance& appearance, std::function<void()> onClick) override;
  std::optional<Rect> buttonFrame() const override;
  std::optional<Rect> buttonScreenVisibleFrame() const override;
  std::optional<Rect> mainScreenVisibleFrame() const override;

 private:
  // Where the item is taken to be after a click at `screenPosition` (device pixels, where the
  // host tells it), in Qt's global points.
  std::optional<Rect> placeOfClick(std::optional<QPoint> screenPosition) const;
  // Qt's tray icon while no host shows the notifier item, none while one does.
  void followHosts(bool notifierShown);

  QDBusConnection bus_;
  bool pointerReadable_;
  bool namesMenu_;
  StatusItemAppearance appearance_;
  std::function<void()> onClick_;
  std::unique_ptr<StatusNotifierItem> notifier_;
  std::unique_ptr<TrayStatusItem> trayIcon_;
  bool trayIconShown_ = false;
  std::optional<Rect> clickPlace_;
};

}  // namespace brimly
