#include "check/run.h"

#include <cerrno>
#include <new>
#include <string>
#include <system_error>

#include "check/check_library.h"
#include "framework/files/folder_item.h"
#include "framework/values/failures.h"

namespace check {

using namespace framework;

namespace {

constexpr std::string_view kUsage =
    "usage: orrel-check-library FILE\n"
    "       orrel-check-library --help | --version\n";

constexpr std::string_view kHelp =
    "\n"
    "Finds the faults in a library of scales, and names each by line and column. What is\n"
    "wrong with the whole file comes first, and says what to do.\n"
    "\n"
    "Status: 0 clean, or remarks alone; 1 warnings; 2 errors, at which the program would\n"
    "stop loading; 3 the file cannot be read, or the command line is wrong.\n";

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

/// What keeps a file from being read, by the system's error number.
std::string Why(int error) {
  switch (error) {
    case EISDIR:
      return "is a folder, not a file";
    case EOPNOTSUPP:
    case ENXIO:  // a socket
      return "is not a file";
    case EMSGSIZE:
      return "cannot be read: a line of more than 1 MiB, with no line end that the program knows";
    default:
      return "cannot be read: " + std::system_category().message(error);
  }
}

}  // namespace

int Run(std::span<const char* const> arguments, const Print& out, const Print& err) try {
  bool ended = false;  // the options
  std::vector<std::string> paths;
  for (const std::string argument : arguments) {
    if (ended || argument.size() < 2 || argument.front() != '-') {
      paths.push_back(argument);
    } else if (argument == "--") {
      ended = true;
    } else if (argument == "--help") {
      out(std::string(kUsage) + std::string(kHelp));
      return kClean;
    } else if (argument == "--version") {
      out("orrel-check-library " PITCHSIEVE_VERSION "\n");
      return kClean;
    } else {
      err("orrel-check-library: unknown option " + argument + "\n" + std::string(kUsage));
      return kUnreadable;
    }
  }
  if (paths.size() != 1) {
    err(kUsage);
    return kUnreadable;
  }
  const std::string& path = paths.front();
  try {
    return Check(path, out);
  } catch (const IOException& failure) {
    err(path + ": " + Why(static_cast<int>(failure.ErrorNumber())) + "\n");
    return kUnreadable;
  }
} catch (const std::bad_alloc&) {
  err("orrel-check-library: the system has no memory left\n");
  return kUnreadable;
}

}  // namespace check
