#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace check {

enum class Severity {
  kRemark,   ///< worth a look, and may well be meant
  kWarning,  ///< the file loads, but hardly as its writer meant it
  kError     ///< the program stops loading at this line, or at one of the file's
};

/// What faults may have in common: of each kind no more than the first few are told.
enum class Kind {
  kWholeFile,
  kRest,  ///< stands for those of a kind that are not told
  kBlankLine,
  kBlankRow,
  kFewFields,
  kSurplusFields,
  kNoUtf8,
  kNoName,
  kBlankBesideName,
  kQuotationMark,
  kCommaInName,
  kNeitherWord,
  kBlankBesideWord,
  kNoRoot,
  kNameAgain,
  kNameOfOtherNotes,
  kNotesAgain
};

/// Something at one place of a library file, or all through it.
struct Fault {
  Kind kind;
  Severity severity;
  std::string found;      ///< "3 fields"
  std::string expected;   ///< "14"; empty where nothing else is wanted
  std::int64_t line{};    ///< from 1; 0 for what is said of the whole file
  std::int64_t column{};  ///< in characters from 1; one past the last where something is missing
};

/// "error", "warning", "remark".
std::string_view Word(Severity severity);

/// "quotation marks in a name", of any number of faults. Empty for kWholeFile and kRest.
std::string_view Words(Kind kind);

/// "found 3 fields, expected 14".
std::string Text(const Fault& fault);

/// "1 field", "2 fields".
std::string Counted(std::int64_t count, const std::string& noun);

}  // namespace check
