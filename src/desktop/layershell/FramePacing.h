#pragma once

namespace brimly {

// When the layer surface gets its next frame. A frame is drawn as soon as the panel has changed,
// the compositor has given the surface its size, and the frame before has been shown (its frame
// callback came back). Changes that come while a frame is on its way wait for that callback and
// are drawn together in the next one, so the panel never draws faster than the screen shows it.
// A panel that does not change draws nothing and asks for no callback: at rest it never wakes.
class FramePacing {
 public:
  // The compositor configured the surface: frames may be drawn, the first one whole.
  void configured();
  // The surface is gone (its output went away) until a new one is configured.
  void unconfigured();
  // Something on the panel changed.
  void changed() { changed_ = true; }
  // The compositor showed the last frame (the frame callback).
  void frameShown() { awaitingFrame_ = false; }
  // A frame was committed, with a frame callback.
  void drawn();

  // Whether to draw a frame now.
  bool isDrawDue() const { return configured_ && changed_ && !awaitingFrame_; }
  bool isAwaitingFrame() const { return awaitingFrame_; }
  // Whether a frame has been committed since the surface was configured: the panel is on screen.
  bool hasDrawn() const { return hasDrawn_; }

 private:
  bool configured_ = false;
  bool changed_ = false;
  bool awaitingFrame_ = false;
  bool hasDrawn_ = false;
};

}  // namespace brimly
