#include <gmock/gmock.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <string_view>

#include "check/characters.h"
#include "check/run.h"
#include "framework/failures.h"
#include "framework/text.h"
#include "framework/text_input_stream.h"
#include "pitch/tscale.h"

namespace {

using namespace framework;
using testing::HasSubstr;

const std::string kHead = "Bank,Scale\nRules\n";
const std::string kNotes = ",TRUE,FALSE,FALSE,FALSE,TRUE,FALSE,FALSE,TRUE,FALSE,FALSE,FALSE,FALSE";
const std::string kMajor = "Triads,maj" + kNotes;

/// A file with these bytes, as long as it is in scope.
class File {
 public:
  explicit File(const std::string& bytes) { std::ofstream(path, std::ios::binary) << bytes; }
  ~File() { std::filesystem::remove(path); }
  const std::string path = testing::TempDir() + "check_test-" + std::to_string(getpid()) + ".csv";
};

struct Result {
  int status;
  std::string out;  ///< without the file's name at the start of each line
  std::string err;
};

Result Check(const std::string& path) {
  std::ostringstream out;
  std::ostringstream err;
  const char* const arguments[] = {path.c_str()};
  const int status = check::Run(arguments, out, err);
  std::istringstream lines(out.str());
  std::string text;
  for (std::string line; std::getline(lines, line);) text += line.substr(path.size() + 1) + '\n';
  return {status, text, err.str()};
}

struct Case {
  const char* name;
  std::string bytes;
  int status;
  const char* report;
};
void PrintTo(const Case& test_case, std::ostream* out) { *out << test_case.name; }

/// A line with the text in the place of one of its fields.
std::string With(int field, const std::string& text) {
  std::string line = kMajor;
  std::size_t at = 0;
  for (int i = 0; i < field; ++i) at = line.find(',', at) + 1;
  return line.replace(at, std::min(line.find(',', at), line.size()) - at, text);
}

class CheckerTest : public testing::TestWithParam<Case> {};

TEST_P(CheckerTest, SaysWhatAndWhere) {
  const Result result = Check(File(kHead + GetParam().bytes).path);
  EXPECT_THAT(result.out, HasSubstr(GetParam().report));
  EXPECT_EQ(result.status, GetParam().status);
  EXPECT_EQ(result.err, "");
}

const Case kCases[] = {
    {"Clean", kMajor, 0, " 1 scale in 1 bank: 0 errors, 0 warnings, 0 remarks\n"},
    {"HeadAlone", "", 0, " 0 scales in 0 banks: 0 errors, 0 warnings, 0 remarks\n"},
    {"LineEndBehindLastScale", kMajor + "\n", 0, " 1 scale in 1 bank: 0 errors, 0 warnings"},
    {"OtherLineEnds", kMajor + "\r\nTriads,m" + kNotes + "\rTriads,aug" + kNotes, 0, " 3 scales"},
    {"LowerCaseWord", With(6, "true"), 0, ", 0 warnings"},
    {"BlankLine", "\n" + kMajor, 2, "3:1: error: found a blank line, expected a scale\n"},
    {"LineOfBlanks", " \t\n" + kMajor, 2, "3:1: error: found a blank line, expected a scale\n"},
    {"BlankLastLine", kMajor + "\n\n", 2, "4:1: error: found a blank line at the end, expected "},
    {"RowOfNothing", ",,,,,,,,,,,,,\n" + kMajor, 1, "3:1: warning: found a blank line, expected"},
    {"TooFewFields", kMajor.substr(0, kMajor.rfind(',')), 2,
     "3:74: error: found 13 fields, expected 14, with commas between them\n"},
    {"Semicolons", "Triads;maj;TRUE", 2, "3:16: error: found 1 field (semicolons?), expected 14"},
    {"Tabs", "Triads\tmaj\tTRUE", 2, "3:16: error: found 1 field (tabs?), expected 14"},
    {"NeitherWord", With(5, "YES"), 1,
     "3:29: warning: found \"YES\" at position 3 (in C: D# / Eb), expected TRUE or FALSE\n"},
    {"BlankBeforeWord", With(6, " TRUE"), 1,
     "3:35: warning: found \" TRUE\" at position 4 (in C: E), expected TRUE, without a blank"},
    {"BlankAfterWord", With(13, "FALSE "), 1,
     "found \"FALSE \" at position 11 (in C: B), expected"},
    {"NoBreakSpace", With(6, "TRUE\u00A0"), 1, "found \"TRUE\\xC2\\xA0\" at position 4 (in C: E)"},
    {"NoRoot", With(2, "FALSE"), 1, "3:12: warning: found \"FALSE\" at position 0 (in C: C), exp"},
    {"QuotedName", With(1, "\"maj\""), 1, "3:8: warning: found a quotation mark in the name, exp"},
    {"BlankBesideName", With(1, "maj "), 1, "3:8: warning: found the name \"maj \", expected \"ma"},
    {"NoBank", With(0, ""), 1, "3:1: warning: found no bank, expected a bank\n"},
    {"CommaInName", With(1, "maj, or major"), 1,
     "3:11: warning: found 15 fields, the last twelve of them the notes, expected 14: a comma in "},
    {"SurplusField", kMajor + ",my note", 1,
     "3:81: warning: found 15 fields, expected 14: the pro"},
    {"NameTwice", kMajor + "\nOther,maj" + kNotes + "\nTriads,MAJ" + kNotes, 1,
     "5:8: warning: found the name \"maj\" again, as on line 3, expected no name twice in a bank"},
    {"NotesTwice", kMajor + "\nOther,M" + kNotes + "\nTriads,M" + kNotes, 0,
     "5:8: remark: found the notes of \"maj\" on line 3\n 3 scales in 2 banks: 0 errors, 0 "
     "warnings, "
     "1 remark\n"},
    {"NotUtf8", "Makam \u015Eed,U\xFE" + kNotes, 1,
     "3:12: warning: found the byte \\xFE, expected text in UTF-8\n"},
    {"ZeroByte", std::string("Tri\0ads,m", 9) + kNotes, 1, "3:4: warning: found the byte \\x00"},
    {"ColumnsInCharacters", "B\u00E9la \u2669 \U0001D11E,m" + With(2, "no").substr(10), 1,
     "3:12: warning: found \"no\" at position 0"},
    {"ControlsAreNotPrinted", With(2, "\x1B[2J"), 1, "found \"\\x1B[2J\" at position 0"},
    {"EachFaultOfAFile", "\n" + With(1, "\"m\"") + "\nshort\n" + With(2, "FALSE"), 2,
     " 2 scales in 1 bank: 2 errors, 2 warnings, 0 remarks\n"},
};

INSTANTIATE_TEST_SUITE_P(Faults, CheckerTest, testing::ValuesIn(kCases),
                         [](const auto& row) { return row.param.name; });

TEST(CheckerTest, TheFirstTwoLinesMayHoldAnything) {
  EXPECT_EQ(Check(File("\xEF\xBB\xBF\"\xFF\n\n" + kMajor).path).status, 0);
}

TEST(CheckerTest, AFileThatCannotBeReadHasAStatusOfItsOwn) {
  const Result missing = Check(testing::TempDir() + "no-such-library.csv");
  EXPECT_EQ(missing.status, 3);
  EXPECT_THAT(missing.err, HasSubstr("cannot be read: No such file or directory"));
  EXPECT_EQ(Check(testing::TempDir()).status, 3);
  EXPECT_EQ(Check("").status, 3);
  std::ostringstream out;
  EXPECT_EQ(check::Run({}, out, out), 3);
}

/// Whether the loader's steps reach the file's end.
bool Loads(const std::string& path) {
  const auto stream = TextInputStream::Open(GetFolderItem(path));
  stream->ReadLine();
  stream->ReadLine();
  try {
    while (!stream->EOF_()) pitch::TScale().Constructor(Split(stream->ReadLine(), ","));
  } catch (const OutOfBoundsException&) {
    return false;
  }
  return true;
}

TEST(CheckerTest, ReportsAnErrorExactlyForWhatStopsTheLoading) {
  const std::string pieces[] = {kMajor, kNotes,  "\n",   "\r", ",",
                                "\"",   {"", 1}, "\xC3", "\t", "TRUE,FALSE,TRUE,FALSE,TRUE,FALSE,"};
  std::mt19937 random(20);
  int loaded = 0;
  for (int round = 0; round < 1000; ++round) {
    std::string bytes = kHead;
    for (auto count = random() % 12; count > 0; --count) {
      bytes += pieces[random() % std::size(pieces)];
    }
    const File file(bytes);
    const bool loads = Loads(file.path);
    const Result result = Check(file.path);
    ASSERT_EQ(result.status != 2, loads) << check::Quoted(bytes) << result.out;
    EXPECT_EQ(check::FindNoText(result.out), std::string::npos);
    loaded += loads ? 1 : 0;
  }
  EXPECT_THAT(loaded, testing::AllOf(testing::Gt(100), testing::Lt(900)));
}

TEST(Characters, AreThoseOfUtf8AndNoOthers) {
  for (const std::string_view good : {"\x7F", "\u0080", "\u07FF", "\u0800", "\uD7FF", "\uE000",
                                      "\uFFFF", "\U00010000", "\U0010FFFF"}) {
    EXPECT_EQ(check::CharacterSize(good), good.size()) << check::Quoted(good);
  }
  for (const std::string_view bad :
       {"", "\x80", "\xC1\xBF", "\xC3", "\xC3(", "\xE0\x9F\xBF", "\xE2\x82", "\xED\xA0\x80",
        "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xE2\x82\xC0", "\xFF"}) {
    EXPECT_EQ(check::CharacterSize(bad), 0U) << check::Quoted(bad);
  }
}

}  // namespace
