#pragma once

#include "pitch/tscale.h"

namespace matching {

/// One walk through a library, in its order: calls exact with each scale that is the mask's notes,
/// and containing with each that holds them all and more. A nil library counts as empty.
template <class Exact, class Containing>
void Walk(const pitch::Scales& scales, std::int64_t mask, const Exact& exact,
          const Containing& containing) {
  if (!scales) return;
  for (std::size_t i = 0; i < scales._Items().size(); ++i) {
    const pitch::TScale& scale = *scales._Items()[i];
    if (scale.Equivalent(mask)) [[unlikely]]
      exact(scale);
    if (scale.ContainsAll(mask)) [[unlikely]]
      containing(scale);
  }
}

}  // namespace matching
