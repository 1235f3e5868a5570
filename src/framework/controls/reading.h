#pragma once

#include <vector>

#include "framework/controls/label.h"
#include "framework/controls/window.h"

namespace framework {

// What a window says to someone who cannot see how its controls stand to each other. It is taken
// from their frames, which are the same on every toolkit.

/// The label that titles a control: of the visible ones that stand above it, the lowest whose frame
/// reaches over or under the control's. Nil when there is none.
Ref<Label> _TitleOf(const RectControl& control);

/// The control that a label is a remark on: the one that it touches at its right, in the same row.
/// Nil when there is none.
Ref<RectControl> _RemarkedBy(const Label& label);

/// The controls that take the keyboard, in the order in which the eye meets them: down one column,
/// then down the next. A label takes none.
std::vector<Ref<RectControl>> _TabOrder(const Window& window);

/// The member of the control's set that stands next behind it in that order, or before it with a
/// step of -1: where the arrow keys go. Nil at the end of the set, and for a control of no set.
Ref<RectControl> _NextInSet(const RectControl& control, int step);

/// How many rows each visible list has, behind its title, in the tab order:
/// "Exact Match 1, Containing All Notes 42". A list without a title is left out; empty when none is
/// left.
String _Tally(const Window& window);

}  // namespace framework
