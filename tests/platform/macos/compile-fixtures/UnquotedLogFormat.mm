// Must fail the macOS compile check: the unified log takes its format as a string literal only.
#include <os/log.h>

void logLine(const char* line) {
  os_log(OS_LOG_DEFAULT, line);
}
