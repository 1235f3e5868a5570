#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "check/fault.h"
#include "framework/files/text_input_stream.h"

namespace check {

struct Summary {
  std::int64_t scales = 0;  ///< lines with enough fields, also behind an error
  std::int64_t banks = 0;   ///< different ones among those scales
  std::int64_t errors = 0;
  std::int64_t warnings = 0;
  std::int64_t remarks = 0;
};

/// Of one kind of fault no more are told.
inline constexpr std::int64_t kToldOfAKind = 20;

/// Reads a library to its end, in the loader's own way: its first two lines are not looked at, and
/// what ends a line is the stream's to say. Hands each fault to report: first those of the whole
/// file, then line by line, but of one kind only the first; last, for each kind that there was more
/// of, how many. All are counted. There is an error exactly when the loader would stop before the
/// end. Raises IOException if reading fails.
Summary CheckLibrary(framework::TextInputStream& library,
                     const std::function<void(const Fault&)>& report);

/// "678 scales in 33 banks: 0 errors, 1 warning, 0 remarks".
std::string Text(const Summary& summary);

}  // namespace check
