#pragma once

#include <cstdint>

// The event of the page that is being handled.
namespace toolkit::web::event {

/// The keys that a list knows; kOther for any other, and for one with Ctrl, Alt or Meta.
enum class Key { kOther = -1, kUp, kDown, kPageUp, kPageDown, kHome, kEnd, kEscape };

Key PressedKey();
/// The row of a list that the event is on, from 0; -1 beside the rows.
std::int64_t Row();
/// Whether a click is of a mouse or a finger.
bool IsByHand();
/// Whether a press, a pointerdown, is of a finger.
bool IsTouch();
/// Whether the Ctrl key is held, or the platform's own command key.
bool HasCtrl();
/// Keeps the browser from doing what it would have done with the event.
void Take();
/// Shows the whole text of the cell that is pointed at, where the cell cuts it.
void TellCut();

}  // namespace toolkit::web::event
