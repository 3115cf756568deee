#include "about/AboutView.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>
#include <QPixmap>

#include "AccessibleTree.h"
#include "InstalledFaces.h"
#include "ReferenceImage.h"
#include "about/AboutTheme.h"
#include "about/KorvelBrand.h"
#include "panel/views/QtGeometry.h"
#include "usage/views/QtColor.h"

namespace brimly {
namespace {

// The windows' face (fonts-inter), whatever else is installed.
const QString testFont = testing::windowFaces.first();

// Sets the application's version for one test and puts the old one back afterwards.
class AboutViewTest : public ::testing::Test {
 protected:
  void SetUp() override { saved_ = QCoreApplication::applicationVersion(); }
  void TearDown() override { QCoreApplication::setApplicationVersion(saved_); }

 private:
  QString saved_;
};

// The view drawn over `background`, which shows through wherever the view does not paint.
QImage render(AboutView& view, const QColor& background = Qt::magenta) {
  QImage image(view.sizeHint(), QImage::Format_ARGB32_Premultiplied);
  image.fill(background);
  view.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
  return image;
}

TEST_F(AboutViewTest, WithoutAnApplicationVersionItShowsDev) {
  QCoreApplication::setApplicationVersion(QString());
  AboutView view(testFont);
  EXPECT_EQ(view.currentLayout().version.text, "vdev");
}

TEST_F(AboutViewTest, ShowsTheApplicationsVersion) {
  QCoreApplication::setApplicationVersion(QStringLiteral("0.1.0"));
  AboutView view(testFont);
  EXPECT_EQ(view.currentLayout().version.text, "v0.1.0");
}

TEST_F(AboutViewTest, ReadsTheVersionAgainOnEveryPaint) {
  QCoreApplication::setApplicationVersion(QStringLiteral("0.1.0"));
  AboutView view(testFont);
  const QImage before = render(view);
  QCoreApplication::setApplicationVersion(QStringLiteral("0.2.0"));
  EXPECT_NE(render(view), before);
  EXPECT_EQ(view.currentLayout().version.text, "v0.2.0");
}

TEST_F(AboutViewTest, ReadsEveryLineAsALabelAndTheMarkAsAPicture) {
  QCoreApplication::setApplicationVersion(QStringLiteral("0.1.0"));
  AboutView view(testFont);
  const AccessibleNode tree = readAccessible(view);
  const AboutGeometry geometry = view.currentLayout();
  ASSERT_EQ(tree.children.size(), 6u) << describeAccessible(tree);
  const std::vector<std::string> lines{"Brimly", "v0.1.0", geometry.tagline.text, "by"};
  for (std::size_t i = 0; i < lines.size(); ++i) {
    EXPECT_EQ(tree.children[i].role, QAccessible::StaticText) << i;
    EXPECT_EQ(tree.children[i].name, lines[i]);
  }
  EXPECT_EQ(tree.children[4].role, QAccessible::Graphic);
  EXPECT_EQ(tree.children[4].name, "Korvel");
  EXPECT_EQ(tree.children[5].name, geometry.footer.text);
  // Where each is drawn.
  QAccessibleInterface* version = QAccessible::queryAccessibleInterface(&view)->child(1);
  EXPECT_EQ(version->rect().topLeft(),
            view.mapToGlobal(toQRectF(geometry.version.frame).toAlignedRect().topLeft()));
  // A new version is read as soon as it is asked for.
  QCoreApplication::setApplicationVersion(QStringLiteral("0.2.0"));
  EXPECT_EQ(version->text(QAccessible::Name), "v0.2.0");
}

TEST_F(AboutViewTest, WithoutTheLogoTheMakersNameIsALabel) {
  AboutView view(testFont, KorvelBrand::decodeLogo("not a logo"));
  EXPECT_EQ(accessibleNames(readAccessible(view), QAccessible::StaticText, true)[4], "Korvel");
  EXPECT_TRUE(accessibleNames(readAccessible(view), QAccessible::Graphic, true).empty());
}

TEST_F(AboutViewTest, WithoutTheLogoTheBrandRowReadsKorvel) {
  AboutView view(testFont, KorvelBrand::decodeLogo("not a logo"));
  const AboutGeometry geometry = view.currentLayout();
  EXPECT_FALSE(geometry.logo.has_value());
  ASSERT_TRUE(geometry.brandName.has_value());
  EXPECT_EQ(geometry.by.text, "by");
  EXPECT_EQ(geometry.brandName->text, "Korvel");
}

TEST_F(AboutViewTest, WithTheLogoTheBrandRowShowsIt) {
  AboutView view(testFont);
  const AboutGeometry geometry = view.currentLayout();
  ASSERT_TRUE(geometry.logo.has_value());
  EXPECT_EQ(geometry.logo->height, 20.0);
  EXPECT_NEAR(geometry.logo->width, 20.0 * 600.0 / 233.0, 1e-9);
  EXPECT_FALSE(geometry.brandName.has_value());
}

TEST_F(AboutViewTest, Is300WideAndAsTallAsItsContent) {
  AboutView view(testFont);
  const AboutGeometry geometry = view.currentLayout();
  EXPECT_EQ(view.sizeHint().width(), 300);
  EXPECT_EQ(view.sizeHint().height(), static_cast<int>(std::ceil(geometry.size.height)));
  EXPECT_EQ(geometry.size.height, geometry.footer.frame.maxY() + 24.0);
  // Every text fits the column, so none is cut short.
  for (const PlacedText& line : geometry.texts()) {
    EXPECT_GE(line.frame.x, 32.0) << line.text;
    EXPECT_LE(line.frame.maxX(), 268.0) << line.text;
  }
}

TEST_F(AboutViewTest, PaintsItsWholeAreaOnTheSurface) {
  AboutView view(testFont);
  // Whatever lies beneath, the same picture: no pixel is left unpainted.
  const QImage overMagenta = render(view, Qt::magenta).convertToFormat(QImage::Format_ARGB32);
  const QImage overGreen = render(view, Qt::green).convertToFormat(QImage::Format_ARGB32);
  EXPECT_EQ(overMagenta, overGreen);
  const QRgb surface = toQColor(AboutTheme::surface).rgb();
  EXPECT_EQ(overMagenta.pixel(0, 0), surface);
  EXPECT_EQ(overMagenta.pixel(overMagenta.width() - 1, overMagenta.height() - 1), surface);
}

TEST_F(AboutViewTest, DrawsTheApplicationsOwnIconWhenItHasOne) {
  AboutView view(testFont);
  const QRectF icon = toQRectF(view.currentLayout().icon);
  const QPoint middle = icon.center().toPoint();
  // Without an icon of its own the application shows ours: a dark tile.
  EXPECT_LT(QColor(render(view).pixel(middle)).lightness(), 128);

  QPixmap red(72, 72);
  red.fill(Qt::red);
  QGuiApplication::setWindowIcon(QIcon(red));
  const QImage image = render(view).convertToFormat(QImage::Format_ARGB32);
  QGuiApplication::setWindowIcon(QIcon());
  EXPECT_EQ(image.pixel(middle), qRgb(255, 0, 0));
  EXPECT_EQ(image.pixel(icon.topLeft().toPoint()), qRgb(255, 0, 0));
  EXPECT_EQ(image.pixel(icon.bottomRight().toPoint() - QPoint(1, 1)), qRgb(255, 0, 0));
  EXPECT_NE(image.pixel(icon.bottomRight().toPoint() + QPoint(1, 1)), qRgb(255, 0, 0));
}

TEST_F(AboutViewTest, MatchesTheReferenceWithTheLogo) {
  QCoreApplication::setApplicationVersion(QStringLiteral("0.1.0"));
  AboutView view;  // in the windows' family
  EXPECT_TRUE(testing::matchesReference(
      render(view), QString(BRIMLY_REFERENCE_DIR) + "/about-with-logo.png", testing::windowFaces));
}

TEST_F(AboutViewTest, MatchesTheReferenceWithTheNameForTheLogo) {
  QCoreApplication::setApplicationVersion(QString());
  AboutView view(testFont, std::nullopt);
  EXPECT_TRUE(testing::matchesReference(render(view),
                                        QString(BRIMLY_REFERENCE_DIR) + "/about-without-logo.png",
                                        testing::windowFaces));
}

}  // namespace
}  // namespace brimly
