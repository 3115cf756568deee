#include <unistd.h>

#include <QDBusConnection>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QJsonArray>
#include <QJsonObject>
#include <QLibraryInfo>
#include <QPluginLoader>
#include <cstdlib>
#include <memory>

#include "desktop/DesktopIntegrationFactory.h"
#include "desktop/DisplayCheck.h"
#include "desktop/HoverRoute.h"
#include "desktop/QtPlatformArguments.h"
#include "desktop/layershell/LayerShellDesktopIntegration.h"
#include "desktop/layershell/WaylandConnection.h"
#include "desktop/none/PlainDesktopIntegration.h"
#include "desktop/statusnotifier/DesktopStatusItem.h"
#include "desktop/x11/X11DesktopIntegration.h"
#include "desktop/xwayland/XWaylandDesktopIntegration.h"
#include "platform/linux/XdgAutostartLoginItem.h"
#include "platform/x11/X11Desktop.h"

namespace brimly {
namespace {

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

// Brimly's own connection to the Wayland compositor named by WAYLAND_DISPLAY, opened once before
// Qt starts: what the compositor offers decides the Qt platform and the hover route, and where it
// offers the layer shell the panel keeps the connection. None where no compositor answers.
std::unique_ptr<WaylandConnection>& waylandConnection() {
  static std::unique_ptr<WaylandConnection> connection = WaylandConnection::open();
  return connection;
}

// What that compositor answered; it stays the answer after the panel has taken the connection.
WaylandAnswer compositorAnswer() {
  static const WaylandAnswer answer = [] {
    const std::unique_ptr<WaylandConnection>& connection = waylandConnection();
    if (!connection) return WaylandAnswer::silent;
    return connection->offersLayerShell() ? WaylandAnswer::layerShell : WaylandAnswer::plain;
  }();
  return answer;
}

DisplayEnvironment displayEnvironment(const QtPlatformArguments& options) {
  return DisplayEnvironment{variable("QT_QPA_PLATFORM"),
                            variable("DISPLAY"),
                            variable("WAYLAND_DISPLAY"),
                            variable("XDG_SESSION_TYPE"),
                            variable("XDG_CURRENT_DESKTOP") + ":" + variable("XDG_SESSION_DESKTOP"),
                            options.platform,
                            options.display,
                            compositorAnswer()};
}

// The keys of the platform plugins Qt can load, read from each plugin's metadata without loading
// it, from the folders Qt looks in: the command line's or QT_QPA_PLATFORM_PLUGIN_PATH's folder,
// the "platforms" folder in each of QT_PLUGIN_PATH and Qt's own plugin folder.
std::vector<std::string> installedPlatforms(const QtPlatformArguments& options) {
  QStringList folders;
  if (options.pluginPath) folders << QString::fromStdString(*options.pluginPath);
  folders << qEnvironmentVariable("QT_QPA_PLATFORM_PLUGIN_PATH");
  for (const QString& path : qEnvironmentVariable("QT_PLUGIN_PATH").split(QDir::listSeparator()))
    folders << path + "/platforms";
  folders << QLibraryInfo::path(QLibraryInfo::PluginsPath) + "/platforms";

  std::vector<std::string> keys;
  for (const QString& folder : folders) {
    if (folder.isEmpty() || folder == "/platforms") continue;
    for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files | QDir::Readable)) {
      if (!QLibrary::isLibrary(file.fileName())) continue;
      const QJsonObject metaData = QPluginLoader(file.absoluteFilePath()).metaData();
      for (const QJsonValue& key : metaData.value("MetaData").toObject().value("Keys").toArray())
        keys.push_back(key.toString().toStdString());
    }
  }
  return keys;
}

// The running program's path as the system has it, bytes no text can hold included (Qt's own
// answer loses them).
std::string executablePath() {
  std::string path(4096, '\0');
  const ssize_t length = ::readlink("/proc/self/exe", path.data(), path.size());
  if (length <= 0 || static_cast<std::size_t>(length) >= path.size()) {
    return QFile::encodeName(QCoreApplication::applicationFilePath()).toStdString();
  }
  path.resize(static_cast<std::size_t>(length));
  return path;
}

