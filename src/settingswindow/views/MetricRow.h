#pragma once

#include <QWidget>
#include <cstddef>

#include "accessibility/AccessibleParts.h"
#include "core/MetricKind.h"
#include "settingswindow/MetricListLayout.h"

namespace brimly {

class Switch;

// One metric in the Metrics tab's list: a drag handle (or, when hidden, a crossed-out eye), the
// short title and a mini switch. The row takes the keyboard focus; while it has it, Alt+Up and
// Alt+Down (Ctrl+Up and Ctrl+Down alike) ask to move a shown row one place. Where the row sits,
// whether it is shown and whether its switch may be flipped are set by the list that owns it.
// Assistive technologies read it as a list item: its title, then whether it is shown or hidden
// and its place in that section ("Shown, 2 of 4").
class MetricRow : public QWidget, public AccessibleParts {
  Q_OBJECT

 public:
  MetricRow(MetricKind kind, QWidget* parent = nullptr);

  MetricKind kind() const { return kind_; }
  bool isShownMetric() const { return shown_; }
  Switch& toggle() const { return *toggle_; }

  // Where a row stands in its section: `position` of `count`, from 1.
  struct SectionPlace {
    std::size_t position = 1;
    std::size_t count = 1;
  };

  // Places the row at `row` (in the list's coordinates) and shows it as that row says, its switch
  // on for a shown metric, flippable when `switchEnabled`; `place` is its place in its section.
  void place(const MetricListRow& row, bool switchEnabled, SectionPlace place);
  // Drawn faded while it is being dragged.
  void setDragged(bool dragged);
  bool isDragged() const { return dragged_; }

  // The title's font: the rounded face, 12.5 points.
  static QFont titleFont(const QPaintDevice& device);

  QAccessible::Role accessibleRole() const override { return QAccessible::ListItem; }

 signals:
  // The user asked to move this row one place up (-1) or down (+1).
  void moveRequested(MetricKind kind, int step);
  // The user flipped the switch: show the metric (true) or hide it.
  void switchRequested(MetricKind kind, bool on);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  // `rect`, in the list's coordinates, in the row's own.
  QRectF local(const Rect& rect) const;

  MetricKind kind_;
  bool shown_ = true;
  bool dragged_ = false;
  MetricListRow row_;  // in the list's coordinates
  Switch* toggle_;
};

}  // namespace brimly
