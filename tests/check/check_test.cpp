#include <gmock/gmock.h>
#include <sys/stat.h>

#include <random>
#include <regex>
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
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::Pair;
using testing::StartsWith;

const std::string kNotes = ",TRUE,FALSE,FALSE,FALSE,TRUE,FALSE,FALSE,TRUE,FALSE,FALSE,FALSE,FALSE";
const std::string kMajor = "Triads,maj" + kNotes;

/// The status, and all that is printed.
std::pair<int, std::string> Answer(const std::vector<const char*>& arguments) {
  std::string printed;
  const auto print = [&](std::string_view text) { printed += text; };
  const int status = check::Run(arguments, print, print);
  return {status, printed};
}

std::pair<int, std::string> Check(const std::string& path) { return Answer({path.c_str()}); }

/// What is said of a library of these bytes, line by line, without the file's name.
std::vector<std::string> Report(const std::string& library) {
  const support::Folder folder;
  folder.Write("library.csv", library);
  std::istringstream report(Check(folder.Path("library.csv")).second);
  std::vector<std::string> lines;
  for (std::string line; std::getline(report, line);) {
    lines.push_back(line.substr(folder.Path("library.csv:").size()));
  }
  return lines;
}

TEST(Checker, SaysOfEachLineWhatIsWrongAndWhere) {
  std::filesystem::current_path(LIBRARIES);
  for (const auto& [name, status] : {std::pair("clean", 0), {"warned", 1}, {"faulty", 2}}) {
    std::ostringstream report;
    report << std::ifstream(std::string(name) + ".report").rdbuf();
    EXPECT_THAT(Check(std::string(name) + ".csv"), Pair(status, report.str()));
  }
}

std::string Replaced(std::string text, std::string_view what, std::string_view with) {
  for (std::size_t at = 0; (at = text.find(what, at)) != text.npos; at += with.size()) {
    text.replace(at, what.size(), with);
  }
  return text;
}

/// With quotation marks around banks and names.
std::string Quoted(const std::string& library) {
  return std::regex_replace(library, std::regex("(^|\n)([^,\n]+),([^,\n]+)"), "$1\"$2\",\"$3\"");
}

/// Two bytes for each.
std::string Wide(const std::string& library, bool zero_first) {
  std::string wide;
  for (const char byte : library) {
    if (zero_first) wide += '\0';
    wide += byte;
    if (!zero_first) wide += '\0';
  }
  return wide;
}

TEST(Checker, SaysOnceAndFirstWhatIsWrongWithTheWholeFile) {
  const std::string good = "Bank,Scale,R,b2,2,b3,3,4,b5,5,b6,6,b7,7\nRules\n" + kMajor +
                           "\nChords,maj" + kNotes + "\nArpeggios,maj" + kNotes + "\n";
  const std::string semicolons = Replaced(good, ",", ";");
  const std::string german = Replaced(Replaced(good, "TRUE", "WAHR"), "FALSE", "FALSCH");
  const std::string words =
      R"( warning: found "WAHR" and "FALSCH" for the notes, expected TRUE and FALSE: )"
      R"(replace "WAHR" by TRUE and "FALSCH" by FALSE)";
  const std::string three = " 3 scales in 3 banks: ";
  const std::string none = " 0 scales in 0 banks: ";
  const struct {
    const char* name;
    std::string library;
    std::vector<std::string> report;  ///< how its lines begin
  } cases[] = {
      {"nothing wrong", good, {three + "0 errors, 0 warnings, 0 remarks"}},
      {"semicolons", semicolons, {" error: found semicolons between", three + "1 error, 0 w"}},
      {"tabs", Replaced(good, ",", "\t"), {" error: found tabs between", three}},
      {"other words", german, {words, three + "0 errors, 1 warning,"}},
      {"one other word",
       Replaced(good, "FALSE", "FAUX"),
       {R"( warning: found "FAUX" for the notes, expected TRUE and FALSE: replace "FAUX" by FALSE)",
        three}},
      {"an x or nothing",
       Replaced(Replaced(good, "TRUE", "x"), "FALSE", ""),
       {R"( warning: found "x" and empty fields for the notes)", three}},
      {"quotation marks", Quoted(good), {" warning: found quotation marks around", three}},
      {"all of these",
       Replaced(Quoted(german), ",", ";"),
       {" error: found semicolons", " warning: found quotation marks", words, three}},
      {"a line with a fault of its own",
       semicolons + "Chords;m;TRUE\n",
       {" error: found semicolons", "6:14: error: found 3 fields, expected 14", three}},
      {"a line that is right",
       semicolons + "Steps,maj" + kNotes,
       {" error: found semicolons", " 4 scales in 4 banks: 1 error, 0 w"}},
      {"no more than half of the lines",
       good + semicolons.substr(semicolons.find("Tri")),
       {"6:80: error", "7:80: error", "8:83: error", three}},
      {"two lines alone",
       semicolons.substr(0, semicolons.find("Arp")),
       {"3:80: error", "4:80: error", none}},
      {"what one line has alone",
       good + Replaced(kMajor, ",", ";"),
       {"6:80: error: found 1 field (semicolons?)", three}},
      {"two bytes, the low one first",
       "\xFF\xFE" + Wide(good, false),
       {" error: found a file in UTF-16", none}},
      {"the same without a mark", Wide(good, false), {" error: found a file in UTF-16", none}},
      {"the high one first, which loads",
       Wide(good, true),
       {" warning: found a file in UTF-16", none}},
      {"form feeds", Replaced(good, "\n", "\f"), {" warning: found all scales on one line", none}},
      {"line separators",
       Replaced(semicolons, "\n", "\u2028"),
       {" warning: found all scales on one line", none}},
  };
  for (const auto& [name, library, report] : cases) {
    std::vector<testing::Matcher<std::string>> lines;
    for (const std::string& line : report) lines.emplace_back(StartsWith(line));
    EXPECT_THAT(Report(library), ElementsAreArray(lines)) << name;
  }
}

