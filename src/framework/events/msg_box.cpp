#include "framework/events/msg_box.h"

#include "framework/events/toolkit.h"
#include "framework/events/ui_trap.h"

namespace framework {

void MsgBox(const String& text) {
  _UITrap();
  Toolkit::Current().ShowMessage(text);
}

}  // namespace framework
