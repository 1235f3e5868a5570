#pragma once

#include "matching/search_window.h"

namespace matching {

/// One comparison pass: reads the ticks, empties both lists, and fills them with the scales that
/// are exactly the ticked notes and with those that hold them all and more. The selected root comes
/// first. With cbOther ticked the eleven other positions follow as roots, in rising order; with
/// cbRinL ticked too, only those whose box is ticked. Within a root the rows stand in library
/// order.
///
/// A row is bank, name and root; a row of lbContaining has the scale's own mask, as the library has
/// it, as a fourth value. Nothing of a pass is kept for the next.
///
/// Raises OutOfBoundsException at the first match under another root when Labels is empty; the rows
/// so far stay.
void CompareScales(const SearchWindow& window);

}  // namespace matching
