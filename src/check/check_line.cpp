#include "check/check_line.h"

#include <string_view>
#include <utility>

#include "check/characters.h"
#include "framework/values/text.h"
#include "pitch/mask.h"
#include "pitch/note_names.h"

namespace check {

namespace {

using pitch::kPositions;

constexpr std::int64_t kFirstPosition = kFields - kPositions;

using Faults = std::vector<Fault>;

bool Says(std::string_view field, std::string_view word) {
  return framework::RuntimeStringCompare(field, word) == 0;
}

bool IsFlag(std::string_view field) { return Says(field, "TRUE") || Says(field, "FALSE"); }

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
    faults.push_back(
        line.At(at, Severity::kWarning, "the byte " + Escaped(text[at]), "text in UTF-8"));
  }
}

/// The writer of a file with semicolons or tabs sees its columns, and needs to be told.
std::string OtherSeparator(std::string_view text) {
  if (text.find(';') != text.npos) return " (semicolons?)";
  if (text.find('\t') != text.npos) return " (tabs?)";
  return "";
}

void CheckName(const Line& line, std::int64_t field, const std::string& what, Faults& faults) {
  const std::string_view name = line.fields[field];
  const std::string_view bare = WithoutBlanks(name);
  const std::size_t start = line.Start(field);
  if (bare.empty()) {
    faults.push_back(line.At(start, Severity::kWarning, "no " + what, "a " + what));
  } else if (bare.size() < name.size()) {
    faults.push_back(line.At(start, Severity::kWarning, "the " + what + " " + Quoted(name),
                             Quoted(bare) + ", without a blank beside it"));
  }
  if (const auto at = name.find('"'); at != name.npos) {
    faults.push_back(line.At(start + at, Severity::kWarning, "a quotation mark in the " + what,
                             "none: the program would show it"));
  }
}

/// Whether the twelve notes stand in the fields from first on.
bool NotesBeginAt(const Line& line, std::int64_t first) {
  for (std::int64_t i = 0; i < kPositions; ++i) {
    if (!IsFlag(line.fields[first + i])) return false;
  }
  return true;
}

/// True for the usual cause of surplus fields, a comma in what was meant as one name: the twelve
/// notes are the line's last fields, and not where they should be.
bool HasCommaInName(const Line& line, std::int64_t surplus) {
  return surplus > 0 && !IsFlag(line.fields[kFirstPosition]) &&
         NotesBeginAt(line, kFirstPosition + surplus);
}

void CheckNotes(const Line& line, Faults& faults) {
  for (std::int64_t position = 0; position < kPositions; ++position) {
    const std::int64_t field = kFirstPosition + position;
    const std::string_view text = line.fields[field];
    const auto fault = [&](const std::string& expected) {
      faults.push_back(line.At(line.Start(field), Severity::kWarning,
                               Quoted(text) + " at " + Place(position), expected));
    };
    if (IsFlag(text)) {
      if (position == 0 && Says(text, "FALSE")) fault("TRUE: a scale holds its root");
    } else if (const std::string_view bare = WithoutBlanks(text); IsFlag(bare)) {
      fault(std::string(bare) + ", without a blank beside it");
    } else {
      fault("TRUE or FALSE");
    }
  }
}

}  // namespace

std::size_t Line::Start(std::int64_t field) const {
  std::size_t offset = 0;
  for (std::int64_t i = 0; i < field; ++i) offset += fields[i].View().size() + 1;
  return offset;
}

Fault Line::At(std::size_t offset, Severity severity, std::string found,
               std::string expected) const {
  return {severity, number, CountCharacters(text.View().substr(0, offset)) + 1, std::move(found),
          std::move(expected)};
}

std::string Counted(std::int64_t count, const std::string& noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::vector<Fault> CheckLine(const Line& line) {
  const std::string_view text = line.text;
  const std::int64_t count = line.fields.LastIndex() + 1;
  const std::string fields = std::to_string(kFields);
  if (text.find_first_not_of(" \t,") == text.npos) {
    // A row that a spreadsheet program left behind has commas enough to load, as a scale of
    // nothing.
    return {line.At(0, line.Loads() ? Severity::kWarning : Severity::kError,
                    line.last ? "a blank line at the end" : "a blank line",
                    line.last ? "the end of the file right behind the last scale" : "a scale")};
  }

  Faults faults;
  CheckText(line, faults);
  if (!line.Loads()) {
    faults.push_back(line.At(text.size(), Severity::kError,
                             Counted(count, "field") + OtherSeparator(text),
                             fields + ", with commas between them"));
    return faults;
  }
  CheckName(line, 0, "bank", faults);
  CheckName(line, 1, "name", faults);
  const std::int64_t surplus = count - kFields;
  if (HasCommaInName(line, surplus)) {
    faults.push_back(line.At(line.Start(kFirstPosition) - 1, Severity::kWarning,
                             Counted(count, "field") + ", the last twelve of them the notes",
                             fields + ": a comma in the bank or in the name?"));
    return faults;
  }
  CheckNotes(line, faults);
  if (surplus > 0) {
    faults.push_back(line.At(line.Start(kFields), Severity::kWarning, Counted(count, "field"),
                             fields + ": the program does not read the rest"));
  }
  return faults;
}

}  // namespace check
