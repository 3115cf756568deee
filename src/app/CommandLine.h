#pragma once

#include <string>
#include <vector>

namespace brimly {

// The switch that selects the plain-text diagnostic report instead of the panel.
inline constexpr const char* kAuditSwitch = "--audit";

// True when any argument, the program name included, is exactly "--audit". Nothing else on the
// command line means anything: other spellings, other letter cases and joined values are ignored.
bool wantsAudit(const std::vector<std::string>& arguments);

}  // namespace brimly
