#pragma once

#include <cstdint>

#include "framework/controls/class_info.h"
#include "framework/events/ui_trap.h"
#include "framework/values/object.h"
#include "framework/values/string.h"

namespace framework {

/// What of a control has changed, for its peer to read again.
enum class Change { Frame, Look, Caption, Text, Visible, Value, ListIndex, Rows };

/// A control's counterpart in a toolkit. It shows what the control holds and decides nothing.
class Peer {
 public:
  virtual ~Peer() = default;
  virtual void Changed(Change what) = 0;
};

/// Base of what a toolkit may mirror on a screen. It holds its whole state itself and needs no
/// screen.
class Mirrored : public Object {
 public:
  /// The toolkit owns the peer, and sets nullptr before it deletes it.
  void _SetPeer(Peer* peer) { peer_ = peer; }
  /// Tells the peer, if there is one.
  void _Changed(Change what) const {
    if (peer_ != nullptr) peer_->Changed(what);
  }

 private:
  Peer* peer_ = nullptr;
};

/// Base of what a description block can set the properties of: the controls and the window.
class Component : public Mirrored {
 public:
  /// The properties and events of the object's own class.
  virtual const ClassInfo& _Class() const = 0;
};

/// Whether the user-interface guard stands before a property.
enum class Guard { None, UI };

/// One property: box.Left() reads it; box.Left(30) stores it and, if that made a difference, tells
/// the peer.
template <class T, Guard kGuard = Guard::None>
class Property {
 public:
  Property(Mirrored& owner, Change what, T initial = {})
      : owner_(owner), what_(what), value_(std::move(initial)) {}

  const T& operator()() const {
    if constexpr (kGuard == Guard::UI) _UITrap();
    return value_;
  }
  void operator()(T value) {
    if constexpr (kGuard == Guard::UI) _UITrap();
    if (Same(value_, value)) return;
    value_ = std::move(value);
    owner_._Changed(what_);
  }

 private:
  Mirrored& owner_;
  Change what_;
  T value_;
};

}  // namespace framework
