#pragma once

#include <QString>
#include <QWidget>

namespace brimly {

// The caption in capitals over a group of rows ("SETTINGS", "SHOWN"): 9.5 points, semibold,
// tracked 0.8, in the tertiary style.
class SectionLabel : public QWidget {
  Q_OBJECT

 public:
  static constexpr double fontSize = 9.5;
  static constexpr double tracking = 0.8;

  explicit SectionLabel(QString text, QWidget* parent = nullptr);

  const QString& text() const { return text_; }
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString text_;
};

}  // namespace brimly
