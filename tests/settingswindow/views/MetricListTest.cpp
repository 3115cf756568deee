#include "settingswindow/views/MetricList.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollArea>
#include <QTest>

#include "InstalledFaces.h"
#include "MetricKindNames.h"
#include "ReferenceImage.h"
#include "SettingsWorld.h"
#include "core/MetricOrderStore.h"
#include "settingswindow/SettingsTheme.h"
#include "settingswindow/views/MetricPreview.h"
#include "settingswindow/views/MetricRow.h"
#include "settingswindow/views/MetricsTab.h"
#include "ui/SectionLabel.h"
#include "ui/Switch.h"
#include "usage/views/QtColor.h"

namespace brimly {
namespace {

using Kinds = std::vector<MetricKind>;
using testing::SettingsWorld;

using namespace testing::kinds;

Kinds kindsOf(const MetricListGeometry& list, bool shown) {
  Kinds kinds;
  for (const MetricListRow& row : list.rows) {
    if (row.shown == shown) kinds.push_back(row.kind);
  }
  return kinds;
}

Kinds previewKinds(const MetricPreview& preview) {
  Kinds kinds;
  for (const PreviewCell& cell : preview.placement().cells)
    kinds.push_back(cell.kind);
  return kinds;
}

class MetricListTest : public ::testing::Test {
 protected:
  MetricListTest() {
    tab.resize(324, 329);
    tab.show();
  }

  MetricList& list() { return tab.list(); }
  MetricRow& row(MetricKind kind) { return list().row(kind); }
  const MetricListRow& placed(MetricKind kind) {
    for (const MetricListRow& row : list().placement().rows) {
      if (row.kind == kind) return row;
    }
    throw std::runtime_error("no such row");
  }
  // A point on a row's title, in the list's coordinates.
  QPoint on(MetricKind kind) {
    const MetricListRow& row = placed(kind);
    return QPoint(static_cast<int>(row.title.midX()), static_cast<int>(row.frame.midY()));
  }
  // The height inside the gap before shown row `destination` (a little below the boundary).
  int inGapBefore(std::size_t destination) {
    const MetricListGeometry& geometry = list().placement();
    const double boundary = destination < geometry.shownCount
                                ? geometry.rows[destination].frame.minY()
                                : geometry.rows[geometry.shownCount - 1].frame.maxY();
    return static_cast<int>(boundary) + 2 - (destination == geometry.shownCount ? 4 : 0);
  }

  // Presses where a user would, on the row widget, which leaves the gesture to the list.
  void press(QPoint at) {
    QWidget* target = list().childAt(at);
    if (target == nullptr) target = &list();
    QTest::mousePress(target, Qt::LeftButton, {}, target->mapFrom(&list(), at));
  }
  void moveTo(QPoint at) { QTest::mouseMove(&list(), at); }
  void release(QPoint at) { QTest::mouseRelease(&list(), Qt::LeftButton, {}, at); }

  // Far enough from where the press was to begin a drag.
  static QPoint aDragAway(QPoint start, int direction = 1) {
    return start + QPoint(0, direction * (QApplication::startDragDistance() + 1));
  }

  void drag(MetricKind kind, int toY) {
    const QPoint start = on(kind);
    press(start);
    moveTo(aDragAway(start, toY > start.y() ? 1 : -1));
    const QPoint end(start.x(), toY);
    moveTo(end);
    release(end);
  }

  std::size_t writesOfOrder() const {
    std::size_t count = 0;
    for (const auto& write : world.store.writes)
      count += write.key == "metricOrder" ? 1 : 0;
    return count;
  }

