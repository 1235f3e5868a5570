#pragma once

#include <QFont>

namespace toolkit::qt {

/// The font, condensed as far as a text needs it to be no wider than the room; a text that is too
/// wide even so will be cut. width_with tells how wide the text is in a font.
template <class WidthWith>
QFont Condensed(QFont font, int room, WidthWith width_with) {
  for (int percent = 100; percent >= 60; percent -= 5) {
    font.setStretch(percent);
    if (width_with(font) <= room) break;
  }
  return font;
}

}  // namespace toolkit::qt
