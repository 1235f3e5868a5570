#pragma once

#include <filesystem>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "check/run.h"
#include "support/folder.h"

// Libraries, and what the checker says of them.

namespace checked {

inline const std::string kNotes =
    ",TRUE,FALSE,FALSE,FALSE,TRUE,FALSE,FALSE,TRUE,FALSE,FALSE,FALSE,FALSE";
inline const std::string kMajor = "Triads,maj" + kNotes;

/// The status, and all that is printed.
inline std::pair<int, std::string> Answer(const std::vector<const char*>& arguments) {
  std::string printed;
  const auto print = [&](std::string_view text) { printed += text; };
  const int status = check::Run(arguments, print, print);
  return {status, printed};
}

inline std::pair<int, std::string> Check(const std::string& path) { return Answer({path.c_str()}); }

/// What is said of a library of these bytes, line by line, without the file's name.
inline std::vector<std::string> Report(const std::string& library) {
  const support::Folder folder;
  folder.Write("library.csv", library);
  std::istringstream report(Check(folder.Path("library.csv")).second);
  std::vector<std::string> lines;
  for (std::string line; std::getline(report, line);) {
    lines.push_back(line.substr(folder.Path("library.csv:").size()));
  }
  return lines;
}

inline std::string Replaced(std::string text, std::string_view what, std::string_view with) {
  for (std::size_t at = 0; (at = text.find(what, at)) != text.npos; at += with.size()) {
    text.replace(at, what.size(), with);
  }
  return text;
}

/// Two bytes for each.
inline std::string Wide(const std::string& library, bool zero_first) {
  std::string wide;
  for (const char byte : library) {
    if (zero_first) wide += '\0';
    wide += byte;
    if (!zero_first) wide += '\0';
  }
  return wide;
}

}  // namespace checked
