#include "audit/ReportText.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace brimly::ReportText {

namespace {

// Non-finite values print as the Unix printf of the report's home platform prints them: no sign
// on "nan" (glibc would print "-nan" for the NaN that 0/0 gives on x86).
std::string nonFiniteText(double value) {
  if (std::isnan(value)) return "nan";
  return value < 0 ? "-inf" : "inf";
}

std::string toChars(double value, std::chars_format format) {
  std::array<char, 64> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format);
  return std::string(buffer.data(), result.ptr);
}

bool isContinuationByte(char c) {
  return (static_cast<unsigned char>(c) & 0xC0) == 0x80;
}

}  // namespace

std::string fixed(double value, int precision) {
  if (!std::isfinite(value)) return nonFiniteText(value);
  // Large enough for any double in fixed notation (309 integer digits) plus the digits asked for.
  std::array<char, 400> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                    std::chars_format::fixed, precision);
  if (result.ec != std::errc{}) return nonFiniteText(value);
  return std::string(buffer.data(), result.ptr);
}

std::string fixed(double value, int width, int precision) {
  std::string text = fixed(value, precision);
  const auto wanted = static_cast<std::size_t>(width < 0 ? 0 : width);
  if (text.size() < wanted) text.insert(0, wanted - text.size(), ' ');
  return text;
}

std::string integer(std::int64_t value) {
  return std::to_string(value);
}

std::string integer(std::uint64_t value) {
  return std::to_string(value);
}

std::string shortestDecimal(double value) {
  if (!std::isfinite(value)) return nonFiniteText(value);
  const double magnitude = std::fabs(value);
  // Plain decimal notation from 0.0001 up to 2^54; beyond that an exponent keeps it readable.
  const bool exponential = magnitude != 0.0 && (magnitude < 1e-4 || magnitude > 0x1.0p54);
  if (exponential) return toChars(value, std::chars_format::scientific);
  std::string text = toChars(value, std::chars_format::fixed);
  if (text.find('.') == std::string::npos) text += ".0";
  return text;
}

std::size_t characterCount(std::string_view text) {
  std::size_t count = 0;
  for (char c : text) {
    if (!isContinuationByte(c)) ++count;
  }
  return count;
}

std::string padded(std::string_view text, std::size_t width) {
  std::size_t characters = 0;
  std::size_t end = 0;
  while (end < text.size()) {
    if (!isContinuationByte(text[end])) {
      if (characters == width) break;
      ++characters;
    }
    ++end;
  }
  std::string result(text.substr(0, end));
  result.append(width - characters, ' ');
  return result;
}

std::string repeated(std::string_view text, std::size_t count) {
  std::string result;
  result.reserve(text.size() * count);
  for (std::size_t i = 0; i < count; ++i)
    result += text;
  return result;
}

double gigabytes(double bytes) {
  return bytes / 1073741824.0;
}

std::string utcTimestamp(std::chrono::system_clock::time_point moment) {
  using namespace std::chrono;
  const auto seconds = floor<std::chrono::seconds>(moment);
  const auto day = floor<days>(seconds);
  const year_month_day date{day};
  const hh_mm_ss time{seconds - day};
  std::array<char, 48> buffer{};
  std::snprintf(buffer.data(), buffer.size(), "%04d-%02u-%02u %02d:%02d:%02d +0000",
                static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                static_cast<unsigned>(date.day()), static_cast<int>(time.hours().count()),
                static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()));
  return buffer.data();
}

}  // namespace brimly::ReportText
