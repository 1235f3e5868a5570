#pragma once

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "framework/runtime.h"
#include "framework/weak_ref.h"
#include "library/load.h"
#include "shell/start_up.h"
#include "support/test_bundle.h"
#include "window/main_window.h"

namespace support {

/// A line of the library file, from the name and the semitones above the root.
inline std::string Line(std::string_view name, std::initializer_list<int> semitones) {
  std::string line = "Bank," + std::string(name);
  for (int i = 0; i < 12; ++i) {
    line +=
        std::find(semitones.begin(), semitones.end(), i) != semitones.end() ? ",TRUE" : ",FALSE";
  }
  return line;
}

inline const std::string kMajor = Line("Major", {0, 2, 4, 5, 7, 9, 11});
inline const std::string kMinor = Line("Minor", {0, 2, 3, 5, 7, 8, 10});
inline const std::string kWholeTone = Line("Whole Tone", {0, 2, 4, 6, 8, 10});
inline const std::string kTriad = Line("Triad", {0, 4, 7});
/// The four of them behind the two leading lines.
inline const std::string kFourScales =
    "a\nb\n" + kMajor + "\n" + kMinor + "\n" + kWholeTone + "\n" + kTriad;

/// The rows of a list, from its second column on: "Major|C|2773".
inline std::vector<std::string> Rows(const framework::Listbox& list) {
  std::vector<std::string> rows;
  for (std::int64_t row = 0; row <= list.LastIndex(); ++row) {
    std::string text(list.Cell(row, 1));
    for (std::int64_t column = 2; column < list.ColumnCount(); ++column) {
      text.append("|").append(list.Cell(row, column));
    }
    rows.push_back(text);
  }
  return rows;
}

inline std::string Text(const framework::String& text) { return std::string(text); }

/// The whole program on a toolkit, opened on a library of the test's. It must leave nothing behind.
template <class Toolkit>
class ProgramOn : public testing::Test {
 protected:
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
  /// The positions whose star shows.
  std::vector<int> Stars() const {
    std::vector<int> stars;
    for (int i = 0; i < 12; ++i) {
      if (window_->lbStar(i)->Visible()) stars.push_back(i);
    }
    return stars;
  }
  std::vector<std::string> Captions() const {
    std::vector<std::string> captions;
    for (int i = 0; i < 12; ++i) captions.emplace_back(window_->cbScale(i)->Caption());
    return captions;
  }

  Folder folder_;
  Toolkit toolkit_;
  framework::Ref<window::wdwMainClass> window_;
};

}  // namespace support
