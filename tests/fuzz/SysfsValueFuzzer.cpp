// Feeds arbitrary bytes to the one-value sysfs parsers and to the natural name order. Checks that
// a parsed integer prints back to the digits it came from, and that the order is a strict weak
// order on the two halves of the input.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/linux/NaturalOrder.h"
#include "platform/linux/SysfsText.h"
#include "platform/linux/TemperatureSources.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const std::string stripped = brimly::sysfsString(text);
  if (stripped.size() + 1 < text.size()) __builtin_trap();

  if (const auto value = brimly::parseSysfsInteger(text)) {
    const std::string printed = std::to_string(*value);
    if (text.find(printed.substr(*value < 0 ? 1 : 0)) == std::string_view::npos) __builtin_trap();
    if (!brimly::celsiusFromMillidegrees(text)) __builtin_trap();
  }
  if (const auto value = brimly::parseSysfsUnsigned(text)) {
    if (text.find(std::to_string(*value)) == std::string_view::npos) __builtin_trap();
  }

  const std::string_view left = text.substr(0, size / 2);
  const std::string_view right = text.substr(size / 2);
  if (brimly::naturalLess(left, left)) __builtin_trap();
  if (brimly::naturalLess(left, right) && brimly::naturalLess(right, left)) __builtin_trap();
  return 0;
}
