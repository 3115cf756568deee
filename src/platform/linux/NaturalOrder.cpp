#include "platform/linux/NaturalOrder.h"

#include <cstddef>

namespace brimly {
namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

// Compares two digit runs by value without converting them (they may be longer than any integer):
// leading zeros are skipped, then the longer run is larger, then the first differing digit decides.
int compareDigitRuns(std::string_view left, std::string_view right) {
  const auto stripZeros = [](std::string_view run) {
    std::size_t start = 0;
    while (start + 1 < run.size() && run[start] == '0')
      ++start;
    return run.substr(start);
  };
  const std::string_view a = stripZeros(left);
  const std::string_view b = stripZeros(right);
  if (a.size() != b.size()) return a.size() < b.size() ? -1 : 1;
  const int byDigits = a.compare(b);
  if (byDigits != 0) return byDigits < 0 ? -1 : 1;
  // Equal values: fewer leading zeros first, so the order stays strict.
  if (left.size() != right.size()) return left.size() < right.size() ? -1 : 1;
  return 0;
}

std::string_view digitRun(std::string_view text, std::size_t start) {
  std::size_t end = start;
  while (end < text.size() && isDigit(text[end]))
    ++end;
  return text.substr(start, end - start);
}

}  // namespace

bool naturalLess(std::string_view left, std::string_view right) {
  std::size_t i = 0;
  std::size_t j = 0;
  while (i < left.size() && j < right.size()) {
    if (isDigit(left[i]) && isDigit(right[j])) {
      const std::string_view a = digitRun(left, i);
      const std::string_view b = digitRun(right, j);
      const int order = compareDigitRuns(a, b);
      if (order != 0) return order < 0;
      i += a.size();
      j += b.size();
      continue;
    }
    if (left[i] != right[j]) {
      return static_cast<unsigned char>(left[i]) < static_cast<unsigned char>(right[j]);
    }
    ++i;
    ++j;
  }
  return left.size() - i < right.size() - j;
}

}  // namespace brimly
