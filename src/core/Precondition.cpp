#include "core/Precondition.h"

#include <cstdio>
#include <cstdlib>

namespace brimly {

void preconditionFailure(const char* message, const char* file, int line) {
  std::fprintf(stderr, "Brimly: fatal error: %s (%s:%d)\n", message, file, line);
  std::fflush(stderr);
  std::abort();
}

}  // namespace brimly
