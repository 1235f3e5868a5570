#include "framework/msg_box.h"

#include "framework/toolkit.h"
#include "framework/ui_trap.h"

namespace framework {

void MsgBox(const String& text) {
  _UITrap();
  Toolkit::Current().ShowMessage(text);
}

}  // namespace framework
