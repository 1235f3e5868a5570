#pragma once

#include <QMenuBar>

#include "framework/controls/menu.h"

namespace toolkit::qt {

/// Fills a native menu bar from the framework's, entry by entry.
void BuildMenuBar(framework::MenuBar& bar, QMenuBar& native);

}  // namespace toolkit::qt
