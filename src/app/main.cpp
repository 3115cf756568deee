#include <string>
#include <vector>

#include "app/AuditEntry.h"
#include "app/CommandLine.h"

int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv, argv + argc);
  if (brimly::wantsAudit(arguments)) return brimly::runAuditReport(argc, argv);
  return 0;
}
