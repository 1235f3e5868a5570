#include <regex>

#include "check/checked.h"

namespace {

using namespace checked;
using testing::StartsWith;

/// With quotation marks around banks and names.
std::string Quoted(const std::string& library) {
  return std::regex_replace(library, std::regex("(^|\n)([^,\n]*),([^,\n]*)"), "$1\"$2\",\"$3\"");
}

TEST(Checker, SaysOnceAndFirstWhatIsWrongWithTheWholeFile) {
  const std::string good = "Bank,Scale,R,b2,2,b3,3,4,b5,5,b6,6,b7,7\nRules\n" + kMajor +
                           "\nChords,maj" + kNotes + "\nArpeggios,maj" + kNotes + "\n";
  const std::string semicolons = Replaced(good, ",", ";");
  const std::string german = Replaced(Replaced(good, "TRUE", "WAHR"), "FALSE", "FALSCH");
  const std::string headings = "Bank,Scale" + kNotes + kNotes;
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
      {"inside of the quotation marks",
       Quoted(good + "Triads,maj" + kNotes + "\nSteps," + kNotes + "\nLeaps,m\"" + kNotes),
       {" warning: found quotation marks around", R"(6:10: warning: found the name "maj" again)",
        "7:10: warning: found no name", "8:11: warning: found a quotation mark in the name",
        " 6 scales in 5 banks"}},
      {"numbers, which need no quotation marks",
       Replaced(Replaced(Quoted(good), R"("Arpeggios")", "7"), R"("Chords","maj")",
                R"("Chords",7)"),
       {" warning: found quotation marks around", three}},
      {"two lines that are right",
       semicolons + "Steps,;;;;;;;;;;;;;" + kNotes + "\nLeaps,maj" + kNotes,
       {" error: found semicolons", " 5 scales in 5 banks: 1 error, 0 w"}},
      {"no more than half of the lines",
       good + semicolons.substr(semicolons.find("Tri")),
       {"6:80: error", "7:80: error", "8:83: error", three}},
      {"two lines alone",
       semicolons.substr(0, semicolons.find("Arp")),
       {"3:80: error", "4:80: error", none}},
      {"what one line has alone",
       good + Replaced(kMajor, ",", ";"),
       {"6:80: error: found 1 field (semicolons?)", three}},
      {"fields enough for the program",
       Replaced(good, "maj", std::string(13, ';')),
       {three + "0 errors, 0 w"}},
      {"more than a third of zeros", {"a\0", 2}, {" warning: found a file in UTF-16", none}},
      {"a third of zeros", {"ab\0", 3}, {none + "0 errors"}},
      {"two bytes, the low one first",
       "\xFF\xFE" + Wide(good, false),
       {" error: found a file in UTF-16", none}},
      {"the high one first, which loads",
       Wide(good, true),
       {" warning: found a file in UTF-16", none}},
      {"the same but for a short line",
       Wide("a\nb\nshort\n" + kMajor, true),
       {" error: found a file in UTF-16", none}},
      {"form feeds", Replaced(good, "\n", "\f"), {" warning: found all scales on one line", none}},
      {"the headings and one scale", headings + "\f", {none + "0 errors, 0 w"}},
      {"the same with a heading",
       "Bank,Scale" + kNotes + "\f" + kMajor,
       {" warning: found all", none}},
      {"a line behind", headings + ",\nRules\n" + kMajor, {" 1 scale in 1 bank: 0 errors, 0 w"}},
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

}  // namespace
