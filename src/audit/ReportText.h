#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

namespace brimly::ReportText {

// Number and text formatting for the diagnostic report. Every function here gives the same text
// whatever locale the user runs under: figures always use a point and never group digits.

// `value` with `precision` digits after the point, as printf's "%.Nf" gives it in the C locale.
// Not-a-number prints as "nan" whatever its sign bit, infinities as "inf" and "-inf".
std::string fixed(double value, int precision);

// The same, right-aligned in `width` characters ("%W.Nf"); a longer text is kept whole.
std::string fixed(double value, int width, int precision);

// A signed or unsigned integer in decimal ("%d").
std::string integer(std::int64_t value);
std::string integer(std::uint64_t value);

// The shortest decimal text that reads back as `value`, always with a digit after the point
// ("7.25", "12.0", "0.0"); very large and very small magnitudes use an exponent ("1e+16").
std::string shortestDecimal(double value);

// `text` made exactly `width` characters long: blanks added on the right, or cut to its first
// `width` characters. Characters are Unicode code points, so "°C" counts two.
std::string padded(std::string_view text, std::size_t width);

// The number of Unicode code points in UTF-8 `text`.
std::size_t characterCount(std::string_view text);

// `text` repeated `count` times.
std::string repeated(std::string_view text, std::size_t count);

// Bytes in binary gigabytes (2^30 bytes).
double gigabytes(double bytes);

// A moment as "yyyy-MM-dd HH:mm:ss +0000", in UTC.
std::string utcTimestamp(std::chrono::system_clock::time_point moment);

}  // namespace brimly::ReportText
