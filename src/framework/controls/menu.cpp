#include "framework/controls/menu.h"

#include <algorithm>

#include "framework/events/run_loop.h"
#include "framework/events/toolkit.h"
#include "framework/values/failures.h"
#include "framework/values/text.h"

namespace framework {

void MenuItem::Constructor() { _UITrap(); }

void MenuItem::Append(const Ref<MenuItem>& item) {
  _UITrap();
  if (item->has_parent_ || item->Holds(*this))
    RuntimeRaiseException(MenuHasParentException(item->Name()));
  item->has_parent_ = true;
  children_.Append(item);
}

bool MenuItem::Holds(const MenuItem& item) const {
  const auto items = children_._Items();
  return this == &item || std::any_of(items.begin(), items.end(), [&](const Ref<MenuItem>& child) {
           return child->Holds(item);
         });
}

Ref<MenuItem> MenuItem::Child(std::string_view name) const {
  _UITrap();
  for (const Ref<MenuItem>& child : children_._Items()) {
    if (RuntimeStringCompare(child->Name(), name) == 0) return child;
  }
  return nullptr;
}

Ref<MenuItem> MenuItem::_Lookup(std::string_view name) const {
  if (Ref<MenuItem> child = Child(name)) return child;
  for (const Ref<MenuItem>& child : children_._Items()) {
    if (Ref<MenuItem> found = child->_Lookup(name)) return found;
  }
  return nullptr;
}

void MenuItem::_DisableEntirely() {
  _UITrap();
  for (const Ref<MenuItem>& child : children_._Items()) {
    child->Enabled(false);
    child->_DisableEntirely();
  }
}

void MenuItem::_SelfEnable() {
  if (AutoEnable() && (HandlesAction() || children_.LastIndex() >= 0)) Enabled(true);
  EnableMenu();
  // Not by range: a handler of the program's may add items.
  for (std::int64_t i = 0; i <= children_.LastIndex(); ++i) children_[i]->_SelfEnable();
}

void MenuItem::Choose() {
  _RunEvent([this] {
    if (Enabled()) Action();
  });
}

bool QuitMenuItem::Action() { return QuitMenuAction(Ref<MenuItem>(this)); }

bool QuitMenuAction(const Ref<MenuItem>&) {
  Toolkit::Current().Quit();
  return true;
}

}  // namespace framework
