#pragma once

#include "framework/controls/check_box.h"
#include "framework/controls/label.h"
#include "framework/controls/listbox.h"
#include "framework/controls/popup_menu.h"
#include "pitch/tscale.h"

namespace matching {

/// What a comparison pass asks of the window that it works on. A control is looked up at each call.
class SearchWindow {
 public:
  virtual ~SearchWindow() = default;

  /// The box of a position above the root, from 0 to 11.
  virtual framework::Ref<framework::CheckBox> cbScale(std::int64_t position) const = 0;
  virtual framework::Ref<framework::CheckBox> cbOther() const = 0;
  virtual framework::Ref<framework::CheckBox> cbRinL() const = 0;
  virtual framework::Ref<framework::PopupMenu> pmRoot() const = 0;
  virtual framework::Ref<framework::Label> lbValue() const = 0;
  virtual framework::Ref<framework::Listbox> lbExact() const = 0;
  virtual framework::Ref<framework::Listbox> lbContaining() const = 0;
  /// The twelve note names, as indexed by pmRoot.
  virtual const framework::Array<framework::String>& Labels() const = 0;
  /// The library; nil counts as empty.
  virtual const pitch::Scales& Scale() const = 0;
};

}  // namespace matching
