#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "check/fault.h"
#include "check/writing.h"

namespace check {

/// One line of a library.
struct Line {
  std::int64_t number;  ///< from 1
  bool last;            ///< in its file
  framework::String text;
  Fields fields;  ///< as they stand in the text
  Fields cells;   ///< what they mean, one for each

  /// Whether there is a scale in it.
  bool IsScale() const { return fields.LastIndex() + 1 >= kFields; }
  /// Whether the twelve notes stand in the cells from first on.
  bool NotesBeginAt(std::int64_t first) const;
  /// Offset in the text of a field's first byte.
  std::size_t Start(std::int64_t field) const;
  /// A fault at that offset of the text.
  Fault At(std::size_t offset, Kind kind, Severity severity, std::string found,
           std::string expected) const;
};

/// What is wrong with a line by itself. In a line without a scale nothing is said of its fields but
/// that they are too few.
std::vector<Fault> CheckLine(const Line& line);

}  // namespace check
