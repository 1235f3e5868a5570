#include <gmock/gmock.h>

#include <random>
#include <sstream>

#include "check/characters.h"
#include "check/run.h"
#include "framework/files/text_input_stream.h"
#include "framework/values/failures.h"
#include "framework/values/text.h"
#include "pitch/tscale.h"
#include "support/folder.h"

namespace {

using namespace framework;
using testing::HasSubstr;
using testing::Pair;

const std::string kNotes = ",TRUE,FALSE,FALSE,FALSE,TRUE,FALSE,FALSE,TRUE,FALSE,FALSE,FALSE,FALSE";
const std::string kMajor = "Triads,maj" + kNotes;

/// The status, and all that is printed.
std::pair<int, std::string> Check(const std::string& path) {
  std::ostringstream out;
  const char* const arguments[] = {path.c_str()};
  const int status = check::Run(arguments, out, out);
  return {status, out.str()};
}

TEST(Checker, SaysOfEachLineWhatIsWrongAndWhere) {
  std::filesystem::current_path(LIBRARIES);
  for (const auto& [name, status] : {std::pair("clean", 0), {"warned", 1}, {"faulty", 2}}) {
    std::ostringstream report;
    report << std::ifstream(std::string(name) + ".report").rdbuf();
    EXPECT_THAT(Check(std::string(name) + ".csv"), Pair(status, report.str()));
  }
}

TEST(Checker, HasAStatusForWhatCannotBeRead) {
  const support::Folder folder;
  EXPECT_THAT(Check(folder.Path("no-such-library.csv")),
              Pair(3, HasSubstr("cannot be read: No such file or directory")));
  EXPECT_THAT(Check(folder.Path()), Pair(3, HasSubstr("cannot be read")));
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
    std::string bytes = "Bank,Scale\nRules\n";
    for (auto n = random() % 12; n > 0; --n) bytes += pieces[random() % std::size(pieces)];
    folder.Write("library.csv", bytes);
    const auto [status, report] = Check(path);
    ASSERT_EQ(status != 2, Loads(path)) << check::Quoted(bytes) << report;
    EXPECT_EQ(check::FindNoText(report), std::string::npos);
    loaded += status != 2 ? 1 : 0;
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
