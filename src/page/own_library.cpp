#include "page/own_library.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <memory>
#include <string>
#include <vector>

#include "check/check_library.h"
#include "check/check_line.h"
#include "framework/application/special_folder.h"
#include "framework/files/folder_item.h"
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

std::string Told(const check::Fault& fault) {
  std::string text = "Line " + std::to_string(fault.line) + ", column " +
                     std::to_string(fault.column) + ": found " + fault.found;
  if (!fault.expected.empty()) text += ", expected " + fault.expected;
  return text;
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
  constexpr std::int64_t kMost = 100;
  const Element list = Element::Of("report-faults");
  const auto add = [&](const std::string& text) {
    Element item(list, "li");
    item.Text(text);
    item.Keep();
  };
  std::int64_t faults = 0;
  const auto file = TextInputStream::Open(SpecialFolder::Resources()->Child(library::kFileName));
  const check::Summary summary = check::CheckLibrary(*file, [&](const check::Fault& fault) {
    if (++faults <= kMost) add(Told(fault));
  });
  if (faults > kMost) add("And " + std::to_string(faults - kMost) + " more.");
  Element::Of("report-summary")
      .Text(check::Counted(summary.scales, "scale") + " in " +
            check::Counted(summary.banks, "bank") + ": " + check::Counted(summary.errors, "error") +
            ", " + check::Counted(summary.warnings, "warning") + ", " +
            check::Counted(summary.remarks, "remark") + ".");
}

}  // namespace page
