#include "framework/controls/reading.h"

#include "framework/controls/check_box.h"
#include "framework/controls/listbox.h"
#include "support/running.h"

namespace {

using namespace framework;
using testing::ElementsAre;

struct Frame {
  int left, top, width, height;
};

void Move(RectControl& control, const Frame& to) {
  control.Left(to.left);
  control.Top(to.top);
  control.Width(to.width);
  control.Height(to.height);
}

class Reading : public support::Running {
 protected:
  template <class C>
  Ref<C> Put(const char* name, const Frame& frame, std::int64_t index = Control::kNoIndex) {
    auto control = window_->__New<C>();
    control->Name(name);
    control->Index(index);
    control->Visible(true);
    Move(*control, frame);
    window_->_AddControl(name, control);
    return control;
  }

  Ref<framework::Window> window_ = RuntimeNewObject<framework::Window>();
};

TEST_F(Reading, TakesForATitleTheLowestVisibleLabelAbove) {
  const auto list = Put<Listbox>("list", {100, 100, 50, 20});
  const auto label = Put<Label>("label", {});
  const std::pair<Frame, bool> places[] = {
      {{100, 80, 10, 20}, true}, {{100, 81, 10, 20}, false}, {{50, 80, 51, 20}, true},
      {{50, 80, 50, 20}, false}, {{150, 80, 10, 20}, false}, {{149, 80, 10, 20}, true},
  };
  for (const auto& [place, is_title] : places) {
    Move(*label, place);
    EXPECT_EQ(_TitleOf(*list) == label, is_title) << place.left << ", " << place.top;
  }
  Put<Label>("higher", {100, 60, 10, 20});
  const auto behind = Put<Label>("as low, behind it", {149, 80, 20, 20});
  Move(*label, {140, 80, 10, 20});
  EXPECT_EQ(_TitleOf(*list), label);
  label->Visible(false);
  EXPECT_EQ(_TitleOf(*list), behind);
}

TEST_F(Reading, TakesForARemarkTheLabelThatTouchesAControlInItsRow) {
  const auto label = Put<Label>("label", {0, 100, 10, 20});
  const auto box = Put<CheckBox>("box", {});
  const std::pair<Frame, bool> places[] = {
      {{10, 110, 9, 1}, true}, {{10, 109, 9, 1}, false}, {{10, 111, 9, 9}, false},
      {{9, 105, 9, 9}, false}, {{11, 105, 9, 9}, false},
  };
  for (const auto& [place, is_remark] : places) {
    Move(*box, place);
    EXPECT_EQ(_RemarkedBy(*label) == box, is_remark) << place.left << ", " << place.top;
  }
}

TEST_F(Reading, GoesDownOneColumnAndThenDownTheNext) {
  const auto third = Put<CheckBox>("note", {50, 0, 9, 9}, 0);
  const auto second = Put<CheckBox>("note", {0, 40, 9, 9}, 1);
  const auto first = Put<CheckBox>("note", {0, 0, 9, 9}, 2);
  const auto alone = Put<CheckBox>("note", {0, 10, 9, 9});
  const auto other = Put<CheckBox>("other, in the same place", {0, 10, 9, 9}, 1);
  Put<Label>("label", {0, 30, 9, 9});
  EXPECT_THAT(_TabOrder(*window_), ElementsAre(first, alone, other, second, third));
  EXPECT_EQ(_NextInSet(*first, 1), second);
  EXPECT_EQ(_NextInSet(*second, 1), third);
  EXPECT_EQ(_NextInSet(*second, -1), first);
  EXPECT_FALSE(_NextInSet(*first, -1));
  EXPECT_FALSE(_NextInSet(*third, 1));
  EXPECT_FALSE(_NextInSet(*alone, 1));
}

}  // namespace
