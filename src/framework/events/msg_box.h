#pragma once

#include "framework/values/string.h"

namespace framework {

/// Shows a text in a message box, once the boxes before it have been read. It may come back before
/// the text is read; which, the toolkit decides.
void MsgBox(const String& text);

}  // namespace framework
