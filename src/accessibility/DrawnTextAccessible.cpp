#include "accessibility/DrawnTextAccessible.h"

namespace brimly {

DrawnTextAccessible::DrawnTextAccessible(QWidget* owner, int index)
    : owner_(owner), index_(index) {}

std::optional<DrawnText> DrawnTextAccessible::current() const {
  const auto* parts = dynamic_cast<const AccessibleParts*>(owner_.data());
  if (parts == nullptr) return std::nullopt;
  std::vector<DrawnText> texts = parts->drawnTexts();
  if (index_ < 0 || index_ >= static_cast<int>(texts.size())) return std::nullopt;
  return std::move(texts[static_cast<std::size_t>(index_)]);
}

bool DrawnTextAccessible::isValid() const {
  return current().has_value();
}

QWindow* DrawnTextAccessible::window() const {
  return owner_ ? owner_->window()->windowHandle() : nullptr;
}

QAccessibleInterface* DrawnTextAccessible::parent() const {
  return owner_ ? QAccessible::queryAccessibleInterface(owner_.data()) : nullptr;
}

QString DrawnTextAccessible::text(QAccessible::Text kind) const {
  const std::optional<DrawnText> drawn = current();
  if (!drawn) return {};
  switch (kind) {
    case QAccessible::Name:
      return drawn->name;
    case QAccessible::Description:
      return drawn->description;
    default:
      return {};
  }
}

QRect DrawnTextAccessible::rect() const {
  const std::optional<DrawnText> drawn = current();
  if (!drawn) return {};
  const QRect local = drawn->frame.toAlignedRect();
  return QRect(owner_->mapToGlobal(local.topLeft()), local.size());
}

QAccessible::Role DrawnTextAccessible::role() const {
  const std::optional<DrawnText> drawn = current();
  return drawn ? drawn->role : QAccessible::NoRole;
}

QAccessible::State DrawnTextAccessible::state() const {
  QAccessible::State state;
  if (!owner_ || !owner_->isVisible()) state.invisible = true;
  return state;
}

}  // namespace brimly
