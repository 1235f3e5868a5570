#include <gmock/gmock.h>

#include <random>
#include <sstream>

#include "check/characters.h"
#include "check/run.h"
#include "framework/failures.h"
#include "framework/text.h"
#include "framework/text_input_stream.h"
#include "pitch/tscale.h"
#include "support/folder.h"

namespace {

using namespace framework;
using testing::HasSubstr;

const std::string kHead = "Bank,Scale\nRules\n";
const std::string kNotes = ",TRUE,FALSE,FALSE,FALSE,TRUE,FALSE,FALSE,TRUE,FALSE,FALSE,FALSE,FALSE";
const std::string kMajor = "Triads,maj" + kNotes;

struct Result {
  int status;
  std::string out;
  std::string err;
};

Result Check(const std::string& path) {
  std::ostringstream out;
  std::ostringstream err;
  const char* const arguments[] = {path.c_str()};
  const int status = check::Run(arguments, out, err);
  return {status, out.str(), err.str()};
}

TEST(Checker, SaysOfEachLineWhatIsWrongAndWhere) {
  std::filesystem::current_path(FOLDER_OF_FAULTY);
  std::stringstream report;
  report << std::ifstream("faulty.report").rdbuf();
  const Result result = Check("faulty.csv");
  EXPECT_EQ(result.out, report.str());
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.status, 2);
}

TEST(Checker, KnowsAFileByItsBytes) {
  struct Case {
    std::string bytes;
    int status;
    const char* report;
  };
  const Case cases[] = {
      {kHead, 0, ": 0 scales in 0 banks: 0 errors, 0 warnings, 0 remarks\n"},
      {kHead + kMajor, 0, ": 1 scale in 1 bank: 0 errors, 0 warnings, 0 remarks\n"},
      {kHead + kMajor + "\n", 0, ": 1 scale in 1 bank: 0 errors, 0 warnings, 0 remarks\n"},
      {kHead + kMajor + "\r\nTriads,m" + kNotes + "\rTriads,aug" + kNotes, 0,
       ": 3 scales in 1 bank: 0 errors, 0 warnings, 2 remarks\n"},
      {"\xEF\xBB\xBF\"\xFF\n\n" + kMajor, 0, ": 1 scale in 1 bank: 0 errors, 0 warnings"},
      {kHead + "Makam \u015Eed,U\xFE" + kNotes, 1,
       ":3:12: warning: found the byte \\xFE, expected text in UTF-8\n"},
      {kHead + std::string("Tri\0ads,m", 9) + kNotes, 1, ":3:4: warning: found the byte \\x00"},
      {kHead + "Triads,m,\x1B[2J,,,,,,,,,,,", 1, "found \"\\x1B[2J\" at position 0"},
  };
  const support::Folder folder;
  for (const auto& [bytes, status, report] : cases) {
    folder.Write("library.csv", bytes);
    const Result result = Check(folder.Path("library.csv"));
    EXPECT_THAT(result.out, HasSubstr(report));
    EXPECT_EQ(result.status, status) << report;
  }
}

TEST(Checker, HasAStatusForWhatCannotBeRead) {
  const support::Folder folder;
  const Result missing = Check(folder.Path("no-such-library.csv"));
  EXPECT_EQ(missing.status, 3);
  EXPECT_THAT(missing.err, HasSubstr("cannot be read: No such file or directory"));
  EXPECT_EQ(Check(folder.Path()).status, 3);
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

TEST(Checker, ReportsAnErrorExactlyForWhatStopsTheLoading) {
  const std::string pieces[] = {kMajor, kNotes,  "\n",   "\r", ",",
                                "\"",   {"", 1}, "\xC3", "\t", "TRUE,FALSE,TRUE,FALSE,TRUE,FALSE,"};
  const support::Folder folder;
  const std::string path = folder.Path("library.csv");
  std::mt19937 random(20);
  int loaded = 0;
  for (int round = 0; round < 1000; ++round) {
    std::string bytes = kHead;
    for (auto count = random() % 12; count > 0; --count) {
      bytes += pieces[random() % std::size(pieces)];
    }
    folder.Write("library.csv", bytes);
    const Result result = Check(path);
    ASSERT_EQ(result.status != 2, Loads(path)) << check::Quoted(bytes) << result.out;
    EXPECT_EQ(check::FindNoText(result.out), std::string::npos);
    loaded += result.status != 2 ? 1 : 0;
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
