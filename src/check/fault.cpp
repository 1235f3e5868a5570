#include "check/fault.h"

namespace check {

std::string_view Word(Severity severity) {
  switch (severity) {
    case Severity::kRemark:
      return "remark";
    case Severity::kWarning:
      return "warning";
    case Severity::kError:
      break;
  }
  return "error";
}

std::string_view Words(Kind kind) {
  switch (kind) {
    case Kind::kWholeFile:
    case Kind::kRest:
      break;
    case Kind::kBlankLine:
      return "blank lines";
    case Kind::kBlankRow:
      return "blank rows of a table";
    case Kind::kFewFields:
      return "lines with too few fields";
    case Kind::kSurplusFields:
      return "lines with more than 14 fields";
    case Kind::kNoUtf8:
      return "bytes that are no UTF-8";
    case Kind::kNoName:
      return "scales without a bank or a name";
    case Kind::kBlankBesideName:
      return "blanks beside a bank or a name";
    case Kind::kQuotationMark:
      return "quotation marks in a bank or a name";
    case Kind::kCommaInName:
      return "commas in a bank or a name";
    case Kind::kNeitherWord:
      return "notes that say neither TRUE nor FALSE";
    case Kind::kBlankBesideWord:
      return "blanks beside TRUE or FALSE";
    case Kind::kNoRoot:
      return "scales without their root";
    case Kind::kNameAgain:
      return "names that their bank has already";
    case Kind::kNameOfOtherNotes:
      return "names that another bank has for other notes";
    case Kind::kNotesAgain:
      return "notes that their bank has already";
  }
  return "";
}

std::string Text(const Fault& fault) {
  const std::string found = "found " + fault.found;
  return fault.expected.empty() ? found : found + ", expected " + fault.expected;
}

std::string Counted(std::int64_t count, const std::string& noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

}  // namespace check
