#pragma once

#include <ostream>
#include <span>

namespace check {

/// The exit statuses of the checker.
enum Status { kClean = 0, kWarnings = 1, kErrors = 2, kUnreadable = 3 };

/// The checker from its arguments, which are those behind the program's name, to its exit status.
/// Writes to out a line for each fault, "FILE:LINE:COLUMN: error: found ..., expected ...", and a
/// last one with the counts; to err why the file cannot be read, or that not one file was named.
/// Remarks leave the status at 0.
int Run(std::span<const char* const> arguments, std::ostream& out, std::ostream& err);

}  // namespace check
