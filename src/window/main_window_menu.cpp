#include "window/main_window.h"

// The menu entries as members of the window.

namespace window {

using namespace framework;

namespace {

template <class Item = MenuItem>
Ref<Item> Find(const framework::Window& window, std::string_view name) {
  return RuntimeCheckCast<Item>(window.MenuBar()->_Lookup(name));
}

}  // namespace

Ref<MenuItem> wdwMainClass::EditMenu() const { return Find(*this, "EditMenu"); }
Ref<MenuItem> wdwMainClass::EditSelectAll() const { return Find(*this, "EditSelectAll"); }
Ref<MenuItem> wdwMainClass::EditSeparator2() const { return Find(*this, "EditSeparator2"); }
Ref<MenuItem> wdwMainClass::EditClear() const { return Find(*this, "EditClear"); }
Ref<MenuItem> wdwMainClass::EditPaste() const { return Find(*this, "EditPaste"); }
Ref<MenuItem> wdwMainClass::EditCopy() const { return Find(*this, "EditCopy"); }
Ref<MenuItem> wdwMainClass::EditCut() const { return Find(*this, "EditCut"); }
Ref<MenuItem> wdwMainClass::EditSeparator1() const { return Find(*this, "EditSeparator1"); }
Ref<MenuItem> wdwMainClass::EditUndo() const { return Find(*this, "EditUndo"); }
Ref<MenuItem> wdwMainClass::FileMenu() const { return Find(*this, "FileMenu"); }
Ref<QuitMenuItem> wdwMainClass::FileQuit() const { return Find<QuitMenuItem>(*this, "FileQuit"); }

}  // namespace window
