#include "check/run.h"

#include <string>
#include <string_view>
#include <system_error>

#include "check/check_library.h"
#include "check/check_line.h"
#include "framework/files/folder_item.h"
#include "framework/values/failures.h"

namespace check {

using namespace framework;

namespace {

std::string_view Word(Severity severity) {
  switch (severity) {
    case Severity::kRemark:
      return "remark";
    case Severity::kWarning:
      return "warning";
    case Severity::kError:
      break;
  }
  return "error";
}

void Print(std::ostream& out, std::string_view path, const Fault& fault) {
  out << path << ':' << fault.line << ':' << fault.column << ": " << Word(fault.severity)
      << ": found " << fault.found;
  if (!fault.expected.empty()) out << ", expected " << fault.expected;
  out << '\n';
}

void Print(std::ostream& out, std::string_view path, const Summary& summary) {
  out << path << ": " << Counted(summary.scales, "scale") << " in "
      << Counted(summary.banks, "bank") << ": " << Counted(summary.errors, "error") << ", "
      << Counted(summary.warnings, "warning") << ", " << Counted(summary.remarks, "remark") << '\n';
}

}  // namespace

int Run(std::span<const char* const> arguments, std::ostream& out, std::ostream& err) {
  if (arguments.size() != 1) {
    err << "usage: orrel-check-library FILE\n";
    return kUnreadable;
  }
  const std::string_view path = arguments.front();
  try {
    const auto file = RuntimeNewObject<FolderItem>(path);
    const auto library = TextInputStream::Open(file);
    const Summary summary =
        CheckLibrary(*library, [&](const Fault& fault) { Print(out, path, fault); });
    Print(out, path, summary);
    if (summary.errors > 0) return kErrors;
    return summary.warnings > 0 ? kWarnings : kClean;
  } catch (const IOException& failure) {
    err << path << ": cannot be read: "
        << std::system_category().message(static_cast<int>(failure.ErrorNumber())) << '\n';
    return kUnreadable;
  }
}

}  // namespace check
