#include "core/MetricLayout.h"

#include <gtest/gtest.h>

#include "core/MetricKind.h"

namespace brimly {
namespace {

using Kinds = std::vector<MetricKind>;
using Rows = std::vector<Kinds>;

const Kinds kSix{MetricKind::cpu, MetricKind::gpu,  MetricKind::ram,
                 MetricKind::disk, MetricKind::temp, MetricKind::pwr};

TEST(MetricLayout, SixKindsInThreeColumnsGiveTwoFullRows) {
  EXPECT_EQ(MetricLayout::rows(kSix, 3),
            (Rows{{MetricKind::cpu, MetricKind::gpu, MetricKind::ram},
                  {MetricKind::disk, MetricKind::temp, MetricKind::pwr}}));
}

TEST(MetricLayout, SixKindsInFourColumnsGiveFourThenTwo) {
  EXPECT_EQ(MetricLayout::rows(kSix, 4),
            (Rows{{MetricKind::cpu, MetricKind::gpu, MetricKind::ram, MetricKind::disk},
                  {MetricKind::temp, MetricKind::pwr}}));
}

TEST(MetricLayout, FiveItemsInTwoColumnsGiveTwoTwoOne) {
  const std::vector<int> items{1, 2, 3, 4, 5};
  EXPECT_EQ(MetricLayout::rows(items, 2), (std::vector<std::vector<int>>{{1, 2}, {3, 4}, {5}}));
}

TEST(MetricLayout, OneColumnGivesOneRowPerItem) {
  EXPECT_EQ(MetricLayout::rows(Kinds{MetricKind::ram, MetricKind::cpu}, 1),
            (Rows{{MetricKind::ram}, {MetricKind::cpu}}));
}

TEST(MetricLayout, MoreColumnsThanItemsGiveOneRowWithEverything) {
  EXPECT_EQ(MetricLayout::rows(kSix, 7), Rows{kSix});
  EXPECT_EQ(MetricLayout::rows(kSix, std::numeric_limits<std::ptrdiff_t>::max()), Rows{kSix});
}

TEST(MetricLayout, ZeroOrNegativeColumnsGiveNoRows) {
  EXPECT_TRUE(MetricLayout::rows(kSix, 0).empty());
  EXPECT_TRUE(MetricLayout::rows(kSix, -1).empty());
  EXPECT_TRUE(MetricLayout::rows(kSix, std::numeric_limits<std::ptrdiff_t>::min()).empty());
}

TEST(MetricLayout, EmptyListGivesNoRowsForEveryColumnCount) {
  for (std::ptrdiff_t columns : {-3, 0, 1, 3, 100}) {
    EXPECT_TRUE(MetricLayout::rows(Kinds{}, columns).empty()) << columns;
  }
}

TEST(MetricLayout, RowsKeepOrderAndOnlyTheLastRowIsShort) {
  std::vector<int> items(23);
  for (int i = 0; i < 23; ++i) items[static_cast<std::size_t>(i)] = i;
  for (std::ptrdiff_t columns = 1; columns <= 25; ++columns) {
    const auto rows = MetricLayout::rows(items, columns);
    std::vector<int> flattened;
    for (std::size_t r = 0; r < rows.size(); ++r) {
      if (r + 1 < rows.size()) {
        EXPECT_EQ(static_cast<std::ptrdiff_t>(rows[r].size()), columns);
      }
      EXPECT_FALSE(rows[r].empty());
      flattened.insert(flattened.end(), rows[r].begin(), rows[r].end());
    }
    EXPECT_EQ(flattened, items) << columns;
  }
}

}  // namespace
}  // namespace brimly
