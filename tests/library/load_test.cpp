#include "library/load.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>

#include "support/program.h"
#include "toolkit/memory/memory_toolkit.h"

namespace {

using namespace framework;
using namespace support;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

/// What a library file does to the program's opening.
class Opening : public ProgramOn<toolkit::memory::MemoryToolkit> {
 protected:
  std::vector<std::string> Loaded() const {
    std::vector<std::string> scales;
    for (std::int64_t i = 0; i <= window_->Scale().LastIndex(); ++i) {
      scales.push_back(Text(window_->Scale()[i]->Print()));
    }
    return scales;
  }
  /// What the user was told while the program opened.
  std::vector<std::string> Told() const {
    std::vector<std::string> told;
    for (const std::string& line : toolkit_.Lines()) {
      if (line.starts_with("message") || line.starts_with("failure")) told.push_back(line);
    }
    return told;
  }
  bool OpenedWhole() const { return window_->Labels().LastIndex() == 11; }
};

TEST_F(Opening, TakesScalesFromTheThirdLineOn) {
  Open(
      "TRUE\n\nBank,Major,TRUE,FALSE,TRUE,FALSE,TRUE,TRUE,FALSE,TRUE,FALSE,TRUE,FALSE,TRUE,more,\n"
      "\"Q\",\"a, b\",TRUE,TRUE,,,,,,,,,,\n"
      "\xFF\xC0,Twice,TRUE,,,,,,,,,,,\nBank,Twice,TRUE,,,,,,,,,,,");
  EXPECT_THAT(Loaded(), ElementsAre("Bank : Major : 2773", "\"Q\" : \"a : 1536",
                                    "\xFF\xC0 : Twice : 2048", "Bank : Twice : 2048"));
  EXPECT_THAT(Told(), IsEmpty());
  EXPECT_TRUE(OpenedWhole());
}

struct Same {
  const char* what;
  std::string bytes;
  friend void PrintTo(const Same& row, std::ostream* out) { *out << row.what; }
};

class OpeningOnTheSameLibrary : public Opening, public testing::WithParamInterface<Same> {};

TEST_P(OpeningOnTheSameLibrary, LoadsIt) {
  Open(GetParam().bytes);
  EXPECT_THAT(Loaded(), ElementsAre("Bank : Major : 2773", "Bank : Triad : 2192"));
  EXPECT_THAT(Told(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Written, OpeningOnTheSameLibrary,
    testing::Values(Same{"plain", "a\nb\n" + kMajor + "\n" + kTriad},
                    Same{"with_a_last_line_end", "a\nb\n" + kMajor + "\n" + kTriad + "\n"},
                    Same{"with_cr_lf", "a\r\nb\r\n" + kMajor + "\r\n" + kTriad + "\r\n"},
                    Same{"with_cr", "a\rb\r" + kMajor + "\r" + kTriad + "\r"},
                    Same{"with_a_mark", "\xEF\xBB\xBF\n\n" + kMajor + "\n" + kTriad},
                    Same{"with_a_megabyte_of_more",
                         "a\nb\n" + kMajor + std::string(1'000'000, ',') + "\n" + kTriad}),
    [](const auto& row) { return row.param.what; });

TEST_F(Opening, IsSilentWithoutScales) {
  for (const char* const bytes : {"", "one", "one\n", "one\ntwo", "one\ntwo\n"}) {
    Open(bytes);
    EXPECT_THAT(Loaded(), IsEmpty());
    EXPECT_TRUE(OpenedWhole());
    window_->Close();
  }
  EXPECT_THAT(Told(), IsEmpty());
}

TEST_F(Opening, IsSilentWithoutAFile) {
  Start();
  window_->cbScale(0)->Toggle();
  window_->pmRoot()->Choose(0);
  EXPECT_EQ(Captions().back(), "G# / Ab");
  EXPECT_THAT(Containing(), IsEmpty());
  EXPECT_THAT(Told(), IsEmpty());
  EXPECT_TRUE(OpenedWhole());
}

class OpeningOnAShortLine : public Opening, public testing::WithParamInterface<Same> {};

TEST_P(OpeningOnAShortLine, StopsThereAndLivesOn) {
  Open(GetParam().bytes);
  EXPECT_THAT(Loaded(), ElementsAre("Bank : Major : 2773"));
  EXPECT_THAT(Told(), ElementsAre(StartsWith("failure OutOfBoundsException")));
  EXPECT_FALSE(OpenedWhole());
  const auto captions = Captions();
  EXPECT_EQ(captions[1], "C# / Db");

  window_->cbScale(0)->Toggle();
  EXPECT_THAT(Containing(), ElementsAre("Major|C|2773")) << "the boxes still search";
  toolkit_.ClearLog();
  window_->cbOther()->Toggle();
  EXPECT_THAT(Containing(), ElementsAre("Major|C|2773")) << "the first match elsewhere has no name";
  window_->pmRoot()->Choose(5);
  EXPECT_THAT(Told(), ElementsAre(StartsWith("failure OutOfBoundsException"),
                                  StartsWith("failure OutOfBoundsException")));
  EXPECT_EQ(Captions(), captions);
}

INSTANTIATE_TEST_SUITE_P(With, OpeningOnAShortLine,
                         testing::Values(Same{"thirteen_fields",
                                              "a\nb\n" + kMajor + "\nBank,S,,,,,,,,,,,\n" + kTriad},
                                         Same{"a_blank_line", "a\nb\n" + kMajor + "\n\n" + kTriad},
                                         Same{"a_second_line_end", "a\nb\n" + kMajor + "\n\n"}),
                         [](const auto& row) { return row.param.what; });

TEST_F(Opening, SaysSoWhenReadingFailsAndKeepsWhatCameBefore) {
  const std::string path = folder_.Path(library::kFileName);
  ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
  // A pipe that is held open but has nothing more to give refuses the next read.
  const int pipe = open(path.c_str(), O_RDWR);
  const std::string bytes = "a\nb\n" + kMajor + "\nBank,Half";
  ASSERT_EQ(write(pipe, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
  Start();
  close(pipe);
  EXPECT_THAT(Loaded(), ElementsAre("Bank : Major : 2773"));
  EXPECT_THAT(Told(), ElementsAre("message Error accessing file."));
  EXPECT_TRUE(OpenedWhole());
}

TEST_F(Opening, EndsInTheLastResortWhenTheFileCannotBeOpened) {
  const int file = socket(AF_UNIX, SOCK_STREAM, 0);
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  folder_.Path(library::kFileName).copy(address.sun_path, sizeof address.sun_path - 1);
  ASSERT_EQ(bind(file, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  Start();
  close(file);
  EXPECT_THAT(Told(), ElementsAre(StartsWith("failure NilObjectException")));
  EXPECT_FALSE(OpenedWhole());
}

TEST_F(Opening, EndsInTheLastResortWithoutAResourcesFolder) {
  SpecialFolder::_SetBundlePlatform(std::make_unique<TestBundle>(""));
  Start();
  EXPECT_THAT(Told(), ElementsAre(StartsWith("failure NilObjectException")));
  EXPECT_FALSE(OpenedWhole());
}

}  // namespace
