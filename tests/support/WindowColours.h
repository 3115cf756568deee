#pragma once

#include <gtest/gtest.h>

#include <QColor>
#include <QImage>
#include <QPalette>
#include <QWidget>

namespace brimly::testing {

// Checks that a window of Brimly's is dark whatever the system's appearance: its palette holds
// the `surface` colour under `text`, and the drawn window shows the surface in its corners, where
// nothing is drawn over it.
inline void expectDrawnOnSurface(QWidget& window, const QColor& surface, const QColor& text) {
  EXPECT_EQ(window.palette().color(QPalette::Window), surface);
  EXPECT_EQ(window.palette().color(QPalette::WindowText), text);
  const QImage drawn = window.grab().toImage();
  EXPECT_EQ(drawn.pixel(1, 1), surface.rgb());
  EXPECT_EQ(drawn.pixel(drawn.width() - 2, drawn.height() - 2), surface.rgb());
}

}  // namespace brimly::testing
