#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace framework {

/// An immutable text of UTF-8 bytes. One of up to 8 bytes lies in the String itself; a longer one
/// is counted, and copying it copies a reference. A nil String and the empty text are the same
/// thing. Bytes are kept as they come, also those that are no UTF-8. The count is no atomic one: a
/// String and its copies belong to one thread.
///
/// There is deliberately no operator==: RuntimeStringCompare is the language's equality, which
/// folds case; where every byte counts, compare what View gives.
class String {
 public:
  constexpr String() noexcept = default;
  /// nullptr is the nil String.
  String(const char* text) : String(text == nullptr ? std::string_view() : text) {}
  String(std::string_view text) : String(text, {}) {}
  String(const std::string& text) : String(std::string_view(text)) {}
  /// The text of a, then that of b.
  String(std::string_view a, std::string_view b);
  String(const String& other) noexcept : held_(other.held_), size_(other.size_) {
    if (!IsShort()) ++held_.counted->references;
  }
  String(String&& other) noexcept : held_(other.held_), size_(std::exchange(other.size_, 0)) {}
  String& operator=(String other) noexcept {
    std::swap(held_, other.held_);
    std::swap(size_, other.size_);
    return *this;
  }
  ~String() {
    if (!IsShort() && --held_.counted->references == 0) Free(held_.counted);
  }

  /// The bytes, valid as long as this String stands where it is.
  std::string_view View() const noexcept {
    return {IsShort() ? held_.bytes.data() : held_.counted->Bytes(), size_};
  }
  operator std::string_view() const noexcept { return View(); }

 private:
  static constexpr std::size_t kShort = 8;

  /// The head of an allocation; the bytes of the text follow it.
  struct Counted {
    std::size_t references;
    char* Bytes() noexcept { return reinterpret_cast<char*>(this + 1); }
  };
  union Held {
    std::array<char, kShort> bytes{};  ///< of a short text
    Counted* counted;                  ///< of a longer one
  };

  static void Free(Counted* counted) noexcept;

  bool IsShort() const noexcept { return size_ <= kShort; }

  Held held_;
  std::size_t size_ = 0;
};

/// Two texts are the same to the last byte, or two values are equal. This is what a property asks
/// before it takes a new value: a change of case is a change.
inline bool Same(const String& a, const String& b) { return a.View() == b.View(); }
template <class T>
bool Same(const T& a, const T& b) {
  return a == b;
}

}  // namespace framework
