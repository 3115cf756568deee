#pragma once

#include <string_view>

namespace brimly {

// The maker's wordmark, a 600 × 233 8-bit RGBA PNG, as standard base64 text (generated from
// korvel-logo.png by scripts/embed-korvel-logo).
extern const std::string_view korvelLogoBase64;

}  // namespace brimly
