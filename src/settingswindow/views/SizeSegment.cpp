#include "settingswindow/views/SizeSegment.h"

#include <QPainter>

#include "settingswindow/SettingsViewLayout.h"
#include "settingswindow/views/TabButton.h"
#include "ui/Accent.h"
#include "ui/TextStyle.h"
#include "ui/WindowFonts.h"
#include "usage/views/QtColor.h"

namespace brimly {

SizeSegment::SizeSegment(PanelSize size, QWidget* parent) : ChoiceButton(parent), size_(size) {
  const std::string_view title = displayName(size);
  setText(QString::fromUtf8(title.data(), static_cast<qsizetype>(title.size())));
  setAccessibleName(QStringLiteral("Panel size: ") + text());
  setFont(windowFont(*this, SettingsViewLayout::tabTitleSize, QFont::Medium));
}

QColor SizeSegment::foreground() const {
  return isChosen() ? toQColor(Accent::current()) : textColor(TextStyle::secondary);
}

void SizeSegment::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF frame = QRectF(rect());
  paintTabShape(painter, *this, frame, isChosen());
  painter.setPen(foreground());
  painter.setFont(font());
  painter.drawText(frame, Qt::AlignCenter | Qt::TextSingleLine, text());
}

}  // namespace brimly
