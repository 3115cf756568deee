#include "app/AuditEntry.h"

#include "audit/system/AuditMain.h"

namespace brimly {

int runAuditReport(int argc, char** argv) {
  return Audit::runAuditReport(argc, argv);
}

}  // namespace brimly
