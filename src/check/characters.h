#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace check {

// The characters of a text that may be any bytes at all. A byte that belongs to no UTF-8 character
// counts as a character of its own.

/// Bytes of the UTF-8 character at the start of text; 0 when there is none: an empty text, a byte
/// out of place, a character cut short, an overlong form, a surrogate, a number above 10FFFF.
std::size_t CharacterSize(std::string_view text);

std::int64_t CountCharacters(std::string_view text);

/// Place of the first byte that is no UTF-8 text; npos when there is none. A zero byte is valid
/// UTF-8, but in a text file it says that the file is in another encoding, and counts as such.
std::size_t FindNoText(std::string_view text);

/// The byte in hexadecimal: "\xFC".
std::string Escaped(char byte);

/// The text in quotation marks, fit for a terminal: control characters, the no-break space and
/// bytes that are no UTF-8 are escaped, and a long text is cut, which "..." behind it tells.
std::string Quoted(std::string_view text);

}  // namespace check
