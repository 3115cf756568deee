#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brimly::testing {

// How a launcher that follows the desktop-entry format to the letter reads an `Exec=` value: the
// escapes of string values first (\s, \n, \t, \r and \\), then the command line's quoting (an
// argument in double quotes, inside which \", \`, \$ and \\ stand for the character), then the
// field codes, of which only "%%" (a '%') may appear in an entry without files to open. Nothing
// when the value breaks a rule: an unknown escape, a reserved character outside quotes, a quote
// left open, another field code, or an '=' in the program.
std::optional<std::vector<std::string>> execArguments(std::string_view value);

}  // namespace brimly::testing
