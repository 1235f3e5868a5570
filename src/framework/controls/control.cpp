#include "framework/controls/control.h"

#include <charconv>

#include "framework/controls/window.h"
#include "framework/values/failures.h"

namespace framework {

namespace {

constexpr PropertyInfo kControlProperties[] = {
    Declare<&Control::Name>("Name"),
    Declare<Setter<Control, std::int64_t>{&Control::Index}>("Index"),
};

constexpr PropertyInfo kRectControlProperties[] = {
    Declare<&RectControl::Left>("Left"),
    Declare<&RectControl::Top>("Top"),
    Declare<&RectControl::Width>("Width"),
    Declare<&RectControl::Height>("Height"),
    Declare<&RectControl::LockLeft>("LockLeft"),
    Declare<&RectControl::LockTop>("LockTop"),
    Declare<&RectControl::LockRight>("LockRight"),
    Declare<&RectControl::LockBottom>("LockBottom"),
    Declare<&RectControl::TabIndex>("TabIndex"),
    Declare<&RectControl::TabPanelIndex>("TabPanelIndex"),
    Declare<&RectControl::TabStop>("TabStop"),
    Declare<&RectControl::AutoDeactivate>("AutoDeactivate"),
    Declare<&RectControl::Enabled>("Enabled"),
    Declare<&RectControl::HelpTag>("HelpTag"),
    Declare<&RectControl::Transparent>("Transparent"),
    Declare<&RectControl::Visible>("Visible"),
    Declare<&RectControl::Bold>("Bold"),
    Declare<&RectControl::Italic>("Italic"),
    Declare<&RectControl::Underline>("Underline"),
    Declare<&RectControl::TextFont>("TextFont"),
    Declare<&RectControl::TextSize>("TextSize"),
    Declare<&RectControl::TextUnit>("TextUnit"),
    Declare<&RectControl::DataSource>("DataSource"),
    Declare<&RectControl::DataField>("DataField"),
    Declare<Setter<RectControl, const String&>{&RectControl::InitialParent}>("InitialParent"),
};

}  // namespace

constinit const ClassInfo Control::kClass{"Control", nullptr, kControlProperties, {}};
constinit const ClassInfo RectControl::kClass{
    "RectControl", &Control::kClass, kRectControlProperties, {}};

void Control::Index(std::int64_t value) {
  _UITrap();
  index_ = value;
}

Ref<framework::Window> Control::Window() const {
  _UITrap();
  if (!window_) return nullptr;
  return RuntimeCheckCast<framework::Window>(window_->Value());
}

void Control::_BelongTo(framework::Window& window) { window_ = RuntimeNewObject<WeakRef>(&window); }

void Control::_Raise(std::int64_t event) {
  const auto found = handlers_.find(event);
  if (found == handlers_.end()) return;
  const Ref<Delegate> handler = found->second;
  handler->Invoke(Ref<Control>(this));
}

void RectControl::Constructor() {
  if (const Ref<framework::Window> window = Window()) window->_Finish(Ref<RectControl>(this));
}

void RectControl::Parent(const Ref<RectControl>& value) {
  for (Ref<RectControl> above = value; above; above = above->Parent()) {
    if (above.Get() == this) RuntimeRaiseException(InvalidParentException(Name()));
  }
  parent_(value);
}

void RectControl::InitialParent(const String& value) {
  const std::string_view text = value.View();
  if (text.empty()) {
    initial_parent_ = value;
    return Parent(nullptr);
  }
  const auto dollar = text.find('$');
  std::int64_t index{};
  const char* const end = text.data() + text.size();
  const char* const digits = dollar == text.npos ? end : text.data() + dollar + 1;
  const auto read = std::from_chars(digits, end, index);
  const bool named = digits != end && read.ptr == end && read.ec == std::errc() && index >= 0;
  const Ref<Control> parent =
      named ? Window()->_ControlByNameIndex(text.substr(0, dollar), index) : nullptr;
  if (!parent) RuntimeRaiseException(InvalidParentException(value));
  Parent(RuntimeCheckCast<RectControl>(parent));
  initial_parent_ = value;
}

void RuntimeAddEventHandler(const Ref<Control>& control, std::int64_t event,
                            const Ref<Delegate>& handler) {
  const EventInfo* const info = control->_Class().FindEvent(event);
  if (info == nullptr) RuntimeRaiseException(FunctionNotFoundException(control->_Class().name));
  if (handler->Signature() != info->signature) {
    RuntimeRaiseException(TypeMismatchException(handler->Signature()));
  }
  control->_Attach(event, handler);
}

}  // namespace framework
