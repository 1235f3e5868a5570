#pragma once

#include "framework/controls/control.h"

namespace framework {

/// A box to tick. Only the user's tick raises Action; writing a property raises nothing.
class CheckBox : public RectControl {
 public:
  static constexpr std::int64_t kAction = 15;  ///< event: the user has ticked or unticked the box

  const ClassInfo& _Class() const override { return kClass; }
  static const ClassInfo kClass;

  Property<String, Guard::UI> Caption{*this, Change::Caption};
  Property<CheckedStates> State{*this, Change::Value};
  /// True when ticked. The same state as State, which counts a half-ticked box as not ticked.
  bool Value() const;
  void Value(bool value);

  /// The user's input: turns the tick over, then raises Action.
  void Toggle();
};

}  // namespace framework
