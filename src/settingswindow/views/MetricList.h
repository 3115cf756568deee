#pragma once

#include <QPoint>
#include <QWidget>
#include <array>
#include <optional>

#include "accessibility/AccessibleParts.h"
#include "core/MetricKind.h"
#include "settingswindow/MetricListLayout.h"

namespace brimly {

class AppSettings;
class MetricRow;
class SectionLabel;

// The list of the Metrics tab: under "SHOWN" (with the hint "DRAG TO REORDER" across from it)
// one row per shown metric in the panel's order, then under "HIDDEN" one row per hidden metric in
// the enumeration's order; the hidden section is left out when nothing is hidden. Every change
// goes straight into the settings, which persist it; the list follows the settings.
//
// Shown rows are reordered by dragging: press on a row, drag, and a line marks the gap it will
// drop into; releasing moves it there (Escape while dragging puts it back). From the keyboard,
// a focused shown row moves one place with Alt+Up or Alt+Down (Ctrl+Up or Ctrl+Down alike).
// Either way the new order is exactly `MetricOrderStore::reordered` of the old one. A row's switch
// shows or hides its metric; the switch of the only shown metric is disabled.
//
// Assistive technologies read it as the list "Metrics" of its section captions and its rows.
class MetricList : public QWidget, public AccessibleParts {
  Q_OBJECT

 public:
  // `settings` must outlive the list.
  explicit MetricList(AppSettings& settings, QWidget* parent = nullptr);

  // The list laid out at its current width, for the current order.
  const MetricListGeometry& placement() const { return geometry_; }
  MetricRow& row(MetricKind kind) const { return *rows_[kind.value()]; }
  SectionLabel& shownLabel() const { return *shownLabel_; }
  SectionLabel& hintLabel() const { return *hintLabel_; }
  SectionLabel& hiddenLabel() const { return *hiddenLabel_; }
  // The line that marks where a dragged row would land; shown only while a drop would move it.
  QWidget& dropIndicator() const { return *dropIndicator_; }
  bool isDragging() const { return drag_.has_value() && drag_->started; }

  // The list's full height: it is as tall as its rows, whatever room it is given.
  int listHeight() const;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

  QAccessible::Role accessibleRole() const override { return QAccessible::List; }

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Drag {
    std::size_t from = 0;  // the shown row pressed on
    QPoint pressedAt;
    bool started = false;  // moved far enough to be a drag rather than a click
    std::size_t destination = 0;
  };

  void refresh();
  void moveRow(MetricKind kind, int step);
  void endDrag();

  AppSettings& settings_;
  SectionLabel* shownLabel_;
  SectionLabel* hintLabel_;
  SectionLabel* hiddenLabel_;
  std::array<MetricRow*, 6> rows_{};
  QWidget* dropIndicator_;
  MetricListLayout::Measures measures_;
  MetricListGeometry geometry_;
  std::optional<Drag> drag_;
};

}  // namespace brimly
