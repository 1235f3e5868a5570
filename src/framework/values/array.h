#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <span>
#include <utility>
#include <vector>

#include "framework/values/ref.h"

namespace framework {

/// Raises an OutOfBoundsException whose message names both numbers.
[[noreturn]] void RaiseOutOfBoundsException(std::int64_t index, std::int64_t last_index);

/// A reference to zero-based elements, shared by all copies of it. The reference may be nil, and a
/// use of a nil one raises NilObjectException; an index outside raises OutOfBoundsException.
template <class T>
class Array {
 public:
  /// Nil.
  Array() noexcept = default;
  Array(std::initializer_list<T> elements) : Array(std::vector<T>(elements)) {}
  explicit Array(std::vector<T> elements) : elements_(RuntimeNewObject<Elements>()) {
    elements_->items = std::move(elements);
  }

  T& operator[](std::int64_t index) const {
    auto& items = elements_->items;
    if (static_cast<std::uint64_t>(index) >= items.size())
      RaiseOutOfBoundsException(index, LastIndex());
    return items[static_cast<std::size_t>(index)];
  }
  /// -1 when there is no element.
  std::int64_t LastIndex() const { return static_cast<std::int64_t>(elements_->items.size()) - 1; }
  /// Appends an element that is made of the arguments.
  template <class... Arguments>
  void Append(Arguments&&... arguments) const {
    elements_->items.emplace_back(std::forward<Arguments>(arguments)...);
  }
  /// The elements, until there are more or fewer of them.
  std::span<const T> _Items() const { return elements_->items; }
  void Remove(std::int64_t index) const {
    (*this)[index];
    elements_->items.erase(elements_->items.begin() + static_cast<std::ptrdiff_t>(index));
  }

  explicit operator bool() const noexcept { return static_cast<bool>(elements_); }

 private:
  struct Elements final : Object {
    std::vector<T> items;
  };
  template <class U>
  friend Array<U> CreateArray(std::int64_t last_index);

  Ref<Elements> elements_;
};

/// A new array of default elements, up to last_index; -1 gives an empty one. Raises
/// OutOfBoundsException for a last index that no array can have.
template <class T>
Array<T> CreateArray(std::int64_t last_index) {
  constexpr auto kMost = std::numeric_limits<std::ptrdiff_t>::max() / std::int64_t{sizeof(T)};
  if (last_index < -1 || last_index >= kMost) RaiseOutOfBoundsException(last_index, kMost - 1);
  Array<T> array{};
  array.elements_ = RuntimeNewObject<typename Array<T>::Elements>();
  array.elements_->items.resize(static_cast<std::size_t>(last_index + 1));
  return array;
}

}  // namespace framework
