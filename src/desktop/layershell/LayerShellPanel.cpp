#include "desktop/layershell/LayerShellPanel.h"

#include <algorithm>
#include <cmath>

#include "desktop/layershell/HotZone.h"
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
  // A new size (a new notch height) needs a new surface, which the compositor places anew.
  connect(offscreen_.get(), &OffscreenWidget::resized, this, [this] {
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
  buffers_.clear();
  stale_.reset(0, QRect());
  surface_.reset();
  pacing_.unconfigured();
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
  // Buffers of the old size go as they are given back; the whole panel is drawn again.
  buffers_.clear();
  stale_.reset(0, QRect());
  panelChanged(QRegion(window_->rect()));
}

void LayerShellPanel::panelChanged(const QRegion& region) {
  stale_.add(scale_.alignedRegion(region, window_->size()));
  pacing_.changed();
  drawIfDue();
}

void LayerShellPanel::drawIfDue() {
  if (!surface_ || !pacing_.isDrawDue()) return;
  ShmBuffer* buffer = freeBuffer();
  if (buffer == nullptr) return;  // drawn when the compositor gives one back
  const auto index =
      static_cast<int>(std::find_if(buffers_.begin(), buffers_.end(),
                                    [buffer](const auto& known) { return known.get() == buffer; }) -
                       buffers_.begin());
  const QRegion region = stale_.take(index);
  offscreen_->paint(buffer->image(), region);
  surface_->present(*buffer, scale_.bufferRegion(region, window_->size()), scale_);
  pacing_.drawn();
}

ShmBuffer* LayerShellPanel::freeBuffer() {
  for (const auto& buffer : buffers_)
    if (!buffer->isBusy()) return buffer.get();
  if (buffers_.size() >= kMostBuffers) return nullptr;
  std::unique_ptr<ShmBuffer> buffer =
      ShmBuffer::create(connection_.shm(), scale_.bufferSize(window_->size()), scale_.ratio());
  if (!buffer) return nullptr;
  buffer->setOnRelease([this] { drawIfDue(); });
  buffers_.push_back(std::move(buffer));
  stale_.addBuffer(window_->rect());
  return buffers_.back().get();
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
