#include "settingswindow/views/GeneralTab.h"

#include "controlpanel/ControlPanelModel.h"
#include "panel/views/QtGeometry.h"
#include "settingswindow/views/SettingRow.h"
#include "settingswindow/views/TextMeasure.h"
#include "ui/SectionLabel.h"

namespace brimly {

GeneralTab::GeneralTab(ControlPanelModel& control, QWidget* parent)
    : QWidget(parent), control_(control), sectionLabel_(new SectionLabel("GENERAL", this)) {
  rows_[0] = new SettingRow("pin", "Keep panel visible", this);
  rows_[1] = new SettingRow("power", "Launch at login", this);
  rows_[2] = new SettingRow("thermometer.medium", QStringLiteral("Show temperature in °F"), this);
  rows_[0]->set = [this](bool on) { ControlPanelModel::invoke(control_.onTogglePin, on); };
  rows_[1]->set = [this](bool on) { ControlPanelModel::invoke(control_.onToggleLaunch, on); };
  rows_[2]->set = [this](bool on) { ControlPanelModel::invoke(control_.onToggleFahrenheit, on); };
  connect(&control_, &ControlPanelModel::changed, this, &GeneralTab::showModel);
  showModel();
  relayout();
}

void GeneralTab::showModel() {
  rows_[0]->setOn(control_.isPinned());
  rows_[1]->setOn(control_.launchAtLogin());
  rows_[2]->setOn(control_.useFahrenheit());
}

void GeneralTab::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  relayout();
}

void GeneralTab::relayout() {
  geometry_ = GeneralTabLayout::layout(
      Rect{0.0, 0.0, static_cast<double>(width()), static_cast<double>(height())},
      toSize(sectionLabel_->sizeHint()), rows_.size(), rows_[0]->rowHeight());
  sectionLabel_->setGeometry(toQRectF(geometry_.sectionLabel).toRect());
  for (std::size_t i = 0; i < rows_.size(); ++i) {
    rows_[i]->setGeometry(toQRectF(geometry_.rows[i]).toRect());
  }
}

}  // namespace brimly
