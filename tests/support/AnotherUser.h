#pragma once

#include <sys/types.h>
#include <unistd.h>

namespace brimly::testing {

// A user other than the one running the tests, standing for someone who plants files where
// Brimly keeps its own: "nobody" (65534), which every Debian system has. Handing a file to that
// user, or acting as that user, takes the superuser; the tests that need either skip otherwise,
// with kNeedsTheSuperuser as the reason (CI runs them as root).
inline constexpr uid_t kAnotherUser = 65534;
inline constexpr const char* kNeedsTheSuperuser =
    "handing files to another user (or acting as one) takes the superuser";

inline bool canActAsAnotherUser() {
  return ::geteuid() == 0;
}

}  // namespace brimly::testing
