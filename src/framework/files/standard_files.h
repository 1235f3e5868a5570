#pragma once

namespace framework {

/// Opens those of the standard files that whoever started the program has closed, on /dev/null.
/// Else the first file that the program opens, such as the connection to its display, would have
/// the number of the standard error, and be written to by whatever reports a failure. A program's
/// first act.
void OpenStandardFiles();

}  // namespace framework
