#pragma once

#include <optional>
#include <string>

namespace brimly {

// Every text the About window shows.
struct AboutContent {
  std::string name;       // the product's name
  std::string version;    // "v" followed by the version text
  std::string tagline;    // what the product is for, in one line
  std::string by;         // leads the maker's mark
  std::string brandName;  // the maker's name, written out when its logo cannot be shown
  std::string footer;     // a one-line notice under the maker's mark

  // The texts for a program whose short version is `shortVersion`; without one (or with an
  // empty one) the version reads "vdev".
  static AboutContent forVersion(const std::optional<std::string>& shortVersion);

  bool operator==(const AboutContent&) const = default;
};

}  // namespace brimly
