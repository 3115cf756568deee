#pragma once

class QWidget;

namespace brimly {

class AppSettings;
class SystemMonitor;
class UsageView;

// Keeps a grid showing the monitor's latest readings with the user's choice of metrics and unit:
// it takes the current state at once, then every applied sample, every change of the shown
// metrics and of the temperature unit. The connections end with the grid.
void bindUsageView(UsageView& view, const SystemMonitor& monitor, const AppSettings& settings);

// The notch panel's grid: three columns of 172-point cells, bound to the monitor and settings.
UsageView* makePanelGrid(const SystemMonitor& monitor, const AppSettings& settings,
                         QWidget* parent = nullptr);

}  // namespace brimly
