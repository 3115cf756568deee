#include "platform/linux/SysfsText.h"

#include <charconv>

namespace brimly {
namespace {

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\0';
}

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && isBlank(text.front()))
    text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back()))
    text.remove_suffix(1);
  return text;
}

template <typename Number>
std::optional<Number> parseWhole(std::string_view text) {
  text = trimmed(text);
  if (!text.empty() && text.front() == '+') text.remove_prefix(1);
  if (text.empty()) return std::nullopt;
  Number value{};
  const char* end = text.data() + text.size();
  const auto [ptr, error] = std::from_chars(text.data(), end, value);
  if (error != std::errc{} || ptr != end) return std::nullopt;
  return value;
}

}  // namespace

std::string sysfsString(std::string_view text) {
  if (!text.empty() && text.back() == '\n') text.remove_suffix(1);
  return std::string(text);
}

std::optional<std::int64_t> parseSysfsInteger(std::string_view text) {
  return parseWhole<std::int64_t>(text);
}

std::optional<std::uint64_t> parseSysfsUnsigned(std::string_view text) {
  const std::string_view body = trimmed(text);
  if (!body.empty() && body.front() == '-') return std::nullopt;
  return parseWhole<std::uint64_t>(text);
}

}  // namespace brimly
