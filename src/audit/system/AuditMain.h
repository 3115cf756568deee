#pragma once

namespace brimly::Audit {

// The "--audit" mode of the program: makes the Qt core application, the system's readers and the
// live section's loop, prints the report to standard output and returns the exit status (0).
// Shows no window and needs no display.
int runAuditReport(int argc, char** argv);

}  // namespace brimly::Audit
