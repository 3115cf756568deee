#pragma once

#include <QGraphicsEffect>
#include <QPainterPath>

namespace brimly {

// Draws the widget it is set on through the card: at the card content's opacity and cut to the
// card's outline with antialiased edges, so that content reaching past the card while it grows or
// shrinks never shows outside it.
class CardLayerEffect : public QGraphicsEffect {
  Q_OBJECT

 public:
  explicit CardLayerEffect(QObject* parent = nullptr);

  // The outline in the coordinates of the widget the effect is set on.
  void setClipPath(const QPainterPath& path);
  void setOpacity(double opacity);
  double opacity() const { return opacity_; }
  const QPainterPath& clipPath() const { return clipPath_; }

 protected:
  void draw(QPainter* painter) override;

 private:
  QPainterPath clipPath_;
  double opacity_ = 1.0;
};

}  // namespace brimly
