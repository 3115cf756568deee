#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <vector>

#include "desktop/layershell/FramePacing.h"
#include "desktop/layershell/OffscreenWidget.h"
#include "desktop/layershell/StaleAreas.h"
#include "desktop/layershell/SurfacePointers.h"
#include "desktop/layershell/SurfaceScale.h"
#include "platform/HoverZonePort.h"

namespace brimly {

class LayerSurface;
class PanelWindow;
class ShmBuffer;
class WaylandConnection;

// The notch panel as a layer surface. Brimly's panel window, which Qt never shows, is drawn into
// the surface's shared-memory buffers wherever it changed, at the scale the compositor prefers,
// at most one frame per frame callback. Nothing changing, nothing is drawn and nothing wakes. The
// surface's input region is the hover zone: the pointer entering and leaving it is what opens and
// closes the panel. When the compositor closes the surface (its output went away) a new one is made
// on the outputs that remain, or on the next that comes.
class LayerShellPanel : public QObject, public HoverZonePort {
  Q_OBJECT

 public:
  // `connection` must outlive the panel.
  explicit LayerShellPanel(WaylandConnection& connection);
  ~LayerShellPanel() override;

  // From now on `window` (not yet shown by Qt, and outliving the panel) is what the surface
  // shows; the surface is made at once where there is an output.
  void show(PanelWindow& window);
  // The window has a new root view (the screens changed): it learns when its frames are on
  // screen, and is drawn whole.
  void rootViewReplaced();

  bool startWatching(std::function<void(bool inside)> onChange) override;
  void stopWatching() override;
  void setZone(Zone zone) override;

 private:
  void makeSurface();
  void dropSurface();
  void dropBuffers();
  void surfaceConfigured();
  void updateScale();
  void panelChanged(const QRegion& region);
  void drawIfDue();
  // The index of a buffer the compositor does not hold (a new one if need be), or -1.
  int freeBuffer();
  void applyZone();

  WaylandConnection& connection_;
  PanelWindow* window_ = nullptr;
  std::unique_ptr<OffscreenWidget> offscreen_;
  SurfacePointers pointers_;
  std::unique_ptr<LayerSurface> surface_;
  std::vector<std::unique_ptr<ShmBuffer>> buffers_;
  StaleAreas stale_;
  FramePacing pacing_;
  SurfaceScale scale_;
  Zone zone_ = Zone::none;
  std::function<void(bool)> onHover_;
};

}  // namespace brimly
