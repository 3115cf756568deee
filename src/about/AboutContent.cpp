#include "about/AboutContent.h"

#include "core/VersionText.h"

namespace brimly {

AboutContent AboutContent::forVersion(const std::optional<std::string>& shortVersion) {
  return {
      .name = "Brimly",
      .version = "v" + versionText(shortVersion),
      .tagline = "Glance-able system stats in your notch.",
      .by = "by",
      .brandName = "Korvel",
      // Short enough to stay on one line at 10 points in the 236-point column.
      .footer = "\u00A9 2026 Korvel. Made for the curious.",
  };
}

}  // namespace brimly
