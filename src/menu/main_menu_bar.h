#pragma once

#include "framework/controls/menu.h"

namespace menu {

/// The program's one menu bar: File with Quit, and the standard Edit entries, which have nothing to
/// work on here.
class MainMenuBarClass final : public framework::MenuBar {
 public:
  void Constructor() override;

 private:
  void FileMenu();
  void EditMenu();
};

/// The one menu bar, built at the first call.
framework::Ref<MainMenuBarClass> MainMenuBar();

/// Releases the menu bar; a later call of MainMenuBar builds another.
void _ForgetMainMenuBar();

}  // namespace menu
