#include "check/run.h"

#include <string>
#include <system_error>

#include "check/check_library.h"
#include "framework/files/folder_item.h"
#include "framework/values/failures.h"

namespace check {

using namespace framework;

namespace {

std::string Where(const Fault& fault) {
  if (fault.line == 0) return "";
  return std::to_string(fault.line) + ":" + std::to_string(fault.column) + ":";
}

/// Raises IOException for what cannot be read.
int Check(const std::string& path, const Print& out) {
  const auto library = TextInputStream::Open(RuntimeNewObject<FolderItem>(path));
  const Summary summary = CheckLibrary(*library, [&](const Fault& fault) {
    out(path + ":" + Where(fault) + " " + std::string(Word(fault.severity)) + ": " + Text(fault) +
        "\n");
  });
  out(path + ": " + Text(summary) + "\n");
  if (summary.errors > 0) return kErrors;
  return summary.warnings > 0 ? kWarnings : kClean;
}

}  // namespace

int Run(std::span<const char* const> arguments, const Print& out, const Print& err) {
  if (arguments.size() != 1) {
    err("usage: orrel-check-library FILE\n");
    return kUnreadable;
  }
  const std::string path = arguments.front();
  try {
    return Check(path, out);
  } catch (const IOException& failure) {
    err(path + ": cannot be read: " +
        std::system_category().message(static_cast<int>(failure.ErrorNumber())) + "\n");
    return kUnreadable;
  }
}

}  // namespace check
