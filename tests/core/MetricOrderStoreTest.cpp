#include "core/MetricOrderStore.h"

#include <gtest/gtest.h>

#include <random>

namespace brimly {
namespace {

using Kinds = std::vector<MetricKind>;
using Strings = std::vector<std::string>;
using Offsets = std::set<std::size_t>;

constexpr auto cpu = MetricKind::cpu;
constexpr auto gpu = MetricKind::gpu;
constexpr auto ram = MetricKind::ram;
constexpr auto disk = MetricKind::disk;
constexpr auto temp = MetricKind::temp;
constexpr auto pwr = MetricKind::pwr;

const Kinds kAll{cpu, gpu, ram, disk, temp, pwr};

TEST(MetricOrderStoreDecode, FirstOccurrenceWinsAndUnknownStringsAreSkipped) {
  EXPECT_EQ(MetricOrderStore::decode({"ram", "cpu", "ram", "battery"}), (Kinds{ram, cpu}));
}

TEST(MetricOrderStoreDecode, EmptyListGivesDefaultOrder) {
  EXPECT_EQ(MetricOrderStore::decode({}), kAll);
}

TEST(MetricOrderStoreDecode, OnlyUnknownStringsGiveDefaultOrder) {
  EXPECT_EQ(MetricOrderStore::decode({"CPU", "GPU", "RAM", "DISK", "TEMP", "PWR"}), kAll);
  EXPECT_EQ(MetricOrderStore::decode({"", " cpu"}), kAll);
}

TEST(MetricOrderStoreDecode, SingleKindStaysAlone) {
  EXPECT_EQ(MetricOrderStore::decode({"pwr"}), (Kinds{pwr}));
}

TEST(MetricOrderStoreEncode, WritesRawValuesInOrderWithoutFiltering) {
  EXPECT_EQ(MetricOrderStore::encode({temp, cpu}), (Strings{"temp", "cpu"}));
  EXPECT_EQ(MetricOrderStore::encode({ram, ram}), (Strings{"ram", "ram"}));
  EXPECT_EQ(MetricOrderStore::encode({}), Strings{});
  EXPECT_EQ(MetricOrderStore::encode(kAll),
            (Strings{"cpu", "gpu", "ram", "disk", "temp", "pwr"}));
}

TEST(MetricOrderStoreEncode, EncodeThenDecodeReturnsEveryListOfDistinctKinds) {
  // Every non-empty ordered selection of distinct kinds: all subsets in all orders.
  for (unsigned mask = 1; mask < 64; ++mask) {
    Kinds subset;
    for (std::size_t i = 0; i < 6; ++i) {
      if (mask & (1u << i)) subset.push_back(kAll[i]);
    }
    std::sort(subset.begin(), subset.end(),
              [](MetricKind a, MetricKind b) { return a.value() < b.value(); });
    do {
      EXPECT_EQ(MetricOrderStore::decode(MetricOrderStore::encode(subset)), subset);
    } while (std::next_permutation(subset.begin(), subset.end(), [](MetricKind a, MetricKind b) {
      return a.value() < b.value();
    }));
  }
}

struct MoveExample {
  Offsets offsets;
  std::ptrdiff_t destination;
  Kinds expected;
};

class MetricOrderStoreReorderedExamples : public ::testing::TestWithParam<MoveExample> {};

TEST_P(MetricOrderStoreReorderedExamples, MatchesTheMoveTable) {
  const MoveExample& example = GetParam();
  EXPECT_EQ(MetricOrderStore::reordered(kAll, example.offsets, example.destination),
            example.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Table, MetricOrderStoreReorderedExamples,
    ::testing::Values(MoveExample{{0}, 3, {gpu, ram, cpu, disk, temp, pwr}},
                      MoveExample{{0}, 6, {gpu, ram, disk, temp, pwr, cpu}},
                      MoveExample{{5}, 0, {pwr, cpu, gpu, ram, disk, temp}},
                      MoveExample{{1, 4}, 0, {gpu, temp, cpu, ram, disk, pwr}},
                      MoveExample{{1, 4}, 6, {cpu, ram, disk, pwr, gpu, temp}},
                      MoveExample{{2}, 2, kAll},
                      MoveExample{{2}, 3, kAll},
                      MoveExample{{}, 0, kAll},
                      MoveExample{{}, 4, kAll},
                      MoveExample{{}, 6, kAll},
                      MoveExample{{6}, 0, kAll},
                      MoveExample{{0}, 7, kAll},
                      MoveExample{{0}, -1, kAll}));

TEST(MetricOrderStoreReordered, AnyOutOfRangeOffsetLeavesTheOrderUnchanged) {
  EXPECT_EQ(MetricOrderStore::reordered(kAll, {0, 1, 99}, 3), kAll);
  EXPECT_EQ(MetricOrderStore::reordered({cpu}, {1}, 0), (Kinds{cpu}));
}

TEST(MetricOrderStoreFirstLaunch, TheDefaultOrderLeavesOutWhatTheMachineHasNoSourceFor) {
  EXPECT_EQ(MetricOrderStore::defaultOrderWithout({pwr, gpu, temp}), (Kinds{cpu, ram, disk}));
  EXPECT_EQ(MetricOrderStore::defaultOrderWithout({}), MetricKind::defaultOrder());
  // Repeated kinds are left out once; the order of the rest is the default's.
  EXPECT_EQ(MetricOrderStore::defaultOrderWithout({gpu, gpu}), (Kinds{cpu, ram, disk, temp, pwr}));
}

TEST(MetricOrderStoreFirstLaunch, NeverLeavesNothing) {
  EXPECT_EQ(MetricOrderStore::defaultOrderWithout(MetricKind::allCases()),
            MetricKind::defaultOrder());
}

TEST(MetricOrderStoreReordered, DestinationEqualToCountMovesTheGroupToTheEnd) {
  EXPECT_EQ(MetricOrderStore::reordered(kAll, {0, 2}, 6), (Kinds{gpu, disk, temp, pwr, cpu, ram}));
}

TEST(MetricOrderStoreReordered, EmptyListStaysEmpty) {
  EXPECT_EQ(MetricOrderStore::reordered({}, {}, 0), Kinds{});
  EXPECT_EQ(MetricOrderStore::reordered({}, {0}, 0), Kinds{});
}

// The plain meaning of a list move: the elements before the gap that stay, then the moved group,
// then the elements after the gap that stay; anything out of range leaves the list as it was.
Kinds referenceMove(const Kinds& order, const Offsets& offsets, std::ptrdiff_t destination) {
  const auto count = static_cast<std::ptrdiff_t>(order.size());
  if (destination < 0 || destination > count) return order;
  for (std::size_t offset : offsets) {
    if (offset >= order.size()) return order;
  }
  Kinds before, moved, after;
  for (std::size_t i = 0; i < order.size(); ++i) {
    if (offsets.contains(i)) {
      moved.push_back(order[i]);
    } else if (static_cast<std::ptrdiff_t>(i) < destination) {
      before.push_back(order[i]);
    } else {
      after.push_back(order[i]);
    }
  }
  before.insert(before.end(), moved.begin(), moved.end());
  before.insert(before.end(), after.begin(), after.end());
  return before;
}

TEST(MetricOrderStoreReordered, AgreesWithAPlainListMoveOnRandomInputs) {
  std::mt19937 random(20261122);
  for (int round = 0; round < 20000; ++round) {
    const auto length = std::uniform_int_distribution<std::size_t>(0, 8)(random);
    Kinds order;
    for (std::size_t i = 0; i < length; ++i) {
      order.push_back(kAll[std::uniform_int_distribution<std::size_t>(0, 5)(random)]);
    }
    Offsets offsets;
    const auto offsetCount = std::uniform_int_distribution<std::size_t>(0, length + 1)(random);
    for (std::size_t i = 0; i < offsetCount; ++i) {
      // Mostly valid offsets, now and then one past the end.
      offsets.insert(std::uniform_int_distribution<std::size_t>(0, length + 1)(random));
    }
    const auto destination = std::uniform_int_distribution<std::ptrdiff_t>(
        -2, static_cast<std::ptrdiff_t>(length) + 2)(random);
    ASSERT_EQ(MetricOrderStore::reordered(order, offsets, destination),
              referenceMove(order, offsets, destination))
        << "round " << round;
  }
}

}  // namespace
}  // namespace brimly
