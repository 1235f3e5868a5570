#pragma once

#include "framework/controls/window.h"
#include "matching/search_window.h"
#include "window/control_sets.h"

namespace window {

/// The program's one window: it owns the library and the note names, makes the 35 controls and
/// handles their events. All state that the user sees lies in the controls.
class wdwMainClass final : public framework::Window, public matching::SearchWindow {
 public:
  const framework::ClassInfo& _Class() const override { return kClass; }
  static const framework::ClassInfo kClass;

  /// Releases the note names, then the library.
  ~wdwMainClass() override;

  const framework::Array<framework::String>& Labels() const override { return Labels_; }
  const pitch::Scales& Scale() const override { return Scale_; }

  /// Takes the menu bar, then the window's block.
  void Layout() override;
  void CreateControls() override;

 private:
  void _CreateControls0();
  void _CreateControls1();

 public:
  // The controls, looked up at each call. NilObjectException is the caller's, at the use of one
  // that is not there.
  framework::Ref<framework::Listbox> lbContaining() const override;
  framework::Ref<framework::CheckBox> cbScale(std::int64_t index) const override;
  framework::Ref<framework::Label> lbStar(std::int64_t index) const;
  framework::Ref<framework::Label> lbValue() const override;
  framework::Ref<framework::Listbox> lbExact() const override;
  framework::Ref<framework::Label> Label1() const;
  framework::Ref<framework::Label> Label2() const;
  framework::Ref<framework::Label> Label3() const;
  framework::Ref<framework::PopupMenu> pmRoot() const override;
  framework::Ref<framework::Label> Label4() const;
  framework::Ref<framework::Label> lbScale() const;
  framework::Ref<framework::CheckBox> cbOther() const override;
  framework::Ref<framework::CheckBox> cbRinL() const override;

  // The handlers. Each differs from the others in what it does beside the pass, and that is wanted.
  void lbContaining_Change(const framework::Ref<framework::Listbox>& sender);
  void cbScale_Action(const framework::Ref<framework::CheckBox>& sender);
  void cbScale_Open(const framework::Ref<framework::CheckBox>& sender);
  void lbStar_Open(const framework::Ref<framework::Label>& sender);
  void pmRoot_Change(const framework::Ref<framework::PopupMenu>& sender);
  void cbOther_Action(const framework::Ref<framework::CheckBox>& sender);
  void cbRinL_Action(const framework::Ref<framework::CheckBox>& sender);

  // The menu entries, looked up in the window's own bar at each call. Raises NilObjectException
  // when the window has no bar, IllegalCastException when the entry is of another class.
  framework::Ref<framework::MenuItem> EditMenu() const;
  framework::Ref<framework::MenuItem> EditSelectAll() const;
  framework::Ref<framework::MenuItem> EditSeparator2() const;
  framework::Ref<framework::MenuItem> EditClear() const;
  framework::Ref<framework::MenuItem> EditPaste() const;
  framework::Ref<framework::MenuItem> EditCopy() const;
  framework::Ref<framework::MenuItem> EditCut() const;
  framework::Ref<framework::MenuItem> EditSeparator1() const;
  framework::Ref<framework::MenuItem> EditUndo() const;
  framework::Ref<framework::MenuItem> FileMenu() const;
  framework::Ref<framework::QuitMenuItem> FileQuit() const;

  /// Loads the library, fills Labels and names the boxes after the root. It compares nothing: both
  /// lists are empty until the user acts.
  void Event_Open() override;
  /// Rebuilds both lists from the ticks.
  void CompareScales();
  /// Hides all twelve stars. In spite of its name it leaves the boxes alone.
  void NormaliseCBs();
  /// pitch::Rotate12.
  std::int64_t Rotate12(std::int64_t value, std::int64_t count) const;

  /// Attaches one of the handlers to an event of a control.
  template <auto kHandler>
  void _Wire(const framework::Ref<framework::Control>& control, std::int64_t event,
             std::string_view signature) {
    framework::RuntimeAddEventHandler(
        control, event,
        framework::RuntimeCreateDelegate<kHandler>(framework::Ref<wdwMainClass>(this), signature));
  }

 private:
  void _CreateNoteBox(std::int64_t index);
  void _CreateStar(std::int64_t index);
  void NameBoxes();

  framework::Array<framework::String> Labels_ = framework::CreateArray<framework::String>(-1);
  pitch::Scales Scale_ = framework::CreateArray<framework::Ref<pitch::TScale>>(-1);
};

/// The main window. If none is open it is made, which opens and shows it.
framework::Ref<wdwMainClass> wdwMain();

}  // namespace window
