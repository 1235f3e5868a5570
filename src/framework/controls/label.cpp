#include "framework/controls/label.h"

namespace framework {

namespace {

constexpr PropertyInfo kProperties[] = {
    Declare<&Label::MultiLine>("MultiLine"), Declare<&Label::Selectable>("Selectable"),
    Declare<&Label::Text>("Text"),           Declare<&Label::TextAlign>("TextAlign"),
    Declare<&Label::TextColor>("TextColor"),
};

constexpr EventInfo kEvents[] = {{Label::kOpen, "( Label )"}};

}  // namespace

constinit const ClassInfo Label::kClass{"Label", &RectControl::kClass, kProperties, kEvents};

}  // namespace framework
