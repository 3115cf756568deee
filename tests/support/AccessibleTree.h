#pragma once

#include <QAccessible>
#include <functional>
#include <string>
#include <vector>

class QObject;

namespace brimly {

// An object as an assistive technology reads it through QAccessible, with everything under it.
struct AccessibleNode {
  QAccessible::Role role = QAccessible::NoRole;
  std::string name;
  std::string description;
  QAccessible::State state;
  std::vector<AccessibleNode> children;

  bool showing() const { return !state.invisible; }
};

// What the interface of `object` says, read all the way down.
AccessibleNode readAccessible(QObject& object);
AccessibleNode readAccessible(QAccessibleInterface& interface);

// Every node under `root` (itself included), depth first, that `wanted` accepts.
std::vector<const AccessibleNode*> findAccessible(
    const AccessibleNode& root, const std::function<bool(const AccessibleNode&)>& wanted);
// The names, in reading order, of the nodes of `role` under `root`; showing ones only, unless
// `hiddenToo`.
std::vector<std::string> accessibleNames(const AccessibleNode& root, QAccessible::Role role,
                                         bool hiddenToo = false);
// The first node of `role` named `name` under `root`; null when there is none.
const AccessibleNode* findAccessible(const AccessibleNode& root, QAccessible::Role role,
                                     const std::string& name);
// The nodes found point into `root`, which must outlive them.
std::vector<const AccessibleNode*> findAccessible(
    AccessibleNode&& root, const std::function<bool(const AccessibleNode&)>& wanted) = delete;
const AccessibleNode* findAccessible(AccessibleNode&& root, QAccessible::Role role,
                                     const std::string& name) = delete;
// The tree as indented lines, for a failing test's message.
std::string describeAccessible(const AccessibleNode& root);

}  // namespace brimly
