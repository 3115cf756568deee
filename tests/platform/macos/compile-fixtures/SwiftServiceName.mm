// Must fail the macOS compile check: `mainApp` is the Swift name; Objective-C says mainAppService.
#import <ServiceManagement/ServiceManagement.h>

bool launchesAtLogin() {
  return SMAppService.mainApp.status == SMAppServiceStatusEnabled;
}
