#pragma once

#include "framework/values/string.h"

namespace framework {

/// Shows a text in a message box and comes back once the user has dismissed it.
void MsgBox(const String& text);

}  // namespace framework
