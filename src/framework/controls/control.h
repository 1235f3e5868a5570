#pragma once

#include <cstdint>
#include <limits>
#include <map>

#include "framework/controls/block.h"
#include "framework/controls/component.h"
#include "framework/values/delegate.h"
#include "framework/values/weak_ref.h"

namespace framework {

class Window;

/// Anything placed in a window. It belongs to one window all its life and keeps the handlers of its
/// events. Writing a property raises none: what does is the user's input, the window's opening,
/// and a list that loses its chosen row.
class Control : public Component {
 public:
  /// The Index of a control outside every control set.
  static constexpr std::int64_t kNoIndex = std::numeric_limits<std::int32_t>::min();
  static constexpr std::int64_t kOpen = 2;  ///< event: the window has been made

  const ClassInfo& _Class() const override { return kClass; }
  static const ClassInfo kClass;

  Property<String> Name{*this, Change::Look};
  /// The position in the control set, from 0.
  std::int64_t Index() const { return index_; }
  void Index(std::int64_t value);
  /// The window that the control was made for; nil once that has gone.
  Ref<framework::Window> Window() const;

  void _BelongTo(framework::Window& window);
  /// Makes the handler the one receiver of the event.
  void _Attach(std::int64_t event, const Ref<Delegate>& handler) { handlers_[event] = handler; }
  /// Calls the event's handler, if there is one. What the handler raises goes on to the caller.
  void _Raise(std::int64_t event);

 private:
  std::int64_t index_ = kNoIndex;
  Ref<WeakRef> window_;
  std::map<std::int64_t, Ref<Delegate>> handlers_;
};

/// A control with a rectangle, in points from the top left of the window's content area.
class RectControl : public Control {
 public:
  const ClassInfo& _Class() const override { return kClass; }
  static const ClassInfo kClass;

  /// Finishes a control that the window's __New made. In a window that has made its own controls it
  /// gets its Open event at once, and in one that is shown it comes on the screen.
  virtual void Constructor();

  Property<std::int64_t> Left{*this, Change::Frame};
  Property<std::int64_t> Top{*this, Change::Frame};
  Property<std::int64_t> Width{*this, Change::Frame};
  Property<std::int64_t> Height{*this, Change::Frame};
  Property<bool> LockLeft{*this, Change::Frame};
  Property<bool> LockTop{*this, Change::Frame};
  Property<bool> LockRight{*this, Change::Frame};
  Property<bool> LockBottom{*this, Change::Frame};
  Property<std::int64_t> TabIndex{*this, Change::Look};
  Property<std::int64_t> TabPanelIndex{*this, Change::Look};
  Property<bool> TabStop{*this, Change::Look};
  Property<bool> AutoDeactivate{*this, Change::Look};
  Property<bool> Enabled{*this, Change::Look};
  Property<String> HelpTag{*this, Change::Look};
  Property<bool> Transparent{*this, Change::Look};
  Property<bool, Guard::UI> Visible{*this, Change::Visible};
  Property<bool> Bold{*this, Change::Look};
  Property<bool> Italic{*this, Change::Look};
  Property<bool> Underline{*this, Change::Look};
  Property<String> TextFont{*this, Change::Look};  ///< "System" is the platform's
  Property<float> TextSize{*this, Change::Look};   ///< pixels; 0 is the platform's size
  Property<FontUnits> TextUnit{*this, Change::Look};
  Property<String> DataSource{*this, Change::Look};
  Property<String> DataField{*this, Change::Look};
  /// The container; nil when the control lies directly on the window. A control is placed by the
  /// window's measures and shown by its own Visible, whatever its container does. Raises
  /// InvalidParentException for the control itself and for one that it contains.
  Ref<RectControl> Parent() const { return parent_(); }
  void Parent(const Ref<RectControl>& value);

  /// The container at first: empty for none, else a set's name, "$" and an index ("cbScale$2").
  /// Setting it sets Parent; raises InvalidParentException when the window has no such control,
  /// or one that cannot be the parent.
  const String& InitialParent() const { return initial_parent_; }
  void InitialParent(const String& value);

 private:
  Property<Ref<RectControl>, Guard::UI> parent_{*this, Change::Frame};
  String initial_parent_;
};

/// Attaches a handler to an event of a control. Raises NilObjectException for a nil control or
/// handler, FunctionNotFoundException when the control's class has no such event, and
/// TypeMismatchException when the handler takes another class of control than the event delivers.
void RuntimeAddEventHandler(const Ref<Control>& control, std::int64_t event,
                            const Ref<Delegate>& handler);

}  // namespace framework
