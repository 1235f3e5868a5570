#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "check/fault.h"
#include "framework/values/array.h"
#include "framework/values/string.h"

namespace check {

/// Fields that a line must have: bank, name, and the twelve notes.
inline constexpr std::int64_t kFields = 14;

/// One line of a library, cut as the loader cuts it.
struct Line {
  std::int64_t number;  ///< from 1
  bool last;            ///< in its file
  framework::String text;
  framework::Array<framework::String> fields;

  /// Whether the loader makes a scale of it.
  bool Loads() const { return fields.LastIndex() + 1 >= kFields; }
  /// Offset in the text of a field's first byte.
  std::size_t Start(std::int64_t field) const;
  /// A fault at that offset of the text.
  Fault At(std::size_t offset, Severity severity, std::string found, std::string expected) const;
};

/// "1 field", "2 fields".
std::string Counted(std::int64_t count, const std::string& noun);

/// What is wrong with a line by itself. In a line that does not load nothing is said of its fields
/// but that they are too few.
std::vector<Fault> CheckLine(const Line& line);

}  // namespace check
