#pragma once

namespace page {

/// Puts the library that the page gives, if it gives one, where the program looks for it.
void TakeLibrary();

/// Whether this run is for checking the library alone.
bool IsCheck();
/// Shows on the page what the checker finds in the library.
void TellOfLibrary();

}  // namespace page
