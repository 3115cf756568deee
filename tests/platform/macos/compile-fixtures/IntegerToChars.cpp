// Accepted by the macOS compile check whatever the deployment target: the integer overloads of
// std::to_chars live in the headers, not in the system's C++ library.
#include <charconv>
#include <cstdint>
#include <string>

std::string decimalText(std::int64_t value) {
  char buffer[24];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
  return std::string(buffer, result.ptr);
}
