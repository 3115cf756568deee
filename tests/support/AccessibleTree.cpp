#include "AccessibleTree.h"

#include <QObject>
#include <sstream>

namespace brimly {

AccessibleNode readAccessible(QAccessibleInterface& interface) {
  AccessibleNode node{interface.role(),
                      interface.text(QAccessible::Name).toStdString(),
                      interface.text(QAccessible::Description).toStdString(),
                      interface.state(),
                      {}};
  for (int i = 0; i < interface.childCount(); ++i) {
    if (QAccessibleInterface* child = interface.child(i)) {
      node.children.push_back(readAccessible(*child));
    }
  }
  return node;
}

AccessibleNode readAccessible(QObject& object) {
  QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&object);
  return interface != nullptr ? readAccessible(*interface) : AccessibleNode{};
}

namespace {

void collect(const AccessibleNode& node, const std::function<bool(const AccessibleNode&)>& wanted,
             std::vector<const AccessibleNode*>& found) {
  if (wanted(node)) found.push_back(&node);
  for (const AccessibleNode& child : node.children)
    collect(child, wanted, found);
}

void describe(const AccessibleNode& node, int depth, std::ostringstream& out) {
  out << std::string(static_cast<std::size_t>(depth) * 2, ' ') << "role 0x" << std::hex << node.role
      << std::dec << " \"" << node.name << "\"";
  if (!node.showing()) out << " (hidden)";
  if (node.state.focused) out << " (focused)";
  if (!node.description.empty()) out << " - " << node.description;
  out << "\n";
  for (const AccessibleNode& child : node.children)
    describe(child, depth + 1, out);
}

}  // namespace

std::vector<const AccessibleNode*> findAccessible(
    const AccessibleNode& root, const std::function<bool(const AccessibleNode&)>& wanted) {
  std::vector<const AccessibleNode*> found;
  collect(root, wanted, found);
  return found;
}

std::vector<std::string> accessibleNames(const AccessibleNode& root, QAccessible::Role role,
                                         bool hiddenToo) {
  std::vector<std::string> names;
  for (const AccessibleNode* node : findAccessible(root, [&](const AccessibleNode& candidate) {
         return candidate.role == role && (hiddenToo || candidate.showing());
       })) {
    names.push_back(node->name);
  }
  return names;
}

const AccessibleNode* findAccessible(const AccessibleNode& root, QAccessible::Role role,
                                     const std::string& name) {
  const std::vector<const AccessibleNode*> found =
      findAccessible(root, [&](const AccessibleNode& candidate) {
        return candidate.role == role && candidate.name == name;
      });
  return found.empty() ? nullptr : found.front();
}

std::string describeAccessible(const AccessibleNode& root) {
  std::ostringstream out;
  describe(root, 0, out);
  return out.str();
}

}  // namespace brimly
