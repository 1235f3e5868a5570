#include "check/check_library.h"

#include <map>
#include <vector>

#include "check/check_line.h"
#include "check/names.h"
#include "check/writing.h"

namespace check {

namespace {

/// Counts faults, and hands on those that are to be told.
class Tally {
 public:
  Tally(Summary& summary, const std::function<void(const Fault&)>& report)
      : summary_(summary), report_(report) {}

  void Add(const std::vector<Fault>& faults) {
    for (const Fault& fault : faults) {
      Count(fault.severity);
      Rest& rest = rests_[fault.kind];
      if (++rest.count <= kToldOfAKind) report_(fault);
      rest.severity = fault.severity;
    }
  }

  void TellRest() const {
    for (const auto& [kind, rest] : rests_) {
      if (rest.count <= kToldOfAKind) continue;
      report_({Kind::kRest, rest.severity,
               std::to_string(rest.count - kToldOfAKind) + " more " + std::string(Words(kind)),
               ""});
    }
  }

 private:
  struct Rest {
    std::int64_t count = 0;  ///< also of those that were told
    Severity severity{};
  };

  void Count(Severity severity) {
    if (severity == Severity::kError) ++summary_.errors;
    if (severity == Severity::kWarning) ++summary_.warnings;
    if (severity == Severity::kRemark) ++summary_.remarks;
  }

  Summary& summary_;
  const std::function<void(const Fault&)>& report_;
  std::map<Kind, Rest> rests_;
};

Lines AllLines(framework::TextInputStream& library) {
  Lines lines;
  while (!library.EOF_()) lines.push_back(library.ReadLine());
  return lines;
}

}  // namespace

Summary CheckLibrary(framework::TextInputStream& library,
                     const std::function<void(const Fault&)>& report) {
  Summary summary;
  Tally tally(summary, report);
  const Lines lines = AllLines(library);
  const Writing writing = WritingOf(lines);
  tally.Add(CheckWriting(lines, writing));
  if (writing.is_utf16) return summary;

  Names names;
  for (std::size_t i = kFirstLine - 1; i < lines.size(); ++i) {
    const Fields fields = writing.Cut(lines[i]);
    const Line line{static_cast<std::int64_t>(i) + 1, i + 1 == lines.size(), lines[i], fields,
                    writing.Meant(fields)};
    tally.Add(CheckLine(line));
    if (!line.IsScale()) continue;
    ++summary.scales;
    tally.Add(names.Add(line));
  }
  summary.banks = names.Banks();
  tally.TellRest();
  return summary;
}

std::string Text(const Summary& summary) {
  return Counted(summary.scales, "scale") + " in " + Counted(summary.banks, "bank") + ": " +
         Counted(summary.errors, "error") + ", " + Counted(summary.warnings, "warning") + ", " +
         Counted(summary.remarks, "remark");
}

}  // namespace check
