#pragma once

#include <string>
#include <vector>

namespace brimly {

// The switch that selects the plain-text diagnostic report instead of the panel.
inline constexpr const char* kAuditSwitch = "--audit";

// True when any argument, the program name included, is exactly "--audit". Nothing else on the
// command line means anything to the report: other spellings, other letter cases and joined values
// are ignored.
bool wantsAudit(const std::vector<std::string>& arguments);

// True when an argument after the program name is exactly "--help" or "-h": the usage is printed
// instead of anything else.
bool wantsHelp(const std::vector<std::string>& arguments);
// True when an argument after the program name is exactly "--version": the version is printed
// instead of the panel or the report.
bool wantsVersion(const std::vector<std::string>& arguments);

// What `brimly --help` prints: what Brimly does, its own options and Qt's, and its exit statuses.
std::string usageText();
// What `brimly --version` prints for the version text `version` ("0.1.0", or "dev").
std::string versionLine(const std::string& version);

}  // namespace brimly
