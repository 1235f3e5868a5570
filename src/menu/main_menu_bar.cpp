#include "menu/main_menu_bar.h"

namespace menu {

using namespace framework;

namespace {

Ref<MainMenuBarClass>& Singleton() {
  static auto& singleton = *new Ref<MainMenuBarClass>;
  return singleton;
}

/// An entry, ready to be placed.
template <class Item = MenuItem>
Ref<Item> Build(const char* name, const char* text) {
  auto item = RuntimeNewObject<Item>();
  item->Constructor();
  item->Name(name);
  item->AutoEnable(true);
  item->Text(text);
  item->Visible(true);
  return item;
}

template <class Item = MenuItem>
Ref<Item> Build(const char* name, const char* text, const char* shortcut) {
  auto item = Build<Item>(name, text);
  item->KeyboardShortcut(shortcut);
  return item;
}

}  // namespace

void MainMenuBarClass::Constructor() {
  FileMenu();
  EditMenu();
}

void MainMenuBarClass::FileMenu() {
  Append(Build("FileMenu", "&File", ""));
  Child("FileMenu")->Append(Build<QuitMenuItem>("FileQuit", "&Quit", "Cmd+Q"));
}

void MainMenuBarClass::EditMenu() {
  Append(Build("EditMenu", "&Edit", ""));
  Child("EditMenu")->Append(Build("EditUndo", "&Undo", "Cmd+Z"));
  Child("EditMenu")->Append(Build("EditSeparator1", "-"));
  Child("EditMenu")->Append(Build("EditCut", "Cu&t", "Cmd+X"));
  Child("EditMenu")->Append(Build("EditCopy", "&Copy", "Cmd+C"));
  Child("EditMenu")->Append(Build("EditPaste", "&Paste", "Cmd+V"));
  Child("EditMenu")->Append(Build("EditClear", "&Delete", ""));
  Child("EditMenu")->Append(Build("EditSeparator2", "-"));
  Child("EditMenu")->Append(Build("EditSelectAll", "Select &All", "Cmd+A"));
}

Ref<MainMenuBarClass> MainMenuBar() {
  if (!Singleton()) {
    const auto bar = RuntimeNewObject<MainMenuBarClass>();
    bar->Constructor();
    Singleton() = bar;
  }
  return Singleton();
}

void _ForgetMainMenuBar() { Singleton() = nullptr; }

}  // namespace menu