// The connection that found the X server answering, kept open until the application has made its
// own: an X server whose only client it was would reset when it closed, and turn Qt's connection
// away while resetting (a bare Xvfb or xinit session whose first program is Brimly).
std::unique_ptr<X11Desktop>& answeringDisplay() {
  static std::unique_ptr<X11Desktop> desktop;
  return desktop;
}

}  // namespace

std::optional<std::string> desktopProblem(const std::vector<std::string>& arguments) {
  const QtPlatformArguments options = qtPlatformArguments(arguments);
  return startupProblem(displayEnvironment(options), installedPlatforms(options),
                        [](const std::string& display) {
                          auto desktop = std::make_unique<X11Desktop>(display);
                          if (!desktop->isConnected()) return false;
                          answeringDisplay() = std::move(desktop);
                          return true;
                        });
}

void choosePlatformPlugin(const std::vector<std::string>& arguments) {
  const QtPlatformArguments options = qtPlatformArguments(arguments);
  // Qt opens the display named by "-display"; the program's own X11 connections follow $DISPLAY.
  if (options.display) qputenv("DISPLAY", QByteArray::fromStdString(*options.display));
  if (const std::optional<std::string> platform = platformToRequest(displayEnvironment(options))) {
    qputenv("QT_QPA_PLATFORM", QByteArray::fromStdString(*platform));
  }
  // The open panel repaints strips a few pixels high several times a second while its values
  // move. Through shared memory each repaint then waits for the X server to be done with the
  // segment, a round trip; sent in the request itself such a strip costs far less than that
  // wait (a quarter of the panel's CPU time under a swinging load). A user's own choice stands.
  if (!qEnvironmentVariableIsSet("QT_XCB_NO_MITSHM")) qputenv("QT_XCB_NO_MITSHM", "1");
  // Qt's Wayland platform loads the whole OpenGL stack (some 45 MB resident with Mesa) the first
  // time a window paints, only to learn whether it could draw window decorations itself. The
  // compositors with a layer shell decorate windows themselves, so the question need not be
  // asked there. A user's own choice stands.
  if (compositorAnswer() == WaylandAnswer::layerShell &&
      !qEnvironmentVariableIsSet("QT_WAYLAND_DISABLE_WINDOWDECORATION")) {
    qputenv("QT_WAYLAND_DISABLE_WINDOWDECORATION", "1");
  }
}

std::unique_ptr<DesktopIntegration> makeDesktopIntegration() {
  answeringDisplay().reset();  // Qt's connection is open by now
  const HoverRouteChoice choice =
      chooseHoverRoute({QGuiApplication::platformName().toStdString(), variable("XDG_SESSION_TYPE"),
                        compositorAnswer()});
  // The connection that asked the compositor at start goes to the panel on the layer-shell route,
  // whatever desktop platform Qt runs on beside it; any other route lets it go.
  std::unique_ptr<WaylandConnection> wayland = std::move(waylandConnection());
  switch (choice.route) {
    case HoverRoute::layerShell:
      return std::make_unique<LayerShellDesktopIntegration>(choice, std::move(wayland));
    case HoverRoute::xwaylandHotZone:
      return std::make_unique<XWaylandDesktopIntegration>(choice);
    case HoverRoute::x11RawMotion:
      return std::make_unique<X11DesktopIntegration>(choice);
    case HoverRoute::none:
      break;
  }
  return std::make_unique<PlainDesktopIntegration>(choice);
}

std::unique_ptr<LoginItemPort> makeLoginItem() {
  return XdgAutostartLoginItem::forThisUser(executablePath());
}

std::unique_ptr<StatusItemPort> makeStatusItem(bool pointerReadable) {
  // GNOME's AppIndicator extension (Ubuntu ships it) shows no item that names no menu.
  const bool onGnome =
      QString::fromStdString(variable("XDG_CURRENT_DESKTOP")).split(':').contains("GNOME");
  return std::make_unique<DesktopStatusItem>(QDBusConnection::sessionBus(), pointerReadable,
                                             onGnome);
}

}  // namespace brimly
