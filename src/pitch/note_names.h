#pragma once

#include <array>
#include <string_view>

namespace pitch {

/// The twelve note names from A upward. A black key has both of its names in one, the sharp first.
inline constexpr std::array<std::string_view, 12> kNoteNames = {
    "A", "A# / Bb", "B", "C", "C# / Db", "D", "D# / Eb", "E", "F", "F# / Gb", "G", "G# / Ab"};

}  // namespace pitch
