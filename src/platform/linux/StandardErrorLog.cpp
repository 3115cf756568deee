#include "platform/StandardErrorLine.h"
#include "platform/SystemLog.h"

namespace brimly {

// A Linux desktop program's log is its standard error, which the session keeps.
void writeSystemLogLine(const std::string& line) {
  writeStandardErrorLine(line);
}

}  // namespace brimly
