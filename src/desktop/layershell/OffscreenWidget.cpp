#include "desktop/layershell/OffscreenWidget.h"

#include <QChildEvent>
#include <QImage>
#include <QPaintEvent>
#include <QPainter>
#include <QTimer>
#include <QWidget>

namespace brimly {

OffscreenWidget::OffscreenWidget(QWidget& widget) : widget_(widget) {
  // Shown, as far as Qt is concerned, but never mapped on any screen.
  widget_.setAttribute(Qt::WA_DontShowOnScreen);
  watch(widget_);
}

OffscreenWidget::~OffscreenWidget() = default;

void OffscreenWidget::watch(QWidget& widget) {
  widget.installEventFilter(this);
  for (QWidget* child : widget.findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
    watch(*child);
}

bool OffscreenWidget::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::Paint: {
      if (painting_) return false;  // our own paint, into an image
      // Qt's paint into a backing store nobody shows: only what it covers is kept.
      auto* widget = static_cast<QWidget*>(watched);
      const QRegion region = static_cast<QPaintEvent*>(event)->region();
      if (pending_.isEmpty()) QTimer::singleShot(0, this, &OffscreenWidget::tellChanges);
      pending_ += region.translated(widget->mapTo(&widget_, QPoint(0, 0)));
      return true;
    }
    case QEvent::ChildAdded:
      // Widgets that join later (a new root view, the grid it adopts) are watched as they come.
      if (auto* child = qobject_cast<QWidget*>(static_cast<QChildEvent*>(event)->child())) {
        watch(*child);
      }
      return false;
    case QEvent::Resize:
      if (watched == &widget_) emit resized();
      return false;
    default:
      return false;
  }
}

void OffscreenWidget::tellChanges() {
  const QRegion changes = std::exchange(pending_, QRegion());
  if (!changes.isEmpty()) emit changed(changes);
}

void OffscreenWidget::paint(QImage& image, const QRegion& region) {
  QPainter painter(&image);
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  for (const QRect& rect : region)
    painter.fillRect(rect, Qt::transparent);
  painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  painting_ = true;
  // render() puts the region's top left corner at the target offset: here, where it is.
  widget_.render(&painter, region.boundingRect().topLeft(), region, QWidget::DrawChildren);
  painting_ = false;
}

}  // namespace brimly
