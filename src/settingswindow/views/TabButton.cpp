#include "settingswindow/views/TabButton.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPainterPath>

#include "artwork/Symbols.h"
#include "panel/views/QtGeometry.h"
#include "ui/Accent.h"
#include "ui/FocusRing.h"
#include "ui/TextStyle.h"
#include "ui/WindowFonts.h"
#include "usage/views/QtColor.h"

namespace brimly {

namespace {

QString fromView(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

}  // namespace

TabButton::TabButton(SettingsTab tab, QWidget* parent)
    : QAbstractButton(parent), tab_(tab), placed_{tab, {}, {}, {}} {
  setText(fromView(tab.title()));
  setAccessibleName(text());
  setObjectName(fromView(tab.rawValue()));
  setFocusPolicy(Qt::StrongFocus);
  setFont(titleFont(*this));
  FocusRing::watchInput();
}

QFont TabButton::titleFont(const QPaintDevice& device) {
  return windowFont(device, SettingsViewLayout::tabTitleSize, QFont::Medium);
}

void TabButton::setSelected(bool selected) {
  if (selected_ == selected) return;
  selected_ = selected;
  update();
  QAccessible::State changed;
  changed.selected = true;
  QAccessibleStateChangeEvent event(this, changed);
  QAccessible::updateAccessibility(&event);
}

void TabButton::addAccessibleState(QAccessible::State& state) const {
  state.selectable = true;
  state.selected = selected_;
}

void TabButton::place(const TabButtonGeometry& placed) {
  placed_ = placed;
  setGeometry(toQRectF(placed.frame).toAlignedRect());
  update();
}

QColor TabButton::foreground() const {
  return selected_ ? toQColor(Accent::current()) : textColor(TextStyle::secondary);
}

void paintTabShape(QPainter& painter, const QWidget& button, const QRectF& frame, bool selected) {
  const double radius = SettingsViewLayout::tabCornerRadius;
  const Color background =
      selected ? Accent::current().withOpacity(SettingsViewLayout::selectedTabOpacity)
               : Color::sRGB(1.0, 1.0, 1.0, SettingsViewLayout::unselectedTabOpacity);
  QPainterPath shape;
  shape.addRoundedRect(frame, radius, radius);
  painter.fillPath(shape, toQColor(background));
  if (FocusRing::isShown(button)) FocusRing::paint(painter, frame, radius);
}

void TabButton::keyPressEvent(QKeyEvent* event) {
  // Space is the button's own key; Return and Enter select the tab as well.
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    click();
    event->accept();
    return;
  }
  QAbstractButton::keyPressEvent(event);
}

void TabButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  // Drawn where the layout put it; the widget covers the whole pixels around that.
  painter.translate(-QPointF(pos()));
  paintTabShape(painter, *this, toQRectF(placed_.frame), selected_);
  const QColor colour = foreground();
  paintSymbol(painter, fromView(tab_.symbolName()), SettingsViewLayout::tabSymbolSize, colour,
              toQRectF(placed_.symbol).center());
  painter.setPen(colour);
  painter.setFont(font());
  painter.drawText(toQRectF(placed_.title), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   text());
}

}  // namespace brimly
