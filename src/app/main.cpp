// The process entry: the diagnostic report, or one instance of the panel per user.
#include <QApplication>
#include <QString>
#include <cstdio>
#include <string>
#include <vector>

#include "app/AppDelegate.h"
#include "app/AuditEntry.h"
#include "app/CommandLine.h"
#include "app/DesktopIntegration.h"
#include "app/DesktopIntegrationFactory.h"
#include "app/DisplayCheck.h"
#include "app/ProcessSetup.h"
#include "core/BuildInfo.h"
#include "platform/KeyValueStore.h"
#include "platform/SystemPlatform.h"

int main(int argc, char** argv) {
  using namespace brimly;

  const std::vector<std::string> arguments(argv, argv + argc);
  if (wantsAudit(arguments)) return runAuditReport(argc, argv);

  // One Brimly per user: a second one leaves at once, silently, before anything is shown.
  if (!claimSingleInstance()) return 0;

  if (!desktopAvailable()) {
    std::fprintf(stderr, "%s\n", kNoDisplayMessage);
    return kNoDisplayExitStatus;
  }
  choosePlatformPlugin();

  QApplication application(argc, argv);
  QApplication::setApplicationName("Brimly");
  QApplication::setApplicationVersion(BuildInfo::shortVersion);
  // An accessory: no window of its own in the task bar, and closing one never ends the program.
  QApplication::setQuitOnLastWindowClosed(false);
  becomeAccessory();

  const std::unique_ptr<PlatformFactory> platform = makeSystemPlatform();
  const std::unique_ptr<KeyValueStore> defaults = makeDefaultsStore();
  const std::unique_ptr<DesktopIntegration> desktop = makeDesktopIntegration();
  AppDelegate delegate(*platform, *defaults, *desktop);
  QObject::connect(&application, &QCoreApplication::aboutToQuit, &delegate,
                   &AppDelegate::applicationWillTerminate);
  delegate.applicationDidFinishLaunching();
  return QApplication::exec();
}
