#pragma once

#include <functional>
#include <span>
#include <string_view>

namespace check {

/// The exit statuses of the checker.
enum Status { kClean = 0, kWarnings = 1, kErrors = 2, kUnreadable = 3 };

/// Where text is printed.
using Print = std::function<void(std::string_view)>;

/// The checker from its arguments, which are those behind the program's name, to its exit status.
/// Prints to out a line for each fault, "FILE:LINE:COLUMN: error: found ..., expected ..." or, of
/// the whole file, "FILE: error: ...", and a last one with the counts; to err why the file cannot
/// be read, memory that is wanting included, or what is wrong with the arguments. Remarks leave the
/// status at 0.
int Run(std::span<const char* const> arguments, const Print& out, const Print& err);

}  // namespace check
