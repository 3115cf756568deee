#include "platform/linux/DesktopEntryText.h"

#include "core/PathText.h"

namespace brimly {
namespace {

// Characters that make an argument need quotes.
constexpr std::string_view kReserved = " \t\n\"'\\><~|&;$*?#()`";

// `text` as one quoted argument: inside double quotes, '"', '`', '$' and '\' take a backslash.
std::string quoted(std::string_view text) {
  std::string argument = "\"";
  for (const char c : text) {
    if (c == '"' || c == '`' || c == '$' || c == '\\') argument += '\\';
    argument += c;
  }
  return argument + "\"";
}

// `text` as one argument, quoted only when it needs to be.
std::string argument(std::string_view text) {
  if (text.find_first_of(kReserved) == std::string_view::npos) return std::string(text);
  return quoted(text);
}

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return {};
  const std::size_t last = text.find_last_not_of(" \t\r");
  return text.substr(first, last - first + 1);
}

// A yes as systemd's autostart generator reads one, which takes more words than the plain `true`
// of desktop entries.
bool saysYes(std::string_view value) {
  std::string lower(value);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower == "true" || lower == "1" || lower == "yes" || lower == "y" || lower == "t" ||
         lower == "on";
}

}  // namespace

std::optional<std::string> desktopExecValue(std::string_view program) {
  if (program.empty() || program.front() != '/' || !isUtf8(program)) return std::nullopt;
  for (const char c : program) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte < 0x20 && c != '\t' && c != '\n') || byte == 0x7f) return std::nullopt;
  }
  const bool needsShell = program.find_first_of("%=") != std::string_view::npos;
  const std::string command =
      needsShell ? "sh -c " + quoted("exec \"$0\"") + " " + quoted(program) : argument(program);

  // The escapes of every string value, and '%' doubled so that it is no field code.
  std::string value;
  for (const char c : command) {
    switch (c) {
      case '\\':
        value += "\\\\";
        break;
      case '\n':
        value += "\\n";
        break;
      case '\t':
        value += "\\t";
        break;
      case '%':
        value += "%%";
        break;
      default:
        value += c;
    }
  }
  return value;
}

bool autostartEntryIsActive(std::string_view text) {
  bool sawGroup = false;
  bool inGroup = false;
  bool hidden = false;
  bool gnomeDisabled = false;
  bool systemdSkips = false;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    const std::string_view line = trimmed(text.substr(0, end));
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);

    if (line.empty() || line.front() == '#') continue;
    if (line.front() == '[') {
      inGroup = line == "[Desktop Entry]";
      sawGroup = sawGroup || inGroup;
      continue;
    }
    if (!inGroup) continue;
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    const std::string_view key = trimmed(line.substr(0, equals));
    const std::string_view value = trimmed(line.substr(equals + 1));
    // Hidden and X-systemd-skip are read by systemd's generator, X-GNOME-Autostart-enabled only
    // by GNOME's own launcher, which knows `false` and `0`.
    if (key == "Hidden") {
      hidden = saysYes(value);
    } else if (key == "X-GNOME-Autostart-enabled") {
      gnomeDisabled = value == "false" || value == "0";
    } else if (key == "X-systemd-skip") {
      systemdSkips = saysYes(value);
    }
  }
  return sawGroup && !hidden && !gnomeDisabled && !systemdSkips;
}

}  // namespace brimly
