#pragma once

namespace brimly {

// Runs the plain-text diagnostic report in place of the user interface and returns the process's
// exit status.
int runAuditReport(int argc, char** argv);

}  // namespace brimly
