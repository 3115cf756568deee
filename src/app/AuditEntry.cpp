#include "app/AuditEntry.h"

#include <cstdio>

namespace brimly {

int runAuditReport(int, char**) {
  // The report is not part of this build yet; saying so beats printing an empty one.
  std::fputs("Brimly: this build has no diagnostic report yet.\n", stderr);
  return 1;
}

}  // namespace brimly
