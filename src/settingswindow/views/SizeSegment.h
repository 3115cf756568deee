#pragma once

#include "core/Appearance.h"
#include "settingswindow/views/ChoiceButton.h"

namespace brimly {

// One half of the "Panel size" choice: its title on a rounded rectangle, tinted with the accent
// while it is the chosen size, as a selected tab is. It is read as "Panel size: Large".
class SizeSegment : public ChoiceButton {
  Q_OBJECT

 public:
  explicit SizeSegment(PanelSize size, QWidget* parent = nullptr);

  PanelSize size() const { return size_; }
  // The colour of the title now.
  QColor foreground() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  PanelSize size_;
};

}  // namespace brimly
