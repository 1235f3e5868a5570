#include "check/check_library.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "check/characters.h"
#include "check/check_line.h"
#include "framework/values/text.h"
#include "pitch/tscale.h"

namespace check {

namespace {

using framework::String;

/// An order that goes with the program's equality of texts.
struct TextLess {
  bool operator()(const String& a, const String& b) const {
    return std::ranges::lexicographical_compare(a.View(), b.View(), {}, &framework::Folded,
                                                &framework::Folded);
  }
};

/// The first scale of its bank that had something, a name or a set of notes.
struct First {
  std::int64_t line;
  String name;
};

/// By bank and that something, as one text: neither can hold the comma between them.
using Firsts = std::map<String, First, TextLess>;

/// What can be said of a scale only by those before it.
class Comparison {
 public:
  std::vector<Fault> Add(const Line& line) {
    pitch::TScale scale;
    scale.Constructor(line.fields);
    banks_.insert(scale.Bank());

    const std::size_t name = line.Start(1);
    const First here{line.number, scale.Scale()};
    const auto first_with = [&](Firsts& firsts, const String& what) {
      const String bank = framework::RuntimeAddString(scale.Bank(), ",");
      return firsts.try_emplace(framework::RuntimeAddString(bank, what), here).first->second;
    };
    if (const First first = first_with(names_, scale.Scale()); first.line != here.line) {
      return {line.At(
          name, Severity::kWarning,
          "the name " + Quoted(first.name) + " again, as on line " + std::to_string(first.line),
          "no name twice in a bank")};
    }
    const First first = first_with(notes_, framework::Str(scale.Notes()));
    if (first.line == here.line) return {};
    return {line.At(name, Severity::kRemark,
                    "the notes of " + Quoted(first.name) + " on line " + std::to_string(first.line),
                    "")};
  }

  std::int64_t Banks() const { return static_cast<std::int64_t>(banks_.size()); }

 private:
  std::set<String, TextLess> banks_;
  Firsts names_;
  Firsts notes_;
};

}  // namespace

Summary CheckLibrary(framework::TextInputStream& library,
                     const std::function<void(const Fault&)>& report) {
  Summary summary;
  const auto take = [&](const std::vector<Fault>& faults) {
    for (const Fault& fault : faults) {
      if (fault.severity == Severity::kError) ++summary.errors;
      if (fault.severity == Severity::kWarning) ++summary.warnings;
      if (fault.severity == Severity::kRemark) ++summary.remarks;
      report(fault);
    }
  };

  Comparison comparison;
  library.ReadLine();
  library.ReadLine();
  for (std::int64_t number = 3; !library.EOF_(); ++number) {
    const String text = library.ReadLine();
    const Line line{number, library.EOF_(), text, framework::Split(text, ",")};
    take(CheckLine(line));
    if (!line.Loads()) continue;
    ++summary.scales;
    take(comparison.Add(line));
  }
  summary.banks = comparison.Banks();
  return summary;
}

}  // namespace check
