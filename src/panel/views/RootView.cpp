#include "panel/views/RootView.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPalette>
#include <QWindow>
#include <cmath>

#include "panel/PanelState.h"
#include "panel/views/CardLayerEffect.h"
#include "panel/views/NotchPainterPath.h"
#include "panel/views/QtGeometry.h"

namespace brimly {

namespace {

QPainterPath cardPath(const NotchShape& outline, const Rect& card) {
  QPainterPath path = toPainterPath(outline.path(card));
  path.translate(card.x, card.y);
  return path;
}

}  // namespace

RootView::RootView(PanelState& state, const RootViewMetrics& metrics, QWidget* grid,
                   QWidget* parent)
    : QWidget(parent),
      metrics_(metrics),
      grid_(grid),
      openness_(springResponse, springDampingFraction, state.isOpen() ? 1.0 : 0.0),
      contentFade_(state.isOpen()) {
  setAttribute(Qt::WA_TranslucentBackground);
  setAttribute(Qt::WA_NoSystemBackground);
  setAutoFillBackground(false);
  resize(sizeHint());
  if (grid_) {
    grid_->setParent(this);
    // What the grid paints on when it draws itself opaquely: the card.
    QPalette palette = grid_->palette();
    palette.setColor(QPalette::Window, Qt::black);
    grid_->setPalette(palette);
    placeGrid();
    applyToGrid(frameTimer_.now());
  }
  connect(&state, &PanelState::isOpenAssigned, this, &RootView::setOpen);
  connect(&frameTimer_, &FrameTimer::frame, this, &RootView::advance);
}

RootView::~RootView() = default;

QSize RootView::sizeHint() const {
  return QSize(static_cast<int>(std::ceil(metrics_.expandedWidth)),
               static_cast<int>(std::ceil(metrics_.expandedHeight)));
}

Rect RootView::cardFrame() const {
  return metrics_.cardFrame(width(), openness_.value(frameTimer_.now()));
}

NotchShape RootView::cardOutline() const {
  return metrics_.cardOutline(outline, openness_.value(frameTimer_.now()));
}

double RootView::cardOpacity() const {
  return metrics_.cardOpacity(openness_.value(frameTimer_.now()));
}

double RootView::contentOpacity() const {
  return contentFade_.opacity(frameTimer_.now());
}

void RootView::setOpen(bool open) {
  const double now = frameTimer_.now();
  if (isAwaitingFirstFrame()) {
    // Nothing is on screen to move from: a panel pinned at launch is open from its first frame.
    openness_.jumpTo(open ? 1.0 : 0.0);
    contentFade_ = FadeAnimation(open);
    frameTimer_.stop();
    applyToGrid(now);
    update();
    emit cardChanged();
    return;
  }
  openness_.retarget(open ? 1.0 : 0.0, now);
  contentFade_.setVisible(open, now);
  if (!openness_.isSettled(now) || contentFade_.isRunning(now)) frameTimer_.run();
}

void RootView::setFrameShownCheck(std::function<bool()> hasShownFrame) {
  hasShownFrame_ = std::move(hasShownFrame);
}

bool RootView::isAwaitingFirstFrame() const {
  if (hasShownFrame_) return isVisible() && !hasShownFrame_();
  const QWindow* shownIn = window()->windowHandle();
  return isVisible() && (shownIn == nullptr || !shownIn->isExposed());
}

void RootView::advance(double now) {
  applyToGrid(now);
  update();
  if (openness_.isSettled(now) && !contentFade_.isRunning(now)) frameTimer_.stop();
  emit cardChanged();
}

void RootView::applyToGrid(double now) {
  if (!grid_) return;
  const double opacity = contentFade_.opacity(now);
  // A fully transparent grid is hidden, so that its own updates cost nothing while closed.
  grid_->setVisible(opacity > 0.0);
  if (opacity <= 0.0) return;
  const double openness = openness_.value(now);
  QPainterPath clip =
      cardPath(metrics_.cardOutline(outline, openness), metrics_.cardFrame(width(), openness));
  // Once the grid is opaque and wholly inside an opaque card, the layer would change nothing: the
  // grid then paints straight into the window, over its own black, so that neither the layer nor
  // the card beneath is drawn again for its value updates while open.
  const bool layered = opacity < 1.0 || metrics_.cardOpacity(openness) < 1.0 ||
                       !clip.contains(QRectF(grid_->geometry()));
  grid_->setAttribute(Qt::WA_OpaquePaintEvent, !layered);
  if (!layered) {
    grid_->setGraphicsEffect(nullptr);  // deletes it
    gridEffect_ = nullptr;
    return;
  }
  if (!gridEffect_) {
    gridEffect_ = new CardLayerEffect(grid_);
    grid_->setGraphicsEffect(gridEffect_);
  }
  clip.translate(-grid_->x(), -grid_->y());
  gridEffect_->setClipPath(clip);
  gridEffect_->setOpacity(opacity);
}

void RootView::placeGrid() {
  if (!grid_) return;
  const QSize size = grid_->sizeHint();
  const Rect content = metrics_.contentFrame(width());
  const double x = content.x + (content.width - size.width()) / 2.0;
  grid_->setGeometry(static_cast<int>(std::lround(x)),
                     static_cast<int>(std::lround(content.y + metrics_.gridTop())), size.width(),
                     size.height());
}

void RootView::paintEvent(QPaintEvent* event) {
  const double openness = openness_.value(frameTimer_.now());
  const double opacity = metrics_.cardOpacity(openness);
  if (opacity <= 0.0) return;
  QPainter painter(this);
  painter.setOpacity(opacity);
  const Rect card = metrics_.cardFrame(width(), openness);
  const NotchShape shape = metrics_.cardOutline(outline, openness);
  const QRect area = event->rect();
  // The open grid's updates repaint small strips well inside the card: those are plain black.
  if (shape.plainlyContains(card, toRect(area))) {
    painter.fillRect(area, Qt::black);
    return;
  }
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillPath(cardPath(shape, card), Qt::black);
}

void RootView::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  placeGrid();
  applyToGrid(frameTimer_.now());
  emit cardChanged();
}

bool RootView::event(QEvent* event) {
  // The grid asks for a new size when the shown metrics change.
  if (event->type() == QEvent::LayoutRequest) {
    placeGrid();
    applyToGrid(frameTimer_.now());
  }
  return QWidget::event(event);
}

}  // namespace brimly
