#include "usage/NumberText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace brimly {
namespace {

TEST(NumberTextFixed, RoundsTheExactBinaryValueLikeTheCLocalesPrintf) {
  EXPECT_EQ(NumberText::fixed(7.45, 1), "7.5");  // 7.45 is stored a little above 7.45
  EXPECT_EQ(NumberText::fixed(0.15, 1), "0.1");  // and 0.15 a little below 0.15
  EXPECT_EQ(NumberText::fixed(0.25, 1), "0.2");  // an exact tie goes to even
  EXPECT_EQ(NumberText::fixed(1023.999, 0), "1024");
  EXPECT_EQ(NumberText::fixed(31.0, 1), "31.0");
}

TEST(NumberTextFixed, NegativeZeroKeepsItsSign) {
  EXPECT_EQ(NumberText::fixed(-0.0, 0), "-0");
  EXPECT_EQ(NumberText::fixed(-0.04, 1), "-0.0");
}

TEST(NumberTextFixed, NonFiniteValues) {
  EXPECT_EQ(NumberText::fixed(std::nan(""), 1), "nan");
  EXPECT_EQ(NumberText::fixed(std::numeric_limits<double>::infinity(), 1), "inf");
  EXPECT_EQ(NumberText::fixed(-std::numeric_limits<double>::infinity(), 1), "-inf");
}

TEST(NumberTextFixed, LargestDoubleFits) {
  const std::string text = NumberText::fixed(std::numeric_limits<double>::max(), 1);
  EXPECT_EQ(text.size(), 311u);
  EXPECT_EQ(text.substr(text.size() - 2), ".0");
}

TEST(NumberTextShortest, ShortestRoundTripText) {
  EXPECT_EQ(NumberText::shortest(8.53), "8.53");
  EXPECT_EQ(NumberText::shortest(16.0), "16");
  EXPECT_EQ(NumberText::shortest(std::nan("")), "nan");
}

}  // namespace
}  // namespace brimly
