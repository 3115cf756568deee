#pragma once

#include <string>
#include <string_view>

namespace brimly {

// A path is a string of bytes; these tell whether text can carry it and how to show it.

// Whether `bytes` is well-formed UTF-8 (no overlong forms, no surrogates, nothing above
// U+10FFFF).
bool isUtf8(std::string_view bytes);

// `bytes` for a message: well-formed UTF-8 as it is, every other byte as `\xNN`, so that a path
// no text can hold is still named exactly.
std::string printablePath(std::string_view bytes);

}  // namespace brimly