  SettingsWorld world;
  MetricsTab tab{world.settings, world.monitor};
};

// Edge cases first.

TEST_F(MetricListTest, WithOneMetricShownItsSwitchIsDisabled) {
  world.settings.setMetricOrder({temp});
  EXPECT_FALSE(row(temp).toggle().isEnabled());
  EXPECT_TRUE(row(temp).toggle().isOn());
  for (const MetricKind kind : {cpu, gpu, ram, disk, pwr}) {
    EXPECT_TRUE(row(kind).toggle().isEnabled()) << kind.rawValue();
    EXPECT_FALSE(row(kind).toggle().isOn()) << kind.rawValue();
  }
  QTest::mouseClick(&row(temp).toggle(), Qt::LeftButton);
  EXPECT_EQ(world.settings.metricOrder(), Kinds{temp});
}

TEST_F(MetricListTest, WithTwoShownEitherCanBeSwitchedOff) {
  world.settings.setMetricOrder({temp, cpu});
  EXPECT_TRUE(row(temp).toggle().isEnabled());
  EXPECT_TRUE(row(cpu).toggle().isEnabled());
  QTest::mouseClick(&row(cpu).toggle(), Qt::LeftButton);
  EXPECT_EQ(world.settings.metricOrder(), Kinds{temp});
  EXPECT_FALSE(row(cpu).isShownMetric());
  // Now the last one left cannot go.
  EXPECT_FALSE(row(temp).toggle().isEnabled());
}

TEST_F(MetricListTest, WithEverythingShownThereIsNoHiddenSectionAtAll) {
  ASSERT_EQ(world.settings.metricOrder(), MetricKind::allCases());
  EXPECT_FALSE(list().placement().hiddenHeader.has_value());
  EXPECT_TRUE(list().hiddenLabel().isHidden());
  EXPECT_EQ(kindsOf(list().placement(), false), Kinds{});
  // The list ends with the last shown row: no empty section under it.
  EXPECT_EQ(list().placement().size.height, list().placement().rows.back().frame.maxY());
  world.settings.setMetric(gpu, false);
  EXPECT_FALSE(list().hiddenLabel().isHidden());
  world.settings.setMetric(gpu, true);
  EXPECT_TRUE(list().hiddenLabel().isHidden());
}

TEST_F(MetricListTest, HiddenMetricsAreListedInTheEnumerationsOrderNotTheOrderOfHiding) {
  QTest::mouseClick(&row(temp).toggle(), Qt::LeftButton);
  QTest::mouseClick(&row(cpu).toggle(), Qt::LeftButton);
  QTest::mouseClick(&row(gpu).toggle(), Qt::LeftButton);
  EXPECT_EQ(world.settings.metricOrder(), (Kinds{ram, disk, pwr}));
  EXPECT_EQ(kindsOf(list().placement(), false), (Kinds{cpu, gpu, temp}));
  EXPECT_LT(row(cpu).y(), row(gpu).y());
  EXPECT_LT(row(gpu).y(), row(temp).y());
  EXPECT_GT(row(cpu).y(), list().hiddenLabel().y());
}

TEST_F(MetricListTest, ShowingAHiddenMetricAgainAppendsIt) {
  world.settings.setMetricOrder({temp, cpu});
  QTest::mouseClick(&row(ram).toggle(), Qt::LeftButton);
  EXPECT_EQ(world.settings.metricOrder(), (Kinds{temp, cpu, ram}));
  EXPECT_EQ(kindsOf(list().placement(), true), (Kinds{temp, cpu, ram}));
  EXPECT_EQ(std::get<std::vector<std::string>>(world.store.values.at("metricOrder")),
            (std::vector<std::string>{"temp", "cpu", "ram"}));
}

TEST_F(MetricListTest, DroppingARowWhereItStartedChangesNothing) {
  const std::size_t writes = writesOfOrder();
  drag(ram, on(ram).y() + 3);
  EXPECT_EQ(world.settings.metricOrder(), MetricKind::allCases());
  EXPECT_EQ(writesOfOrder(), writes);
}

TEST_F(MetricListTest, AClickWithoutMovingIsNoDrag) {
  const QPoint at = on(gpu);
  press(at);
  EXPECT_FALSE(list().isDragging());
  release(at);
  EXPECT_EQ(world.settings.metricOrder(), MetricKind::allCases());
  EXPECT_TRUE(list().dropIndicator().isHidden());
}

TEST_F(MetricListTest, HiddenRowsCannotBeDragged) {
  world.settings.setMetricOrder({cpu, ram});
  const QPoint start = on(temp);
  press(start);
  moveTo(aDragAway(start, -1));
  moveTo(QPoint(start.x(), on(cpu).y() - 10));
  EXPECT_FALSE(list().isDragging());
  release(QPoint(start.x(), on(cpu).y() - 10));
  EXPECT_EQ(world.settings.metricOrder(), (Kinds{cpu, ram}));
}

TEST_F(MetricListTest, EscapeDuringADragPutsTheRowBack) {
  const QPoint start = on(cpu);
  press(start);
  moveTo(QPoint(start.x(), inGapBefore(4)));
  ASSERT_TRUE(list().isDragging());
  QTest::keyClick(&row(cpu), Qt::Key_Escape);
  EXPECT_FALSE(list().isDragging());
  EXPECT_TRUE(list().dropIndicator().isHidden());
  release(QPoint(start.x(), inGapBefore(4)));
  EXPECT_EQ(world.settings.metricOrder(), MetricKind::allCases());
}

TEST_F(MetricListTest, TheTopRowCannotMoveUpFromTheKeyboard) {
  const std::size_t writes = writesOfOrder();
  QTest::keyClick(&row(cpu), Qt::Key_Up, Qt::AltModifier);
  QTest::keyClick(&row(pwr), Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(world.settings.metricOrder(), MetricKind::allCases());
  EXPECT_EQ(writesOfOrder(), writes);
}

TEST_F(MetricListTest, HiddenRowsDoNotMoveFromTheKeyboard) {
  world.settings.setMetricOrder({cpu, ram});
  QTest::keyClick(&row(temp), Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(world.settings.metricOrder(), (Kinds{cpu, ram}));
}

// The gestures.

TEST_F(MetricListTest, DraggingARowIsTheListMoveAndItPersists) {
  const QPoint start = on(cpu);
  press(start);
  moveTo(aDragAway(start));
  EXPECT_TRUE(list().isDragging());
  EXPECT_TRUE(row(cpu).isDragged());
  const int y = inGapBefore(3);
  moveTo(QPoint(start.x(), y));
  // The line marks the gap between RAM and DISK.
  ASSERT_FALSE(list().dropIndicator().isHidden());
  const Rect line = *list().placement().dropIndicator(3);
  EXPECT_EQ(list().dropIndicator().geometry(),
            QRectF(line.x, line.y, line.width, line.height).toAlignedRect());
  release(QPoint(start.x(), y));

  const Kinds expected = MetricOrderStore::reordered(MetricKind::allCases(), {0}, 3);
  EXPECT_EQ(expected, (Kinds{gpu, ram, cpu, disk, temp, pwr}));
  EXPECT_EQ(world.settings.metricOrder(), expected);
  EXPECT_FALSE(row(cpu).isDragged());
  EXPECT_TRUE(list().dropIndicator().isHidden());
  // The rows, the preview's grid and the store all follow at once.
  EXPECT_EQ(kindsOf(list().placement(), true), expected);
  EXPECT_LT(row(ram).y(), row(cpu).y());
  EXPECT_EQ(previewKinds(tab.preview()), expected);
  EXPECT_EQ(std::get<std::vector<std::string>>(world.store.values.at("metricOrder")),
            MetricOrderStore::encode(expected));
  // A restart reads the same order back.
  AppSettings restarted(world.store);
  EXPECT_EQ(restarted.metricOrder(), expected);
}

TEST_F(MetricListTest, DraggingUpwardsAndToTheEnd) {
  drag(pwr, inGapBefore(0));
  EXPECT_EQ(world.settings.metricOrder(),
            MetricOrderStore::reordered(MetricKind::allCases(), {5}, 0));
  const Kinds before = world.settings.metricOrder();
  drag(pwr, inGapBefore(6));
  EXPECT_EQ(world.settings.metricOrder(), MetricOrderStore::reordered(before, {0}, 6));
  EXPECT_EQ(world.settings.metricOrder(), MetricKind::allCases());
}

TEST_F(MetricListTest, DraggingBelowTheShownRowsDropsAfterTheLastOfThem) {
  world.settings.setMetricOrder({cpu, ram, temp});
  const QPoint start = on(cpu);
  press(start);
  moveTo(aDragAway(start));
  moveTo(on(gpu));  // over the hidden section
  ASSERT_FALSE(list().dropIndicator().isHidden());
  release(on(gpu));
  EXPECT_EQ(world.settings.metricOrder(), (Kinds{ram, temp, cpu}));
}

TEST_F(MetricListTest, ADraggedRowIsFadedAndAnAccentLineMarksWhereItWillLand) {
  const QPoint start = on(cpu);
  press(start);
  moveTo(aDragAway(start));
  moveTo(QPoint(start.x(), inGapBefore(3)));
  QImage image(tab.size(), QImage::Format_ARGB32_Premultiplied);
  image.fill(toQColor(SettingsTheme::surface));
  tab.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
  EXPECT_TRUE(testing::matchesReference(image, testing::referencePath("metrics-tab-dragging.png"),
                                        testing::windowFaces));
  const QRect line = list().dropIndicator().geometry();
  const QPoint middle = list().mapTo(&tab, line.center());
  EXPECT_TRUE(testing::near(image.pixelColor(middle), toQColor(Theme::accent), 4));
  release(QPoint(start.x(), inGapBefore(3)));
}

TEST_F(MetricListTest, NoLineIsShownWhereADropWouldMoveNothing) {
  const QPoint start = on(disk);
  press(start);
  moveTo(aDragAway(start));
  EXPECT_TRUE(list().isDragging());
  EXPECT_TRUE(list().dropIndicator().isHidden());
  moveTo(QPoint(start.x(), inGapBefore(1)));
  EXPECT_FALSE(list().dropIndicator().isHidden());
  release(QPoint(start.x(), inGapBefore(1)));
}

TEST_F(MetricListTest, AltOrCtrlWithUpOrDownMovesTheFocusedRowOnePlace) {
  row(ram).setFocus();
  QTest::keyClick(&row(ram), Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(world.settings.metricOrder(), (Kinds{cpu, ram, gpu, disk, temp, pwr}));
  QTest::keyClick(&row(ram), Qt::Key_Up, Qt::ControlModifier);
  EXPECT_EQ(world.settings.metricOrder(), (Kinds{ram, cpu, gpu, disk, temp, pwr}));
  QTest::keyClick(&row(cpu), Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(world.settings.metricOrder(), (Kinds{ram, gpu, cpu, disk, temp, pwr}));
  QTest::keyClick(&row(cpu), Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(world.settings.metricOrder(),
            MetricOrderStore::reordered(Kinds{ram, gpu, cpu, disk, temp, pwr}, {2}, 4));
  EXPECT_EQ(previewKinds(tab.preview()), world.settings.metricOrder());
}

TEST_F(MetricListTest, PlainArrowsDoNotMoveRows) {
  QTest::keyClick(&row(ram), Qt::Key_Up);
  EXPECT_EQ(world.settings.metricOrder(), MetricKind::allCases());
}

TEST_F(MetricListTest, RowsAndSwitchesAreNamedAndReachable) {
  world.settings.setMetric(disk, false);
  for (const MetricKind kind : MetricKind::allCases()) {
    const QString title = QString::fromUtf8(kind.displayName().data());
    EXPECT_EQ(row(kind).accessibleName(), title);
    EXPECT_EQ(row(kind).toggle().accessibleName(), QStringLiteral("Show ") + title);
    EXPECT_TRUE(row(kind).focusPolicy() & Qt::TabFocus);
  }
  EXPECT_TRUE(row(cpu).accessibleDescription().startsWith(QStringLiteral("Shown")));
  EXPECT_EQ(row(disk).accessibleDescription(), QStringLiteral("Hidden, 1 of 1."));
  // Tab walks down the list: each row, then its switch.
  EXPECT_EQ(row(cpu).nextInFocusChain(), &row(cpu).toggle());
  EXPECT_EQ(row(cpu).toggle().nextInFocusChain(), &row(gpu));
  EXPECT_EQ(row(pwr).toggle().nextInFocusChain(), &row(disk));
}

TEST_F(MetricListTest, CaptionsOverTheSections) {
  EXPECT_EQ(list().shownLabel().text(), QStringLiteral("SHOWN"));
  EXPECT_EQ(list().hintLabel().text(), QStringLiteral("DRAG TO REORDER"));
  EXPECT_EQ(list().hiddenLabel().text(), QStringLiteral("HIDDEN"));
  // The hint sits at the trailing edge, across from "SHOWN".
  EXPECT_EQ(list().hintLabel().geometry().right() + 1, list().width());
  EXPECT_EQ(list().hintLabel().y(), list().shownLabel().y());
}

TEST_F(MetricListTest, RowsAreAtLeast30HighWithTheMiniSwitchAtTheTrailingEdge) {
  for (const MetricListRow& placed : list().placement().rows) {
    EXPECT_GE(placed.frame.height, 30.0);
  }
  const Switch& toggle = row(gpu).toggle();
  EXPECT_EQ(row(gpu).mapTo(&list(), toggle.geometry().topRight()).x() + 1, list().width());
  EXPECT_EQ(toggle.size(), Switch(Switch::Size::mini).sizeHint());
}

TEST_F(MetricListTest, TheWholeListFitsTheTabWithoutScrolling) {
  // The captions and the preview above the list take the height of their text: the list fits
  // with a point to spare in the faces install-deps brings, and scrolls in taller ones.
  if (const auto missing = testing::missingFaces(testing::windowFaces)) {
    GTEST_SKIP() << "whether the list fits depends on its fonts' line heights: " << *missing;
  }
  world.settings.setMetric(disk, false);
  EXPECT_LE(list().height(), tab.listArea().viewport()->height());
  EXPECT_EQ(list().width(), tab.listArea().viewport()->width());
}

}  // namespace
}  // namespace brimly
