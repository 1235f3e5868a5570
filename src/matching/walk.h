#pragma once

#include "pitch/tscale.h"

namespace matching {

/// One walk through a library, in its order: calls exact with each scale that is the mask's notes,
/// and containing with each that holds them all and more. A nil library counts as empty.
template <class Exact, class Containing>
void Walk(const pitch::Scales& scales, std::int64_t mask, const Exact& exact,
          const Containing& containing) {
  if (!scales) return;
  // Nothing but a match can change the library meanwhile, so its end is asked anew behind each.
  auto items = scales._Items();
  const auto tell = [&](const auto& match, const pitch::TScale& scale) {
    match(scale);
    items = scales._Items();
  };
  for (std::size_t i = 0; i < items.size(); ++i) {
    const pitch::TScale& scale = *items[i];
    if (scale.Equivalent(mask)) [[unlikely]]
      tell(exact, scale);
    if (scale.ContainsAll(mask)) [[unlikely]]
      tell(containing, scale);
  }
}

}  // namespace matching
