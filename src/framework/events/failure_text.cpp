#include "framework/events/failure_text.h"

#include <cxxabi.h>

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <typeinfo>

namespace framework {

FailureText::FailureText(const RuntimeException& failure) noexcept { Describe(failure); }

FailureText::FailureText(const std::exception_ptr& failure) noexcept {
  try {
    std::rethrow_exception(failure);
  } catch (const RuntimeException& exception) {
    Describe(exception);
  } catch (const std::exception& exception) {
    const std::unique_ptr<char, decltype(&std::free)> name(
        abi::__cxa_demangle(typeid(exception).name(), nullptr, nullptr, nullptr), &std::free);
    Append(name != nullptr ? name.get() : typeid(exception).name());
    Append(": ");
    Append(exception.what());
  } catch (...) {
    Append("A failure of an unknown class.");
  }
}

void FailureText::Describe(const RuntimeException& failure) noexcept {
  std::array<char, 40> number{};
  const int size = std::snprintf(number.data(), number.size(), " (error number %" PRId64 ")",
                                 failure.ErrorNumber());
  const std::string_view tail(number.data(), static_cast<std::size_t>(size));
  Append(failure.ClassName());
  if (!failure.Message().View().empty()) {
    Append(": ");
    Append(failure.Message(), tail.size());
  }
  Append(tail);
}

void FailureText::Append(std::string_view part, std::size_t room_left_behind) noexcept {
  const std::size_t room = text_.size() - std::min(text_.size(), size_ + room_left_behind);
  std::size_t size = std::min(part.size(), room);
  if (size < part.size()) {
    // Not inside a character.
    while (size > 0 && (static_cast<unsigned char>(part[size]) & 0xC0U) == 0x80U) --size;
  }
  size_ += part.copy(text_.data() + size_, size);
}

}  // namespace framework
