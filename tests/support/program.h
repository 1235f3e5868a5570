#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "framework/application/runtime.h"
#include "framework/values/weak_ref.h"
#include "library/load.h"
#include "shell/start_up.h"
#include "support/test_bundle.h"
#include "window/main_window.h"

namespace support {

/// A line of the library file, from the name and twelve digits for the notes from the root up.
inline std::string Line(const std::string& name, std::string_view notes) {
  std::string line = "Bank," + name;
  for (const char note : notes) line += note == '1' ? ",TRUE" : ",FALSE";
  return line;
}

inline const std::string kMajor = Line("Major", "101011010101");
inline const std::string kTriad = Line("Triad", "100010010000");
/// Four scales behind the two leading lines.
inline const std::string kFourScales = "a\nb\n" + kMajor + "\n" + Line("Minor", "101101011010") +
                                       "\n" + Line("Whole Tone", "101010101010") + "\n" + kTriad;

/// The rows of a list: "Bank|Major|C|2773".
inline std::vector<std::string> Rows(const framework::Listbox& list) {
  std::vector<std::string> rows;
  for (std::int64_t row = 0; row <= list.LastIndex(); ++row) {
    rows.emplace_back(list.Cell(row, 0));
    for (std::int64_t column = 1; column < list.ColumnCount(); ++column) {
      rows.back().append("|").append(list.Cell(row, column));
    }
  }
  return rows;
}

inline std::string Text(const framework::String& text) { return std::string(text); }

/// The whole program on a toolkit, opened on a library of the test's. It must leave nothing behind.
/// A test's fixture, or one of several in a test.
template <class Toolkit>
class ProgramOn : public testing::Test {
 public:
  ProgramOn() {
    framework::SpecialFolder::_SetBundlePlatform(std::make_unique<TestBundle>(folder_.Path()));
  }
  ~ProgramOn() override {
    const auto window = framework::RuntimeNewObject<framework::WeakRef>(window_);
    const auto app = framework::RuntimeNewObject<framework::WeakRef>(framework::getAppObject());
    window_ = nullptr;
    framework::RuntimePerformFinalizers();
    framework::RuntimeExit();
    framework::SpecialFolder::_SetBundlePlatform(nullptr);
    EXPECT_FALSE(window->Value()) << "something still holds the window";
    EXPECT_FALSE(app->Value()) << "something still holds the application object";
  }

  void TestBody() override {}

  void Open(std::string_view library = kFourScales) {
    folder_.Write(library::kFileName, library);
    Start();
  }
  /// Opens the program with the library file as it lies there.
  void Start() {
    framework::RuntimeInit();
    framework::RuntimePerformInitializers({});
    shell::_EarlyStartup();
    framework::_RunFrameworkInitialization(&shell::_LateStartup);
    window_ = window::wdwMain();
  }

  std::vector<std::string> Exact() const { return Rows(*window_->lbExact()); }
  std::vector<std::string> Containing() const { return Rows(*window_->lbContaining()); }
  /// A digit for each star: 1 for one that shows.
  std::string Stars() const {
    std::string stars;
    for (int i = 0; i < 12; ++i) stars += window_->lbStar(i)->Visible() ? '1' : '0';
    return stars;
  }
  std::vector<std::string> Captions() const {
    std::vector<std::string> captions;
    for (int i = 0; i < 12; ++i) captions.emplace_back(window_->cbScale(i)->Caption());
    return captions;
  }
  /// What the toolkit's log has of messages and failures, up to a colon.
  std::vector<std::string> Told() const {
    std::vector<std::string> told;
    for (const std::string& line : toolkit_.Lines()) {
      if (line.starts_with("message") || line.starts_with("failure")) {
        told.push_back(line.substr(0, line.find(':')));
      }
    }
    return told;
  }

  Folder folder_;
  Toolkit toolkit_;
  framework::Ref<window::wdwMainClass> window_;
};

}  // namespace support
