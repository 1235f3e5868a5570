#include "window/main_window.h"

#include "framework/values/text.h"
#include "library/load.h"
#include "matching/compare_scales.h"
#include "menu/main_menu_bar.h"
#include "pitch/mask.h"
#include "pitch/note_names.h"
#include "window/layout.h"

namespace window {

using namespace framework;

constinit const ClassInfo wdwMainClass::kClass{
    "wdwMain.wdwMain", &framework::Window::kClass, {}, {}};

wdwMainClass::~wdwMainClass() {
  Labels_ = Array<String>();
  Scale_ = pitch::Scales();
}

void wdwMainClass::Layout() {
  MenuBar(menu::MainMenuBar());
  _SetProperties(*this, layout::MainWindow());
}

void wdwMainClass::Event_Open() {
  library::Load(Scale_);
  for (const std::string_view name : pitch::kNoteNames) Labels_.Append(name);
  NameBoxes();
  NormaliseCBs();
}

void wdwMainClass::NameBoxes() {
  const std::int64_t root = pmRoot()->ListIndex();
  for (std::int64_t i = 0; i < pitch::kPositions; ++i) {
    cbScale(i)->Caption(Labels_[pitch::NameIndex(root, i)]);
  }
}

void wdwMainClass::pmRoot_Change(const Ref<PopupMenu>&) {
  NameBoxes();
  CompareScales();
}

void wdwMainClass::cbScale_Action(const Ref<CheckBox>& sender) {
  // Which member it was plays no part, here and at the opening.
  RuntimeCheckCast<cbScaleClass>(sender)->Index();
  CompareScales();
  NormaliseCBs();
}

void wdwMainClass::cbOther_Action(const Ref<CheckBox>&) { CompareScales(); }

void wdwMainClass::cbRinL_Action(const Ref<CheckBox>&) { CompareScales(); }

void wdwMainClass::cbScale_Open(const Ref<CheckBox>& sender) {
  RuntimeCheckCast<cbScaleClass>(sender)->Index();
  sender->Parent(nullptr);
}

void wdwMainClass::lbStar_Open(const Ref<Label>& sender) {
  RuntimeCheckCast<lbStarClass>(sender)->Index();
  sender->Parent(nullptr);
}

void wdwMainClass::lbContaining_Change(const Ref<Listbox>& sender) {
  NormaliseCBs();
  if (sender->ListIndex() <= -1) return;
  // The mask of the library, whatever root the row stands under: the stars show the scale's shape
  // from the first box on.
  const auto mask = static_cast<std::int64_t>(Val(sender->Cell(sender->ListIndex(), 3)));
  lbScale()->Text(Bin(mask));
  std::int64_t bit = 1;
  for (std::int64_t i = pitch::kPositions - 1; i >= 0; --i) {
    if ((bit & mask) > 0) lbStar(i)->Visible(true);
    bit *= 2;
  }
}

void wdwMainClass::CompareScales() { matching::CompareScales(*this); }

void wdwMainClass::NormaliseCBs() {
  for (std::int64_t i = 0; i < pitch::kPositions; ++i) lbStar(i)->Visible(false);
}

std::int64_t wdwMainClass::Rotate12(std::int64_t value, std::int64_t count) const {
  return pitch::Rotate12(value, count);
}

Ref<wdwMainClass> wdwMain() {
  Ref<framework::Window> window = _GetImplicitWindow(wdwMainClass::kClass.name);
  if (!window) {
    window = RuntimeNewObject<wdwMainClass>();
    window->Constructor();
  }
  return RuntimeCheckCast<wdwMainClass>(window);
}

}  // namespace window
