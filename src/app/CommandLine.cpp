#include "app/CommandLine.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

namespace brimly {

namespace {

// Whether one of the arguments after the program name is one of `switches`.
bool hasSwitch(const std::vector<std::string>& arguments,
               std::initializer_list<std::string_view> switches) {
  return arguments.size() > 1 &&
         std::any_of(arguments.begin() + 1, arguments.end(), [&](const std::string& argument) {
           return std::find(switches.begin(), switches.end(), argument) != switches.end();
         });
}

}  // namespace

bool wantsAudit(const std::vector<std::string>& arguments) {
  return std::find(arguments.begin(), arguments.end(), kAuditSwitch) != arguments.end();
}

bool wantsHelp(const std::vector<std::string>& arguments) {
  return hasSwitch(arguments, {"--help", "-h"});
}

bool wantsVersion(const std::vector<std::string>& arguments) {
  return hasSwitch(arguments, {"--version"});
}

std::string usageText() {
  return "Usage: brimly [--audit | --help | --version] [Qt options]\n"
         "\n"
         "Brimly shows CPU, GPU, memory, disk, temperature and power readings in a black card\n"
         "that grows from the top centre of the screen when the pointer comes near it. Its item\n"
         "in the system tray opens the controls: keep the panel visible, launch at login,\n"
         "Fahrenheit, settings, About and Quit. One Brimly runs per user; started again, it\n"
         "leaves, and on a desktop without a tray first opens the running one's controls.\n"
         "\n"
         "Options:\n"
         "  --audit        print every reading beside the figures it comes from, then exit\n"
         "                 (no window, no display needed)\n"
         "  -h, --help     print this text and exit\n"
         "  --version      print the version and exit\n"
         "\n"
         "Qt's own options work as in every Qt program, among them:\n"
         "  -platform <name>              the window system (xcb for X11, wayland, offscreen)\n"
         "  -platformpluginpath <folder>  where Qt looks for window-system plugins\n"
         "  -display <name>               the X server to show the panel on\n"
         "\n"
         "Exit status:\n"
         "  0  Brimly was quit, or printed what was asked, or another Brimly of this user runs\n"
         "  1  what was asked for could not be written to standard output\n"
         "  3  there is no display, or no window system Qt can start\n";
}

std::string versionLine(const std::string& version) {
  return "Brimly " + version + "\n";
}

}  // namespace brimly
