#include "library/load.h"

#include <cctype>
#include <filesystem>
#include <fstream>

#include "check/characters.h"
#include "check/check_library.h"
#include "framework/application/runtime.h"
#include "framework/application/special_folder.h"
#include "framework/values/failures.h"
#include "scripted_file.h"
#include "toolkit/memory/memory_toolkit.h"

// The loader: from the bytes of a library file, however they come, to the scales and the failure.
// And the checker, which foretells that.

using namespace framework;
using namespace fuzz;

namespace {

/// Resources with a library file in them that exists and opens. Its bytes are the script's.
class Resources final : public BundlePlatform {
 public:
  Resources() { std::ofstream(std::filesystem::path(path_) / library::kFileName); }
  ~Resources() override { std::filesystem::remove_all(path_); }
  String ResourcePath() override { return path_; }

 private:
  static std::string Make() {
    std::string name = (std::filesystem::temp_directory_path() / "fuzz.XXXXXX").string();
    return mkdtemp(name.data());
  }
  std::string path_ = Make();
};

struct Program {
  Program() {
    RuntimeInit();
    SpecialFolder::_SetBundlePlatform(std::make_unique<Resources>());
  }
  ~Program() { SpecialFolder::_SetBundlePlatform(nullptr); }
  toolkit::memory::MemoryToolkit toolkit;
};

bool SaysTrue(const std::string& field) {
  std::string folded;
  for (const char c : field)
    folded += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return folded == "true";
}

/// One line a scale, then how the load ends.
std::string Wanted(const ScriptedFile& file) {
  std::string text;
  int number = 0;
  for (const std::string& line : PlainLines(file.Bytes(), file.Fails())) {
    if (++number <= 2) continue;
    std::vector<std::string> fields(1);
    for (const char c : line) {
      if (c == ',') {
        fields.emplace_back();
      } else {
        fields.back() += c;
      }
    }
    if (fields.size() < 14) {
      return text + "OutOfBoundsException: Index " + std::to_string(fields.size());
    }
    int mask = 0;
    for (std::size_t i = 0; i < 12; ++i) mask |= SaysTrue(fields[i + 2]) ? 1 << (11 - i) : 0;
    text += fields[0] + " : " + fields[1] + " : " + std::to_string(mask) + "\n";
  }
  return text + (file.Fails() ? "message Error accessing file." : "");
}

/// The same, as the loader has it.
std::string Found(toolkit::memory::MemoryToolkit& toolkit) {
  std::string text;
  std::string end;
  const auto scales = CreateArray<Ref<pitch::TScale>>(-1);
  toolkit.ClearLog();
  try {
    library::Load(scales);
  } catch (const OutOfBoundsException& failure) {
    const std::string message(failure.Message());
    end = "OutOfBoundsException: " + message.substr(0, message.find(" is outside"));
  }
  for (std::int64_t i = 0; i <= scales.LastIndex(); ++i) {
    text.append(scales[i]->Print()).append("\n");
  }
  for (const std::string& line : toolkit.Lines()) text += line;
  return text + end;
}

/// Whether the checker says that the loading stops. What it says is text, whatever the bytes are.
bool IsSaidToStop() {
  const auto file = SpecialFolder::Resources()->Child(library::kFileName);
  const auto stream = TextInputStream::Open(file);
  const auto look = [](const check::Fault& fault) {
    Expect("place without text", check::FindNoText(check::Text(fault)), std::string::npos);
  };
  return check::CheckLibrary(*stream, look).errors > 0;
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  static Program program;
  const ScriptedFile file(Text(data, size));
  const std::string found = Found(program.toolkit);
  Expect("library", found, Wanted(file));
  if (file.Fails()) return 0;
  const ScriptedFile again(Text(data, size));
  Expect("stop", IsSaidToStop(), found.find("OutOfBoundsException: ") != found.npos);
  return 0;
}
