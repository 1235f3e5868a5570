#pragma once

namespace page {

/// Puts the library that the page gives where the program looks for it. One of the user's own is
/// checked first, and the page tells what is found.
void TakeLibrary();

}  // namespace page
