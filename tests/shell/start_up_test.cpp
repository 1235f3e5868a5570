#include "shell/start_up.h"

#include "framework/menu.h"
#include "menu/main_menu_bar.h"
#include "shell/app.h"
#include "support/program.h"
#include "toolkit/memory/memory_toolkit.h"

namespace {

using namespace framework;
using namespace support;
using testing::ElementsAre;
using testing::StartsWith;

/// What there is of the program at a moment.
std::string Present() {
  std::string text;
  if (Application::_SupportsHiDPI()) text += " sharp";
  if (RuntimeFrameworkVersion() > 0) text += " version";
  if (const auto app = getAppObject()) text += app->MenuBar() ? " app with menu" : " app";
  if (const auto window = _GetImplicitWindow("wdwMain.wdwMain")) text += " window";
  return text;
}

class StartUp : public testing::Test {
 protected:
  StartUp() {
    folder_.Write(library::kFileName, kFourScales);
    SpecialFolder::_SetBundlePlatform(std::make_unique<TestBundle>(folder_.Path()));
    toolkit_.Observe([this](const std::string& line) {
      seen_.push_back(line.substr(0, line.find(':')) + " |" + Present());
    });
  }
  ~StartUp() override { SpecialFolder::_SetBundlePlatform(nullptr); }

  Folder folder_;
  toolkit::memory::MemoryToolkit toolkit_;
  std::vector<std::string> seen_;
};

TEST_F(StartUp, RunsFromEntryToExitInOrder) {
  Application::_SetSupportsHiDPI(false);
  Ref<WeakRef> app;
  Ref<WeakRef> window;
  toolkit_.Post([&] {
    app = RuntimeNewObject<WeakRef>(getAppObject());
    window = RuntimeNewObject<WeakRef>(window::wdwMain());
    EXPECT_EQ(window::wdwMain()->Scale().LastIndex(), 3);
    EXPECT_EQ(window::wdwMain()->MenuBar(), menu::MainMenuBar());
    EXPECT_EQ(getAppObject()->MenuBar(), menu::MainMenuBar());
    EXPECT_EQ(Text(getAppObject()->Version()), "1.1");
    EXPECT_EQ(getAppObject()->MinorVersion(), 1);
    EXPECT_EQ(RuntimeFrameworkVersion(), 2019.01);
    window::wdwMain()->FileQuit()->Choose();
  });
  toolkit_.Post([this] { toolkit_.Log("never"); });
  EXPECT_EQ(shell::main(), 0);
  EXPECT_THAT(seen_, ElementsAre("initialise | sharp version app with menu",
                                 "show Orrel Pitchsieve | sharp version app with menu window",
                                 "run | sharp version app with menu window",
                                 "quit | sharp version app with menu window"));
  EXPECT_FALSE(window->Value());
  EXPECT_FALSE(app->Value());
  EXPECT_FALSE(getAppObject());
}

TEST_F(StartUp, EndsWithTheClosingOfTheWindow) {
  toolkit_.Post([] { window::wdwMain()->Close(); });
  toolkit_.Post([this] { toolkit_.Log("never"); });
  EXPECT_EQ(shell::main(), 0);
  EXPECT_THAT(seen_.back(), StartsWith("quit"));
}

TEST_F(StartUp, FailureThatNoEventTookReachesTheOutermostBlock) {
  toolkit_.Post([] { _RunEvent([] { throw std::runtime_error("odd"); }); });
  EXPECT_EQ(shell::main(), 1);
  EXPECT_THAT(toolkit_.Lines().back(), "failure std::runtime_error: odd");
  EXPECT_FALSE(getAppObject()) << "the finalizers ran all the same";
}

TEST_F(StartUp, FailureBeforeTheRunReachesTheOutermostBlockToo) {
  toolkit_.Observe([](const std::string& line) {
    if (line == "initialise") RuntimeRaiseException(PlatformNotSupportedException("no screen"));
  });
  EXPECT_EQ(shell::main(), 1);
  EXPECT_THAT(toolkit_.Lines(),
              ElementsAre("initialise", StartsWith("failure PlatformNotSupportedException")));
  EXPECT_FALSE(getAppObject());
}

TEST_F(StartUp, FailureInAHandlerIsReportedAndTheProgramGoesOn) {
  toolkit_.Post([] {
    window::wdwMain()->Labels().Remove(0);
    window::wdwMain()->pmRoot()->Choose(11);
  });
  toolkit_.Post([] { window::wdwMain()->cbScale(0)->Toggle(); });
  toolkit_.Post([] { EXPECT_EQ(Rows(*window::wdwMain()->lbContaining()).size(), 4U); });
  EXPECT_EQ(shell::main(), 0);
  EXPECT_THAT(toolkit_.Lines(), testing::Contains(StartsWith("failure OutOfBoundsException")));
}

TEST_F(StartUp, MenuBarHasItsTwoMenusInOrder) {
  RuntimeInit();
  std::vector<std::string> entries;
  const auto titles = menu::MainMenuBar()->_Children();
  for (std::int64_t i = 0; i <= titles.LastIndex(); ++i) {
    entries.push_back(Text(titles[i]->Text()));
    const auto items = titles[i]->_Children();
    for (std::int64_t k = 0; k <= items.LastIndex(); ++k) {
      entries.push_back(Text(items[k]->Name()) + " " + Text(items[k]->Text()) + " " +
                        Text(items[k]->KeyboardShortcut()));
    }
  }
  EXPECT_THAT(entries,
              ElementsAre("&File", "FileQuit &Quit Cmd+Q", "&Edit", "EditUndo &Undo Cmd+Z",
                          "EditSeparator1 - ", "EditCut Cu&t Cmd+X", "EditCopy &Copy Cmd+C",
                          "EditPaste &Paste Cmd+V", "EditClear &Delete ", "EditSeparator2 - ",
                          "EditSelectAll Select &All Cmd+A"));
  EXPECT_EQ(menu::MainMenuBar(), menu::MainMenuBar());
  menu::_ForgetMainMenuBar();
}

}  // namespace
