#include "controlpanel/views/ControlPanelView.h"

#include <QFontMetricsF>
#include <QPainter>
#include <cmath>

#include "artwork/Symbols.h"
#include "controlpanel/ControlPanelModel.h"
#include "controlpanel/views/ActionButton.h"
#include "controlpanel/views/CardShadow.h"
#include "panel/views/QtGeometry.h"
#include "ui/Accent.h"
#include "ui/SectionLabel.h"
#include "ui/Switch.h"
#include "ui/TextStyle.h"
#include "ui/WindowFonts.h"
#include "usage/Theme.h"
#include "usage/views/QtColor.h"

namespace brimly {
namespace {

constexpr const char* headerSymbol = "gauge.with.dots.needle.bottom.50percent";
constexpr double nameSize = 14.5;
constexpr double versionSize = 10.5;
constexpr double rowTitleSize = 12.5;
constexpr double shadowOpacity = 0.38;
constexpr double shadowRadius = 16;
constexpr double shadowOffsetY = 9;

struct SwitchRowText {
  const char* symbol;
  const char* title;
};
constexpr std::array<SwitchRowText, 3> switchRows{{
    {"pin", "Keep panel visible"},
    {"power", "Launch at login"},
    {"thermometer.medium", "Show in Fahrenheit"},
}};
constexpr std::array<const char*, 4> buttonTitles{"Settings", "Show Panel", "About", "Quit"};
constexpr const char* sectionTitle = "SETTINGS";

Size measured(const QFont& font, const QString& text, const QPaintDevice& device) {
  const QFontMetricsF metrics(font, &device);
  return Size{std::ceil(metrics.horizontalAdvance(text)), std::ceil(metrics.height())};
}

QString versionLine(const ControlPanelModel& model) {
  return QStringLiteral("v") + QString::fromStdString(model.version());
}

}  // namespace

ControlPanelView::ControlPanelView(ControlPanelModel& model, QWidget* parent)
    : QWidget(parent), model_(model) {
  setAttribute(Qt::WA_TranslucentBackground);

  ControlPanelMeasures measures;
  measures.name = measured(windowFont(*this, nameSize, QFont::DemiBold), "Brimly", *this);
  measures.version =
      measured(windowFont(*this, versionSize, QFont::Normal), versionLine(model), *this);
  measures.sectionLabel =
      measured(windowFont(*this, SectionLabel::fontSize, QFont::DemiBold, SectionLabel::tracking),
               sectionTitle, *this);
  measures.rowTitleHeight =
      measured(windowFont(*this, rowTitleSize, QFont::Normal), "Ag", *this).height;

  for (std::size_t i = 0; i < switches_.size(); ++i) {
    auto* toggle = new Switch(Switch::Size::small, this);
    toggle->setAccessibleName(switchRows[i].title);
    switches_[i] = toggle;
  }
  const QSize switchSize = switches_[0]->sizeHint();
  measures.switchSize =
      Size{static_cast<double>(switchSize.width()), static_cast<double>(switchSize.height())};
  connect(switches_[0], &Switch::switchRequested, this,
          [this](bool on) { ControlPanelModel::invoke(model_.onTogglePin, on); });
  connect(switches_[1], &Switch::switchRequested, this,
          [this](bool on) { ControlPanelModel::invoke(model_.onToggleLaunch, on); });
  connect(switches_[2], &Switch::switchRequested, this,
          [this](bool on) { ControlPanelModel::invoke(model_.onToggleFahrenheit, on); });

  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    const bool quit = i + 1 == buttons_.size();
    buttons_[i] = new ActionButton(buttonTitles[i], quit, this);
    measures.buttonTitles[i] = measured(buttons_[i]->font(), buttonTitles[i], *this);
  }
  connect(buttons_[0], &QAbstractButton::clicked, this,
          [this] { ControlPanelModel::invoke(model_.onOpenSettings); });
  connect(buttons_[1], &QAbstractButton::clicked, this,
          [this] { ControlPanelModel::invoke(model_.onShowPanel); });
  connect(buttons_[2], &QAbstractButton::clicked, this,
          [this] { ControlPanelModel::invoke(model_.onAbout); });
  connect(buttons_[3], &QAbstractButton::clicked, this,
          [this] { ControlPanelModel::invoke(model_.onQuit); });

