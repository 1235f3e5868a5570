#pragma once

#include <cstddef>

namespace toolkit::qt {

/// Whether the system would give that many bytes more.
bool HasRoom(std::size_t bytes);

}  // namespace toolkit::qt
