#pragma once

#include <array>
#include <exception>
#include <string_view>

#include "framework/values/failures.h"

namespace framework {

/// What is told of a failure: its class, its message and its error number. It asks the system for
/// no memory, which may be what is wanting. A message that is too long is cut.
class FailureText {
 public:
  explicit FailureText(const RuntimeException& failure) noexcept;
  /// Of a failure of any class.
  explicit FailureText(const std::exception_ptr& failure) noexcept;

  std::string_view View() const noexcept { return {text_.data(), size_}; }

 private:
  void Describe(const RuntimeException& failure) noexcept;
  void Append(std::string_view part, std::size_t room_left_behind = 0) noexcept;

  std::array<char, 1000> text_{};
  std::size_t size_ = 0;
};

}  // namespace framework
