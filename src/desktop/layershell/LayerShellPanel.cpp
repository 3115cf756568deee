#include "desktop/layershell/LayerShellPanel.h"

#include <cmath>

#include "desktop/HotZone.h"
#include "desktop/layershell/LayerSurface.h"
#include "desktop/layershell/ShmBuffer.h"
#include "desktop/layershell/WaylandConnection.h"
#include "panel/views/PanelWindow.h"
#include "panel/views/RootView.h"

namespace brimly {
namespace {

// Two buffers take turns; a third is made only while the compositor holds both.
constexpr std::size_t kMostBuffers = 3;

}  // namespace

LayerShellPanel::LayerShellPanel(WaylandConnection& connection)
    : connection_(connection), pointers_(connection) {
  connect(&pointers_, &SurfacePointers::insideChanged, this, [this](bool inside) {
    if (onHover_) onHover_(inside);
  });
  connect(&connection_, &WaylandConnection::outputsChanged, this, [this] {
    if (!surface_) makeSurface();
    updateScale();
  });
}

void LayerShellPanel::show(PanelWindow& window) {
  window_ = &window;
  offscreen_ = std::make_unique<OffscreenWidget>(window);
  connect(offscreen_.get(), &OffscreenWidget::changed, this, &LayerShellPanel::panelChanged);
  // A new size (a new notch height) needs a new surface, which the compositor places anew. (The
  // first resize comes when Qt shows the window, at the size the surface already has.)
  connect(offscreen_.get(), &OffscreenWidget::resized, this, [this] {
    if (surface_ && surface_->points() == window_->size()) return;
    dropSurface();
    makeSurface();
  });
  rootViewReplaced();
  makeSurface();
}

LayerShellPanel::~LayerShellPanel() {
  pointers_.follow(nullptr);
  buffers_.clear();
  surface_.reset();
}

void LayerShellPanel::rootViewReplaced() {
  if (window_ == nullptr) return;
  if (RootView* root = window_->rootView()) {
    root->setFrameShownCheck([this] { return pacing_.hasDrawn(); });
  }
  panelChanged(QRegion(window_->rect()));
  applyZone();
}

void LayerShellPanel::makeSurface() {
  // Without an output there is nowhere to show it; the next output that comes gets it.
  if (surface_ || window_ == nullptr || window_->size().isEmpty()) return;
  if (connection_.outputs().empty()) return;
  surface_ = std::make_unique<LayerSurface>(connection_, window_->size());
  connect(surface_.get(), &LayerSurface::configured, this, &LayerShellPanel::surfaceConfigured);
  connect(surface_.get(), &LayerSurface::frameShown, this, [this] {
    pacing_.frameShown();
    drawIfDue();
  });
  connect(surface_.get(), &LayerSurface::scaleHintsChanged, this, &LayerShellPanel::updateScale);
  connect(surface_.get(), &LayerSurface::closed, this, [this] {
    // Not from inside the surface's own event: a queued call drops it and makes the next one.
    QMetaObject::invokeMethod(
        this,
        [this] {
          dropSurface();
          makeSurface();
        },
        Qt::QueuedConnection);
  });
  pointers_.follow(surface_->surface());
  applyZone();
  updateScale();
}

void LayerShellPanel::dropSurface() {
  pointers_.follow(nullptr);
  dropBuffers();
  surface_.reset();
  pacing_.unconfigured();
}

void LayerShellPanel::dropBuffers() {
  // The compositor keeps what it needs of a buffer it still holds.
  buffers_.clear();
  stale_.reset(0, QRect());
}

void LayerShellPanel::surfaceConfigured() {
  pacing_.configured();
  drawIfDue();
}

void LayerShellPanel::updateScale() {
  if (!surface_) return;
  std::vector<int> entered;
  std::vector<int> all;
  for (const WaylandConnection::Output& output : connection_.outputs()) {
    all.push_back(output.scale);
    for (const wl_output* on : surface_->enteredOutputs())
      if (on == output.output) entered.push_back(output.scale);
  }
  const SurfaceScale scale = SurfaceScale::choose(surface_->preferredFraction(),
                                                  surface_->canShowFractions(), entered, all);
  if (scale == scale_) return;
  scale_ = scale;
  pointers_.setCursorScale(static_cast<int>(std::ceil(scale_.ratio())));
  // New buffers of the new size, and the whole panel drawn into them.
  dropBuffers();
  panelChanged(QRegion(window_->rect()));
}

void LayerShellPanel::panelChanged(const QRegion& region) {
  stale_.add(scale_.alignedRegion(region, window_->size()));
  pacing_.changed();
  drawIfDue();
}

void LayerShellPanel::drawIfDue() {
  if (!surface_ || !pacing_.isDrawDue()) return;
  const int index = freeBuffer();
  if (index < 0) return;  // drawn when the compositor gives one back
  ShmBuffer& buffer = *buffers_[static_cast<std::size_t>(index)];
  const QRegion region = stale_.take(index);
  offscreen_->paint(buffer.image(), region);
  surface_->present(buffer, scale_.bufferRegion(region, window_->size()), scale_);
  pacing_.drawn();
}

int LayerShellPanel::freeBuffer() {
  for (std::size_t index = 0; index < buffers_.size(); ++index)
    if (!buffers_[index]->isBusy()) return static_cast<int>(index);
  if (buffers_.size() >= kMostBuffers) return -1;
  std::unique_ptr<ShmBuffer> buffer =
      ShmBuffer::create(connection_.shm(), scale_.bufferSize(window_->size()), scale_.ratio());
  if (!buffer) return -1;
  buffer->setOnRelease([this] { drawIfDue(); });
  buffers_.push_back(std::move(buffer));
  stale_.addBuffer(window_->rect());
  return stale_.count() - 1;
}

bool LayerShellPanel::startWatching(std::function<void(bool)> onChange) {
  onHover_ = std::move(onChange);
  return true;
}

void LayerShellPanel::stopWatching() {
  onHover_ = nullptr;
}

void LayerShellPanel::setZone(Zone zone) {
  zone_ = zone;
  applyZone();
}

void LayerShellPanel::applyZone() {
  if (!surface_ || window_->rootView() == nullptr) return;
  surface_->setInputRegion(hotZoneRect(zone_, window_->rootView()->metrics(), window_->width()));
}

}  // namespace brimly
