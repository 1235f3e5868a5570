#pragma once

#include <cstdint>
#include <functional>

// The event of the page that is being handled.
namespace toolkit::web::event {

/// The keys that a list knows; kOther for any other, and for one with Ctrl, Alt or Meta.
enum class Key { kOther = -1, kUp, kDown, kPageUp, kPageDown, kHome, kEnd, kEscape };

Key PressedKey();
/// The row of a list that the event is on, from 0; -1 beside the rows.
std::int64_t Row();
/// Whether a click is of a mouse or a finger.
bool IsByHand();
/// Whether a click on a chosen row takes the choice back: with Ctrl or the platform's own command
/// key, and always with a finger, for which there is no such key.
bool TakesBack();
/// Keeps the browser from doing what it would have done with the event.
void Take();
/// Shows the whole text of the cell that is pointed at, where the cell cuts it.
void TellCut();

}  // namespace toolkit::web::event
