#include "framework/controls/check_box.h"

#include "framework/events/run_loop.h"

namespace framework {

namespace {

constexpr PropertyInfo kProperties[] = {
    Declare<&CheckBox::Caption>("Caption"),
    Declare<&CheckBox::State>("State"),
    Declare<Setter<CheckBox, bool>{&CheckBox::Value}>("Value"),
};

constexpr EventInfo kEvents[] = {{CheckBox::kAction, "( CheckBox )"},
                                 {CheckBox::kOpen, "( CheckBox )"}};

}  // namespace

constinit const ClassInfo CheckBox::kClass{"CheckBox", &RectControl::kClass, kProperties, kEvents};

bool CheckBox::Value() const {
  _UITrap();
  return State() == CheckedStates::Checked;
}

void CheckBox::Value(bool value) {
  _UITrap();
  State(value ? CheckedStates::Checked : CheckedStates::Unchecked);
}

void CheckBox::Toggle() {
  _RunEvent([this] {
    Value(!Value());
    _Raise(kAction);
  });
}

}  // namespace framework
