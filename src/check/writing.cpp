#include "check/writing.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "check/characters.h"
#include "framework/values/text.h"

namespace check {

namespace {

using framework::String;

/// What one or two lines have in common is told of those lines.
constexpr std::int64_t kFewest = 3;

bool IsMost(std::int64_t count, std::int64_t all) { return count >= kFewest && count * 2 > all; }

/// The lines with a scale in them, or at least with something.
Lines Written(const Lines& lines) {
  Lines written;
  for (std::size_t i = kFirstLine - 1; i < lines.size(); ++i) {
    if (lines[i].View().find_first_not_of(" \t,;\"") != std::string_view::npos) {
      written.push_back(lines[i]);
    }
  }
  return written;
}

std::int64_t CountFields(std::string_view line, char separator) {
  return std::count(line.begin(), line.end(), separator) + 1;
}

/// The letters of TRUE and FALSE, the commas and the line ends alone make a third of the bytes
/// zero.
bool IsUtf16(const Lines& lines) {
  std::int64_t beyond_a_third = 0;
  for (const std::string_view line : lines) {
    beyond_a_third += std::count(line.begin(), line.end(), '\0') * 3 - std::ssize(line);
  }
  return beyond_a_third > 0;
}

/// True when one of the first two lines has fields for two, and no line follows.
bool IsOneLine(const Lines& lines) {
  return static_cast<std::int64_t>(lines.size()) < kFirstLine &&
         std::any_of(lines.begin(), lines.end(), [](const String& line) {
           const auto fields = [&](char separator) { return CountFields(line, separator); };
           return std::max({fields(','), fields(';'), fields('\t')}) >= 2 * kFields - 1;
         });
}

char SeparatorOf(const Lines& written) {
  for (const char separator : {';', '\t'}) {
    const auto count = std::count_if(written.begin(), written.end(), [&](const String& line) {
      return CountFields(line, ',') < kFields && CountFields(line, separator) >= kFields;
    });
    if (IsMost(count, static_cast<std::int64_t>(written.size()))) return separator;
  }
  return ',';
}

/// What stands between the quotation marks around a field; nothing where there are none.
std::optional<std::string_view> Inside(std::string_view field) {
  if (field.size() < 2 || field.front() != '"' || field.back() != '"') return std::nullopt;
  return field.substr(1, field.size() - 2);
}

bool IsQuoted(const std::vector<Fields>& scales) {
  const auto count = std::count_if(scales.begin(), scales.end(), [](const Fields& fields) {
    return Inside(fields[0]) || Inside(fields[1]);
  });
  return IsMost(count, static_cast<std::int64_t>(scales.size()));
}

/// How often a text stands for a note.
struct Use {
  std::int64_t scales{};
  std::int64_t roots{};
};

std::vector<Writing::Word> WordsOf(const std::vector<Fields>& scales) {
  std::map<std::string, Use> uses;
  for (const Fields& fields : scales) {
    std::set<std::string> here;
    for (std::int64_t i = kFirstNote; i < kFields; ++i) {
      if (!IsFlag(fields[i])) here.emplace(fields[i].View());
    }
    for (const std::string& text : here) {
      ++uses[text].scales;
      if (fields[kFirstNote].View() == text) ++uses[text].roots;
    }
  }
  std::vector<std::pair<std::string, Use>> words;
  for (const auto& word : uses) {
    if (IsMost(word.second.scales, static_cast<std::int64_t>(scales.size()))) words.push_back(word);
  }
  // Each scale has its root: the word that stands there is the one for TRUE.
  std::sort(words.begin(), words.end(),
            [](const auto& a, const auto& b) { return a.second.roots > b.second.roots; });
  if (words.size() == 2) return {{words[0].first, "TRUE"}, {words[1].first, "FALSE"}};
  if (words.size() != 1) return {};
  const auto& [text, use] = words.front();
  return {{text, use.roots * 2 > use.scales ? "TRUE" : "FALSE"}};
}

std::string Named(const Writing::Word& word) {
  return word.text.empty() ? "empty fields" : Quoted(word.text);
}

/// "WAHR" and "FALSCH" for the notes.
Fault WordsFault(const std::vector<Writing::Word>& words) {
  std::string found;
  std::string expected = "TRUE and FALSE: replace ";
  for (const Writing::Word& word : words) {
    const std::string joint = found.empty() ? "" : " and ";
    found += joint + Named(word);
    expected += joint + Named(word) + " by " + std::string(word.meaning);
  }
  return {Kind::kWholeFile, Severity::kWarning, found + " for the notes", expected};
}

}  // namespace

bool IsFlag(std::string_view field) {
  return framework::RuntimeStringCompare(field, "TRUE") == 0 ||
         framework::RuntimeStringCompare(field, "FALSE") == 0;
}

Fields Writing::Cut(const String& line) const {
  const bool has_own = CountFields(line, separator) > CountFields(line, ',');
  return framework::Split(line, std::string(1, has_own ? separator : ','));
}

Fields Writing::Meant(const Fields& fields) const {
  if (!is_quoted && words.empty()) return fields;
  Fields meant = framework::CreateArray<String>(-1);
  for (std::int64_t i = 0; i <= fields.LastIndex(); ++i) {
    std::string_view text = fields[i];
    if (is_quoted) text = Inside(text).value_or(text);
    for (const Word& word : words) {
      if (i >= kFirstNote && word.text == text) text = word.meaning;
    }
    meant.Append(text);
  }
  return meant;
}

Writing WritingOf(const Lines& lines) {
  Writing writing;
  writing.is_utf16 = IsUtf16(lines);
  writing.is_one_line = IsOneLine(lines);
  const Lines written = Written(lines);
  writing.separator = SeparatorOf(written);

  std::vector<Fields> scales;
  for (const String& line : written) {
    if (const Fields fields = writing.Cut(line); fields.LastIndex() + 1 >= kFields) {
      scales.push_back(fields);
    }
  }
  writing.is_quoted = IsQuoted(scales);
  for (Fields& fields : scales) fields = writing.Meant(fields);
  writing.words = WordsOf(scales);
  return writing;
}

std::vector<Fault> CheckWriting(const Lines& lines, const Writing& writing) {
  std::vector<Fault> faults;
  const auto add = [&](Severity severity, const char* found, const char* expected) {
    faults.push_back({Kind::kWholeFile, severity, found, expected});
  };
  if (writing.is_utf16) {
    const bool loads = std::all_of(
        lines.begin() + std::min<std::ptrdiff_t>(kFirstLine - 1, std::ssize(lines)), lines.end(),
        [](const String& line) { return CountFields(line, ',') >= kFields; });
    add(loads ? Severity::kWarning : Severity::kError,
        "a file in UTF-16, which has two bytes or more for each letter",
        "UTF-8: save it again, and choose UTF-8 as the character set");
    return faults;
  }
  if (writing.is_one_line) {
    add(Severity::kWarning, "all scales on one line, with no line end that the program knows",
        "a line for each scale: save it again as plain text");
  }
  if (writing.separator != ',') {
    add(Severity::kError,
        writing.separator == ';' ? "semicolons between the fields" : "tabs between the fields",
        "commas: save it again, and choose the comma as the separator");
  }
  if (writing.is_quoted) {
    add(Severity::kWarning, "quotation marks around the texts",
        "none: save it again, and choose that texts are not quoted");
  }
  if (!writing.words.empty()) faults.push_back(WordsFault(writing.words));
  return faults;
}

}  // namespace check
