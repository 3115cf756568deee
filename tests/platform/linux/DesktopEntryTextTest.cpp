#include "platform/linux/DesktopEntryText.h"

#include <gtest/gtest.h>

#include <string>

namespace brimly {
namespace {

using namespace std::string_literals;

TEST(DesktopExecValueEdge, PathsThatCannotBeWrittenGiveNothing) {
  EXPECT_EQ(desktopExecValue(""), std::nullopt);
  EXPECT_EQ(desktopExecValue("brimly"), std::nullopt);
  EXPECT_EQ(desktopExecValue("bin/brimly"), std::nullopt);
  EXPECT_EQ(desktopExecValue("/opt/caf\xe9/brimly"), std::nullopt);  // not UTF-8
  EXPECT_EQ(desktopExecValue("/opt/a\rb/brimly"), std::nullopt);
  EXPECT_EQ(desktopExecValue("/opt/a\x01"
                             "b/brimly"),
            std::nullopt);
  EXPECT_EQ(desktopExecValue("/opt/a\0b/brimly"s), std::nullopt);
}

TEST(DesktopExecValueEdge, TabsAndNewlinesAreQuotedAndEscaped) {
  EXPECT_EQ(desktopExecValue("/opt/a\tb/brimly"), R"("/opt/a\tb/brimly")");
  EXPECT_EQ(desktopExecValue("/opt/a\nb/brimly"), R"("/opt/a\nb/brimly")");
}

TEST(DesktopExecValue, PlainPathStaysAsItIs) {
  EXPECT_EQ(desktopExecValue("/usr/bin/brimly"), "/usr/bin/brimly");
  EXPECT_EQ(desktopExecValue("/home/zoë/.local/bin/brimly"), "/home/zoë/.local/bin/brimly");
}

TEST(DesktopExecValue, SpacesAndApostrophesAreQuoted) {
  EXPECT_EQ(desktopExecValue("/opt/My Apps/brimly"), R"("/opt/My Apps/brimly")");
  EXPECT_EQ(desktopExecValue("/home/ann/it's/brimly"), R"("/home/ann/it's/brimly")");
  EXPECT_EQ(desktopExecValue("/opt/a~b/brimly"), R"("/opt/a~b/brimly")");
  EXPECT_EQ(desktopExecValue("/opt/(x)/brimly"), R"("/opt/(x)/brimly")");
}

TEST(DesktopExecValue, QuotesDollarsBackticksAndBackslashesAreEscapedTwice) {
  // Once for the quoting of the argument, once more for the escapes of every string value.
  EXPECT_EQ(desktopExecValue(R"(/opt/say "hi"/brimly)"), R"("/opt/say \\"hi\\"/brimly")");
  EXPECT_EQ(desktopExecValue("/tmp/a$b/brimly"), R"("/tmp/a\\$b/brimly")");
  EXPECT_EQ(desktopExecValue("/tmp/a`b/brimly"), R"("/tmp/a\\`b/brimly")");
  EXPECT_EQ(desktopExecValue(R"(/tmp/a\b/brimly)"), R"("/tmp/a\\\\b/brimly")");
}

TEST(DesktopExecValue, PathWithAPercentSignIsHandedToShDoubledSoItIsNoFieldCode) {
  // GLib looks for the program under the first word before it turns "%%" into "%".
  EXPECT_EQ(desktopExecValue("/tmp/100%/brimly"), R"(sh -c "exec \\"\\$0\\"" "/tmp/100%%/brimly")");
  EXPECT_EQ(desktopExecValue("/tmp/100% sure/brimly"),
            R"(sh -c "exec \\"\\$0\\"" "/tmp/100%% sure/brimly")");
}

TEST(DesktopExecValue, PathWithAnEqualsSignIsHandedToSh) {
  // The format allows no '=' in the program, only in its arguments.
  EXPECT_EQ(desktopExecValue("/opt/a=b/brimly"), R"(sh -c "exec \\"\\$0\\"" "/opt/a=b/brimly")");
}

const char* const kEntry =
    "[Desktop Entry]\n"
    "Type=Application\n"
    "Name=Brimly\n"
    "Exec=/usr/bin/brimly\n";

TEST(AutostartEntryIsActiveEdge, TextWithoutTheDesktopEntryGroupIsNoEntry) {
  EXPECT_FALSE(autostartEntryIsActive(""));
  EXPECT_FALSE(autostartEntryIsActive("\n\n   \n"));
  EXPECT_FALSE(autostartEntryIsActive("Exec=/usr/bin/brimly\n"));
  EXPECT_FALSE(autostartEntryIsActive("[Desktop Action quit]\nExec=/usr/bin/brimly\n"));
  EXPECT_FALSE(autostartEntryIsActive("[Desktop Entry\nExec=/usr/bin/brimly\n"));
  EXPECT_FALSE(
      autostartEntryIsActive("\x7f"
                             "ELF\x02\x01\x01\0\0\0"s));
}

TEST(AutostartEntryIsActiveEdge, GarbageAroundTheGroupIsSkipped) {
  const std::string text =
      "\xff\xfe\0garbage\n=\n==\n[\n]\n[Desktop Entry]\nno equals sign\n=true\n"s + "Hidden\n" +
      std::string(300, 'x');
  EXPECT_TRUE(autostartEntryIsActive(text));
}

TEST(AutostartEntryIsActiveEdge, TextCutInTheMiddleOfALineStillCounts) {
  EXPECT_TRUE(autostartEntryIsActive("[Desktop Entry]\nExec=/usr/bin/bri"));
  EXPECT_FALSE(autostartEntryIsActive("[Desktop Entry]\nHidden=true"));
}

TEST(AutostartEntryIsActive, PlainEntryIsActive) {
  EXPECT_TRUE(autostartEntryIsActive(kEntry));
  EXPECT_TRUE(autostartEntryIsActive(std::string(kEntry) + "X-GNOME-Autostart-enabled=true\n"));
  EXPECT_TRUE(autostartEntryIsActive(std::string(kEntry) + "Hidden=false\n"));
}

TEST(AutostartEntryIsActive, HiddenEntryIsOff) {
  EXPECT_FALSE(autostartEntryIsActive(std::string(kEntry) + "Hidden=true\n"));
  EXPECT_FALSE(autostartEntryIsActive(std::string(kEntry) + "Hidden = true\n"));
  EXPECT_FALSE(autostartEntryIsActive(std::string(kEntry) + "  Hidden=true  \n"));
  EXPECT_FALSE(autostartEntryIsActive(std::string(kEntry) + "Hidden=1\n"));
  EXPECT_FALSE(autostartEntryIsActive(std::string(kEntry) + "Hidden=Yes\n"));
}

TEST(AutostartEntryIsActive, EntrySwitchedOffForGnomeIsOff) {
  EXPECT_FALSE(autostartEntryIsActive(std::string(kEntry) + "X-GNOME-Autostart-enabled=false\n"));
  EXPECT_FALSE(autostartEntryIsActive(std::string(kEntry) + "X-GNOME-Autostart-enabled=0\n"));
}

TEST(AutostartEntryIsActive, EntrySkippedBySystemdIsOff) {
  EXPECT_FALSE(autostartEntryIsActive(std::string(kEntry) + "X-systemd-skip=true\n"));
}

TEST(AutostartEntryIsActive, WindowsLineEndingsAreRead) {
  EXPECT_TRUE(autostartEntryIsActive("[Desktop Entry]\r\nExec=/usr/bin/brimly\r\n"));
  EXPECT_FALSE(autostartEntryIsActive("[Desktop Entry]\r\nHidden=true\r\n"));
}

TEST(AutostartEntryIsActive, CommentsAndOtherGroupsDoNotCount) {
  EXPECT_TRUE(autostartEntryIsActive(std::string(kEntry) + "# Hidden=true\n"));
  EXPECT_TRUE(autostartEntryIsActive(std::string(kEntry) + "[Desktop Action quit]\nHidden=true\n"));
  EXPECT_TRUE(autostartEntryIsActive(std::string(kEntry) + "Hidden[de]=true\n"));
  EXPECT_TRUE(autostartEntryIsActive(std::string(kEntry) + "hidden=true\n"));
}

TEST(AutostartEntryIsActive, TheLastWordOfARepeatedKeyCounts) {
  EXPECT_TRUE(autostartEntryIsActive(std::string(kEntry) + "Hidden=true\nHidden=false\n"));
  EXPECT_FALSE(autostartEntryIsActive(std::string(kEntry) + "Hidden=false\nHidden=true\n"));
}

}  // namespace
}  // namespace brimly