  layout_ = ControlPanelLayout::compute(measures);
  for (std::size_t i = 0; i < switches_.size(); ++i) {
    switches_[i]->setGeometry(toQRectF(layout_.rows[i].toggle).toRect());
  }
  for (std::size_t i = 0; i < buttons_.size(); ++i) {
    buttons_[i]->setGeometry(toQRectF(layout_.buttons[i]).toRect());
  }
  setFixedSize(sizeHint());

  connect(&model_, &ControlPanelModel::changed, this, &ControlPanelView::showModel);
  showModel();
}

QSize ControlPanelView::sizeHint() const {
  return QSize(static_cast<int>(std::ceil(layout_.windowSize.width)),
               static_cast<int>(std::ceil(layout_.windowSize.height)));
}

void ControlPanelView::showModel() {
  switches_[0]->setOn(model_.isPinned());
  switches_[1]->setOn(model_.launchAtLogin());
  switches_[2]->setOn(model_.useFahrenheit());
  update();
}

std::vector<DrawnText> ControlPanelView::drawnTexts() const {
  return {
      DrawnText{QStringLiteral("Brimly"), {}, toQRectF(layout_.name)},
      DrawnText{versionLine(model_), {}, toQRectF(layout_.version)},
      DrawnText{sectionTitle, {}, toQRectF(layout_.sectionLabel)},
  };
}

void ControlPanelView::paintShadow(QPainter& painter) {
  const qreal dpr = devicePixelRatioF();
  if (shadow_.isNull() || shadow_.devicePixelRatio() != dpr) {
    shadow_ = cardShadow(size(), toQRectF(layout_.card), ControlPanelLayout::cornerRadius,
                         shadowRadius, shadowOffsetY, shadowOpacity, dpr);
  }
  painter.drawImage(QPointF(0, 0), shadow_);
}

void ControlPanelView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  paintShadow(painter);

  const QRectF card = toQRectF(layout_.card);
  const double radius = ControlPanelLayout::cornerRadius;
  painter.setPen(Qt::NoPen);
  painter.setBrush(toQColor(Theme::surface));
  painter.drawRoundedRect(card, radius, radius);
  // The inner border: one point wide, inside the edge.
  painter.setPen(QPen(QColor::fromRgbF(1, 1, 1, 0.09f), 1.0));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(card.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, radius - 0.5);

  paintSymbol(painter, headerSymbol, ControlPanelLayout::headerSymbolSize,
              toQColor(Accent::current()), toQRectF(layout_.headerSymbol).center());
  painter.setPen(textColor(TextStyle::primary));
  painter.setFont(windowFont(*this, nameSize, QFont::DemiBold));
  painter.drawText(toQRectF(layout_.name), Qt::AlignLeft | Qt::AlignVCenter, "Brimly");
  painter.setPen(textColor(TextStyle::secondary));
  painter.setFont(windowFont(*this, versionSize, QFont::Normal));
  painter.drawText(
      QRectF(layout_.version.x, layout_.version.y,
             layout_.card.maxX() - ControlPanelLayout::padding - layout_.version.x,
             layout_.version.height),
      Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
      painter.fontMetrics().elidedText(
          versionLine(model_), Qt::ElideRight,
          static_cast<int>(layout_.card.maxX() - ControlPanelLayout::padding - layout_.version.x)));

  const QColor hairline = toQColor(Theme::cardHairline);
  painter.fillRect(toQRectF(layout_.firstDivider), hairline);
  painter.fillRect(toQRectF(layout_.secondDivider), hairline);

  painter.setPen(textColor(TextStyle::tertiary));
  painter.setFont(
      windowFont(*this, SectionLabel::fontSize, QFont::DemiBold, SectionLabel::tracking));
  painter.drawText(toQRectF(layout_.sectionLabel), Qt::AlignLeft | Qt::AlignVCenter, sectionTitle);

  const QColor secondary = textColor(TextStyle::secondary);
  painter.setFont(windowFont(*this, rowTitleSize, QFont::Normal));
  for (std::size_t i = 0; i < layout_.rows.size(); ++i) {
    const ControlPanelLayout::Row& row = layout_.rows[i];
    paintSymbol(painter, switchRows[i].symbol, ControlPanelLayout::rowSymbolSize, secondary,
                toQRectF(row.symbol).center());
    painter.setPen(textColor(TextStyle::primary));
    painter.drawText(toQRectF(row.title), Qt::AlignLeft | Qt::AlignVCenter, switchRows[i].title);
  }
}

}  // namespace brimly
