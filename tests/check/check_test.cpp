#include <sys/stat.h>

#include "check/checked.h"

namespace {

using namespace checked;
using testing::HasSubstr;
using testing::Pair;
using testing::StartsWith;

TEST(Checker, SaysOfEachLineWhatIsWrongAndWhere) {
  std::filesystem::current_path(LIBRARIES);
  for (const auto& [name, status] : {std::pair("clean", 0), {"warned", 1}, {"faulty", 2}}) {
    std::ostringstream report;
    report << std::ifstream(std::string(name) + ".report").rdbuf();
    EXPECT_THAT(Check(std::string(name) + ".csv"), Pair(status, report.str()));
  }
}

TEST(Checker, TellsTheFirstTwentyOfAKindAndHowManyMoreThereAre) {
  std::string library = "Bank,Scale\nRules\n";
  for (int i = 0; i < 21; ++i) library += "Triads ,maj" + std::to_string(i) + kNotes + "\n";
  const std::vector<std::string> report = Report(library + "Triads,m,TRUE\n");
  ASSERT_EQ(report.size(), 20U + 20U + 1U + 1U + 1U);
  EXPECT_THAT(report[37], StartsWith("22:1: warning: found the bank \"Triads \""));
  EXPECT_THAT(report[39], StartsWith("23:9: remark: found the notes"));
  EXPECT_THAT(std::vector(report.begin() + 40, report.end()),
              testing::ElementsAre(StartsWith("24:14: error: found 3 fields"),
                                   " warning: found 1 more blanks beside a bank or a name",
                                   " 21 scales in 1 bank: 1 error, 21 warnings, 20 remarks"));
}

TEST(Checker, AnswersWhatItIsAsked) {
  const support::Folder folder;
  folder.Write("--help", "Bank\nRules\n" + kMajor);
  folder.Write("nameless", "Bank\nRules\nTriads," + kNotes);
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
      {{"nameless"}, 1, "1 warning"},
      {{}, 3, "usage: "},
      {{"a", "b"}, 3, "usage: "},
      {{"--colour", "a"}, 3, "unknown option --colour\nusage: "},
      {{"no-such-library.csv"}, 3, ".csv: cannot be read: No such file or directory"},
      {{"long"}, 3, "long: cannot be read: a line of more than 1 MiB, with no line end"},
      {{"."}, 3, ".: is a folder, not a file"},
      {{"pipe"}, 3, "pipe: is not a file"},
  };
  for (const auto& [arguments, status, printed] : cases) {
    const auto answer = Answer(arguments);
    EXPECT_THAT(answer, Pair(status, HasSubstr(printed)));
    EXPECT_EQ(answer.second.starts_with("stderr: "), status == 3) << printed;
  }
}

}  // namespace
