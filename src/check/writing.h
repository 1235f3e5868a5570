#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "check/fault.h"
#include "framework/values/array.h"
#include "framework/values/string.h"

namespace check {

/// Fields that a line must have: bank, name, and the twelve notes.
inline constexpr std::int64_t kFields = 14;

/// The first note's field: the root.
inline constexpr std::int64_t kFirstNote = 2;

/// The first line that is looked at, from 1: the program never reads the ones before it.
inline constexpr std::int64_t kFirstLine = 3;

using Fields = framework::Array<framework::String>;

/// All lines of a file, its headings too.
using Lines = std::vector<framework::String>;

/// How a file is written, where most of its lines differ in the same way from what the program
/// reads. That is told once, and each line is then read as it was meant.
struct Writing {
  /// What stands in most lines for TRUE or for FALSE.
  struct Word {
    std::string text;
    std::string_view meaning;
  };

  bool is_utf16 = false;     ///< no line can be read
  bool is_one_line = false;  ///< there are no lines
  char separator = ',';
  bool is_quoted = false;   ///< quotation marks stand around the texts
  std::vector<Word> words;  ///< one or two; none where TRUE and FALSE are written

  /// A line, cut as the loader cuts it, or at the file's own separator where that finds more.
  Fields Cut(const framework::String& line) const;
  /// What the fields of a line mean: without the file's quotation marks, and with TRUE and FALSE
  /// for its own words.
  Fields Meant(const Fields& fields) const;
};

bool IsFlag(std::string_view field);  ///< TRUE or FALSE, as the loader compares

Writing WritingOf(const Lines& lines);

/// What is wrong with the file as a whole, and what to do about it. There is an error when a line
/// would stop the loader that is none by itself, read as it was meant.
std::vector<Fault> CheckWriting(const Lines& lines, const Writing& writing);

}  // namespace check
