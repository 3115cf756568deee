#include "panel/PanelState.h"

namespace brimly {

PanelState::PanelState(QObject* parent) : QObject(parent) {}

void PanelState::setOpen(bool open) {
  isOpen_ = open;
  emit isOpenAssigned(open);
}

}  // namespace brimly
