#pragma once

namespace toolkit::qt {

/// From now on a popup menu tells its chosen entry as a text as well. Qt tells it as the name
/// alone, and a screen reader that knows the menu by its label never reads the name. Once for a
/// program.
void TellPopupsAsText();

}  // namespace toolkit::qt
