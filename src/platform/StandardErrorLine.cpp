#include "platform/StandardErrorLine.h"

#include <unistd.h>

#include <cerrno>
#include <string>

namespace brimly {

void writeStandardErrorLine(std::string_view line) {
  std::string text;
  text.reserve(line.size() + 1);
  for (const char c : line)
    text.push_back(c == '\n' || c == '\r' ? ' ' : c);
  text.push_back('\n');
  // A single write normally takes the whole line; the loop only finishes a write that a signal or
  // a full pipe cut short.
  const char* next = text.data();
  std::size_t left = text.size();
  while (left > 0) {
    const ssize_t written = ::write(STDERR_FILENO, next, left);
    if (written < 0 && errno == EINTR) continue;
    if (written <= 0) return;
    next += written;
    left -= static_cast<std::size_t>(written);
  }
}

}  // namespace brimly
