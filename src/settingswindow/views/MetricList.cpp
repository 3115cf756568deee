#include "settingswindow/views/MetricList.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "core/MetricOrderStore.h"
#include "panel/views/QtGeometry.h"
#include "settings/AppSettings.h"
#include "settingswindow/MetricListRules.h"
#include "settingswindow/views/MetricRow.h"
#include "settingswindow/views/TextMeasure.h"
#include "ui/Accent.h"
#include "ui/SectionLabel.h"
#include "ui/Switch.h"
#include "usage/views/QtColor.h"

namespace brimly {

namespace {

// The accent line between two rows where a dragged row would land.
class DropIndicator : public QWidget {
 public:
  explicit DropIndicator(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath capsule;
    const double radius = height() / 2.0;
    capsule.addRoundedRect(QRectF(rect()), radius, radius);
    painter.fillPath(capsule, toQColor(Accent::current()));
  }
};

QString titleOf(MetricKind kind) {
  return QString::fromUtf8(kind.displayName().data(),
                           static_cast<qsizetype>(kind.displayName().size()));
}

}  // namespace

MetricList::MetricList(AppSettings& settings, QWidget* parent)
    : QWidget(parent),
      settings_(settings),
      shownLabel_(new SectionLabel("SHOWN", this)),
      hintLabel_(new SectionLabel("DRAG TO REORDER", this)),
      hiddenLabel_(new SectionLabel("HIDDEN", this)) {
  setAutoFillBackground(false);
  setAccessibleName(QStringLiteral("Metrics"));
  for (const MetricKind kind : MetricKind::allCases()) {
    auto* row = new MetricRow(kind, this);
    connect(row, &MetricRow::moveRequested, this, &MetricList::moveRow);
    connect(row, &MetricRow::switchRequested, this,
            [this](MetricKind metric, bool on) { settings_.setMetric(metric, on); });
    rows_[kind.value()] = row;
    measures_.titles[kind] = measuredText(MetricRow::titleFont(*this), titleOf(kind), *this);
  }
  // Created after the rows, so that it lies over them.
  dropIndicator_ = new DropIndicator(this);
  measures_.shownLabel = toSize(shownLabel_->sizeHint());
  measures_.hint = toSize(hintLabel_->sizeHint());
  measures_.hiddenLabel = toSize(hiddenLabel_->sizeHint());
  measures_.toggle = toSize(rows_[0]->toggle().sizeHint());
  connect(&settings_, &AppSettings::metricOrderChanged, this, &MetricList::refresh);
  refresh();
}

int MetricList::listHeight() const {
  return static_cast<int>(std::ceil(geometry_.size.height));
}

QSize MetricList::sizeHint() const {
  return QSize(width(), listHeight());
}

QSize MetricList::minimumSizeHint() const {
  return QSize(0, listHeight());
}

void MetricList::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  refresh();
}

void MetricList::refresh() {
  // A change from elsewhere in mid-drag leaves the pressed row's place meaningless.
  if (drag_) endDrag();
  const std::vector<MetricKind>& order = settings_.metricOrder();
  const int oldHeight = listHeight();
  geometry_ = MetricListLayout::layout(order, width(), measures_);

  shownLabel_->setGeometry(toQRectF(geometry_.shownHeader.label).toAlignedRect());
  if (geometry_.shownHeader.hint) {
    hintLabel_->setGeometry(toQRectF(*geometry_.shownHeader.hint).toAlignedRect());
  }
  hiddenLabel_->setVisible(geometry_.hiddenHeader.has_value());
  if (geometry_.hiddenHeader) {
    hiddenLabel_->setGeometry(toQRectF(geometry_.hiddenHeader->label).toAlignedRect());
  }

  // Tab walks the rows from top to bottom, each row before its switch; a screen reader reads
  // them in the same order, each section's caption before its rows (it follows the children's
  // stacking order, which nothing else here depends on: no two of them overlap).
  QWidget* previous = nullptr;
  const std::size_t hiddenCount = geometry_.rows.size() - geometry_.shownCount;
  for (std::size_t i = 0; i < geometry_.rows.size(); ++i) {
    const MetricListRow& placed = geometry_.rows[i];
    MetricRow& row = *rows_[placed.kind.value()];
    const MetricRow::SectionPlace place =
        placed.shown ? MetricRow::SectionPlace{i + 1, geometry_.shownCount}
                     : MetricRow::SectionPlace{i - geometry_.shownCount + 1, hiddenCount};
    row.place(placed, MetricListRules::isSwitchEnabled(placed.shown, order), place);
    if (previous != nullptr) setTabOrder(previous, &row);
    setTabOrder(&row, &row.toggle());
    previous = &row.toggle();
    row.raise();
    if (i == geometry_.shownCount) hiddenLabel_->stackUnder(&row);
  }
  dropIndicator_->raise();
  if (listHeight() != oldHeight) updateGeometry();
  update();
}

