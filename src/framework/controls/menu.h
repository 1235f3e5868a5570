#pragma once

#include <string_view>

#include "framework/controls/component.h"
#include "framework/values/array.h"
#include "framework/values/string.h"

namespace framework {

/// An entry of a menu, or a menu's title with the entries below it. In Text an ampersand marks the
/// accelerator letter, and a lone hyphen is a separator.
class MenuItem : public Mirrored {
 public:
  virtual void Constructor();

  Property<String, Guard::UI> Name{*this, Change::Look};
  Property<String, Guard::UI> Text{*this, Change::Caption};
  /// "Cmd+Q": the platform's command key with a letter; empty for none.
  Property<String, Guard::UI> KeyboardShortcut{*this, Change::Look};
  /// Whether the framework enables the item by its own rule: a title when it has entries, an entry
  /// when something handles its Action.
  Property<bool, Guard::UI> AutoEnable{*this, Change::Look};
  Property<bool, Guard::UI> Visible{*this, Change::Visible};
  Property<bool, Guard::UI> Enabled{*this, Change::Look, true};

  /// Adds an item below this one, at the end. Raises NilObjectException for a nil item and
  /// MenuHasParentException for one that stands in a menu already, for this one itself and for one
  /// that this one stands below.
  void Append(const Ref<MenuItem>& item);
  /// The direct child with that Name; nil when there is none.
  Ref<MenuItem> Child(std::string_view name) const;
  /// The item with that Name anywhere below this one; nil when there is none.
  Ref<MenuItem> _Lookup(std::string_view name) const;
  /// The direct children, in order.
  Array<Ref<MenuItem>> _Children() const { return children_; }

  /// Disables every item below this one, but not this one itself.
  void _DisableEntirely();
  /// Enables this item if its AutoEnable rule says so, then raises its EnableMenu; and those below
  /// it likewise.
  void _SelfEnable();

  /// The user's input: raises Action, if the item is enabled.
  void Choose();

 protected:
  /// The Action event; true when it was handled. An item without a handler has nothing to do.
  virtual bool Action() { return false; }
  virtual bool HandlesAction() const { return false; }
  /// The EnableMenu event: the item may be shown soon, and its handler has the last word on
  /// Enabled.
  virtual void EnableMenu() {}

 private:
  /// Whether an item is this one or stands below it.
  bool Holds(const MenuItem& item) const;

  bool has_parent_ = false;
  Array<Ref<MenuItem>> children_ = CreateArray<Ref<MenuItem>>(-1);
};

/// The root of a menu tree; its children are the titles.
class MenuBar : public MenuItem {};

/// The entry that ends the application.
class QuitMenuItem : public MenuItem {
 protected:
  bool Action() override;
  bool HandlesAction() const override { return true; }
};

/// Ends the run loop once the running event is over; true.
bool QuitMenuAction(const Ref<MenuItem>& item);

}  // namespace framework
