#include "panel/views/PanelWindow.h"

#include <cmath>

#include "panel/RootViewMetrics.h"
#include "panel/views/RootView.h"

namespace brimly {

namespace {

int rounded(double points) {
  return static_cast<int>(std::lround(points));
}

}  // namespace

PanelWindow::PanelWindow(PanelState& state, Size notchSize, bool hasNotch, GridFactory makeGrid,
                         double scale, QWidget* parent)
    : QWidget(parent, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint |
                          Qt::WindowDoesNotAcceptFocus | Qt::WindowTransparentForInput |
                          Qt::NoDropShadowWindowHint),
      state_(state),
      makeGrid_(std::move(makeGrid)) {
  setAttribute(Qt::WA_TranslucentBackground);
  setAttribute(Qt::WA_ShowWithoutActivating);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  // A tool window would otherwise hide whenever another application is active.
  setAttribute(Qt::WA_MacAlwaysShowToolWindow);
  setFocusPolicy(Qt::NoFocus);
  const Size size = panelSize(notchSize, scale);
  resize(rounded(size.width), rounded(size.height));
  rebuildRootView(notchSize, hasNotch, scale);
}

PanelWindow::~PanelWindow() = default;

Size PanelWindow::panelSize(Size notchSize, double scale) {
  // The open card's size, the same whether or not a housing hides the closed one.
  const RootViewMetrics metrics = RootViewMetrics::forNotch(notchSize, true, scale);
  return {metrics.expandedWidth, metrics.expandedHeight};
}

void PanelWindow::setFrame(const Rect& frame) {
  setGeometry(rounded(frame.x), rounded(frame.y), rounded(frame.width), rounded(frame.height));
  // A hidden window gets its resize event only when shown; the root view must follow now.
  if (rootView_) rootView_->setGeometry(rect());
}

void PanelWindow::rebuildRootView(Size notchSize, bool hasNotch, double scale) {
  QWidget* grid = makeGrid_ ? makeGrid_() : nullptr;
  auto* next =
      new RootView(state_, RootViewMetrics::forNotch(notchSize, hasNotch, scale), grid, this);
  next->setGeometry(rect());
  next->show();
  delete rootView_;
  rootView_ = next;
}

void PanelWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (rootView_) rootView_->setGeometry(rect());
}

}  // namespace brimly
