#include "check/names.h"

#include "check/characters.h"
#include "framework/values/text.h"
#include "pitch/tscale.h"

namespace check {

namespace {

constexpr std::string_view kBetweenNames = " / ";

/// The same for two texts that the program takes for equal, and for no others.
std::string Folded(std::string_view text) {
  std::string folded;
  for (const char byte : text) folded += static_cast<char>(framework::Folded(byte));
  return folded;
}

std::string OnLine(std::int64_t line) { return " on line " + std::to_string(line); }

}  // namespace

std::vector<Fault> Names::Add(const Line& line) {
  pitch::TScale scale;
  scale.Constructor(line.cells);
  const std::string bank(scale.Bank().View());
  banks_.insert(Folded(bank));

  std::vector<Fault> faults;
  const auto each_name = framework::Split(scale.Scale(), kBetweenNames);
  std::size_t offset = 0;
  for (const std::string_view each : each_name._Items()) {
    const First here{line.number, bank, std::string(each), scale.Notes()};
    for (Fault& fault : AddName(line, offset, here)) faults.push_back(std::move(fault));
    offset += each.size() + kBetweenNames.size();
  }
  if (!faults.empty() || !line.NotesBeginAt(kFirstNote)) return faults;

  const First here{line.number, bank, std::string(scale.Scale()), scale.Notes()};
  const std::string notes = Folded(bank) + "," + std::to_string(scale.Notes());
  if (const First& first = notes_.try_emplace(notes, here).first->second; first.line != here.line) {
    faults.push_back(line.At(line.Start(1), Kind::kNotesAgain, Severity::kRemark,
                             "the notes of " + Quoted(first.name) + OnLine(first.line), ""));
  }
  return faults;
}

std::vector<Fault> Names::AddName(const Line& line, std::size_t offset, const First& here) {
  const std::string name = Folded(here.name);
  const First& in_bank = in_bank_.try_emplace(Folded(here.bank) + "," + name, here).first->second;
  const std::size_t start = line.Start(1) + offset;
  if (in_bank.line != here.line) {
    return {line.At(start, Kind::kNameAgain, Severity::kWarning,
                    "the name " + Quoted(in_bank.name) + " again, as" + OnLine(in_bank.line),
                    "no name twice in a bank")};
  }
  if (name.empty() || !line.NotesBeginAt(kFirstNote)) return {};
  const First& anywhere = anywhere_.try_emplace(name, here).first->second;
  if (anywhere.notes != here.notes) {
    return {line.At(start, Kind::kNameOfOtherNotes, Severity::kWarning,
                    "the name " + Quoted(anywhere.name) + " for other notes than" +
                        OnLine(anywhere.line) + ", in the bank " + Quoted(anywhere.bank),
                    "one set of notes for a name: say in the name which one this is")};
  }
  return {};
}

}  // namespace check
