#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace framework {

/// An immutable, counted text of UTF-8 bytes. Copying one copies a pointer. A nil String and the
/// empty text are the same thing. Bytes are kept as they come, also those that are no UTF-8.
///
/// There is deliberately no operator==: RuntimeStringCompare is the language's equality, which
/// folds case; where every byte counts, compare what View gives.
class String {
 public:
  constexpr String() noexcept = default;
  String(const char* text) : String(std::string_view(text)) {}
  String(std::string_view text) : String(text, {}) {}
  String(const std::string& text) : String(std::string_view(text)) {}
  /// The text of a, then that of b, in one allocation.
  String(std::string_view a, std::string_view b);
  String(const String& other) noexcept : bytes_(other.bytes_) { Retain(); }
  String(String&& other) noexcept : bytes_(std::exchange(other.bytes_, nullptr)) {}
  String& operator=(String other) noexcept {
    std::swap(bytes_, other.bytes_);
    return *this;
  }
  ~String() {
    if (bytes_ != nullptr) Release();
  }

  /// The bytes, valid as long as a String holds this text.
  std::string_view View() const noexcept {
    return bytes_ == nullptr ? std::string_view() : std::string_view(bytes_->Text(), bytes_->size);
  }
  operator std::string_view() const noexcept { return View(); }

 private:
  /// The head of an allocation; the text's bytes follow it.
  struct Bytes {
    std::size_t references;
    std::size_t size;
    char* Text() noexcept { return reinterpret_cast<char*>(this + 1); }
  };

  void Retain() const noexcept {
    if (bytes_ != nullptr) ++bytes_->references;
  }
  void Release() const noexcept;

  Bytes* bytes_ = nullptr;
};

/// Two texts are the same to the last byte, or two values are equal. This is what a property asks
/// before it takes a new value: a change of case is a change.
inline bool Same(const String& a, const String& b) { return a.View() == b.View(); }
template <class T>
bool Same(const T& a, const T& b) {
  return a == b;
}

}  // namespace framework
