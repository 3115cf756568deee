// Refused by the macOS compile check for every deployment target: no macOS release's C++ library
// has the floating-point overloads of std::from_chars.
#include <charconv>

double parsed(const char* first, const char* last) {
  double value = 0.0;
  std::from_chars(first, last, value);
  return value;
}
