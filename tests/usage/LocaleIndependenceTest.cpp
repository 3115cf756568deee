// The texts must not change with the user's locale: a German or French locale writes a decimal
// comma and groups thousands, which must never reach the panel.
#include <gtest/gtest.h>

#include <clocale>
#include <locale>
#include <string>

#include "usage/DecimalFormatter.h"
#include "usage/MetricCellContent.h"
#include "usage/MetricFormat.h"
#include "usage/NumberText.h"

namespace brimly {
namespace {

constexpr std::int64_t GiB = std::int64_t{1} << 30;

class CommaDecimals : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

void expectPointTexts() {
  EXPECT_EQ(MetricFormat::formatPair(GiB * 853 / 100, 16 * GiB), "8.5 / 16 GB");
  EXPECT_EQ(MetricFormat::formatPair(GiB * 2500, GiB * 4096), "2.44 / 4 TB");
  EXPECT_EQ(MetricFormat::formatSwap(std::uint64_t{3} << 29), "1.5G");
  EXPECT_EQ(NumberText::fixed(1234.5678, 2), "1234.57");
  EXPECT_EQ(DecimalFormatter(1).string(12345.25).value(), "12345.2");

  MetricSample sample;
  sample.powerState = PowerState::charging(31.04);
  EXPECT_EQ(MetricFormat::powerPrimary(sample), "+31.0 W");
  sample.powerState = PowerState::acIdle();
  sample.systemPowerWatts = 1234.56;
  EXPECT_EQ(MetricFormat::powerPrimary(sample), "1234.6 W");
  sample.temperatureC = 1234.6;
  EXPECT_EQ(MetricFormat::tempPrimary(sample, false), "1235\u00B0C");
}

// Restores the process's locales when a test ends.
class LocaleIndependence : public ::testing::Test {
 protected:
  void TearDown() override {
    std::locale::global(std::locale::classic());
    std::setlocale(LC_ALL, "C");
  }
};

TEST_F(LocaleIndependence, CommaDecimalCppLocale) {
  std::locale::global(std::locale(std::locale::classic(), new CommaDecimals));
  expectPointTexts();
}

TEST_F(LocaleIndependence, GermanOrFrenchSystemLocale) {
  const char* installed = nullptr;
  for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "fr_FR.utf8", "de_DE"}) {
    if (std::setlocale(LC_ALL, name) != nullptr) {
      installed = name;
      break;
    }
  }
  if (installed == nullptr) GTEST_SKIP() << "no German or French locale is installed";
  // The C library now writes a decimal comma; check that it really does before relying on it.
  ASSERT_STREQ(std::localeconv()->decimal_point, ",");
  std::locale::global(std::locale(installed));
  expectPointTexts();
}

}  // namespace
}  // namespace brimly
