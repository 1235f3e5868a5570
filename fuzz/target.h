#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

/// What a target defines: takes one input, and aborts when something is wrong.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

inline std::string_view Text(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Aborts, with both values, when they differ.
template <class T>
void Expect(const char* what, const T& found, const T& wanted) {
  if (found == wanted) return;
  std::cerr << what << ": found [" << found << "], wanted [" << wanted << "]" << std::endl;
  std::abort();
}

}  // namespace fuzz
