// The autostart entry as launchers read it: Brimly writes its entry for a program at an awkward
// path, and the program must start from it both by the desktop-entry format's own rules (as Qt's,
// KDE's and systemd's launchers read it) and through GLib's launcher (GNOME's), `gio launch`.
#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "DesktopExecLine.h"
#include "TemporaryTree.h"
#include "platform/linux/XdgAutostartLoginItem.h"

namespace brimly {
namespace {

using testing::execArguments;
using testing::TemporaryTree;

// Folder names a program may sit in: every character the format reserves or escapes, field codes,
// the '=' the format keeps out of programs, text beyond ASCII.
const std::vector<std::string> kAwkwardFolders = {
    "plain",
    "with space",
    "100%",
    "%f and %% and %",
    "a=b",
    "say \"hi\"",
    "it's",
    "back\\slash",
    "dollar $HOME and `tick`",
    "semi;colon|pipe&amp<less>greater",
    "(paren) ~tilde #hash *star ?query",
    "tab\there",
    "new\nline",
    "zo\xc3\xab",
};

class AutostartLaunchTest : public ::testing::Test {
 protected:
  // A program in `folder` that writes the path it was started as to $BRIMLY_TEST_MARKER.
  std::string installProgram(const std::string& folder) const {
    tree_.write("programs/" + folder + "/brimly",
                "#!/bin/sh\nprintf '%s' \"$0\" > \"$BRIMLY_TEST_MARKER\"\n");
    const std::string program = tree_.root() + "/programs/" + folder + "/brimly";
    EXPECT_EQ(::chmod(program.c_str(), 0755), 0);
    return program;
  }

  // The entry Brimly writes for `program`, and its Exec value.
  std::string writeEntry(const std::string& program) const {
    XdgAutostartLoginItem item(tree_.root() + "/config", program);
    EXPECT_EQ(item.setEnabled(true), std::nullopt);
    return item.entryPath();
  }
  static std::string execValue(const std::string& entry) {
    std::ifstream file(entry);
    std::string line;
    while (std::getline(file, line)) {
      if (line.rfind("Exec=", 0) == 0) return line.substr(5);
    }
    return {};
  }

  // Runs `arguments` (the program looked up in $PATH when it has no slash) with a clean
  // environment and `marker`; answers its exit status.
  static int run(const std::vector<std::string>& arguments, const std::string& marker,
                 const std::string& home) {
    const pid_t child = ::fork();
    if (child == 0) {
      std::vector<char*> argv;
      for (const std::string& argument : arguments)
        argv.push_back(const_cast<char*>(argument.c_str()));
      argv.push_back(nullptr);
      // No display and no session bus: the launcher has nothing to talk to but the program.
      ::clearenv();
      ::setenv("PATH", "/usr/local/bin:/usr/bin:/bin", 1);
      ::setenv("HOME", home.c_str(), 1);
      ::setenv("LANG", "C.UTF-8", 1);
      ::setenv("BRIMLY_TEST_MARKER", marker.c_str(), 1);
      const int quiet = ::open("/dev/null", O_WRONLY);
      ::dup2(quiet, STDOUT_FILENO);
      ::execvp(argv[0], argv.data());
      ::_exit(127);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  // What the program wrote into the FIFO `marker`, waiting for it at most ten seconds; empty
  // when it never came.
  static std::string awaitMarker(const std::string& marker) {
    const int fd = ::open(marker.c_str(), O_RDONLY | O_NONBLOCK);
    if (fd < 0) return {};
    std::string text;
    bool writerCame = false;
    for (;;) {
      pollfd wanted{fd, POLLIN, 0};
      if (::poll(&wanted, 1, 10000) <= 0) break;
      char buffer[512];
      const ssize_t got = ::read(fd, buffer, sizeof buffer);
      if (got > 0) {
        text.append(buffer, static_cast<std::size_t>(got));
        writerCame = true;
      } else if (got == 0 && writerCame) {
        break;  // the writer is done
      } else if (got == 0) {
        // No writer yet: a FIFO without one reads as its end, so wait for one to open it.
        pollfd again{fd, POLLIN, 0};
        if (::poll(&again, 1, 10000) <= 0) break;
      }
    }
    ::close(fd);
    return text;
  }

  static bool gioIsInstalled() {
    for (const char* folder : {"/usr/bin/gio", "/usr/local/bin/gio", "/bin/gio"}) {
      if (::access(folder, X_OK) == 0) return true;
    }
    return false;
  }

  TemporaryTree tree_;
};

TEST_F(AutostartLaunchTest, EntryStartsTheProgramByTheFormatsOwnRules) {
  for (const std::string& folder : kAwkwardFolders) {
    SCOPED_TRACE(folder);
    const std::string program = installProgram(folder);
    const std::string exec = execValue(writeEntry(program));
    const std::optional<std::vector<std::string>> arguments = execArguments(exec);
    ASSERT_TRUE(arguments.has_value()) << "not a valid Exec value: " << exec;
    const std::string marker = tree_.root() + "/marker";
    ::unlink(marker.c_str());
    EXPECT_EQ(run(*arguments, marker, tree_.root()), 0);
    std::ifstream written(marker);
    std::stringstream started;
    started << written.rdbuf();
    EXPECT_EQ(started.str(), program);
  }
}

TEST_F(AutostartLaunchTest, EntryStartsTheProgramThroughGlibsLauncher) {
  if (!gioIsInstalled()) GTEST_SKIP() << "gio is not installed (scripts/install-deps installs it)";
  for (const std::string& folder : kAwkwardFolders) {
    SCOPED_TRACE(folder);
    const std::string program = installProgram(folder);
    const std::string entry = writeEntry(program);
    const std::string marker = tree_.root() + "/marker";
    ::unlink(marker.c_str());
    ASSERT_EQ(::mkfifo(marker.c_str(), 0600), 0);
    EXPECT_EQ(run({"gio", "launch", entry}, marker, tree_.root()), 0) << execValue(entry);
    EXPECT_EQ(awaitMarker(marker), program) << execValue(entry);
  }
}

}  // namespace
}  // namespace brimly
