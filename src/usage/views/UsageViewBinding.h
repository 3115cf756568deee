#pragma once

class QWidget;

namespace brimly {

class AppSettings;
class PanelState;
class SystemMonitor;
class UsageView;

// The notch panel's grid: three columns of 172-point cells, showing the monitor's latest readings
// with the user's choice of metrics, unit and trend, at the size of the user's choice of panel
// size. A new panel size comes with a new card, and the panel makes a new grid for it. It takes the
// current state at once, then every change of the shown metrics, of the temperature unit and of
// "Show trend", and every applied sample while `panel` is open. A closed panel shows no grid, so
// the samples that arrive meanwhile (one every five seconds, all day) are not laid out for
// nothing: the grid takes the latest the moment the panel opens, while it is still hidden behind
// its fade-in. With the trend shown, the monitor's last minute of samples goes along with each
// sample. The connections end with the grid.
UsageView* makePanelGrid(const SystemMonitor& monitor, const AppSettings& settings,
                         const PanelState& panel, QWidget* parent = nullptr);

// The same grid, at the regular size, for a preview of the panel: it follows the same metrics,
// unit and trend, and takes every sample the monitor applies, as the open panel does.
UsageView* makePreviewGrid(const SystemMonitor& monitor, const AppSettings& settings,
                           QWidget* parent = nullptr);

}  // namespace brimly
