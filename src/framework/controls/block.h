#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

#include "framework/controls/component.h"
#include "framework/values/string.h"

namespace framework {

/// A description block: one leading byte 0xFF, then entries without count, terminator or alignment.
/// An entry is a property's name, one blank, and the value in the form of the property's declared
/// type: integers of 8 bytes and texts' byte counts of 4 with the low byte first, switches of one
/// byte, colours of 4 bytes, floats of 4, one byte for an enumeration of one.
struct Block {
  const unsigned char* bytes;  ///< the leading 0xFF
  std::size_t length;          ///< of the entries, in bytes; the 0xFF is not counted
};

/// A colour: three bytes, the middle one green, and a fourth that is 0.
struct Color {
  std::uint8_t first = 0;
  std::uint8_t green = 0;
  std::uint8_t third = 0;
  std::uint8_t fourth = 0;
  friend constexpr bool operator==(const Color&, const Color&) = default;
};

enum class CheckedStates : std::int64_t { Unchecked, Checked, Indeterminate };
enum class FontUnits : std::uint8_t { Default };

/// Reads the entries of one block from front to back. Whatever runs past the block's end raises
/// UnsupportedFormatException, with class, key and offset (counted from the 0xFF).
class BlockReader {
 public:
  BlockReader(const Block& block, std::string_view class_name);

  bool AtEnd() const { return offset_ == end_; }
  /// The next key. A value must be read before the key after it.
  std::string_view Key();
  /// The value behind the key; the type says its form.
  template <class T>
  T Value();

  [[noreturn]] void Refuse(std::string_view why) const;

 private:
  const unsigned char* Take(std::size_t count);
  std::uint64_t Integer(std::size_t bytes);
  String Text();
  float Float();
  Color Colour();

  const unsigned char* bytes_;
  std::size_t end_;
  std::size_t offset_ = 1;
  std::string_view class_name_;
  std::string_view key_;
};

template <class T>
T BlockReader::Value() {
  if constexpr (std::is_enum_v<T>) {
    return static_cast<T>(Value<std::underlying_type_t<T>>());
  } else if constexpr (std::is_same_v<T, bool>) {
    return Integer(1) != 0;
  } else if constexpr (std::is_integral_v<T>) {
    return static_cast<T>(Integer(sizeof(T)));
  } else if constexpr (std::is_same_v<T, float>) {
    return Float();
  } else if constexpr (std::is_same_v<T, Color>) {
    return Colour();
  } else {
    return Text();
  }
}

/// Applies a block to an object: sets each property in block order. A key that the object's class
/// and its bases do not declare, and a value that runs past the end, raise
/// UnsupportedFormatException; the properties before it are set.
void _SetProperties(Component& object, const Block& block);

namespace detail {

template <class>
struct Accessor;
template <class C, class T, Guard kGuard>
struct Accessor<Property<T, kGuard> C::*> {
  using Class = C;
  using Type = T;
};
template <class C, class T>
struct Accessor<void (C::*)(T)> {
  using Class = C;
  using Type = std::remove_cvref_t<T>;
};

}  // namespace detail

/// The row of a property table for a Property member, or for an operation that sets the property.
template <auto kMember>
constexpr PropertyInfo Declare(std::string_view name) {
  using Access = detail::Accessor<std::remove_cv_t<decltype(kMember)>>;
  return {name, [](Component& object, BlockReader& reader) {
            auto value = reader.Value<typename Access::Type>();
            (static_cast<typename Access::Class&>(object).*kMember)(std::move(value));
          }};
}

/// Picks the setting one of a property's two operations: Declare<Setter<CheckBox, bool>(...)>.
template <class C, class T>
using Setter = void (C::*)(T);

}  // namespace framework
