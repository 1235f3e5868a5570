#include "framework/controls/window.h"

#include <algorithm>

#include "framework/events/run_loop.h"
#include "framework/events/toolkit.h"
#include "framework/values/text.h"

namespace framework {

namespace {

constexpr PropertyInfo kProperties[] = {
    Declare<&Window::Width>("Width"),
    Declare<&Window::Height>("Height"),
    Declare<&Window::MinWidth>("MinWidth"),
    Declare<&Window::MinHeight>("MinHeight"),
    Declare<&Window::MaxWidth>("MaxWidth"),
    Declare<&Window::MaxHeight>("MaxHeight"),
    Declare<&Window::Frame>("Frame"),
    Declare<&Window::Title>("Title"),
    Declare<&Window::CloseButton>("CloseButton"),
    Declare<&Window::Resizeable>("Resizeable"),
    Declare<&Window::MaximizeButton>("MaximizeButton"),
    Declare<&Window::MinimizeButton>("MinimizeButton"),
    Declare<&Window::FullScreenButton>("FullScreenButton"),
    Declare<&Window::Composite>("Composite"),
    Declare<&Window::MacProcId>("MacProcId"),
    Declare<&Window::FullScreen>("FullScreen"),
    Declare<&Window::LiveResize>("LiveResize"),
    Declare<&Window::Placement>("Placement"),
    Declare<&Window::Visible>("Visible"),
    Declare<&Window::HasBackColor>("HasBackColor"),
    Declare<&Window::BackColor>("BackColor"),
    Declare<&Window::MenuBarVisible>("MenuBarVisible"),
};

/// The windows that have been made, in that order; it keeps them alive. It has no destructor: a
/// toolkit may end the process during the run, and they must not be deleted then.
std::vector<Ref<Window>>& Windows() {
  static auto& windows = *new std::vector<Ref<Window>>;
  return windows;
}

}  // namespace

constinit const ClassInfo Window::kClass{"Window", nullptr, kProperties, {}};

Ref<framework::MenuBar> Window::MenuBar() const {
  _UITrap();
  return menu_bar_;
}

void Window::MenuBar(const Ref<framework::MenuBar>& bar) {
  _UITrap();
  menu_bar_ = bar;
}

void Window::Constructor() {
  _UITrap();
  const Ref<Window> self(this);
  Layout();
  CreateControls();
  Windows().push_back(self);
  made_ = true;
  for (const Ref<Control>& control : _Controls()) {
    RunLoopApplication::_CallFunctionWithExceptionHandling(
        [&] { control->_Raise(Control::kOpen); });
  }
  RunLoopApplication::_CallFunctionWithExceptionHandling([this] { Event_Open(); });
  if (Visible()) peer_ = Toolkit::Current().Show(self);
}

void Window::_AddControl(const String& name, const Ref<Control>& control) {
  _UITrap();
  if (!control) RaiseNilObjectException("Control");
  registry_.push_back({name, control});
}

Ref<Control> Window::_ControlByName(std::string_view name) const {
  return _ControlByNameIndex(name, Control::kNoIndex);
}

Ref<Control> Window::_ControlByNameIndex(std::string_view name, std::int64_t index) const {
  const auto found = std::find_if(registry_.begin(), registry_.end(), [&](const Entry& entry) {
    return entry.control->Index() == index && RuntimeStringCompare(entry.name, name) == 0;
  });
  return found == registry_.end() ? nullptr : found->control;
}

std::vector<Ref<Control>> Window::_Controls() const {
  std::vector<Ref<Control>> controls;
  for (const Entry& entry : registry_) controls.push_back(entry.control);
  return controls;
}

void Window::_Finish(const Ref<RectControl>& control) {
  if (!made_) return;
  RunLoopApplication::_CallFunctionWithExceptionHandling([&] { control->_Raise(Control::kOpen); });
  if (peer_ != nullptr) peer_->Added(control);
}

void Window::Close() {
  _RunEvent([this] {
    closed_ = true;
    if (std::all_of(Windows().begin(), Windows().end(),
                    [](const auto& window) { return window->_Closed(); })) {
      Toolkit::Current().Quit();
    }
  });
}

Ref<Window> _GetImplicitWindow(std::string_view class_name) {
  const auto found =
      std::find_if(Windows().begin(), Windows().end(), [&](const Ref<Window>& window) {
        return !window->_Closed() && window->_Class().name == class_name;
      });
  return found == Windows().end() ? nullptr : *found;
}

void _ReleaseWindows() { Windows().clear(); }

}  // namespace framework
