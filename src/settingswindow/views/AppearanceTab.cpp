#include "settingswindow/views/AppearanceTab.h"

#include <QPainter>

#include "core/Appearance.h"
#include "panel/views/QtGeometry.h"
#include "settings/AppSettings.h"
#include "settingswindow/views/AccentSwatch.h"
#include "settingswindow/views/AppearancePreview.h"
#include "settingswindow/views/SettingRow.h"
#include "settingswindow/views/SizeSegment.h"
#include "settingswindow/views/TextMeasure.h"
#include "ui/DesktopAccent.h"
#include "ui/SectionLabel.h"
#include "ui/TextStyle.h"
#include "ui/WindowFonts.h"
#include "usage/AccentColors.h"

namespace brimly {

namespace {

constexpr double accentNameSize = 11.0;

QFont accentNameFont(const QPaintDevice& device) {
  return windowFont(device, accentNameSize, QFont::Normal);
}

}  // namespace

AppearanceTab::AppearanceTab(AppSettings& settings, const SystemMonitor& monitor, QWidget* parent)
    : QWidget(parent),
      settings_(settings),
      desktopAccent_(new DesktopAccent(this)),
      previewLabel_(new SectionLabel("LIVE PREVIEW", this)),
      preview_(new AppearancePreview(settings, monitor, this)),
      accentLabel_(new SectionLabel("ACCENT COLOR", this)) {
  // Made in reading order, which is also the order Tab walks them in.
  for (const AccentChoice choice : accentChoices) {
    auto* swatch = new AccentSwatch(choice, this);
    connect(swatch, &ChoiceButton::chosenRequested, this,
            [this, choice] { settings_.setAccentColor(choice); });
    swatches_.push_back(swatch);
  }
  sizeLabel_ = new SectionLabel("PANEL SIZE", this);
  for (const PanelSize size : panelSizes) {
    auto* segment = new SizeSegment(size, this);
    connect(segment, &ChoiceButton::chosenRequested, this,
            [this, size] { settings_.setPanelSize(size); });
    sizes_.push_back(segment);
  }
  trendRow_ = new SettingRow("chart.xyaxis.line", trendTitle, this);
  trendRow_->set = [this](bool on) { settings_.setShowTrend(on); };

  connect(&settings_, &AppSettings::accentColorChanged, this, &AppearanceTab::showSettings);
  connect(&settings_, &AppSettings::panelSizeChanged, this, &AppearanceTab::showSettings);
  connect(&settings_, &AppSettings::showTrendChanged, this, &AppearanceTab::showSettings);
  // After the preview's own connection, so that it has its new height.
  connect(&settings_, &AppSettings::metricOrderChanged, this, &AppearanceTab::relayout);
  connect(desktopAccent_, &DesktopAccent::changed, this, &AppearanceTab::showDesktopAccent);
  showDesktopAccent();
  showSettings();
  relayout();
}

void AppearanceTab::showDesktopAccent() {
  const Color colour = AccentColors::of(AccentChoice::system, desktopAccent_->color());
  for (AccentSwatch* swatch : swatches_) {
    if (swatch->choice() == AccentChoice::system) swatch->setColor(colour);
  }
}

void AppearanceTab::showSettings() {
  for (AccentSwatch* swatch : swatches_) {
    swatch->setChosen(swatch->choice() == settings_.accentColor());
  }
  for (SizeSegment* segment : sizes_)
    segment->setChosen(segment->size() == settings_.panelSize());
  trendRow_->setOn(settings_.showTrend());
  relayout();
}

QString AppearanceTab::accentName() const {
  const std::string_view name = displayName(settings_.accentColor());
  return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

void AppearanceTab::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  relayout();
}

void AppearanceTab::relayout() {
  // The preview's height follows its width: it is placed at the tab's width before it is asked.
  preview_->resize(width(), preview_->height());
  const AppearanceTabLayout::Parts parts{
      .caption = toSize(previewLabel_->sizeHint()),
      .accentName = measuredText(accentNameFont(*this), accentName(), *this),
      .previewHeight = static_cast<double>(preview_->sizeHint().height()),
      .swatch = toSize(swatches_.front()->sizeHint()),
      .swatchCount = swatches_.size(),
      .sizeCount = sizes_.size(),
      .trendRowHeight = trendRow_->rowHeight(),
  };
  geometry_ = AppearanceTabLayout::layout(
      Rect{0.0, 0.0, static_cast<double>(width()), static_cast<double>(height())}, parts);
  previewLabel_->setGeometry(toQRectF(geometry_.previewLabel).toAlignedRect());
  preview_->setGeometry(toQRectF(geometry_.preview).toRect());
  accentLabel_->setGeometry(toQRectF(geometry_.accentLabel).toAlignedRect());
  for (std::size_t i = 0; i < swatches_.size(); ++i) {
    swatches_[i]->setGeometry(toQRectF(geometry_.swatches[i]).toRect());
  }
  sizeLabel_->setGeometry(toQRectF(geometry_.sizeLabel).toAlignedRect());
  for (std::size_t i = 0; i < sizes_.size(); ++i) {
    sizes_[i]->setGeometry(toQRectF(geometry_.sizes[i]).toRect());
  }
  trendRow_->setGeometry(toQRectF(geometry_.trendRow).toRect());
  update();
}

std::vector<DrawnText> AppearanceTab::drawnTexts() const {
  return {DrawnText{accentName(), {}, toQRectF(geometry_.accentName)}};
}

void AppearanceTab::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(textColor(TextStyle::secondary));
  painter.setFont(accentNameFont(*this));
  painter.drawText(toQRectF(geometry_.accentName),
                   Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, accentName());
}

}  // namespace brimly
