#include "app/CommandLine.h"

#include <algorithm>

namespace brimly {

bool wantsAudit(const std::vector<std::string>& arguments) {
  return std::find(arguments.begin(), arguments.end(), kAuditSwitch) != arguments.end();
}

}  // namespace brimly
