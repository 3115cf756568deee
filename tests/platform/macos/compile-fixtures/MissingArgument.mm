// Must fail the macOS compile check: the power-source list is taken from a snapshot argument.
#include <IOKit/ps/IOPowerSources.h>

CFArrayRef powerSources() {
  return IOPSCopyPowerSourcesList();
}
