#include "platform/SystemLog.h"

#include <os/log.h>

#include "platform/StandardErrorLine.h"

namespace brimly {

void writeSystemLogLine(const std::string& line) {
  // The unified log shows a string argument as <private> unless it is marked public.
  os_log(OS_LOG_DEFAULT, "%{public}s", line.c_str());
  // And standard error, for a run from a terminal.
  writeStandardErrorLine(line);
}

}  // namespace brimly
