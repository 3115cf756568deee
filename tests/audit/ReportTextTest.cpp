#include "audit/ReportText.h"

#include <gtest/gtest.h>

#include <chrono>
#include <clocale>
#include <cmath>
#include <limits>
#include <locale>
#include <string>

namespace brimly {
namespace {

using namespace std::chrono;

TEST(ReportTextFixed, NotANumberPrintsAsNanWhateverItsSign) {
  const double zero = 0.0;
  EXPECT_EQ(ReportText::fixed(zero / zero * 100.0, 1), "nan");
  EXPECT_EQ(ReportText::fixed(-std::numeric_limits<double>::quiet_NaN(), 1), "nan");
  EXPECT_EQ(ReportText::fixed(std::numeric_limits<double>::quiet_NaN(), 8, 2), "     nan");
}

TEST(ReportTextFixed, InfinitiesKeepTheirSign) {
  EXPECT_EQ(ReportText::fixed(std::numeric_limits<double>::infinity(), 1), "inf");
  EXPECT_EQ(ReportText::fixed(-std::numeric_limits<double>::infinity(), 1), "-inf");
}

TEST(ReportTextFixed, RoundsAsPrintfDoesOnTheExactBinaryValue) {
  EXPECT_EQ(ReportText::fixed(1.23456, 3), "1.235");
  EXPECT_EQ(ReportText::fixed(0.125, 2), "0.12");  // an exact tie goes to the even digit
  EXPECT_EQ(ReportText::fixed(0.375, 2), "0.38");
  EXPECT_EQ(ReportText::fixed(2.675, 2), "2.67");  // 2.675 is stored a little below
  EXPECT_EQ(ReportText::fixed(-0.0, 1), "-0.0");
  EXPECT_EQ(ReportText::fixed(16.0, 3), "16.000");
}

TEST(ReportTextFixed, WidthPadsOnTheLeftAndNeverCuts) {
  EXPECT_EQ(ReportText::fixed(3.14159, 7, 3), "  3.142");
  EXPECT_EQ(ReportText::fixed(12345.678, 7, 3), "12345.678");
  EXPECT_EQ(ReportText::fixed(-1.5, 8, 2), "   -1.50");
}

TEST(ReportTextFixed, HugeValuesPrintInFull) {
  EXPECT_EQ(ReportText::fixed(1e20, 2), "100000000000000000000.00");
  EXPECT_EQ(ReportText::fixed(std::numeric_limits<double>::max(), 3).size(), 309u + 4u);
}

TEST(ReportTextShortestDecimal, AlwaysHasADigitAfterThePoint) {
  EXPECT_EQ(ReportText::shortestDecimal(7.25), "7.25");
  EXPECT_EQ(ReportText::shortestDecimal(12.0), "12.0");
  EXPECT_EQ(ReportText::shortestDecimal(0.0), "0.0");
  EXPECT_EQ(ReportText::shortestDecimal(-0.0), "-0.0");
  EXPECT_EQ(ReportText::shortestDecimal(16.5), "16.5");
  EXPECT_EQ(ReportText::shortestDecimal(0.1), "0.1");
  EXPECT_EQ(ReportText::shortestDecimal(1000000.0), "1000000.0");
}

TEST(ReportTextShortestDecimal, ReadsBackAsTheSameValue) {
  const double value = 11.249999999999998;
  EXPECT_EQ(std::stod(ReportText::shortestDecimal(value)), value);
  EXPECT_EQ(ReportText::shortestDecimal(0.1 + 0.2), "0.30000000000000004");
}

TEST(ReportTextShortestDecimal, ExtremeMagnitudesUseAnExponent) {
  EXPECT_EQ(ReportText::shortestDecimal(0.0001), "0.0001");
  EXPECT_EQ(ReportText::shortestDecimal(0.00001), "1e-05");
  EXPECT_EQ(ReportText::shortestDecimal(1e16), "10000000000000000.0");
  EXPECT_EQ(ReportText::shortestDecimal(1e17), "1e+17");
  EXPECT_EQ(ReportText::shortestDecimal(std::numeric_limits<double>::infinity()), "inf");
}

TEST(ReportTextPadded, ShortTextIsFilledWithBlanksOnTheRight) {
  EXPECT_EQ(ReportText::padded("NAME", 8), "NAME    ");
  EXPECT_EQ(ReportText::padded("", 3), "   ");
}

TEST(ReportTextPadded, CountsCharactersNotBytes) {
  const std::string degrees = ReportText::padded("°C", 8);
  EXPECT_EQ(degrees, "°C      ");
  EXPECT_EQ(ReportText::characterCount(degrees), 8u);
}

TEST(ReportTextPadded, LongTextIsCutToItsFirstCharacters) {
  const std::string sixty(60, 'x');
  EXPECT_EQ(ReportText::padded(sixty, 50), std::string(50, 'x'));
  EXPECT_EQ(ReportText::padded("exact", 5), "exact");
  EXPECT_EQ(ReportText::padded("ééé", 2), "éé");  // never cuts inside a character
}

TEST(ReportTextRepeated, RepeatsMultiByteText) {
  EXPECT_EQ(ReportText::repeated("─", 3), "───");
  EXPECT_EQ(ReportText::characterCount(ReportText::repeated("─", 62)), 62u);
  EXPECT_EQ(ReportText::repeated("ab", 0), "");
}

TEST(ReportTextGigabytes, UsesBinaryGigabytes) {
  EXPECT_EQ(ReportText::gigabytes(1073741824.0), 1.0);
  EXPECT_EQ(ReportText::gigabytes(17179869184.0), 16.0);
}

TEST(ReportTextUtcTimestamp, FormatsInUtcAndDropsFractions) {
  EXPECT_EQ(ReportText::utcTimestamp(system_clock::time_point{}), "1970-01-01 00:00:00 +0000");
  const auto moment = sys_days{year{2026} / November / 22} + hours{13} + minutes{4} + seconds{5} +
                      milliseconds{900};
  EXPECT_EQ(ReportText::utcTimestamp(moment), "2026-11-22 13:04:05 +0000");
  EXPECT_EQ(ReportText::utcTimestamp(system_clock::time_point{} - seconds{1}),
            "1969-12-31 23:59:59 +0000");
  const auto leapDay = sys_days{year{2024} / February / 29} + hours{23} + minutes{59};
  EXPECT_EQ(ReportText::utcTimestamp(leapDay), "2024-02-29 23:59:00 +0000");
}

// A German number format: comma for the decimal point, point for thousands.
class GermanNumbers : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

// Switches both the C library's and the C++ library's locale to German for one test.
class UnderGermanLocale : public ::testing::Test {
 protected:
  void SetUp() override {
    previousCpp_ = std::locale::global(std::locale(std::locale::classic(), new GermanNumbers));
    const char* current = std::setlocale(LC_ALL, nullptr);
    previousC_ = current ? current : "C";
    cLocaleIsGerman_ = std::setlocale(LC_ALL, "de_DE.UTF-8") != nullptr;
  }
  void TearDown() override {
    std::setlocale(LC_ALL, previousC_.c_str());
    std::locale::global(previousCpp_);
  }

  bool cLocaleIsGerman_ = false;

 private:
  std::locale previousCpp_;
  std::string previousC_;
};

TEST_F(UnderGermanLocale, FiguresKeepThePointAndNoGrouping) {
  EXPECT_EQ(ReportText::fixed(1234.5, 2), "1234.50");
  EXPECT_EQ(ReportText::fixed(3.14159, 7, 3), "  3.142");
  EXPECT_EQ(ReportText::shortestDecimal(7.25), "7.25");
  EXPECT_EQ(ReportText::integer(std::int64_t{1234567}), "1234567");
  EXPECT_EQ(ReportText::integer(std::uint64_t{16384}), "16384");
  EXPECT_EQ(ReportText::utcTimestamp(system_clock::time_point{}), "1970-01-01 00:00:00 +0000");
  if (!cLocaleIsGerman_) {
    GTEST_SKIP() << "de_DE.UTF-8 is not installed; only the C++ locale was German";
  }
  char probe[16];
  std::snprintf(probe, sizeof probe, "%.1f", 1.5);
  EXPECT_STREQ(probe, "1,5") << "the C library's locale is really German in this test";
}

}  // namespace
}  // namespace brimly
