#include "shell/start_up.h"

#include "menu/main_menu_bar.h"
#include "support/program.h"
#include "toolkit/memory/memory_toolkit.h"

namespace {

using namespace framework;
using namespace support;

/// What there is of the program at a moment.
std::string Present() {
  std::string text;
  if (Application::_SupportsHiDPI()) text += " sharp";
  if (RuntimeFrameworkVersion() > 0) text += " version";
  if (const auto app = getAppObject()) text += app->MenuBar() ? " app with menu" : " app";
  if (const auto window = _GetImplicitWindow("wdwMain.wdwMain")) text += " window";
  return text;
}

using StartUp = ProgramOn<toolkit::memory::MemoryToolkit>;

TEST_F(StartUp, RunsFromEntryToExitInOrder) {
  Application::_SetSupportsHiDPI(false);
  std::vector<std::string> seen;
  toolkit_.Observe([&](const std::string& line) { seen.push_back(line + " |" + Present()); });
  toolkit_.Post([&] {
    EXPECT_EQ(window::wdwMain()->MenuBar(), menu::MainMenuBar());
    const Application& app = *getAppObject();
    EXPECT_EQ(app.MenuBar(), menu::MainMenuBar());
    EXPECT_EQ(Text(app.Version()), "1.1");
    EXPECT_EQ(std::tuple(app.MajorVersion(), app.MinorVersion(), app.BugVersion(),
                         app.NonReleaseVersion(), app.StageCode()),
              std::tuple(1, 1, 0, 0, 0));
    EXPECT_EQ(RuntimeFrameworkVersion(), 2019.01);
    window::wdwMain()->Close();
  });
  toolkit_.Post([this] { toolkit_.Log("never"); });
  EXPECT_EQ(shell::main(), 0);
  toolkit_.Observe(nullptr);
  EXPECT_THAT(seen,
              testing::ElementsAre("initialise | sharp version app with menu",
                                   "show Orrel Pitchsieve | sharp version app with menu window",
                                   "run | sharp version app with menu window",
                                   "quit | sharp version app with menu",
                                   "wait until read | sharp version app with menu"));
  EXPECT_EQ(Present(), " sharp") << "the finalizers ran";
}

TEST_F(StartUp, AnyFailureBeforeTheRunReachesTheOutermostBlock) {
  const std::pair<void (*)(), const char*> failures[] = {
      {[] { throw std::runtime_error("odd"); }, "failure std::runtime_error: odd"},
      {[] { RuntimeRaiseException(IOException()); }, "failure IOException (error number 0)"},
      {[] { throw 1; }, "failure A failure of an unknown class."},
  };
  for (const auto& [fail, told] : failures) {
    toolkit_.ClearLog();
    toolkit_.Observe([fail = fail](const std::string& line) {
      if (line == "initialise") fail();
    });
    EXPECT_EQ(shell::main(), 1);
    EXPECT_THAT(toolkit_.Lines(), testing::ElementsAre("initialise", told, "wait until read"));
    EXPECT_FALSE(getAppObject()) << "the finalizers ran all the same";
  }
}

TEST_F(StartUp, AFailureBehindTheRunIsToldAndHasItsStatus) {
  toolkit_.Observe([](const std::string& line) {
    if (line == "run") window::wdwMain()->Close();
    if (line == "wait until read") throw 1;
  });
  EXPECT_EQ(shell::main(), 1);
  EXPECT_EQ(toolkit_.Lines().back(), "failure A failure of an unknown class.");
}

}  // namespace