TEST(Checker, TellsTheFirstTwentyOfAKindAndHowManyMoreThereAre) {
  std::string library = "Bank,Scale\nRules\n";
  for (int i = 0; i < 23; ++i) library += "Triads ,maj" + std::to_string(i) + kNotes + "\n";
  const std::vector<std::string> report = Report(library + "Triads,m,TRUE\n");
  ASSERT_EQ(report.size(), 20U + 20U + 1U + 2U + 1U);
  EXPECT_THAT(report[37], StartsWith("22:1: warning: found the bank \"Triads \""));
  EXPECT_THAT(report[39], StartsWith("23:9: remark: found the notes"));
  EXPECT_THAT(std::vector(report.begin() + 40, report.end()),
              testing::ElementsAre(StartsWith("26:14: error: found 3 fields"),
                                   " warning: found 3 more blanks beside a bank or a name",
                                   " remark: found 2 more notes that their bank has already",
                                   " 23 scales in 1 bank: 1 error, 23 warnings, 22 remarks"));
}

TEST(Checker, AnswersWhatItIsAsked) {
  const support::Folder folder;
  folder.Write("--help", "Bank\nRules\n" + kMajor);
  folder.Write("long", std::string(2 << 20, 'a'));
  mkfifo(folder.Path("pipe").c_str(), 0600);
  std::filesystem::current_path(folder.Path());
  const struct {
    std::vector<const char*> arguments;
    int status;
    const char* printed;
  } cases[] = {
      {{"--help"}, 0, "usage: orrel-check-library FILE"},
      {{"--version"}, 0, "orrel-check-library 1."},
      {{"--", "--help"}, 0, "--help: 1 scale in 1 bank"},
      {{}, 3, "usage: "},
      {{"a", "b"}, 3, "usage: "},
      {{"--colour", "a"}, 3, "unknown option --colour\nusage: "},
      {{"no-such-library.csv"}, 3, ".csv: cannot be read: No such file or directory"},
      {{"long"}, 3, "long: cannot be read: a line of more than 1 MiB, with no line end"},
      {{"."}, 3, ".: is a folder, not a file"},
      {{"pipe"}, 3, "pipe: is not a file"},
      {{"/dev/zero"}, 3, "/dev/zero: is not a file"},
  };
  for (const auto& [arguments, status, printed] : cases) {
    EXPECT_THAT(Answer(arguments), Pair(status, HasSubstr(printed)));
    std::string errors;
    const auto keep = [&](std::string_view text) { errors += text; };
    check::Run(
        arguments, [](std::string_view) {}, keep);
    EXPECT_EQ(errors.empty(), status == 0) << printed;
  }
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
  // The last of them, whole lines, are what a file needs several of to be wrong as a whole.
  const std::string pieces[] = {kMajor,
                                kNotes,
                                "\n",
                                "\r",
                                ",",
                                "\"",
                                {"", 1},
                                "\xC3",
                                "TRUE,FALSE,TRUE,FALSE,TRUE,FALSE,",
                                "\t",
                                "\"a\",b",
                                ";;;;;;;;;;;;;\n",
                                Wide(kMajor + "\n", false),
                                Replaced(kMajor, ",", ";") + "\n"};
  const support::Folder folder;
  const std::string path = folder.Path("library.csv");
  std::mt19937 random(20);
  int loaded = 0;
  int as_a_whole = 0;
  for (int round = 0; round < 1000; ++round) {
    std::string bytes = "Bank,Scale\nRules\n";
    const auto first = random() % std::size(pieces);
    for (auto n = random() % 12; n > 0; --n) {
      bytes += pieces[first + random() % (std::size(pieces) - first)];
    }
    folder.Write("library.csv", bytes);
    const auto [status, report] = Check(path);
    ASSERT_EQ(status != 2, Loads(path)) << check::Quoted(bytes) << report;
    EXPECT_EQ(check::FindNoText(report), std::string::npos);
    loaded += status != 2 ? 1 : 0;
    as_a_whole += report.rfind(path + ": error", 0) == 0 ? 1 : 0;
  }
  EXPECT_THAT(loaded, testing::AllOf(testing::Gt(50), testing::Lt(950)));
  EXPECT_THAT(as_a_whole, testing::AllOf(testing::Gt(50), testing::Lt(950)));
}

}  // namespace
