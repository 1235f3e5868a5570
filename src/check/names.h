#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "check/check_line.h"

namespace check {

/// What can be said of a scale only by those before it. Names are the same when the program's
/// equality of texts says so. A scale has each of the names that " / " divides its name into. The
/// notes of a line that does not say TRUE or FALSE for each of them are compared with no others.
class Names {
 public:
  /// What is wrong with the names and the notes of a line that has a scale.
  std::vector<Fault> Add(const Line& line);

  /// Different ones so far.
  std::int64_t Banks() const { return static_cast<std::int64_t>(banks_.size()); }

 private:
  /// A scale that was the first to have something.
  struct First {
    std::int64_t line;
    std::string bank;
    std::string name;
    std::int64_t notes;
  };

  /// One name of that scale, which begins at an offset of the line. At most one fault.
  std::vector<Fault> AddName(const Line& line, std::size_t offset, const First& here);

  // By texts that are folded. Neither a bank nor a name can hold the comma that joins them.
  std::set<std::string> banks_;
  std::map<std::string, First> in_bank_;   ///< by bank and name
  std::map<std::string, First> anywhere_;  ///< by name
  std::map<std::string, First> notes_;     ///< by bank and notes
};

}  // namespace check
