// Refused by the macOS compile check below macOS 13.3 and accepted from it: Apple's C++ library
// has the floating-point overloads of std::to_chars from that release only.
#include <charconv>
#include <string>

std::string shortestText(double value) {
  char buffer[32];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::string(buffer, result.ptr);
}
