#include "framework/controls/popup_menu.h"

#include "framework/events/run_loop.h"
#include "framework/values/text.h"

namespace framework {

namespace {

constexpr PropertyInfo kProperties[] = {
    Declare<&PopupMenu::InitialValue>("InitialValue"),
    Declare<&PopupMenu::ListIndex>("ListIndex"),
};

constexpr EventInfo kEvents[] = {{PopupMenu::kChange, "( PopupMenu )"}};

}  // namespace

constinit const ClassInfo PopupMenu::kClass{"PopupMenu", &RectControl::kClass, kProperties,
                                            kEvents};

Array<String> PopupMenu::Rows() const {
  if (InitialValue().View().empty()) return CreateArray<String>(-1);
  return Split(InitialValue(), "\r");
}

void PopupMenu::Choose(std::int64_t row) {
  _RunEvent([this, row] {
    const std::int64_t last = Rows().LastIndex();
    if (row < 0 || row > last) RaiseOutOfBoundsException(row, last);
    if (row == ListIndex()) return;
    ListIndex(row);
    _Raise(kChange);
  });
}

}  // namespace framework
