#pragma once

#include <gmock/gmock.h>

#include <sstream>

#include "check/characters.h"
#include "check/run.h"
#include "framework/files/text_input_stream.h"
#include "framework/values/failures.h"
#include "framework/values/text.h"
#include "pitch/tscale.h"
#include "support/folder.h"

// Libraries, and what the checker says of them.

namespace checked {

inline const std::string kNotes =
    ",TRUE,FALSE,FALSE,FALSE,TRUE,FALSE,FALSE,TRUE,FALSE,FALSE,FALSE,FALSE";
inline const std::string kMajor = "Triads,maj" + kNotes;

/// The status, and all that is printed, with a mark before each complaint on the standard error.
inline std::pair<int, std::string> Answer(const std::vector<const char*>& arguments) {
  std::string printed;
  const int status = check::Run(
      arguments, [&](std::string_view text) { printed += text; },
      [&](std::string_view text) { printed.append("stderr: ").append(text); });
  return {status, printed};
}

/// Whether the loader's steps reach the file's end.
inline bool Loads(const std::string& path) {
  using namespace framework;
  const auto stream = TextInputStream::Open(GetFolderItem(path));
  stream->ReadLine();
  stream->ReadLine();
  try {
    while (!stream->EOF_()) pitch::TScale().Constructor(Split(stream->ReadLine(), ","));
  } catch (const OutOfBoundsException&) {
    return false;
  }
  return true;
}

/// The same of one file: it is text, and tells of an error exactly where the loader stops.
inline std::pair<int, std::string> Check(const std::string& path) {
  const auto answer = Answer({path.c_str()});
  EXPECT_EQ(answer.first != check::kErrors, Loads(path)) << answer.second;
  EXPECT_EQ(check::FindNoText(answer.second), std::string::npos);
  return answer;
}

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
    wide += zero_first ? std::string{'\0', byte} : std::string{byte, '\0'};
  }
  return wide;
}

}  // namespace checked
