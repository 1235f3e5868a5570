#pragma once

#include "pitch/tscale.h"

namespace matching {

/// One walk through a library, in its order: calls exact with each scale that is the mask's notes,
/// and containing with each that holds them all and more; neither may change the library. A nil one
/// counts as empty.
template <class Exact, class Containing>
void Walk(const pitch::Scales& scales, std::int64_t mask, const Exact& exact,
          const Containing& containing) {
  if (!scales) return;
  for (const framework::Ref<pitch::TScale>& scale : scales._Items()) {
    if (scale->Equivalent(mask)) [[unlikely]]
      exact(*scale);
    if (scale->ContainsAll(mask)) [[unlikely]]
      containing(*scale);
  }
}

}  // namespace matching
