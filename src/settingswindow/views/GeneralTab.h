#pragma once

#include <QWidget>
#include <array>

#include "settingswindow/GeneralTabLayout.h"

namespace brimly {

class ControlPanelModel;
class SectionLabel;
class SettingRow;

// The General tab: the control card's three switches again, under "GENERAL". They show the shared
// model and call its callbacks, which do the work and write the result back to the model; both
// the card and this tab follow the model, so they always agree. The Fahrenheit row's title is
// "Show temperature in °F", unlike the card's shorter "Show in Fahrenheit".
class GeneralTab : public QWidget {
  Q_OBJECT

 public:
  // `control` must outlive the tab.
  explicit GeneralTab(ControlPanelModel& control, QWidget* parent = nullptr);

  SettingRow& pinRow() const { return *rows_[0]; }
  SettingRow& launchRow() const { return *rows_[1]; }
  SettingRow& fahrenheitRow() const { return *rows_[2]; }
  const GeneralTabGeometry& placement() const { return geometry_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void showModel();
  void relayout();

  ControlPanelModel& control_;
  SectionLabel* sectionLabel_;
  std::array<SettingRow*, 3> rows_{};
  GeneralTabGeometry geometry_;
};

}  // namespace brimly
