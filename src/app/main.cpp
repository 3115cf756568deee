// The process entry: the usage, the version, the diagnostic report, or one instance of the panel
// per user.
#include <QApplication>
#include <QString>
#include <cstdio>
#include <optional>
#include <string>
#include <vector>

#include "app/AppDelegate.h"
#include "app/AuditEntry.h"
#include "app/CommandLine.h"
#include "app/ProcessSetup.h"
#include "app/QuitOnSignals.h"
#include "app/StandardOutput.h"
#include "artwork/Symbols.h"
#include "core/BuildInfo.h"
#include "core/VersionText.h"
#include "desktop/DesktopIntegration.h"
#include "desktop/DesktopIntegrationFactory.h"
#include "desktop/DisplayCheck.h"
#include "platform/KeyValueStore.h"
#include "platform/SystemPlatform.h"

int main(int argc, char** argv) {
  using namespace brimly;

  const std::vector<std::string> arguments(argv, argv + argc);
  // Text only, with neither the panel nor a display: the usage, the version, the report.
  if (wantsHelp(arguments)) {
    return writeToStandardOutput([] {
      std::fputs(usageText().c_str(), stdout);
      return 0;
    });
  }
  if (wantsVersion(arguments)) {
    return writeToStandardOutput([] {
      std::fputs(versionLine(versionText(applicationShortVersion())).c_str(), stdout);
      return 0;
    });
  }
  if (wantsAudit(arguments)) {
    return writeToStandardOutput([&] { return runAuditReport(argc, argv); });
  }
  QuitOnSignals::holdUntilTaken();

  // One Brimly per user: a second one leaves at once, silently, before anything is shown.
  if (!claimSingleInstance()) {
    askRunningInstanceForControls();
    return 0;
  }

  // Qt would abort with pages of text where it cannot start its window system: say it in a line.
  if (const std::optional<std::string> problem = desktopProblem(arguments)) {
    std::fprintf(stderr, "%s\n", problem->c_str());
    return kNoDisplayExitStatus;
  }
  choosePlatformPlugin(arguments);

  QApplication application(argc, argv);
  // SIGTERM, SIGINT and SIGHUP end Brimly the way "Quit" does, shutdown steps included.
  const QuitOnSignals quitOnSignals;
  QApplication::setApplicationName("Brimly");
  QApplication::setApplicationVersion(QString::fromStdString(applicationShortVersion()));
  // Lets Linux desktops match Brimly's windows to its installed desktop entry.
  QApplication::setDesktopFileName(QString::fromLatin1(BuildInfo::bundleIdentifier));
  QApplication::setWindowIcon(applicationIcon());
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
  const std::unique_ptr<QObject> controlsRequests =
      listenForControlsRequests([&delegate] { delegate.showControlsOnRequest(); });
  return QApplication::exec();
}
