#include "library/load.h"

#include <sys/stat.h>

#include "support/program.h"
#include "toolkit/memory/memory_toolkit.h"

namespace {

using namespace support;

/// What stands in the library's place, and what is found when the program has opened on it: the
/// scales, what the user was told, and whether the opening went on to the note names.
struct Place {
  const char* what;
  std::function<void(const std::string& path)> fill;
  std::vector<std::string> found;
};

const std::string kStart = "a\nb\n" + kMajor + "\n";
constexpr const char* kLoadedMajor = "Bank : Major : 2773";
constexpr const char* kNames = "names";
constexpr const char* kUnreadable = "message Error accessing file.";
constexpr const char* kTooShort = "failure OutOfBoundsException";
constexpr const char* kNil = "failure NilObjectException";

auto File(const std::string& bytes) {
  return [bytes](const std::string& path) { std::ofstream(path) << bytes; };
}
void LinkToZeros(const std::string& path) { std::filesystem::create_symlink("/dev/zero", path); }
void TakeResourcesAway(const std::string&) {
  framework::SpecialFolder::_SetBundlePlatform(std::make_unique<TestBundle>(""));
}

const Place kPlaces[] = {
    {"nothing", [](auto&) {}, {kNames}},
    {"an empty file", File(""), {kNames}},
    {"two lines", File("TRUE\n" + kMajor + "\n"), {kNames}},
    {"a last line end", File(kStart), {kLoadedMajor, kNames}},
    {"odd fields",
     File(kStart + "\"Q\",\"a, b\",TRUE,TRUE,,,,,,,,,,\n\xFF,Twice,TRUE,,,,,,,,,,,more,\n"
                   "Bank,Twice,TRUE,,,,,,,,,,,"),
     {kLoadedMajor, "\"Q\" : \"a : 1536", "\xFF : Twice : 2048", "Bank : Twice : 2048", kNames}},
    {"thirteen fields", File(kStart + "Bank,S,,,,,,,,,,,\n" + kTriad), {kLoadedMajor, kTooShort}},
    {"a folder", [](auto& path) { mkdir(path.c_str(), 0700); }, {kUnreadable, kNames}},
    {"a pipe", [](auto& path) { mkfifo(path.c_str(), 0600); }, {kUnreadable, kNames}},
    {"a device without an end", &LinkToZeros, {kUnreadable, kNames}},
    {"a socket", [](auto& path) { mknod(path.c_str(), S_IFSOCK | 0600, 0); }, {kNil}},
    {"no resources", &TakeResourcesAway, {kNil}},
};

TEST(Opening, LoadsWhatItCan) {
  for (const Place& place : kPlaces) {
    ProgramOn<toolkit::memory::MemoryToolkit> program;
    place.fill(program.folder_.Path(library::kFileName));
    program.Start();
    std::vector<std::string> found;
    for (std::int64_t i = 0; i <= program.window_->Scale().LastIndex(); ++i) {
      found.emplace_back(program.window_->Scale()[i]->Print());
    }
    for (const std::string& told : program.Told()) found.push_back(told);
    if (program.window_->Labels().LastIndex() == 11) found.emplace_back(kNames);
    EXPECT_EQ(found, place.found) << "of " << place.what;
  }
}

}  // namespace