void MetricList::moveRow(MetricKind kind, int step) {
  const std::vector<MetricKind>& order = settings_.metricOrder();
  const auto found = std::find(order.begin(), order.end(), kind);
  if (found == order.end()) return;
  const auto index = static_cast<std::size_t>(found - order.begin());
  const std::optional<MetricListRules::RowMove> move =
      step < 0 ? MetricListRules::moveUp(index, order.size())
               : MetricListRules::moveDown(index, order.size());
  if (!move) return;
  settings_.setMetricOrder(MetricOrderStore::reordered(order, move->offsets, move->destination));
}

void MetricList::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    QWidget::mousePressEvent(event);
    return;
  }
  const QPointF at = event->position();
  for (std::size_t i = 0; i < geometry_.shownCount; ++i) {
    if (geometry_.rows[i].frame.contains(Point{at.x(), at.y()})) {
      drag_ = Drag{i, at.toPoint(), false, i};
      event->accept();
      return;
    }
  }
  QWidget::mousePressEvent(event);
}

void MetricList::mouseMoveEvent(QMouseEvent* event) {
  if (!drag_) {
    QWidget::mouseMoveEvent(event);
    return;
  }
  const QPoint at = event->position().toPoint();
  if (!drag_->started) {
    if ((at - drag_->pressedAt).manhattanLength() < QApplication::startDragDistance()) return;
    drag_->started = true;
    rows_[geometry_.rows[drag_->from].kind.value()]->setDragged(true);
  }
  drag_->destination = geometry_.dropDestination(event->position().y());
  const bool moves =
      MetricListRules::dragMove(drag_->from, drag_->destination, geometry_.shownCount).has_value();
  const std::optional<Rect> line = geometry_.dropIndicator(drag_->destination);
  if (moves && line) {
    dropIndicator_->setGeometry(toQRectF(*line).toAlignedRect());
    dropIndicator_->raise();
    dropIndicator_->show();
  } else {
    dropIndicator_->hide();
  }
  event->accept();
}

void MetricList::mouseReleaseEvent(QMouseEvent* event) {
  if (!drag_ || event->button() != Qt::LeftButton) {
    QWidget::mouseReleaseEvent(event);
    return;
  }
  const Drag drag = *drag_;
  endDrag();
  event->accept();
  if (!drag.started) return;
  const std::optional<MetricListRules::RowMove> move =
      MetricListRules::dragMove(drag.from, drag.destination, geometry_.shownCount);
  if (!move) return;
  settings_.setMetricOrder(
      MetricOrderStore::reordered(settings_.metricOrder(), move->offsets, move->destination));
}

void MetricList::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && isDragging()) {
    endDrag();
    event->accept();
    return;
  }
  QWidget::keyPressEvent(event);
}

void MetricList::endDrag() {
  if (drag_ && drag_->from < geometry_.rows.size()) {
    rows_[geometry_.rows[drag_->from].kind.value()]->setDragged(false);
  }
  drag_.reset();
  dropIndicator_->hide();
}

}  // namespace brimly
