#include "about/AboutLayout.h"

#include <gtest/gtest.h>

#include "AboutPrinting.h"

namespace brimly {
namespace {

// A stand-in for the fonts: every byte of text is half the size wide, and a line box is the size
// plus 4 tall (a 19-point line is 23 tall, 15 → 19, 11 → 15 and 10 → 14).
Size fakeMeasure(const std::string& text, const AboutTextStyle& style) {
  return {static_cast<double>(text.size()) * style.size / 2.0, style.size + 4.0};
}

const AboutContent content = AboutContent::forVersion("0.1.0");
const Size logoPixels{600.0, 233.0};

TEST(AboutLayoutTest, ATextWiderThanTheColumnIsFramedAtTheColumnsWidth) {
  AboutContent wordy = content;
  wordy.tagline = std::string(60, 'x');  // 330 points at 11
  const AboutGeometry geometry = AboutLayout::layout(wordy, fakeMeasure, logoPixels);
  EXPECT_EQ(geometry.tagline.frame, (Rect{32, 160, 236, 15}));
  EXPECT_EQ(geometry.size.width, 300.0);
}

TEST(AboutLayoutTest, ALogoWithoutAreaCountsAsNoLogo) {
  const AboutGeometry geometry = AboutLayout::layout(content, fakeMeasure, Size{600, 0});
  EXPECT_FALSE(geometry.logo.has_value());
  EXPECT_TRUE(geometry.brandName.has_value());
}

TEST(AboutLayoutTest, WithoutALogoTheBrandRowSpellsTheNameOut) {
  const AboutGeometry geometry = AboutLayout::layout(content, fakeMeasure, std::nullopt);
  EXPECT_FALSE(geometry.logo.has_value());
  ASSERT_TRUE(geometry.brandName.has_value());
  EXPECT_EQ(geometry.brandName->text, "Korvel");
  EXPECT_EQ(geometry.brandName->style, AboutLayout::brandNameStyle);
  // "by" (11 wide) and "Korvel" (45 wide, 19 tall) 7 apart: a row 63 wide at round(118.5), with
  // "by" (15 tall) centred in it.
  EXPECT_EQ(geometry.brandRow, (Rect{119, 208, 63, 19}));
  EXPECT_EQ(geometry.by.frame, (Rect{119, 210, 11, 15}));
  EXPECT_EQ(geometry.brandName->frame, (Rect{137, 208, 45, 19}));
  EXPECT_EQ(geometry.footer.frame.y, 237.0);
  EXPECT_EQ(geometry.size, (Size{300, 275}));
}

TEST(AboutLayoutTest, TheLogoChangesOnlyTheBrandRowAndWhatFollowsIt) {
  const AboutGeometry withLogo = AboutLayout::layout(content, fakeMeasure, logoPixels);
  const AboutGeometry without = AboutLayout::layout(content, fakeMeasure, std::nullopt);
  EXPECT_EQ(withLogo.icon, without.icon);
  EXPECT_EQ(withLogo.name, without.name);
  EXPECT_EQ(withLogo.version, without.version);
  EXPECT_EQ(withLogo.tagline, without.tagline);
  EXPECT_EQ(withLogo.rule, without.rule);
  EXPECT_EQ(withLogo.by.text, without.by.text);
  EXPECT_EQ(withLogo.footer.text, without.footer.text);
  EXPECT_EQ(withLogo.footer.frame.x, without.footer.frame.x);
}

TEST(AboutLayoutTest, StacksEverythingCentredInAColumn300Wide) {
  const AboutGeometry geometry = AboutLayout::layout(content, fakeMeasure, logoPixels);

  // The icon, 28 from the top.
  EXPECT_EQ(geometry.icon, (Rect{114, 28, 72, 72}));
  // "Brimly" at 19 (57 wide), 10 below the icon; centred at round(121.5).
  EXPECT_EQ(geometry.name.text, "Brimly");
  EXPECT_EQ(geometry.name.style, AboutLayout::nameStyle);
  EXPECT_EQ(geometry.name.frame, (Rect{122, 110, 57, 23}));
  // "v0.1.0" at 11 (33 wide), 2 below.
  EXPECT_EQ(geometry.version.text, "v0.1.0");
  EXPECT_EQ(geometry.version.style, AboutLayout::versionStyle);
  EXPECT_EQ(geometry.version.frame, (Rect{134, 135, 33, 15}));
  // The tagline at 11 (39 characters, 214.5 wide), 10 below.
  EXPECT_EQ(geometry.tagline.text, "Glance-able system stats in your notch.");
  EXPECT_EQ(geometry.tagline.style, AboutLayout::taglineStyle);
  EXPECT_EQ(geometry.tagline.frame, (Rect{43, 160, 214.5, 15}));
  // The rule, 160 × 1, 16 below the tagline.
  EXPECT_EQ(geometry.rule, (Rect{70, 191, 160, 1}));
  // The brand row 16 below the rule: "by" (11 × 15), 7 apart from the logo framed 20 high at its
  // aspect ratio; the row is 69.5 wide and as tall as the logo, "by" centred in it.
  const double logoWidth = 20.0 * 600.0 / 233.0;
  EXPECT_EQ(geometry.brandRow, (Rect{115, 208, 11 + 7 + logoWidth, 20}));
  EXPECT_EQ(geometry.by.text, "by");
  EXPECT_EQ(geometry.by.style, AboutLayout::byStyle);
  EXPECT_EQ(geometry.by.frame, (Rect{115, 211, 11, 15}));  // (20 - 15) / 2 rounds to 3
  ASSERT_TRUE(geometry.logo.has_value());
  EXPECT_EQ(*geometry.logo, (Rect{133, 208, logoWidth, 20}));
  EXPECT_FALSE(geometry.brandName.has_value());
  // The footer at 10 (37 bytes of UTF-8, 185 wide), 10 below the brand row.
  EXPECT_EQ(geometry.footer.style, AboutLayout::footerStyle);
  EXPECT_EQ(geometry.footer.frame, (Rect{58, 238, 185, 14}));
  // 24 below the footer.
  EXPECT_EQ(geometry.size, (Size{300, 276}));
}

TEST(AboutLayoutTest, ListsItsTextsTopToBottom) {
  const auto textsOf = [](const AboutGeometry& geometry) {
    std::vector<std::string> texts;
    for (const PlacedText& line : geometry.texts())
      texts.push_back(line.text);
    return texts;
  };
  const std::string footer = content.footer;
  EXPECT_EQ(textsOf(AboutLayout::layout(content, fakeMeasure, logoPixels)),
            (std::vector<std::string>{"Brimly", "v0.1.0", "Glance-able system stats in your notch.",
                                      "by", footer}));
  EXPECT_EQ(textsOf(AboutLayout::layout(content, fakeMeasure, std::nullopt)),
            (std::vector<std::string>{"Brimly", "v0.1.0", "Glance-able system stats in your notch.",
                                      "by", "Korvel", footer}));
}

TEST(AboutLayoutTest, TextStylesFollowTheSharedTextColours) {
  EXPECT_EQ(AboutLayout::nameStyle, (AboutTextStyle{19, true, Theme::primaryForeground}));
  EXPECT_EQ(AboutLayout::versionStyle, (AboutTextStyle{11, false, Theme::secondaryForeground}));
  EXPECT_EQ(AboutLayout::taglineStyle, (AboutTextStyle{11, false, Theme::secondaryForeground}));
  EXPECT_EQ(AboutLayout::byStyle, (AboutTextStyle{11, false, Theme::secondaryForeground}));
  EXPECT_EQ(AboutLayout::brandNameStyle, (AboutTextStyle{15, true, Theme::primaryForeground}));
  EXPECT_EQ(AboutLayout::footerStyle, (AboutTextStyle{10, false, Theme::tertiaryForeground}));
}

}  // namespace
}  // namespace brimly
