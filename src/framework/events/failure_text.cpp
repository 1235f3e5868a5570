#include "framework/events/failure_text.h"

#include <cxxabi.h>

#include <charconv>
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
  std::array<char, 20> digits{};
  const char* const end =
      std::to_chars(digits.data(), digits.data() + digits.size(), failure.ErrorNumber()).ptr;
  Append(failure.ClassName());
  if (!failure.Message().View().empty()) {
    constexpr std::size_t kForTheNumber = 40;
    Append(": ");
    Append(failure.Message(), kForTheNumber);
  }
  Append(" (error number ");
  Append(std::string_view(digits.data(), static_cast<std::size_t>(end - digits.data())));
  Append(")");
}

void FailureText::Append(std::string_view part, std::size_t room_left_behind) noexcept {
  const std::size_t used = size_ + room_left_behind;
  std::size_t size = used < text_.size() ? text_.size() - used : 0;
  if (part.size() <= size) {
    size = part.size();
  } else {
    // Not inside a character.
    while (size > 0 && (static_cast<unsigned char>(part[size]) & 0xC0U) == 0x80U) --size;
  }
  size_ += part.copy(text_.data() + size_, size);
}

}  // namespace framework
