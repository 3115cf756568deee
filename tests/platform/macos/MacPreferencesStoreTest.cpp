#include "platform/macos/MacPreferencesStore.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/macos/OwnedHandles.h"

// The store against the real preferences system, each test in a throw-away domain of its own
// (never the application's), removed again afterwards. Runs on macOS only.

namespace brimly {
namespace {

using Strings = std::vector<std::string>;

CFOwned<CFStringRef> cfString(std::string_view text) {
  return CFOwned<CFStringRef>(
      CFStringCreateWithBytes(kCFAllocatorDefault, reinterpret_cast<const UInt8*>(text.data()),
                              static_cast<CFIndex>(text.size()), kCFStringEncodingUTF8, false));
}

class MacPreferencesStoreTest : public ::testing::Test {
 protected:
  MacPreferencesStoreTest() {
    static int count = 0;
    domain_ = "app.brimly.Brimly.test-" + std::to_string(getpid()) + "-" + std::to_string(++count);
  }

  ~MacPreferencesStoreTest() override {
    const std::vector<std::string> written = std::move(keys_);
    keys_.clear();
    for (const std::string& key : written)
      put(key, nullptr);
    [[maybe_unused]] const int removed =
        std::system(("defaults delete " + domain_ + " >/dev/null 2>&1").c_str());
  }

  // Stores `value` (borrowed; null removes the key) the way another program would.
  void put(const std::string& key, CFPropertyListRef value) {
    keys_.push_back(key);
    const auto cfKey = cfString(key);
    const auto cfDomain = cfString(domain_);
    CFPreferencesSetAppValue(cfKey.get(), value, cfDomain.get());
    CFPreferencesAppSynchronize(cfDomain.get());
  }

  MacPreferencesStore makeStore() {
    for (const char* key : {"isPinned", "useFahrenheit", "metricOrder", "accentColor", "flag"}) {
      keys_.push_back(key);
    }
    return MacPreferencesStore(domain_);
  }

  const std::string& domain() const { return domain_; }

