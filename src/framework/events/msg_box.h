#pragma once

#include "framework/values/string.h"

namespace framework {

/// Shows a text in a message box, once the event that asks for it is over and the boxes before it
/// have been read.
void MsgBox(const String& text);

}  // namespace framework
