#include "framework/controls/reading.h"

#include <algorithm>
#include <string>
#include <utility>

#include "framework/controls/listbox.h"
#include "framework/values/text.h"

namespace framework {

namespace {

/// The controls of a class, in the order in which the eye meets them.
template <class C>
std::vector<Ref<C>> InOrder(const Window& window) {
  std::vector<Ref<C>> found;
  for (const Ref<Control>& control : window._Controls()) {
    if (auto* const one = dynamic_cast<C*>(control.Get())) found.push_back(Ref<C>(one));
  }
  std::stable_sort(found.begin(), found.end(), [](const Ref<C>& a, const Ref<C>& b) {
    return std::pair(a->Left(), a->Top()) < std::pair(b->Left(), b->Top());
  });
  return found;
}

std::int64_t Right(const RectControl& control) { return control.Left() + control.Width(); }
std::int64_t Bottom(const RectControl& control) { return control.Top() + control.Height(); }

}  // namespace

Ref<Label> _TitleOf(const RectControl& control) {
  Ref<Label> title;
  for (const Ref<Label>& label : InOrder<Label>(*control.Window())) {
    if (!label->Visible() || Bottom(*label) > control.Top()) continue;
    if (label->Left() >= Right(control) || Right(*label) <= control.Left()) continue;
    if (!title || label->Top() > title->Top()) title = label;
  }
  return title;
}

Ref<RectControl> _RemarkedBy(const Label& label) {
  const std::int64_t middle = label.Top() + label.Height() / 2;
  for (const Ref<RectControl>& control : InOrder<RectControl>(*label.Window())) {
    const bool level = control->Top() <= middle && Bottom(*control) > middle;
    if (level && control->Left() == Right(label)) return control;
  }
  return nullptr;
}

std::vector<Ref<RectControl>> _TabOrder(const Window& window) {
  auto controls = InOrder<RectControl>(window);
  const auto is_label = [](const Ref<RectControl>& control) {
    return dynamic_cast<const Label*>(control.Get()) != nullptr;
  };
  controls.erase(std::remove_if(controls.begin(), controls.end(), is_label), controls.end());
  return controls;
}

Ref<RectControl> _NextInSet(const RectControl& control, int step) {
  if (control.Index() == Control::kNoIndex) return nullptr;
  auto set = InOrder<RectControl>(*control.Window());
  const auto is_other = [&](const Ref<RectControl>& other) {
    return !Same(other->Name(), control.Name()) || other->Index() == Control::kNoIndex;
  };
  set.erase(std::remove_if(set.begin(), set.end(), is_other), set.end());
  const auto here = std::find_if(
      set.begin(), set.end(), [&](const Ref<RectControl>& each) { return each.Get() == &control; });
  const auto next = here - set.begin() + step;
  const bool there = next >= 0 && next < static_cast<std::ptrdiff_t>(set.size());
  return there ? set[static_cast<std::size_t>(next)] : nullptr;
}

String _Tally(const Window& window) {
  std::string tally;
  for (const Ref<Listbox>& list : InOrder<Listbox>(window)) {
    const Ref<Label> title = _TitleOf(*list);
    if (!list->Visible() || !title) continue;
    if (!tally.empty()) tally += ", ";
    tally.append(title->Text()).append(" ").append(Str(list->LastIndex() + 1));
  }
  return tally;
}

}  // namespace framework
