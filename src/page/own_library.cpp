#include "page/own_library.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>
#include <string>
#include <vector>

#include "check/check_library.h"
#include "framework/application/special_folder.h"
#include "framework/files/folder_item.h"
#include "framework/values/failures.h"
#include "library/load.h"
#include "toolkit/web/element.h"

// The operations of library.js.
extern "C" {
int page_LibrarySize();
void page_Library(char* to);
bool page_IsCheck();
}

namespace page {

using namespace framework;
using toolkit::web::Element;

namespace {

constexpr const char* kFolder = "/Resources";

/// The page as the bundle: its resources lie in a folder of its memory.
class PageBundle final : public BundlePlatform {
  String ResourcePath() override { return kFolder; }
};

/// "Line 5, column 9: error: found 3 fields, expected 14".
std::string Told(const check::Fault& fault) {
  std::string text;
  if (fault.line > 0) {
    text = "Line " + std::to_string(fault.line) + ", column " + std::to_string(fault.column) + ": ";
  }
  return text.append(check::Word(fault.severity)).append(": ").append(check::Text(fault));
}

}  // namespace

void TakeLibrary() {
  SpecialFolder::_SetBundlePlatform(std::make_unique<PageBundle>());
  mkdir(kFolder, 0700);
  if (page_LibrarySize() < 0) return;
  std::vector<char> bytes(static_cast<std::size_t>(page_LibrarySize()));
  page_Library(bytes.data());
  const int file = open((std::string(kFolder) + "/" + library::kFileName).c_str(),
                        O_WRONLY | O_CREAT | O_TRUNC, 0600);
  write(file, bytes.data(), bytes.size());
  close(file);
}

bool IsCheck() { return page_IsCheck(); }

void TellOfLibrary() {
  const Element list = Element::Of("report-faults");
  Element summary = Element::Of("report-summary");
  try {
    const auto file = TextInputStream::Open(SpecialFolder::Resources()->Child(library::kFileName));
    summary.Text(check::Text(check::CheckLibrary(*file, [&](const check::Fault& fault) {
      Element item(list, "li");
      item.Text(Told(fault));
      item.Keep();
    })));
  } catch (const IOException&) {
    summary.Text("This file cannot be read to its end.");
  }
}

}  // namespace page
