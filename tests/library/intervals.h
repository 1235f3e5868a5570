#pragma once

#include <cstdint>
#include <string_view>

/// Mask of the degrees of a major scale, each with its accidentals: "1 b3 5 bb7", "1 3 #5".
std::int64_t Degrees(std::string_view formula);

/// Mask of a chord symbol, spelled out by the rules of such symbols: "m7b5", "6/9#11", "13no11".
/// -1 for what is no symbol. A number from 9 up stands for the whole stack of thirds below it; but
/// an altered thirteenth with a major third has no eleventh, which would clash with the third.
std::int64_t Chord(std::string_view symbol);
