#include "check/check_line.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "check/characters.h"
#include "framework/values/text.h"
#include "pitch/mask.h"
#include "pitch/note_names.h"

namespace check {

namespace {

using pitch::kPositions;

using Faults = std::vector<Fault>;

std::string_view WithoutBlanks(std::string_view text) {
  constexpr std::string_view kBlanks = " \t";
  const auto first = text.find_first_not_of(kBlanks);
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) + 1 - first);
}

/// "position 3 (in C: D# / Eb)".
std::string Place(std::int64_t position) {
  constexpr std::int64_t kC = 3;
  const auto name = pitch::kNoteNames[static_cast<std::size_t>(pitch::NameIndex(kC, position))];
  return "position " + std::to_string(position) + " (in C: " + std::string(name) + ")";
}

void CheckText(const Line& line, Faults& faults) {
  const std::string_view text = line.text;
  if (const auto at = FindNoText(text); at != text.npos) {
    faults.push_back(line.At(at, Kind::kNoUtf8, Severity::kWarning, "the byte " + Escaped(text[at]),
                             "text in UTF-8"));
  }
}

bool IsBlank(const Fields& fields) {
  for (std::int64_t i = 0; i <= fields.LastIndex(); ++i) {
    if (!WithoutBlanks(fields[i]).empty()) return false;
  }
  return true;
}

Fault BlankLine(const Line& line) {
  const char* const found = line.last ? "a blank line at the end" : "a blank line";
  const char* const expected =
      line.last ? "the end of the file right behind the last scale" : "a scale";
  // A row that a spreadsheet program left behind has commas enough to load, as a scale of nothing.
  if (line.IsScale()) return line.At(0, Kind::kBlankRow, Severity::kWarning, found, expected);
  return line.At(0, Kind::kBlankLine, Severity::kError, found, expected);
}

/// The writer of a line with semicolons or tabs sees its columns, and needs to be told.
std::string OtherSeparator(const Line& line) {
  const std::string_view text = line.text;
  const bool is_cut_there = std::count(text.begin(), text.end(), ',') < line.fields.LastIndex();
  if (is_cut_there) return "";
  if (text.find(';') != text.npos) return " (semicolons?)";
  if (text.find('\t') != text.npos) return " (tabs?)";
  return "";
}

void CheckName(const Line& line, std::int64_t field, const std::string& what, Faults& faults) {
  const std::string_view name = line.cells[field];
  const std::string_view bare = WithoutBlanks(name);
  const std::size_t marks = line.fields[field].View().size() - name.size();  // around the name
  const std::size_t start = line.Start(field) + marks / 2;
  const auto add = [&](std::size_t at, Kind kind, const std::string& found,
                       const std::string& expected) {
    faults.push_back(line.At(at, kind, Severity::kWarning, found, expected));
  };
  if (bare.empty()) {
    add(start, Kind::kNoName, "no " + what, "a " + what);
  } else if (bare.size() < name.size()) {
    add(start, Kind::kBlankBesideName, "the " + what + " " + Quoted(name),
        Quoted(bare) + ", without a blank beside it");
  }
  if (const auto at = name.find('"'); at != name.npos) {
    add(start + at, Kind::kQuotationMark, "a quotation mark in the " + what,
        "none: the program would show it");
  }
}

/// True for the usual cause of surplus fields, a comma in what was meant as one name: the twelve
/// notes are the line's last fields, and not where they should be.
bool HasCommaInName(const Line& line, std::int64_t surplus) {
  return !IsFlag(line.cells[kFirstNote]) && line.NotesBeginAt(kFirstNote + surplus);
}

void CheckNotes(const Line& line, Faults& faults) {
  for (std::int64_t position = 0; position < kPositions; ++position) {
    const std::int64_t field = kFirstNote + position;
    const std::string_view text = line.cells[field];
    const auto add = [&](Kind kind, const std::string& expected) {
      faults.push_back(line.At(line.Start(field), kind, Severity::kWarning,
                               Quoted(line.fields[field]) + " at " + Place(position), expected));
    };
    if (IsFlag(text)) {
      const bool is_false = framework::RuntimeStringCompare(text, "FALSE") == 0;
      if (position == 0 && is_false) add(Kind::kNoRoot, "TRUE: a scale holds its root");
    } else if (const std::string_view bare = WithoutBlanks(text); IsFlag(bare)) {
      add(Kind::kBlankBesideWord, std::string(bare) + ", without a blank beside it");
    } else {
      add(Kind::kNeitherWord, "TRUE or FALSE");
    }
  }
}

}  // namespace

std::size_t Line::Start(std::int64_t field) const {
  std::size_t offset = 0;
  for (std::int64_t i = 0; i < field; ++i) offset += fields[i].View().size() + 1;
  return offset;
}

bool Line::NotesBeginAt(std::int64_t first) const {
  for (std::int64_t i = 0; i < kPositions; ++i) {
    if (!IsFlag(cells[first + i])) return false;
  }
  return true;
}

Fault Line::At(std::size_t offset, Kind kind, Severity severity, std::string found,
               std::string expected) const {
  const std::int64_t column = CountCharacters(text.View().substr(0, offset)) + 1;
  return {kind, severity, std::move(found), std::move(expected), number, column};
}

std::vector<Fault> CheckLine(const Line& line) {
  if (IsBlank(line.fields)) return {BlankLine(line)};

  const std::int64_t count = line.fields.LastIndex() + 1;
  const std::string fields = std::to_string(kFields);
  Faults faults;
  CheckText(line, faults);
  if (!line.IsScale()) {
    faults.push_back(line.At(line.text.View().size(), Kind::kFewFields, Severity::kError,
                             Counted(count, "field") + OtherSeparator(line),
                             fields + ", with commas between them"));
    return faults;
  }
  CheckName(line, 0, "bank", faults);
  CheckName(line, 1, "name", faults);
  const std::int64_t surplus = count - kFields;
  if (HasCommaInName(line, surplus)) {
    faults.push_back(line.At(line.Start(kFirstNote) - 1, Kind::kCommaInName, Severity::kWarning,
                             Counted(count, "field") + ", the last twelve of them the notes",
                             fields + ": a comma in the bank or in the name?"));
    return faults;
  }
  CheckNotes(line, faults);
  if (surplus > 0) {
    faults.push_back(line.At(line.Start(kFields), Kind::kSurplusFields, Severity::kWarning,
                             Counted(count, "field"),
                             fields + ": the program does not read the rest"));
  }
  return faults;
}

}  // namespace check
