#pragma once

#include "pitch/tscale.h"

namespace matching {

/// One walk through a library, in its order: calls exact with each scale that is the mask's notes,
/// and containing with each that holds them all and more. A nil library counts as empty.
template <class Exact, class Containing>
void Walk(const pitch::Scales& scales, std::int64_t mask, const Exact& exact,
          const Containing& containing) {
  if (!scales) return;
  for (std::int64_t i = 0; i <= scales.LastIndex(); ++i) {
    const pitch::TScale& scale = *scales[i];
    if (scale.Equivalent(mask)) exact(scale);
    if (scale.ContainsAll(mask)) containing(scale);
  }
}

}  // namespace matching
