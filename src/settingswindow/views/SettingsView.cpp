#include "settingswindow/views/SettingsView.h"

#include <QPainter>
#include <QPalette>

#include "artwork/Symbols.h"
#include "controlpanel/ControlPanelModel.h"
#include "panel/views/QtGeometry.h"
#include "settingswindow/SettingsTheme.h"
#include "settingswindow/views/AppearanceTab.h"
#include "settingswindow/views/GeneralTab.h"
#include "settingswindow/views/MetricsTab.h"
#include "settingswindow/views/TabBar.h"
#include "settingswindow/views/TabButton.h"
#include "settingswindow/views/TextMeasure.h"
#include "ui/Accent.h"
#include "ui/TextStyle.h"
#include "ui/WindowFonts.h"
#include "usage/views/QtColor.h"

namespace brimly {

namespace {

QFont nameFont(const QPaintDevice& device) {
  return windowFont(device, SettingsViewLayout::nameSize, QFont::DemiBold);
}

QFont versionFont(const QPaintDevice& device) {
  return windowFont(device, SettingsViewLayout::versionSize, QFont::Normal);
}

const QString productName = QStringLiteral("Brimly");

// The dark scheme for whatever the style draws itself (the list's scroll bar, should it need
// one), whatever the desktop's scheme.
QPalette darkPalette() {
  QPalette palette;
  const QColor surface = toQColor(SettingsTheme::surface);
  palette.setColor(QPalette::Window, surface);
  palette.setColor(QPalette::Base, surface);
  palette.setColor(QPalette::Button, surface);
  palette.setColor(QPalette::WindowText, textColor(TextStyle::primary));
  palette.setColor(QPalette::Text, textColor(TextStyle::primary));
  palette.setColor(QPalette::ButtonText, textColor(TextStyle::primary));
  palette.setColor(QPalette::Highlight, toQColor(Accent::current()));
  return palette;
}

}  // namespace

SettingsView::SettingsView(AppSettings& settings, ControlPanelModel& control,
                           const SystemMonitor& monitor, QWidget* parent)
    : QWidget(parent), control_(control), tabBar_(new TabBar(this)) {
  setFixedSize(static_cast<int>(SettingsViewLayout::width),
               static_cast<int>(SettingsViewLayout::height));
  setPalette(darkPalette());
  connect(&Accent::shared(), &Accent::changed, this, [this] { setPalette(darkPalette()); });

  SettingsViewLayout::TextSizes texts;
  texts.name = measuredText(nameFont(*this), productName, *this);
  texts.version = measuredText(versionFont(*this), versionLine(), *this);
  for (const SettingsTab tab : SettingsTab::allCases()) {
    const TabButton& button = tabBar_->button(tab);
    texts.tabTitles.push_back(measuredText(button.font(), button.text(), *this));
  }
  geometry_ = SettingsViewLayout::layout(texts);
  tabBar_->place(geometry_.tabBar, geometry_.tabs);
  connect(tabBar_, &TabBar::tabClicked, this, &SettingsView::setTab);

  general_ = new GeneralTab(control, this);
  metrics_ = new MetricsTab(settings, monitor, this);
  appearance_ = new AppearanceTab(settings, monitor, this);
  const QRect content = toQRectF(geometry_.content).toRect();
  for (QWidget* page : {static_cast<QWidget*>(general_), static_cast<QWidget*>(metrics_),
                        static_cast<QWidget*>(appearance_)}) {
    page->setGeometry(content);
  }
  showTab();
}

QSize SettingsView::sizeHint() const {
  return QSize(static_cast<int>(SettingsViewLayout::width),
               static_cast<int>(SettingsViewLayout::height));
}

void SettingsView::setTab(SettingsTab tab) {
  if (tab == tab_) return;
  tab_ = tab;
  showTab();
}

TabButton& SettingsView::tabButton(SettingsTab tab) const {
  return tabBar_->button(tab);
}

void SettingsView::showTab() {
  tabBar_->select(tab_);
  general_->setVisible(tab_ == SettingsTab::general);
  metrics_->setVisible(tab_ == SettingsTab::metrics);
  appearance_->setVisible(tab_ == SettingsTab::appearance);
}

QWidget& SettingsView::content() const {
  switch (tab_) {
    case SettingsTab::general:
      return *general_;
    case SettingsTab::metrics:
      return *metrics_;
    case SettingsTab::appearance:
      return *appearance_;
  }
  return *general_;
}

QString SettingsView::versionLine() const {
  return QStringLiteral("v") + QString::fromStdString(control_.version());
}

std::vector<DrawnText> SettingsView::drawnTexts() const {
  return {DrawnText{productName, {}, toQRectF(geometry_.name)},
          DrawnText{versionLine(), {}, toQRectF(geometry_.version)}};
}

void SettingsView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.fillRect(rect(), toQColor(SettingsTheme::surface));

  paintSymbol(painter, headerSymbol, SettingsViewLayout::headerSymbolSize,
              toQColor(Accent::current()), toQRectF(geometry_.headerSymbol).center());
  painter.setPen(textColor(TextStyle::primary));
  painter.setFont(nameFont(*this));
  painter.drawText(toQRectF(geometry_.name), Qt::AlignLeft | Qt::AlignVCenter, productName);
  painter.setPen(textColor(TextStyle::secondary));
  painter.setFont(versionFont(*this));
  // The version runs to the right edge at most.
  const QRectF version(geometry_.version.x, geometry_.version.y,
                       geometry_.header.maxX() - geometry_.version.x, geometry_.version.height);
  painter.drawText(version, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   painter.fontMetrics().elidedText(versionLine(), Qt::ElideRight,
                                                    static_cast<int>(version.width())));

  painter.fillRect(toQRectF(geometry_.rule), toQColor(SettingsTheme::hairline));
}

}  // namespace brimly
