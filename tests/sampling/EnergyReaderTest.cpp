#include "sampling/EnergyReader.h"

#include <gtest/gtest.h>

#include <limits>

#include "FakePlatform.h"

namespace brimly {
namespace {

using testing::FakeMachine;
using testing::FakePlatform;

// A machine with the given energy counters (nanojoules) and nothing else.
FakeMachine machineWithCounters(std::vector<EnergyCounter> counters, double joulesPerUnit = 1e-9) {
  FakeMachine machine = FakeMachine::bareMachine();
  machine.energyAvailable = true;
  machine.energyCounters = std::move(counters);
  machine.energyJoulesPerUnit = joulesPerUnit;
  return machine;
}

class EnergyReaderTest : public ::testing::Test {
 protected:
  EnergyReaderTest()
      : platform_(machineWithCounters({{"CPU Energy", 1'000'000'000, 0},
                                       {"GPU Energy", 500'000'000, 0},
                                       {"ANE", 0, 0},
                                       {"DRAM energy", 200'000'000, 0}})),
        reader_(platform_.makeEnergyCounterPort(), platform_.clock()) {
    platform_.ownClock().setNow(100.0);
  }

  void add(const std::string& channel, std::int64_t units) {
    platform_.change([&](FakeMachine& machine) { machine.addEnergy(channel, units); });
  }
  void advance(double seconds) { platform_.ownClock().advance(seconds); }

  FakePlatform platform_;
  EnergyReader reader_;
};

TEST_F(EnergyReaderTest, FirstCallPrimesAndTheSecondGivesTheRate) {
  EXPECT_FALSE(reader_.sampleSystemPower().has_value());
  advance(1.0);
  add("CPU Energy", 3'000'000'000);
  add("GPU Energy", 1'000'000'000);
  add("DRAM energy", 200'000'000);
  const auto watts = reader_.sampleSystemPower();
  ASSERT_TRUE(watts.has_value());
  EXPECT_DOUBLE_EQ(*watts, 4.2);
}

TEST_F(EnergyReaderTest, CallTooSoonGivesNothingAndTheNextMeasuresFromIt) {
  reader_.sampleSystemPower();
  advance(0.03);
  add("CPU Energy", 9'000'000'000);  // used up before the second call: must not count later
  EXPECT_FALSE(reader_.sampleSystemPower().has_value());
  advance(0.5);
  add("CPU Energy", 1'000'000'000);
  const auto watts = reader_.sampleSystemPower();
  ASSERT_TRUE(watts.has_value());
  EXPECT_DOUBLE_EQ(*watts, 2.0);  // 1 J over the 0.5 s since the second call
}

TEST_F(EnergyReaderTest, IntervalOfExactlyTheMinimumGivesNothing) {
  platform_.ownClock().setNow(0.0);
  reader_.sampleSystemPower();
  platform_.ownClock().setNow(EnergyReader::minimumIntervalSeconds);  // exactly 0.05 s later
  add("CPU Energy", 1'000'000);
  EXPECT_FALSE(reader_.sampleSystemPower().has_value());
  platform_.ownClock().setNow(EnergyReader::minimumIntervalSeconds + 0.0625);
  add("CPU Energy", 1'000'000);
  EXPECT_DOUBLE_EQ(*reader_.sampleSystemPower(), 0.016);  // 1 mJ over 62.5 ms
}

TEST_F(EnergyReaderTest, OnlyChannelsNamedEnergyInAnyCaseAreSummed) {
  reader_.sampleSystemPower();
  advance(1.0);
  add("CPU Energy", 1'000'000'000);
  add("GPU Energy", 1'000'000'000);
  add("ANE", 50'000'000'000);
  add("DRAM energy", 1'000'000'000);
  EXPECT_DOUBLE_EQ(*reader_.sampleSystemPower(), 3.0);
}

TEST_F(EnergyReaderTest, NegativeSumGivesNothingAndTheNextCallMeasuresAfresh) {
  reader_.sampleSystemPower();
  advance(1.0);
  add("CPU Energy", -900'000'000);  // a counter reset without a known wrap point
  EXPECT_FALSE(reader_.sampleSystemPower().has_value());
  advance(1.0);
  add("CPU Energy", 2'500'000'000);
  EXPECT_DOUBLE_EQ(*reader_.sampleSystemPower(), 2.5);
}

TEST_F(EnergyReaderTest, ExactlyFiveHundredWattsGivesNothing) {
  reader_.sampleSystemPower();
  advance(1.0);
  add("CPU Energy", 500'000'000'000);
  EXPECT_FALSE(reader_.sampleSystemPower().has_value());
  advance(1.0);
  add("CPU Energy", 499'000'000'000);
  EXPECT_DOUBLE_EQ(*reader_.sampleSystemPower(), 499.0);
}

TEST_F(EnergyReaderTest, IdleMachineGivesZeroWatts) {
  reader_.sampleSystemPower();
  advance(2.0);
  EXPECT_EQ(reader_.sampleSystemPower(), 0.0);
}

TEST_F(EnergyReaderTest, FailedReadingChangesNothing) {
  reader_.sampleSystemPower();
  advance(1.0);
  add("CPU Energy", 1'000'000'000);
  auto counters = platform_.machine().energyCounters;
  platform_.change([](FakeMachine& machine) { machine.energyCounters = std::nullopt; });
  EXPECT_FALSE(reader_.sampleSystemPower().has_value());
  advance(1.0);
  platform_.change([&](FakeMachine& machine) { machine.energyCounters = counters; });
  EXPECT_DOUBLE_EQ(*reader_.sampleSystemPower(), 0.5);  // 1 J over the 2 s since the first call
}

TEST_F(EnergyReaderTest, ChangedChannelListGivesNothingAndStartsAgain) {
  reader_.sampleSystemPower();
  advance(1.0);
  platform_.change([](FakeMachine& machine) {
    machine.energyCounters->push_back({"Extra Energy", 0, 0});
  });
  EXPECT_FALSE(reader_.sampleSystemPower().has_value());
  advance(1.0);
  add("Extra Energy", 3'000'000'000);
  EXPECT_DOUBLE_EQ(*reader_.sampleSystemPower(), 3.0);
}

TEST(EnergyReader, CounterThatWrapsAtAKnownPointGivesItsTrueDifference) {
  // A powercap package counter in microjoules that wrapped once during one second.
  FakePlatform platform(
      machineWithCounters({{"package-0 Energy", 262'140'000'000, 262'143'328'850}}, 1e-6));
  EnergyReader reader(platform.makeEnergyCounterPort(), platform.clock());
  reader.sampleSystemPower();
  platform.ownClock().advance(1.0);
  platform.change([](FakeMachine& machine) { (*machine.energyCounters)[0].value = 4'000'000; });
  EXPECT_DOUBLE_EQ(*reader.sampleSystemPower(), 7.32885);
}

TEST(EnergyReader, UnavailableCountersAreNeverRead) {
  FakeMachine machine = machineWithCounters({{"CPU Energy", 0, 0}});
  machine.energyAvailable = false;
  FakePlatform platform(machine);
  EnergyReader reader(platform.makeEnergyCounterPort(), platform.clock());
  for (int i = 0; i < 3; ++i) {
    platform.ownClock().advance(1.0);
    EXPECT_FALSE(reader.sampleSystemPower().has_value());
  }
  EXPECT_EQ(platform.readCounts().energyCounters, 0);
}

TEST(EnergyReader, CountersAreThereOnceAReadingHasAnEnergyChannel) {
  FakePlatform platform(machineWithCounters({{"CPU Energy", 0, 0}}));
  EnergyReader reader(platform.makeEnergyCounterPort(), platform.clock());
  EXPECT_FALSE(reader.hasCounters());
  // The first reading only primes, but the machine has a source of its draw.
  EXPECT_FALSE(reader.sampleSystemPower().has_value());
  EXPECT_TRUE(reader.hasCounters());
}

TEST(EnergyReader, NoCountersWithoutAnEnergyChannelOrAReading) {
  FakePlatform other(machineWithCounters({{"ANE", 0, 0}}));
  EnergyReader onlyOthers(other.makeEnergyCounterPort(), other.clock());
  onlyOthers.sampleSystemPower();
  EXPECT_FALSE(onlyOthers.hasCounters());

  // Readable only by root, as powercap's files are on current kernels.
  FakeMachine refused = machineWithCounters({{"CPU Energy", 0, 0}});
  refused.energyAvailable = false;
  FakePlatform platform(refused);
  EnergyReader reader(platform.makeEnergyCounterPort(), platform.clock());
  reader.sampleSystemPower();
  EXPECT_FALSE(reader.hasCounters());
}

TEST(EnergyReader, UnusableUnitGivesNothing) {
  FakePlatform platform(machineWithCounters({{"CPU Energy", 0, 0}}, 0.0));
  EnergyReader reader(platform.makeEnergyCounterPort(), platform.clock());
  reader.sampleSystemPower();
  platform.ownClock().advance(1.0);
  platform.change([](FakeMachine& machine) { machine.addEnergy("CPU Energy", 1'000'000'000); });
  EXPECT_FALSE(reader.sampleSystemPower().has_value());
}

TEST(EnergyReader, MissingPortGivesNothing) {
  testing::FakeClock clock;
  EnergyReader reader(nullptr, clock);
  EXPECT_FALSE(reader.sampleSystemPower().has_value());
  clock.advance(1.0);
  EXPECT_FALSE(reader.sampleSystemPower().has_value());
}

TEST(EnergyReader, ChannelFilterIgnoresCase) {
  EXPECT_TRUE(EnergyReader::isEnergyChannel("CPU Energy"));
  EXPECT_TRUE(EnergyReader::isEnergyChannel("DRAM energy"));
  EXPECT_TRUE(EnergyReader::isEnergyChannel("ENERGY"));
  EXPECT_FALSE(EnergyReader::isEnergyChannel("ANE"));
  EXPECT_FALSE(EnergyReader::isEnergyChannel("Energ"));
  EXPECT_FALSE(EnergyReader::isEnergyChannel(""));
}

TEST(EnergyReader, DeltaArithmeticThatWouldOverflowGivesNothing) {
  const auto big = std::numeric_limits<std::int64_t>::max();
  const auto low = std::numeric_limits<std::int64_t>::min();
  EXPECT_FALSE(EnergyReader::counterDelta({"E", big, 0}, {"E", low, 0}).has_value());
  EXPECT_FALSE(EnergyReader::energyDelta({{"A Energy", 0, 0}, {"B Energy", 0, 0}},
                                         {{"A Energy", big, 0}, {"B Energy", big, 0}})
                   .has_value());
  EXPECT_EQ(EnergyReader::energyDelta({{"A Energy", 5, 0}, {"ANE", 0, 0}},
                                      {{"A Energy", 12, 0}, {"ANE", big, 0}}),
            7);
  EXPECT_FALSE(EnergyReader::energyDelta({{"A Energy", 0, 0}}, {{"B Energy", 0, 0}}).has_value());
}

}  // namespace
}  // namespace brimly
