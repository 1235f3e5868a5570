#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "framework/files/standard_files.h"
#include "framework/files/text_input_stream.h"
#include "support/running.h"
#include "support/test_bundle.h"

namespace {

using namespace framework;
using std::filesystem::create_directory;

class Files : public support::Running {
 protected:
  ~Files() override { SpecialFolder::_SetBundlePlatform(nullptr); }
  Ref<FolderItem> Item(std::string_view name) const { return GetFolderItem(folder_.Path(name)); }

  support::Folder folder_;
};

TEST_F(Files, CarryTheSystemsErrors) {
  const auto raises = [](int number) {
    return "failure IOException (error number " + std::to_string(number) + ")";
  };
  EXPECT_EQ(Reported([&] { TextInputStream::Open(Item("missing")); }), raises(ENOENT));
  const auto no_file = TextInputStream::Open(Item(""));
  EXPECT_FALSE(no_file->EOF_()) << "the failure is the next ReadLine's to tell";
  EXPECT_EQ(Reported([&] { no_file->ReadLine(); }), raises(EISDIR));
}

TEST_F(Files, OfTheStandardThatAreClosedAreOpened) {
  const auto open_one_more = [] {
    for (const int file : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) close(file);
    OpenStandardFiles();
    std::_Exit(open("/dev/null", O_RDONLY) > STDERR_FILENO ? EXIT_SUCCESS : EXIT_FAILURE);
  };
  EXPECT_EXIT(open_one_more(), testing::ExitedWithCode(EXIT_SUCCESS), "");
}

TEST_F(Files, AreLetGoOf) {
  folder_.Write("file", "a\nb\nc");
  const auto open_files = [] {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
  };
  const auto before = open_files();
  const auto stream = TextInputStream::Open(Item("file"));
  EXPECT_EQ(std::string(stream->ReadLine()), "a");
  stream->Close();
  EXPECT_TRUE(stream->EOF_());
  EXPECT_EQ(std::string(stream->ReadLine()), "");
  TextInputStream::Open(Item("file"));
  TextInputStream::Open(Item(""));
  EXPECT_EQ(open_files(), before);
}

TEST_F(Files, HaveLinesOfOneMebibyteAtMost) {
  const std::string longest(1024 * 1024, 'x');
  folder_.Write("file", longest + "\n" + longest + "x\nmore");
  const auto stream = TextInputStream::Open(Item("file"));
  EXPECT_EQ(stream->ReadLine().View(), longest);
  EXPECT_FALSE(stream->EOF_());
  EXPECT_THROW(stream->ReadLine(), IOException);
  EXPECT_TRUE(stream->EOF_()) << "nothing more is read";
}

TEST_F(Files, NameTheirPartsWhetherTheyExistOrNot) {
  const auto item = GetFolderItem("/nowhere at all")->Child("file.txt");
  EXPECT_EQ(std::string(item->NativePath()), "/nowhere at all/file.txt");
  EXPECT_EQ(std::string(item->Name()), "file.txt");
  EXPECT_EQ(std::string(item->Parent()->Parent()->NativePath()), "/");
  EXPECT_FALSE(item->Parent()->Parent()->Parent());
  EXPECT_FALSE(GetFolderItem(String(std::string_view("/tmp\0x", 6)))->Exists());
  EXPECT_EQ(GetFolderItem("/a/b//")->Name().View(), "b");
  EXPECT_EQ(GetFolderItem("/a/b//")->Parent()->NativePath().View(), "/a");
  EXPECT_EQ(GetFolderItem("//")->Name().View(), "");
  EXPECT_FALSE(GetFolderItem("//")->Parent());
}

/// A program whose executable lies where the test says.
struct Placed final : Application {
  Ref<FolderItem> ExecutableFile() const override { return place; }
  Ref<FolderItem> place;
};

TEST_F(Files, OfTheProgramLieBesideItUnderItsOwnNameFirst) {
  const auto found = [] { return std::string(SpecialFolder::Resources()->Name()); };
  const auto app = RuntimeNewObject<Placed>();
  app->place = Item("tool.bin");
  EXPECT_FALSE(GetResource("file")) << "no application object";
  _RuntimeRegisterAppObject(app);
  EXPECT_FALSE(GetResource("file")) << "no folder";
  create_directory(folder_.Path("Resources"));
  EXPECT_EQ(found(), "Resources");
  create_directory(folder_.Path("tool.bin Resources"));
  EXPECT_EQ(found(), "Resources") << "a folder that exists is not looked up again";
  std::filesystem::remove(folder_.Path("Resources"));
  EXPECT_EQ(found(), "tool.bin Resources");
}

TEST_F(Files, OfABundleAreAskedForOnlyWhileTheyAreMissing) {
  const std::string bundle = folder_.Path("bundle");
  SpecialFolder::_SetBundlePlatform(std::make_unique<support::TestBundle>(bundle));
  const auto missing = SpecialFolder::Resources();
  const auto found = SpecialFolder::Resources();
  EXPECT_NE(found, missing);
  create_directory(bundle);
  EXPECT_EQ(SpecialFolder::Resources(), found);
}

}  // namespace
