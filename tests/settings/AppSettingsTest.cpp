#include "settings/AppSettings.h"

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "FakeKeyValueStore.h"

namespace brimly {
namespace {

using Kinds = std::vector<MetricKind>;
using Strings = std::vector<std::string>;
using Write = FakeKeyValueStore::Write;

constexpr auto cpu = MetricKind::cpu;
constexpr auto gpu = MetricKind::gpu;
constexpr auto ram = MetricKind::ram;
constexpr auto disk = MetricKind::disk;
constexpr auto temp = MetricKind::temp;
constexpr auto pwr = MetricKind::pwr;

const Kinds allSix{cpu, gpu, ram, disk, temp, pwr};

TEST(AppSettings, EmptyStoreGivesDefaultsAndWritesNothing) {
  FakeKeyValueStore store;
  AppSettings settings(store);
  EXPECT_FALSE(settings.useFahrenheit());
  EXPECT_FALSE(settings.isPinned());
  EXPECT_EQ(settings.metricOrder(), allSix);
  EXPECT_TRUE(store.writes.empty());
  EXPECT_GT(store.reads, 0);
}

TEST(AppSettings, StoredOrderOfTempAndCpuShowsTwoCells) {
  FakeKeyValueStore store;
  store.values["metricOrder"] = Strings{"temp", "cpu"};
  AppSettings settings(store);
  EXPECT_EQ(settings.metricOrder(), (Kinds{temp, cpu}));
}

TEST(AppSettings, ShowingRamAppendsItAndStoresTheList) {
  FakeKeyValueStore store;
  store.values["metricOrder"] = Strings{"temp", "cpu"};
  AppSettings settings(store);
  QSignalSpy changed(&settings, &AppSettings::metricOrderChanged);
  settings.setMetric(ram, true);
  EXPECT_EQ(settings.metricOrder(), (Kinds{temp, cpu, ram}));
  EXPECT_EQ(store.writes, (std::vector<Write>{{"metricOrder", Strings{"temp", "cpu", "ram"}}}));
  EXPECT_EQ(changed.count(), 1);
}

TEST(AppSettings, TheLastShownMetricCannotBeHidden) {
  FakeKeyValueStore store;
  store.values["metricOrder"] = Strings{"cpu"};
  AppSettings settings(store);
  QSignalSpy changed(&settings, &AppSettings::metricOrderChanged);
  settings.setMetric(cpu, false);
  EXPECT_EQ(settings.metricOrder(), (Kinds{cpu}));
  EXPECT_TRUE(store.writes.empty());
  EXPECT_EQ(changed.count(), 0);
}

TEST(AppSettings, HidingAnAlreadyHiddenMetricRewritesTheUnchangedOrder) {
  FakeKeyValueStore store;
  store.values["metricOrder"] = Strings{"cpu", "ram"};
  AppSettings settings(store);
  QSignalSpy changed(&settings, &AppSettings::metricOrderChanged);
  settings.setMetric(gpu, false);
  EXPECT_EQ(settings.metricOrder(), (Kinds{cpu, ram}));
  EXPECT_EQ(store.writes, (std::vector<Write>{{"metricOrder", Strings{"cpu", "ram"}}}));
  EXPECT_EQ(changed.count(), 1);
}

TEST(AppSettings, SettingFahrenheitWritesAtOnceAndAgainWhenChangedBack) {
  FakeKeyValueStore store;
  AppSettings settings(store);
  QSignalSpy changed(&settings, &AppSettings::useFahrenheitChanged);
  settings.setUseFahrenheit(true);
  EXPECT_EQ(store.writes, (std::vector<Write>{{"useFahrenheit", true}}));
  settings.setUseFahrenheit(false);
  EXPECT_EQ(store.writes, (std::vector<Write>{{"useFahrenheit", true}, {"useFahrenheit", false}}));
  EXPECT_FALSE(settings.useFahrenheit());
  ASSERT_EQ(changed.count(), 2);
  EXPECT_TRUE(changed.at(0).at(0).toBool());
  EXPECT_FALSE(changed.at(1).at(0).toBool());
}

TEST(AppSettings, EveryFahrenheitAssignmentIsAnnouncedAndWrittenAlsoOfTheSameValue) {
  FakeKeyValueStore store;
  AppSettings settings(store);
  QSignalSpy changed(&settings, &AppSettings::useFahrenheitChanged);
  settings.setUseFahrenheit(false);
  EXPECT_EQ(changed.count(), 1);
  EXPECT_EQ(store.writes, (std::vector<Write>{{"useFahrenheit", false}}));
}

TEST(AppSettings, ChangeIsAnnouncedWithTheNewValueBeforeItIsWritten) {
  FakeKeyValueStore store;
  AppSettings settings(store);
  std::vector<std::string> seen;
  QObject::connect(&settings, &AppSettings::useFahrenheitChanged, [&](bool value) {
    seen.push_back("fahrenheit " + std::to_string(value) + " getter " +
                   std::to_string(settings.useFahrenheit()) + " writes " +
                   std::to_string(store.writes.size()));
  });
  QObject::connect(&settings, &AppSettings::metricOrderChanged, [&] {
    seen.push_back("order " + std::to_string(settings.metricOrder().size()) + " writes " +
                   std::to_string(store.writes.size()));
  });
  settings.setUseFahrenheit(true);
  settings.setMetricOrder({pwr});
  EXPECT_EQ(seen, (Strings{"fahrenheit 1 getter 1 writes 0", "order 1 writes 1"}));
  EXPECT_EQ(store.writes.size(), 2u);
}

TEST(AppSettings, StoredBooleansAreRead) {
  FakeKeyValueStore store;
  store.values["useFahrenheit"] = true;
  store.values["isPinned"] = true;
  AppSettings settings(store);
  EXPECT_TRUE(settings.useFahrenheit());
  EXPECT_TRUE(settings.isPinned());
}

TEST(AppSettings, MistypedValuesReadAsAbsent) {
  FakeKeyValueStore store;
  store.values["useFahrenheit"] = Strings{"true"};
  store.values["isPinned"] = FakeKeyValueStore::OtherValue{};
  store.values["metricOrder"] = true;
  AppSettings settings(store);
  EXPECT_FALSE(settings.useFahrenheit());
  EXPECT_FALSE(settings.isPinned());
  EXPECT_EQ(settings.metricOrder(), allSix);
  EXPECT_TRUE(store.writes.empty());
}

TEST(AppSettings, UnknownAndRepeatedEntriesAreDroppedWithoutWritingBack) {
  FakeKeyValueStore store;
  store.values["metricOrder"] = Strings{"ram", "cpu", "ram", "battery"};
  AppSettings settings(store);
  EXPECT_EQ(settings.metricOrder(), (Kinds{ram, cpu}));
  EXPECT_TRUE(store.writes.empty());
}

TEST(AppSettings, EmptyOrWhollyUnknownOrderGivesAllSix) {
  for (const Strings& stored : {Strings{}, Strings{"CPU", "PWR"}}) {
    FakeKeyValueStore store;
    store.values["metricOrder"] = stored;
    AppSettings settings(store);
    EXPECT_EQ(settings.metricOrder(), allSix);
  }
}

TEST(AppSettings, StoreThatCouldNotBeReadGivesDefaultsAndIsNotWritten) {
  FakeKeyValueStore store;
  store.values["useFahrenheit"] = true;
  store.values["metricOrder"] = Strings{"pwr"};
  store.failed = true;
  AppSettings settings(store);
  EXPECT_FALSE(settings.useFahrenheit());
  EXPECT_EQ(settings.metricOrder(), allSix);
  EXPECT_TRUE(store.writes.empty());
}

TEST(AppSettings, ShowingAShownMetricDoesNothing) {
  FakeKeyValueStore store;
  AppSettings settings(store);
  QSignalSpy changed(&settings, &AppSettings::metricOrderChanged);
  settings.setMetric(gpu, true);
  EXPECT_EQ(settings.metricOrder(), allSix);
  EXPECT_TRUE(store.writes.empty());
  EXPECT_EQ(changed.count(), 0);
}

TEST(AppSettings, AReshownMetricGoesToTheEnd) {
  FakeKeyValueStore store;
  AppSettings settings(store);
  settings.setMetric(gpu, false);
  EXPECT_EQ(settings.metricOrder(), (Kinds{cpu, ram, disk, temp, pwr}));
  settings.setMetric(gpu, true);
  EXPECT_EQ(settings.metricOrder(), (Kinds{cpu, ram, disk, temp, pwr, gpu}));
  EXPECT_EQ(store.writes.back(),
            (Write{"metricOrder", Strings{"cpu", "ram", "disk", "temp", "pwr", "gpu"}}));
}

TEST(AppSettings, HidingRemovesEveryOccurrence) {
  FakeKeyValueStore store;
  AppSettings settings(store);
  settings.setMetricOrder({cpu, ram, cpu});
  settings.setMetric(cpu, false);
  EXPECT_EQ(settings.metricOrder(), (Kinds{ram}));
}

TEST(AppSettings, EveryOrderAssignmentIsAnnouncedAndWritten) {
  FakeKeyValueStore store;
  AppSettings settings(store);
  QSignalSpy changed(&settings, &AppSettings::metricOrderChanged);
  settings.setMetricOrder(allSix);
  settings.setMetricOrder({disk, cpu});
  EXPECT_EQ(changed.count(), 2);
  EXPECT_EQ(store.writes, (std::vector<Write>{
                              {"metricOrder", Strings{"cpu", "gpu", "ram", "disk", "temp", "pwr"}},
                              {"metricOrder", Strings{"disk", "cpu"}}}));
}

TEST(AppSettings, MovingMetricsAssignsTheReorderedList) {
  FakeKeyValueStore store;
  AppSettings settings(store);
  settings.moveMetrics({1, 4}, 0);
  EXPECT_EQ(settings.metricOrder(), (Kinds{gpu, temp, cpu, ram, disk, pwr}));
  EXPECT_EQ(store.writes.back(),
            (Write{"metricOrder", Strings{"gpu", "temp", "cpu", "ram", "disk", "pwr"}}));
  settings.moveMetrics({9}, 0);  // out of range: the order stays, but is still assigned
  EXPECT_EQ(settings.metricOrder(), (Kinds{gpu, temp, cpu, ram, disk, pwr}));
}

TEST(AppSettingsFirstLaunch, WhatTheMachineCannotMeasureStartsHiddenAndNothingIsWritten) {
  FakeKeyValueStore store;
  AppSettings settings(store);
  QSignalSpy changed(&settings, &AppSettings::metricOrderChanged);
  settings.leaveOutOfDefaultOrder({gpu, pwr});
  EXPECT_EQ(settings.metricOrder(), (Kinds{cpu, ram, disk, temp}));
  EXPECT_EQ(changed.count(), 1);
  EXPECT_TRUE(store.writes.empty());
  // The user can still show them, which stores the order.
  settings.setMetric(gpu, true);
  EXPECT_EQ(settings.metricOrder(), (Kinds{cpu, ram, disk, temp, gpu}));
  EXPECT_EQ(store.writes,
            (std::vector<Write>{{"metricOrder", Strings{"cpu", "ram", "disk", "temp", "gpu"}}}));
}

TEST(AppSettingsFirstLaunch, AStoredOrderIsNeverChanged) {
  FakeKeyValueStore store;
  store.values["metricOrder"] = Strings{"gpu", "cpu", "pwr"};
  AppSettings settings(store);
  QSignalSpy changed(&settings, &AppSettings::metricOrderChanged);
  settings.leaveOutOfDefaultOrder({gpu, temp, pwr});
  EXPECT_EQ(settings.metricOrder(), (Kinds{gpu, cpu, pwr}));
  EXPECT_EQ(changed.count(), 0);
  EXPECT_TRUE(store.writes.empty());
}

TEST(AppSettingsFirstLaunch, AnOrderStoredSinceTheLaunchIsNeverChangedEither) {
  FakeKeyValueStore store;
  AppSettings settings(store);
  settings.setMetric(cpu, false);  // before the first sample came
  settings.leaveOutOfDefaultOrder({gpu, temp, pwr});
  EXPECT_EQ(settings.metricOrder(), (Kinds{gpu, ram, disk, temp, pwr}));
}

TEST(AppSettingsFirstLaunch, AMachineWithEverythingShowsAllSix) {
  FakeKeyValueStore store;
  AppSettings settings(store);
  settings.leaveOutOfDefaultOrder({});
  EXPECT_EQ(settings.metricOrder(), allSix);
  EXPECT_TRUE(store.writes.empty());
}

TEST(AppSettings, PinIsHeldButNotPersistedByTheSettings) {
  FakeKeyValueStore store;
  AppSettings settings(store);
  QSignalSpy changed(&settings, &AppSettings::isPinnedChanged);
  settings.setPinned(true);
  settings.setPinned(true);
  EXPECT_TRUE(settings.isPinned());
  EXPECT_TRUE(store.writes.empty());
  ASSERT_EQ(changed.count(), 1);
  EXPECT_TRUE(changed.at(0).at(0).toBool());
  // The pin switch stores it separately.
  EXPECT_TRUE(settings.storePinned(true));
  EXPECT_EQ(store.writes, (std::vector<Write>{{"isPinned", true}}));
}

TEST(AppSettingsAppearance, WithoutStoredChoicesBrimlyLooksAsItAlwaysHas) {
  FakeKeyValueStore store;
  AppSettings settings(store);
  EXPECT_EQ(settings.accentColor(), AccentChoice::green);
  EXPECT_EQ(settings.panelSize(), PanelSize::regular);
  EXPECT_FALSE(settings.showTrend());
}

TEST(AppSettingsAppearance, StoredChoicesAreRead) {
  FakeKeyValueStore store;
  store.values["accentColor"] = std::string("purple");
  store.values["panelSize"] = std::string("large");
  store.values["showTrend"] = true;
  AppSettings settings(store);
  EXPECT_EQ(settings.accentColor(), AccentChoice::purple);
  EXPECT_EQ(settings.panelSize(), PanelSize::large);
  EXPECT_TRUE(settings.showTrend());
  EXPECT_TRUE(store.writes.empty());
}

TEST(AppSettingsAppearance, UnknownOrMistypedChoicesFallBackWithoutBeingOverwritten) {
  for (const FakeKeyValueStore::Value& odd :
       {FakeKeyValueStore::Value(std::string("teal")), FakeKeyValueStore::Value(std::string("")),
        FakeKeyValueStore::Value(Strings{"blue"}), FakeKeyValueStore::Value(true),
        FakeKeyValueStore::Value(FakeKeyValueStore::OtherValue{})}) {
    FakeKeyValueStore store;
    store.values["accentColor"] = odd;
    store.values["panelSize"] = odd;
    store.values["showTrend"] = std::holds_alternative<bool>(odd) ? Strings{"true"} : odd;
    AppSettings settings(store);
    EXPECT_EQ(settings.accentColor(), AccentChoice::green);
    EXPECT_EQ(settings.panelSize(), PanelSize::regular);
    EXPECT_FALSE(settings.showTrend());
    EXPECT_TRUE(store.writes.empty());
  }
}

TEST(AppSettingsAppearance, EachChoiceIsAnnouncedAndWrittenByItsStoredName) {
  FakeKeyValueStore store;
  AppSettings settings(store);
  std::vector<AccentChoice> accents;
  std::vector<PanelSize> sizes;
  std::vector<bool> trends;
  QObject::connect(&settings, &AppSettings::accentColorChanged,
                   [&](AccentChoice accent) { accents.push_back(accent); });
  QObject::connect(&settings, &AppSettings::panelSizeChanged,
                   [&](PanelSize size) { sizes.push_back(size); });
  QObject::connect(&settings, &AppSettings::showTrendChanged,
                   [&](bool trend) { trends.push_back(trend); });
  settings.setAccentColor(AccentChoice::system);
  settings.setPanelSize(PanelSize::large);
  settings.setShowTrend(true);
  settings.setAccentColor(AccentChoice::system);
  EXPECT_EQ(accents, (std::vector<AccentChoice>{AccentChoice::system, AccentChoice::system}));
  EXPECT_EQ(sizes, std::vector<PanelSize>{PanelSize::large});
  EXPECT_EQ(trends, std::vector<bool>{true});
  EXPECT_EQ(store.writes, (std::vector<Write>{{"accentColor", std::string("system")},
                                              {"panelSize", std::string("large")},
                                              {"showTrend", true},
                                              {"accentColor", std::string("system")}}));
  AppSettings nextLaunch(store);
  EXPECT_EQ(nextLaunch.accentColor(), AccentChoice::system);
  EXPECT_EQ(nextLaunch.panelSize(), PanelSize::large);
  EXPECT_TRUE(nextLaunch.showTrend());
}

TEST(AppSettingsWriteFailure, AppearanceChoicesGoBackToWhatIsStored) {
  FakeKeyValueStore store;
  store.values["accentColor"] = std::string("pink");
  AppSettings settings(store);
  std::vector<std::string> logged;
  settings.setWriteFailureLog([&](const std::string& line) { logged.push_back(line); });
  std::vector<AccentChoice> accents;
  QObject::connect(&settings, &AppSettings::accentColorChanged,
                   [&](AccentChoice accent) { accents.push_back(accent); });
  store.writeFailure = "disk full";
  settings.setAccentColor(AccentChoice::blue);
  settings.setPanelSize(PanelSize::large);
  settings.setShowTrend(true);
  EXPECT_EQ(settings.accentColor(), AccentChoice::pink);
  EXPECT_EQ(accents, (std::vector<AccentChoice>{AccentChoice::blue, AccentChoice::pink}));
  EXPECT_EQ(settings.panelSize(), PanelSize::regular);
  EXPECT_FALSE(settings.showTrend());
  EXPECT_EQ(logged.size(), 3u);
}

TEST(AppSettingsWriteFailure, FahrenheitGoesBackToWhatIsStoredAndOneLineSaysWhy) {
  FakeKeyValueStore store;
  store.values["useFahrenheit"] = false;
  AppSettings settings(store);
  std::vector<std::string> logged;
  settings.setWriteFailureLog([&](const std::string& line) { logged.push_back(line); });
  std::vector<bool> announced;
  QObject::connect(&settings, &AppSettings::useFahrenheitChanged,
                   [&](bool value) { announced.push_back(value); });
  store.writeFailure = "cannot write /home/ann/.config/brimly/Brimly.conf: No space left on device";
  settings.setUseFahrenheit(true);
  EXPECT_FALSE(settings.useFahrenheit());
  // The new value, then the stored one: whoever showed the new one shows the truth again.
  EXPECT_EQ(announced, (std::vector<bool>{true, false}));
  EXPECT_EQ(logged, (Strings{"Brimly: saving the settings failed — cannot write "
                             "/home/ann/.config/brimly/Brimly.conf: No space left on device"}));
}

TEST(AppSettingsWriteFailure, OrderGoesBackToWhatIsStored) {
  FakeKeyValueStore store;
  store.values["metricOrder"] = Strings{"temp", "cpu"};
  AppSettings settings(store);
  std::vector<std::string> logged;
  settings.setWriteFailureLog([&](const std::string& line) { logged.push_back(line); });
  QSignalSpy changed(&settings, &AppSettings::metricOrderChanged);
  store.writeFailure = "disk full";
  settings.setMetric(ram, true);
  settings.moveMetrics({1}, 0);
  EXPECT_EQ(settings.metricOrder(), (Kinds{temp, cpu}));
  EXPECT_EQ(changed.count(), 4);
  EXPECT_EQ(logged.size(), 2u);
}

TEST(AppSettingsWriteFailure, PinThatWasNotStoredIsNotTaken) {
  FakeKeyValueStore store;
  store.values["isPinned"] = true;
  AppSettings settings(store);
  store.writeFailure = "disk full";
  std::vector<std::string> logged;
  settings.setWriteFailureLog([&](const std::string& line) { logged.push_back(line); });
  EXPECT_TRUE(settings.storePinned(false));
  EXPECT_EQ(logged, (Strings{"Brimly: saving the settings failed — disk full"}));
}

TEST(AppSettingsWriteFailure, WithoutALogAFailedWriteStillGoesBack) {
  FakeKeyValueStore store;
  AppSettings settings(store);
  store.writeFailure = "disk full";
  settings.setUseFahrenheit(true);
  EXPECT_FALSE(settings.useFahrenheit());
}

}  // namespace
}  // namespace brimly
