#include <gmock/gmock.h>
#include <sys/stat.h>

#include <cerrno>

#include "framework/runtime.h"
#include "framework/special_folder.h"
#include "framework/text_input_stream.h"
#include "support/test_bundle.h"
#include "toolkit/memory/memory_toolkit.h"

namespace {

using namespace framework;
using support::Folder;
using testing::ElementsAre;

std::vector<std::string> LinesOf(std::string_view bytes) {
  const Folder folder;
  folder.Write("file", bytes);
  const auto stream = TextInputStream::Open(GetFolderItem(folder.Path("file")));
  std::vector<std::string> lines;
  while (!stream->EOF_()) lines.emplace_back(stream->ReadLine());
  EXPECT_EQ(std::string(stream->ReadLine()), "") << "behind the end";
  EXPECT_EQ(stream->LastErrorCode(), 0);
  return lines;
}

TEST(TextInputStream, TakesEveryLineEndAndDropsTheMark) {
  EXPECT_THAT(LinesOf(""), ElementsAre());
  EXPECT_THAT(LinesOf("a\nb\n"), ElementsAre("a", "b"));
  EXPECT_THAT(LinesOf("a\r\n\r\nb"), ElementsAre("a", "", "b"));
  EXPECT_THAT(LinesOf("a\rb\n\rc\r"), ElementsAre("a", "b", "", "c"));
  EXPECT_THAT(LinesOf("\xEF\xBB\xBF"), ElementsAre());
  EXPECT_THAT(LinesOf("\xEF\xBB\xBF"
                      "a\n\xEF\xBB\xBF"),
              ElementsAre("a", "\xEF\xBB\xBF"));
  EXPECT_THAT(LinesOf("\xEF\xBB"), ElementsAre("\xEF\xBB"));
}

TEST(TextInputStream, ReadsAcrossTheEdgeOfItsBlocks) {
  for (const std::size_t size : {65534U, 65535U, 65536U, 65537U, 1'000'000U}) {
    const std::string longest(size, 'x');
    EXPECT_THAT(LinesOf(longest + "\r\nb"), ElementsAre(longest, "b")) << size;
  }
}

TEST(TextInputStream, CarriesTheSystemsErrors) {
  const Folder folder;
  const auto missing = GetFolderItem(folder.Path("missing"));
  try {
    TextInputStream::Open(missing);
    FAIL();
  } catch (const IOException& failure) {
    EXPECT_EQ(failure.ErrorNumber(), ENOENT);
    EXPECT_EQ(missing->LastErrorCode(), ENOENT);
  }
  const auto stream = TextInputStream::Open(GetFolderItem(folder.Path()));
  EXPECT_FALSE(stream->EOF_()) << "the failure is the next ReadLine's to tell";
  try {
    stream->ReadLine();
    FAIL();
  } catch (const IOException& failure) {
    EXPECT_EQ(failure.ErrorNumber(), EISDIR);
    EXPECT_EQ(std::string(failure.Message()), "");
    EXPECT_EQ(stream->LastErrorCode(), EISDIR);
  }
  EXPECT_THROW(TextInputStream::Open(nullptr), NilObjectException);
}

TEST(TextInputStream, LetsGoOfItsFile) {
  const Folder folder;
  folder.Write("file", "a\nb\nc");
  const auto open_files = [] {
    return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
  };
  const auto before = open_files();
  auto stream = TextInputStream::Open(GetFolderItem(folder.Path("file")));
  stream->ReadLine();
  stream->Close();
  EXPECT_TRUE(stream->EOF_());
  EXPECT_EQ(std::string(stream->ReadLine()), "");
  stream = TextInputStream::Open(GetFolderItem(folder.Path("file")));
  stream = nullptr;
  EXPECT_EQ(open_files(), before);
}

TEST(TextInputStream, DoesNotHangOnAPipe) {
  const Folder folder;
  ASSERT_EQ(mkfifo(folder.Path("pipe").c_str(), 0600), 0);
  EXPECT_TRUE(TextInputStream::Open(GetFolderItem(folder.Path("pipe")))->EOF_());
}

TEST(FolderItem, NamesItsPartsWhetherTheyExistOrNot) {
  const auto item = GetFolderItem("/nowhere at all")->Child("file.txt");
  EXPECT_EQ(std::string(item->NativePath()), "/nowhere at all/file.txt");
  EXPECT_EQ(std::string(item->Name()), "file.txt");
  EXPECT_EQ(std::string(item->Parent()->Parent()->NativePath()), "/");
  EXPECT_FALSE(item->Parent()->Parent()->Parent());
  EXPECT_FALSE(item->Exists());
  EXPECT_FALSE(GetFolderItem(String(std::string_view("/tmp\0x", 6)))->Exists());
  EXPECT_FALSE(GetFolderItem(""));
}

/// A program whose executable lies where the test says.
class Placed final : public Application {
 public:
  explicit Placed(std::string path) : path_(std::move(path)) {}
  Ref<FolderItem> ExecutableFile() const override { return GetFolderItem(path_); }

 private:
  std::string path_;
};

class Resources : public testing::Test {
 protected:
  Resources() {
    RuntimeInit();
    framework::RuntimePerformInitializers({});
    SpecialFolder::_SetBundlePlatform(nullptr);
  }
  ~Resources() override {
    SpecialFolder::_SetBundlePlatform(nullptr);
    RuntimeExit();
  }
  std::string Found() const {
    const auto found = SpecialFolder::Resources();
    return found ? std::string(found->Name()) : "nil";
  }
  void Make(const char* name) const { mkdir(folder_.Path(name).c_str(), 0700); }
  Folder folder_;
  toolkit::memory::MemoryToolkit toolkit_;
};

TEST_F(Resources, LieBesideTheExecutableUnderItsOwnNameFirst) {
  EXPECT_EQ(Found(), "nil") << "no application object";
  _RuntimeRegisterAppObject(RuntimeNewObject<Placed>(folder_.Path("tool.bin")));
  EXPECT_EQ(Found(), "nil");
  EXPECT_FALSE(GetResource("file"));
  Make("Resources");
  EXPECT_EQ(Found(), "Resources");
  Make("tool.bin Resources");
  EXPECT_EQ(Found(), "Resources") << "a folder that exists is not looked up again";
  std::filesystem::remove(folder_.Path("Resources"));
  EXPECT_EQ(Found(), "tool.bin Resources");
  EXPECT_EQ(std::string(GetResource("file")->Name()), "file");
}

TEST_F(Resources, OfABundleAreAskedForOnlyWhileTheyAreMissing) {
  int& asked = support::TestBundle::asked;
  asked = 0;
  SpecialFolder::_SetBundlePlatform(std::make_unique<support::TestBundle>(folder_.Path("bundle")));
  const auto missing = SpecialFolder::Resources();
  EXPECT_FALSE(missing->Exists());
  EXPECT_NE(SpecialFolder::Resources(), missing);
  EXPECT_EQ(asked, 2);
  Make("bundle");
  EXPECT_EQ(SpecialFolder::Resources(), SpecialFolder::Resources());
  EXPECT_EQ(asked, 2);
  std::filesystem::remove(folder_.Path("bundle"));
  EXPECT_FALSE(SpecialFolder::Resources()->Exists());
  EXPECT_EQ(asked, 3);
}

}  // namespace
