#include "matching/compare_scales.h"

#include "framework/values/text.h"
#include "matching/walk.h"
#include "pitch/mask.h"

namespace matching {

using framework::Listbox;
using framework::String;

namespace {

std::int64_t TickedMask(const SearchWindow& window) {
  std::int64_t mask = 0;
  for (std::int64_t i = 0; i < pitch::kPositions; ++i) {
    mask = pitch::Append(mask, window.cbScale(i)->Value());
  }
  return mask;
}

/// Adds the rows of one root. root_name is asked at each match, and not without one.
template <class RootName>
void AddMatches(const pitch::Scales& scales, std::int64_t mask, const RootName& root_name,
                Listbox& exact, Listbox& containing) {
  Walk(
      scales, mask,
      [&](const pitch::TScale& scale) {
        exact.AddRow({scale.Bank(), scale.Scale(), root_name()});
      },
      [&](const pitch::TScale& scale) {
        containing.AddRow(
            {scale.Bank(), scale.Scale(), root_name(), framework::Str(scale.Notes())});
      });
}

void SweepOtherRoots(const SearchWindow& window, std::int64_t mask, Listbox& exact,
                     Listbox& containing) {
  const std::int64_t selected = window.pmRoot()->ListIndex();
  for (std::int64_t i = 1; i < pitch::kPositions; ++i) {
    if (!window.cbScale(i)->Value() && window.cbRinL()->Value()) continue;
    const auto root_name = [&] { return window.Labels()[pitch::NameIndex(selected, i)]; };
    AddMatches(window.Scale(), pitch::Rotate12(mask, i), root_name, exact, containing);
  }
}

}  // namespace

void CompareScales(const SearchWindow& window) {
  const std::int64_t mask = TickedMask(window);
  window.lbValue()->Text(framework::Bin(mask));
  const auto exact = window.lbExact();
  exact->DeleteAllRows();
  const auto containing = window.lbContaining();
  containing->DeleteAllRows();
  const String selected = window.cbScale(0)->Caption();
  AddMatches(
      window.Scale(), mask, [&]() -> const String& { return selected; }, *exact, *containing);
  if (window.cbOther()->Value()) SweepOtherRoots(window, mask, *exact, *containing);
}

}  // namespace matching
