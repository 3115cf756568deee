#include "desktop/layershell/OffscreenWidget.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QImage>
#include <QSignalSpy>
#include <QWidget>
#include <QWindow>

#include "panel/views/SolidGrid.h"

namespace brimly {
namespace {

class OffscreenWidgetTest : public ::testing::Test {
 protected:
  OffscreenWidgetTest() {
    top.resize(600, 148);
    top.setAttribute(Qt::WA_TranslucentBackground);
    child = new SolidGrid({50, 20}, Qt::red);
    child->setParent(&top);
    child->setGeometry(10, 10, 50, 20);
    top.winId();
  }

  // Lets Qt run its paint pass and the change be told.
  static void settle() {
    for (int i = 0; i < 5; ++i)
      QCoreApplication::processEvents();
  }

  QWidget top;
  SolidGrid* child = nullptr;
};

QRegion united(const QSignalSpy& spy) {
  QRegion region;
  for (const QList<QVariant>& call : spy)
    region += call.at(0).value<QRegion>();
  return region;
}

TEST_F(OffscreenWidgetTest, QtNeverShowsItNorPaintsIt) {
  OffscreenWidget offscreen(top);
  top.show();
  settle();
  EXPECT_TRUE(top.isVisible());
  EXPECT_TRUE(top.testAttribute(Qt::WA_DontShowOnScreen));
  EXPECT_FALSE(top.windowHandle()->isExposed());
  EXPECT_EQ(child->paints, 0);
}

TEST_F(OffscreenWidgetTest, ShowingItChangesAllOfIt) {
  OffscreenWidget offscreen(top);
  QSignalSpy changed(&offscreen, &OffscreenWidget::changed);
  top.show();
  settle();
  EXPECT_EQ(united(changed), QRegion(top.rect()));
}

TEST_F(OffscreenWidgetTest, AnUpdateChangesOnlyWhatItCovers) {
  OffscreenWidget offscreen(top);
  top.show();
  settle();
  QSignalSpy changed(&offscreen, &OffscreenWidget::changed);
  child->update(QRect(0, 0, 5, 5));
  child->update(QRect(40, 0, 5, 5));
  settle();
  ASSERT_EQ(changed.count(), 1);  // one pass, told once
  EXPECT_EQ(united(changed), QRegion(10, 10, 5, 5) + QRegion(50, 10, 5, 5));
}

TEST_F(OffscreenWidgetTest, WidgetsThatComeLaterAreWatchedToo) {
  OffscreenWidget offscreen(top);
  top.show();
  settle();
  auto* later = new QWidget(&top);
  auto* grandchild = new SolidGrid({10, 10}, Qt::blue);
  grandchild->setParent(later);
  later->setGeometry(100, 50, 40, 40);
  grandchild->setGeometry(5, 5, 10, 10);
  later->show();
  settle();
  QSignalSpy changed(&offscreen, &OffscreenWidget::changed);
  grandchild->update();
  settle();
  EXPECT_EQ(united(changed), QRegion(105, 55, 10, 10));
  EXPECT_EQ(grandchild->paints, 0);
}

TEST_F(OffscreenWidgetTest, PaintsTheRegionAtTheImagesPixelRatioOverTransparency) {
  OffscreenWidget offscreen(top);
  top.show();
  settle();
  QImage image(1200, 296, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(2.0);
  image.fill(Qt::green);
  offscreen.paint(image, QRegion(0, 0, 40, 148));
  EXPECT_EQ(image.pixel(25, 25), QColor(Qt::red).rgba());  // the child, at twice the size
  EXPECT_EQ(image.pixel(79, 59), QColor(Qt::red).rgba());
  EXPECT_EQ(image.pixel(5, 25), qRgba(0, 0, 0, 0));           // cleared, beside the child
  EXPECT_EQ(image.pixel(100, 25), QColor(Qt::green).rgba());  // outside the region: untouched
  EXPECT_EQ(child->paints, 1);
}

TEST_F(OffscreenWidgetTest, ARegionAwayFromTheCornerIsPaintedWhereItIs) {
  OffscreenWidget offscreen(top);
  top.show();
  settle();
  for (const double ratio : {1.0, 1.5, 2.0}) {
    QImage image(QSize(600, 148) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::green);
    offscreen.paint(image, QRegion(20, 16, 10, 10) + QRegion(50, 26, 4, 4));
    const auto at = [&](int x, int y) { return image.pixel(QPoint(x, y) * ratio); };
    EXPECT_EQ(at(25, 20), QColor(Qt::red).rgba()) << ratio;
    EXPECT_EQ(at(52, 28), QColor(Qt::red).rgba()) << ratio;
    EXPECT_EQ(at(1, 1), QColor(Qt::green).rgba()) << ratio;    // nothing at the corner
    EXPECT_EQ(at(40, 20), QColor(Qt::green).rgba()) << ratio;  // between the two: untouched
  }
}

TEST_F(OffscreenWidgetTest, ResizingItIsTold) {
  OffscreenWidget offscreen(top);
  top.show();
  QSignalSpy resized(&offscreen, &OffscreenWidget::resized);
  top.resize(600, 160);
  EXPECT_EQ(resized.count(), 1);
}

}  // namespace
}  // namespace brimly
