#include "settingswindow/views/SettingsWindow.h"

#include <QKeyEvent>

#include "settingswindow/views/SettingsView.h"

namespace brimly {

namespace {

constexpr Qt::WindowFlags settingsWindowFlags =
    Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowCloseButtonHint;

}  // namespace

SettingsWindow::SettingsWindow(AppSettings& settings, ControlPanelModel& control,
                               const SystemMonitor& monitor, QWidget* parent)
    : QWidget(parent, settingsWindowFlags),
      view_(new SettingsView(settings, control, monitor, this)) {
  setWindowTitle(title);
  setPalette(view_->palette());
  setAutoFillBackground(true);
  setFixedSize(view_->sizeHint());
}

void SettingsWindow::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape || event->matches(QKeySequence::Close)) {
    hide();
    event->accept();
    return;
  }
  QWidget::keyPressEvent(event);
}

}  // namespace brimly
