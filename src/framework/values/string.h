#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <string>
#include <string_view>
#include <utility>

namespace framework {

/// An immutable text of UTF-8 bytes, at most 4 GiB of them. One of up to 12 bytes lies in the
/// String itself; a longer one is counted: copying it, or taking a long part of it, copies a
/// reference. A nil String and the empty text are the same thing. Bytes are kept as they come, also
/// those that are no UTF-8.
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
  /// The text of a, then that of b. Raises std::bad_alloc for more than 4 GiB.
  String(std::string_view a, std::string_view b);
  /// The size bytes of whole from offset on, which must lie within it. A long part holds all bytes
  /// of the text that it comes from as long as it lives.
  String(const String& whole, std::size_t offset, std::size_t size) noexcept
      : size_(static_cast<std::uint32_t>(size)) {
    if (IsShort() && !whole.IsShort()) {
      std::memcpy(held_.data(), whole.Shared()->Text() + whole.Offset() + offset, kShort);
    } else if (IsShort()) {
      whole.View().copy(held_.data(), size, offset);
    } else {
      Hold(whole.Shared(), whole.Offset() + static_cast<std::uint32_t>(offset));
      ++Shared()->references;
    }
  }
  /// A text that write puts where it is told, of at most size bytes; it returns how many they are.
  template <class Write>
  static String Written(std::size_t size, const Write& write);
  String(const String& other) noexcept : held_(other.held_), size_(other.size_) {
    if (!IsShort()) ++Shared()->references;
  }
  String(String&& other) noexcept : held_(other.held_), size_(std::exchange(other.size_, 0)) {}
  String& operator=(String other) noexcept {
    std::swap(held_, other.held_);
    std::swap(size_, other.size_);
    return *this;
  }
  ~String() {
    if (!IsShort() && --Shared()->references == 0) Free(Shared());
  }

  /// The bytes, valid as long as this String stands where it is.
  std::string_view View() const noexcept {
    return {IsShort() ? held_.data() : Shared()->Text() + Offset(), size_};
  }
  operator std::string_view() const noexcept { return View(); }

 private:
  static constexpr std::size_t kShort = 12;

  /// The head of an allocation. The bytes that it counts the holders of follow it, and behind them
  /// kShort more: so a short part is copied without a look at its size.
  struct Bytes {
    std::size_t references;
    char* Text() noexcept { return reinterpret_cast<char*>(this + 1); }
  };

  static Bytes* Allocate(std::size_t size);
  static void Free(Bytes* bytes) noexcept;

  bool IsShort() const noexcept { return size_ <= kShort; }
  void Hold(Bytes* bytes, std::uint32_t offset) noexcept {
    std::memcpy(held_.data(), &bytes, sizeof(void*));
    std::memcpy(held_.data() + sizeof(void*), &offset, sizeof offset);
  }
  Bytes* Shared() const noexcept {
    Bytes* bytes = nullptr;
    std::memcpy(&bytes, held_.data(), sizeof(void*));
    return bytes;
  }
  std::uint32_t Offset() const noexcept {
    std::uint32_t offset = 0;
    std::memcpy(&offset, held_.data() + sizeof(void*), sizeof offset);
    return offset;
  }

  /// A short text itself; of a long one, the bytes that it shares and where it begins in them.
  alignas(void*) std::array<char, kShort> held_{};
  std::uint32_t size_ = 0;
};

template <class Write>
String String::Written(std::size_t size, const Write& write) {
  const std::size_t room = std::max(size, kShort + 1);
  String whole;
  whole.Hold(Allocate(room), 0);
  whole.size_ = static_cast<std::uint32_t>(room);
  String text(whole, 0, write(whole.Shared()->Text()));
  if (text.size_ >= size / 2) return text;
  try {
    return text.View();  // what is mostly empty is not kept: the bytes may be held for long
  } catch (const std::bad_alloc&) {
    return text;
  }
}

/// Two texts are the same to the last byte, or two values are equal. This is what a property asks
/// before it takes a new value: a change of case is a change.
inline bool Same(const String& a, const String& b) { return a.View() == b.View(); }
template <class T>
bool Same(const T& a, const T& b) {
  return a == b;
}

}  // namespace framework
