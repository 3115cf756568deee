#include "DesktopExecLine.h"

namespace brimly::testing {
namespace {

constexpr std::string_view kReserved = "\t\n\"'\\><~|&;$*?#()`";

std::optional<std::string> unescapedString(std::string_view value) {
  std::string text;
  for (std::size_t i = 0; i < value.size(); ++i) {
    if (value[i] != '\\') {
      text += value[i];
      continue;
    }
    if (++i == value.size()) return std::nullopt;
    switch (value[i]) {
      case 's':
        text += ' ';
        break;
      case 'n':
        text += '\n';
        break;
      case 't':
        text += '\t';
        break;
      case 'r':
        text += '\r';
        break;
      case '\\':
        text += '\\';
        break;
      default:
        return std::nullopt;
    }
  }
  return text;
}

std::optional<std::string> expandedFieldCodes(std::string_view argument) {
  std::string text;
  for (std::size_t i = 0; i < argument.size(); ++i) {
    if (argument[i] != '%') {
      text += argument[i];
    } else if (i + 1 < argument.size() && argument[i + 1] == '%') {
      text += '%';
      ++i;
    } else {
      return std::nullopt;
    }
  }
  return text;
}

}  // namespace

std::optional<std::vector<std::string>> execArguments(std::string_view value) {
  const std::optional<std::string> line = unescapedString(value);
  if (!line) return std::nullopt;
  std::vector<std::string> quotedOnes;
  std::string argument;
  bool inArgument = false;
  for (std::size_t i = 0; i < line->size(); ++i) {
    const char c = (*line)[i];
    if (c == ' ') {
      if (inArgument) quotedOnes.push_back(argument);
      argument.clear();
      inArgument = false;
    } else if (c == '"') {
      if (inArgument) return std::nullopt;  // quotes enclose a whole argument
      for (++i;; ++i) {
        if (i == line->size()) return std::nullopt;
        const char inner = (*line)[i];
        if (inner == '"') break;
        if (inner == '\\') {
          if (++i == line->size()) return std::nullopt;
          const char escaped = (*line)[i];
          if (escaped != '"' && escaped != '`' && escaped != '$' && escaped != '\\') {
            return std::nullopt;
          }
          argument += escaped;
        } else if (inner == '`' || inner == '$') {
          return std::nullopt;
        } else {
          argument += inner;
        }
      }
      inArgument = true;
      if (i + 1 < line->size() && (*line)[i + 1] != ' ') return std::nullopt;
    } else if (kReserved.find(c) != std::string_view::npos) {
      return std::nullopt;
    } else {
      argument += c;
      inArgument = true;
    }
  }
  if (inArgument) quotedOnes.push_back(argument);

  std::vector<std::string> arguments;
  for (const std::string& quoted : quotedOnes) {
    std::optional<std::string> expanded = expandedFieldCodes(quoted);
    if (!expanded) return std::nullopt;
    arguments.push_back(std::move(*expanded));
  }
  if (arguments.empty() || arguments.front().find('=') != std::string::npos) return std::nullopt;
  return arguments;
}

}  // namespace brimly::testing
