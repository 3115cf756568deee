#include "usage/DecimalFormatter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace brimly {
namespace {

std::string text(double value, int digits) {
  return DecimalFormatter(digits).string(value).value();
}

TEST(DecimalFormatter, NonFiniteValuesGiveNothing) {
  const DecimalFormatter formatter(2);
  EXPECT_FALSE(formatter.string(std::nan("")).has_value());
  EXPECT_FALSE(formatter.string(std::numeric_limits<double>::infinity()).has_value());
  EXPECT_FALSE(formatter.string(-std::numeric_limits<double>::infinity()).has_value());
}

TEST(DecimalFormatter, TiesGoToTheEvenNeighbour) {
  EXPECT_EQ(text(0.5, 0), "0");
  EXPECT_EQ(text(1.5, 0), "2");
  EXPECT_EQ(text(2.5, 0), "2");
  EXPECT_EQ(text(0.125, 2), "0.12");
  EXPECT_EQ(text(0.375, 2), "0.38");
}

TEST(DecimalFormatter, RoundsTheDecimalDigitsNotTheBinaryValue) {
  // 0.15 is stored a little below 0.15 and 0.35 a little below 0.35; written as decimals they are
  // ties and go to the even neighbour.
  EXPECT_EQ(text(0.15, 1), "0.2");
  EXPECT_EQ(text(0.35, 1), "0.4");
  EXPECT_EQ(text(0.45, 1), "0.4");
  EXPECT_EQ(text(1.005, 2), "1");
}

TEST(DecimalFormatter, AnythingPastTheTieRoundsUp) {
  EXPECT_EQ(text(0.1251, 2), "0.13");
  EXPECT_EQ(text(2.5000001, 0), "3");
}

TEST(DecimalFormatter, CarriesThroughNines) {
  EXPECT_EQ(text(9.96, 1), "10");
  EXPECT_EQ(text(999.9, 0), "1000");
  EXPECT_EQ(text(0.0996, 2), "0.1");
}

TEST(DecimalFormatter, DropsTrailingZerosAndThePoint) {
  EXPECT_EQ(text(16.0, 1), "16");
  EXPECT_EQ(text(0.5, 2), "0.5");
  EXPECT_EQ(text(0.0, 2), "0");
  EXPECT_EQ(text(0.001, 2), "0");
}

TEST(DecimalFormatter, LargeAndSmallValuesHaveNoExponentNorGrouping) {
  EXPECT_EQ(text(1234567.0, 1), "1234567");
  EXPECT_EQ(text(1e20, 0), "100000000000000000000");
  EXPECT_EQ(text(0.000123, 5), "0.00012");
  EXPECT_EQ(text(0.000125, 5), "0.00012");
  EXPECT_EQ(text(0.004, 2), "0");
  EXPECT_EQ(text(0.006, 2), "0.01");
  EXPECT_EQ(text(0.005, 2), "0");
}

TEST(DecimalFormatter, NegativeValuesKeepTheirSign) {
  EXPECT_EQ(text(-2.25, 1), "-2.2");
  EXPECT_EQ(text(-0.01, 1), "-0");
  EXPECT_EQ(text(-0.0, 1), "-0");
}

TEST(DecimalFormatter, ShortestDigitsOfAnExactValue) {
  EXPECT_EQ(text(8.53, 2), "8.53");
  EXPECT_EQ(text(0.1 + 0.2, 17), "0.30000000000000004");
}

TEST(DecimalFormatterDeathTest, NegativeDigitLimitIsFatal) {
  EXPECT_DEATH(DecimalFormatter(-1), "fraction digit limit out of range");
}

}  // namespace
}  // namespace brimly
