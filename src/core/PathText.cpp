#include "core/PathText.h"

#include <cstddef>

namespace brimly {
namespace {

// The length of the well-formed UTF-8 sequence at the start of `bytes`, or 0 when there is none.
std::size_t utf8SequenceLength(std::string_view bytes) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  const unsigned char lead = byte(0);
  if (lead < 0x80) return 1;
  std::size_t length = 0;
  unsigned char low = 0x80;  // the range the second byte must lie in
  unsigned char high = 0xbf;
  if (lead >= 0xc2 && lead <= 0xdf) {
    length = 2;
  } else if (lead >= 0xe0 && lead <= 0xef) {
    length = 3;
    if (lead == 0xe0) low = 0xa0;   // no overlong form
    if (lead == 0xed) high = 0x9f;  // no surrogate
  } else if (lead >= 0xf0 && lead <= 0xf4) {
    length = 4;
    if (lead == 0xf0) low = 0x90;   // no overlong form
    if (lead == 0xf4) high = 0x8f;  // nothing above U+10FFFF
  } else {
    return 0;
  }
  if (bytes.size() < length) return 0;
  if (byte(1) < low || byte(1) > high) return 0;
  for (std::size_t i = 2; i < length; ++i) {
    if (byte(i) < 0x80 || byte(i) > 0xbf) return 0;
  }
  return length;
}

}  // namespace

bool isUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t length = utf8SequenceLength(bytes);
    if (length == 0) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

std::string printablePath(std::string_view bytes) {
  static constexpr char digits[] = "0123456789abcdef";
  std::string text;
  text.reserve(bytes.size());
  while (!bytes.empty()) {
    std::size_t length = utf8SequenceLength(bytes);
    if (length == 0) {
      const auto byte = static_cast<unsigned char>(bytes.front());
      text += "\\x";
      text += digits[byte >> 4];
      text += digits[byte & 0xf];
      length = 1;
    } else {
      text.append(bytes.substr(0, length));
    }
    bytes.remove_prefix(length);
  }
  return text;
}

}  // namespace brimly
