#pragma once

#include <cstdint>

#include "framework/controls/control.h"

// The description blocks of the main window and its controls.

namespace window::layout {

framework::Block MainWindow();

/// The block of the control with that name and Index. Raises KeyNotFoundException when there is
/// none.
framework::Block Of(std::string_view name, std::int64_t index = framework::Control::kNoIndex);

}  // namespace window::layout
