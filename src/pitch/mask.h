#pragma once

#include <cstdint>

namespace pitch {

// A pitch-class mask is an integer from 0 to 4095 that is measured from a root: position k, the
// pitch class k semitones above the root, is bit 11 - k. C, E and G under the root C, and D, F# and
// A under the root D, are both 2192.

/// Positions above a root, and so bits of a mask.
inline constexpr std::int64_t kPositions = 12;

/// The mask with one more position at its end: masks are built in position order, root first.
constexpr std::int64_t Append(std::int64_t mask, bool present) {
  return mask * 2 + (present ? 1 : 0);
}

/// The same notes measured from the note that stands at position count: count single steps, each a
/// rotation left by one bit within twelve. A count of 0 or below gives the value as it came.
/// Outside the range of a mask the first step cuts off every bit above bit 11; of a negative value
/// it takes the remainder with its sign, and adds the top bit to that.
constexpr std::int64_t Rotate12(std::int64_t value, std::int64_t count) {
  for (std::int64_t k = 1; k <= count; ++k) {
    const std::int64_t top = value & 0x800;
    const auto doubled = static_cast<std::int64_t>(static_cast<std::uint64_t>(value) << 1U);
    value = doubled % 4096 + top / 2048;
  }
  return value;
}

/// Index of a note name in the table of twelve: the name of a position above the root with that
/// index. Neither may be negative.
constexpr std::int64_t NameIndex(std::int64_t root, std::int64_t position) {
  return (root + position) % kPositions;
}

}  // namespace pitch
