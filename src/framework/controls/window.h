#pragma once

#include <memory>
#include <vector>

#include "framework/controls/control.h"
#include "framework/controls/menu.h"

namespace framework {

/// A window's counterpart in a toolkit: the native window with the peers of its controls.
class WindowPeer {
 public:
  virtual ~WindowPeer() = default;
  /// A control was made when the window stood on the screen already.
  virtual void Added(const Ref<RectControl>& control) = 0;
};

/// A window with its controls. It is made whole in memory, opened, and only then shown; the
/// framework keeps it alive from its making to the end of the run. Nothing in it moves when it is
/// resized.
class Window : public Component {
 public:
  const ClassInfo& _Class() const override { return kClass; }
  static const ClassInfo kClass;

  Property<std::int64_t> Width{*this, Change::Frame};  ///< of the content area, in points
  Property<std::int64_t> Height{*this, Change::Frame};
  Property<std::int64_t> MinWidth{*this, Change::Frame};
  Property<std::int64_t> MinHeight{*this, Change::Frame};
  Property<std::int64_t> MaxWidth{*this, Change::Frame};
  Property<std::int64_t> MaxHeight{*this, Change::Frame};
  Property<std::int64_t> Frame{*this, Change::Look};
  Property<String> Title{*this, Change::Caption};
  Property<bool> CloseButton{*this, Change::Look};
  Property<bool> Resizeable{*this, Change::Look};
  Property<bool> MaximizeButton{*this, Change::Look};
  Property<bool> MinimizeButton{*this, Change::Look};
  Property<bool> FullScreenButton{*this, Change::Look};
  Property<bool> Composite{*this, Change::Look};
  Property<std::int64_t> MacProcId{*this, Change::Look};
  Property<bool> FullScreen{*this, Change::Look};
  Property<bool> LiveResize{*this, Change::Look};
  Property<std::int64_t> Placement{*this, Change::Look};
  Property<bool> Visible{*this, Change::Visible};
  Property<bool> HasBackColor{*this, Change::Look};
  Property<Color> BackColor{*this, Change::Look};
  Property<bool> MenuBarVisible{*this, Change::Look};

  Ref<framework::MenuBar> MenuBar() const;
  void MenuBar(const Ref<framework::MenuBar>& bar);

  /// Makes the window: Layout, CreateControls, the Open events of the controls in the order of
  /// their creation, the window's own Open; then shows it if it is Visible. A failure in the first
  /// two abandons the window and goes on to the caller. One in an Open event is reported, and the
  /// window opens all the same.
  virtual void Constructor();

  /// A new control that belongs to this window. Its Constructor is the caller's next call.
  template <class C, class... Arguments>
  Ref<C> __New(Arguments&&... arguments) {
    auto control = RuntimeNewObject<C>(std::forward<Arguments>(arguments)...);
    control->_BelongTo(*this);
    return control;
  }
  /// Files the control under the name and its Index. The first one filed under both answers to
  /// them. Raises NilObjectException for a nil control.
  void _AddControl(const String& name, const Ref<Control>& control);
  /// The control of that name outside every control set; nil when there is none.
  Ref<Control> _ControlByName(std::string_view name) const;
  /// The member of that control set; nil when there is none.
  Ref<Control> _ControlByNameIndex(std::string_view name, std::int64_t index) const;
  /// All controls, in the order of their filing.
  std::vector<Ref<Control>> _Controls() const;

  /// The last step of a control's making: in a window that is opening or open, raises its Open; in
  /// one that is shown, shows it.
  void _Finish(const Ref<RectControl>& control);

  /// The user's input: closes the window. With the last one the application ends.
  void Close();
  bool _Closed() const { return closed_; }

 protected:
  // The events that a window implements itself.
  virtual void Layout() {}
  virtual void CreateControls() {}
  virtual void Event_Open() {}

 private:
  struct Entry {
    String name;
    Ref<Control> control;
  };

  std::vector<Entry> registry_;
  Ref<framework::MenuBar> menu_bar_;
  std::unique_ptr<WindowPeer> peer_;
  bool made_ = false;  ///< its own controls are made
  bool closed_ = false;
};

/// The live window of the class with that name; nil when none has been made or it was closed.
Ref<Window> _GetImplicitWindow(std::string_view class_name);

/// Releases all windows.
void _ReleaseWindows();

}  // namespace framework