 private:
  std::string domain_;
  std::vector<std::string> keys_;
};

TEST_F(MacPreferencesStoreTest, AbsentKeysReadAsNothing) {
  const MacPreferencesStore store = makeStore();
  EXPECT_EQ(store.readBool("isPinned"), std::nullopt);
  EXPECT_EQ(store.readStringList("metricOrder"), std::nullopt);
  EXPECT_FALSE(store.readFailed());
}

TEST_F(MacPreferencesStoreTest, BooleansAndListsComeBackAsWritten) {
  MacPreferencesStore store = makeStore();
  EXPECT_EQ(store.writeBool("isPinned", true), std::nullopt);
  EXPECT_EQ(store.writeBool("useFahrenheit", false), std::nullopt);
  EXPECT_EQ(store.writeStringList("metricOrder", {"gpu", "cpu", "temperature"}), std::nullopt);
  EXPECT_EQ(store.readBool("isPinned"), true);
  EXPECT_EQ(store.readBool("useFahrenheit"), false);
  EXPECT_EQ(store.readStringList("metricOrder"), (Strings{"gpu", "cpu", "temperature"}));

  // A second store on the domain, as the next launch would make, sees the same.
  const MacPreferencesStore again(domain());
  EXPECT_EQ(again.readBool("isPinned"), true);
  EXPECT_EQ(again.readStringList("metricOrder"), (Strings{"gpu", "cpu", "temperature"}));
}

TEST_F(MacPreferencesStoreTest, ListsKeepUtf8TextAndMayBeEmpty) {
  MacPreferencesStore store = makeStore();
  EXPECT_EQ(store.writeStringList("metricOrder", {"Temp\u00e9rature", ""}), std::nullopt);
  EXPECT_EQ(store.readStringList("metricOrder"), (Strings{"Temp\u00e9rature", ""}));
  EXPECT_EQ(store.writeStringList("metricOrder", {}), std::nullopt);
  EXPECT_EQ(store.readStringList("metricOrder"), Strings{});
}

TEST_F(MacPreferencesStoreTest, AListWithAnythingButStringsIsNoList) {
  const MacPreferencesStore preferences = makeStore();
  const auto name = cfString("cpu");
  const std::int64_t number = 3;
  CFOwned<CFNumberRef> three(CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt64Type, &number));
  const void* elements[] = {name.get(), three.get()};
  CFOwned<CFArrayRef> mixed(
      CFArrayCreate(kCFAllocatorDefault, elements, 2, &kCFTypeArrayCallBacks));
  put("metricOrder", mixed.get());
  EXPECT_EQ(preferences.readStringList("metricOrder"), std::nullopt);
  put("metricOrder", name.get());
  EXPECT_EQ(preferences.readStringList("metricOrder"), std::nullopt);
}

TEST_F(MacPreferencesStoreTest, StringsComeBackAsWrittenAndNothingElseIsAString) {
  MacPreferencesStore store = makeStore();
  EXPECT_EQ(store.readString("accentColor"), std::nullopt);
  EXPECT_EQ(store.writeString("accentColor", "indigo"), std::nullopt);
  EXPECT_EQ(store.readString("accentColor"), "indigo");
  EXPECT_EQ(MacPreferencesStore(domain()).readString("accentColor"), "indigo");

  const auto name = cfString("blue");
  const void* elements[] = {name.get()};
  CFOwned<CFArrayRef> list(CFArrayCreate(kCFAllocatorDefault, elements, 1, &kCFTypeArrayCallBacks));
  put("accentColor", list.get());
  EXPECT_EQ(store.readString("accentColor"), std::nullopt);
  put("accentColor", kCFBooleanTrue);
  EXPECT_EQ(store.readString("accentColor"), std::nullopt);
}

TEST_F(MacPreferencesStoreTest, IntegersReadAsBooleansTheWayBoolForKeyReadsThem) {
  // What `defaults write … isPinned -int 1` (and -int 0) store.
  const MacPreferencesStore preferences = makeStore();
  for (const std::int64_t number : {1, 0, 2}) {
    CFOwned<CFNumberRef> value(CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt64Type, &number));
    put("isPinned", value.get());
    EXPECT_EQ(preferences.readBool("isPinned"), number != 0) << number;
  }
}

TEST_F(MacPreferencesStoreTest, StringsReadAsBooleansTheWayBoolForKeyReadsThem) {
  // What `defaults write … isPinned -string YES` (and NO, true, 0) store.
  const MacPreferencesStore preferences = makeStore();
  for (const auto& [text, expected] : {std::pair{"YES", true}, std::pair{"NO", false},
                                       std::pair{"true", true}, std::pair{"0", false}}) {
    const auto value = cfString(text);
    put("isPinned", value.get());
    EXPECT_EQ(preferences.readBool("isPinned"), expected) << text;
  }
}

TEST_F(MacPreferencesStoreTest, TheDefaultsToolsIntegersAndStringsAreBooleansToo) {
  // Written by the command-line tool in another process, into a domain this process has not read.
  const std::string write = "defaults write " + domain() + " ";
  ASSERT_EQ(std::system((write + "isPinned -int 1").c_str()), 0);
  ASSERT_EQ(std::system((write + "useFahrenheit -string YES").c_str()), 0);
  ASSERT_EQ(std::system((write + "flag -bool false").c_str()), 0);
  const MacPreferencesStore store = makeStore();
  EXPECT_EQ(store.readBool("isPinned"), true);
  EXPECT_EQ(store.readBool("useFahrenheit"), true);
  EXPECT_EQ(store.readBool("flag"), false);
}

TEST(MacPreferencesStore, TheApplicationsDomainIsItsBundleIdentifier) {
  EXPECT_EQ(MacPreferencesStore().applicationDomain(), "app.brimly.Brimly");
}

}  // namespace
}  // namespace brimly
