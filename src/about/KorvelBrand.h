#pragma once

#include <QImage>
#include <optional>
#include <string_view>

// The maker's wordmark, shown in the About window's brand row.
namespace brimly::KorvelBrand {

// The image in `base64` (standard base64 of an image file, PNG here): absent when the text is not
// valid base64 or its bytes are not an image Qt can read.
std::optional<QImage> decodeLogo(std::string_view base64);

// The wordmark the program carries, decoded on first use and kept for the life of the process;
// absent if it cannot be decoded (the brand row then spells the name out).
const std::optional<QImage>& logo();

}  // namespace brimly::KorvelBrand
