#pragma once

#include "pitch/tscale.h"

namespace library {

/// The library's file in the application's resources folder.
inline constexpr const char* kFileName = "Orrel Scales.csv";

/// Appends the scales of the library file to scales, in the order of its lines; the first two lines
/// are not looked at. A missing file appends nothing and is passed over without a word.
///
/// A failure to read shows a message and keeps the scales so far. These leave the function, with
/// the scales so far in place: OutOfBoundsException for a line of fewer than 14 fields;
/// NilObjectException when there is no resources folder, and when the file exists but cannot be
/// opened.
void Load(const pitch::Scales& scales);

}  // namespace library
