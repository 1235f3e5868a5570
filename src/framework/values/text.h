#pragma once

#include <cstdint>
#include <string_view>

#include "framework/values/array.h"
#include "framework/values/string.h"

namespace framework {

// Text and numbers. Nothing here depends on the locale, and a nil String is the empty text.

/// Cuts text at each occurrence of delimiter: no quoting, no escape, no trimming. A part that is
/// empty keeps its place, and an empty text gives one empty part. An empty delimiter cuts nothing.
Array<String> Split(const String& text, const String& delimiter);

/// The value in plain decimal.
String Str(std::int64_t value);

/// The number at the start of text, behind any blanks; 0 when there is none, or one that is too
/// large for a double.
double Val(const String& text);

/// The value in base 2, most significant digit first, without leading zeros; "0" for zero. A
/// negative value shows its 64 bits.
String Bin(std::int64_t value);

/// A byte as RuntimeStringCompare takes it: the case of ASCII letters is folded. This is the one
/// place that decides whether case counts.
constexpr char Folded(char byte) {
  return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

/// Equality of texts: 0 when they are the same but for the case of ASCII letters, else 1.
std::int32_t RuntimeStringCompare(std::string_view a, std::string_view b);

/// a, then b.
String RuntimeAddString(const String& a, const String& b);

}  // namespace framework
