#pragma once

#include <cstdint>
#include <string>

namespace check {

enum class Severity {
  kRemark,   ///< worth a look, and may well be meant
  kWarning,  ///< the line loads, but hardly as its writer meant it
  kError     ///< the program stops loading at this line
};

/// Something at one place of a library file.
struct Fault {
  Severity severity;
  std::int64_t line;     ///< from 1
  std::int64_t column;   ///< in characters from 1; one past the last where something is missing
  std::string found;     ///< "3 fields"
  std::string expected;  ///< "14"; empty for a remark
};

}  // namespace check
