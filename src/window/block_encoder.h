#pragma once

#include <array>
#include <concepts>
#include <cstdint>
#include <span>
#include <string_view>

#include "framework/controls/block.h"

// Makes description blocks while compiling. A row that leaves out a key, has one that its kind does
// not know or not at that place, or has a value of another type than the key's, does not compile:
// the text of the throw below shows in the compiler's message.

namespace window::encoder {

/// The form in which a value stands in a block.
enum class Type : std::uint8_t { i8, b, s, c, f4, u1 };

/// A value of one of the types.
struct Value {
  Type type{};
  std::int64_t number = 0;
  std::string_view text{};
  framework::Color color{};

  constexpr Value(std::int64_t value) : type(Type::i8), number(value) {}
  constexpr Value(int value) : Value(std::int64_t{value}) {}
  constexpr Value(std::same_as<bool> auto value) : type(Type::b), number(value ? 1 : 0) {}
  constexpr Value(std::string_view value) : type(Type::s), text(value) {}
  constexpr Value(const char* value) : Value(std::string_view(value)) {}
  constexpr Value(framework::Color value) : type(Type::c), color(value) {}
  constexpr Value(float value) : type(Type::f4), number(__builtin_bit_cast(std::uint32_t, value)) {}
  constexpr Value(framework::FontUnits value)
      : type(Type::u1), number(static_cast<std::int64_t>(value)) {}
};

/// One place in a kind's key sequence. A common value stands for every row of the kind; a key
/// without one must stand in each row.
struct Key {
  std::string_view name;
  Type type{};
  bool common = false;
  Value value = 0;

  constexpr Key() = default;
  constexpr Key(std::string_view key, Type key_type) : name(key), type(key_type) {}
  constexpr Key(std::string_view key, Value common_value)
      : name(key), type(common_value.type), common(true), value(common_value) {}
};

/// A row's value for one key.
struct Entry {
  std::string_view key;
  Value value;
};

/// Writes bytes one after the other. With nowhere to write, it counts them all the same.
class Writer {
 public:
  constexpr explicit Writer(unsigned char* to) : to_(to) {}

  constexpr std::size_t Count() const { return count_; }

  constexpr void Byte(std::uint8_t byte) {
    if (to_ != nullptr) to_[count_] = byte;
    ++count_;
  }
  /// The low bytes of the number, lowest first.
  constexpr void Number(std::int64_t number, int bytes) {
    for (int i = 0; i < bytes; ++i) {
      Byte(static_cast<std::uint8_t>(static_cast<std::uint64_t>(number) >> (8 * i)));
    }
  }
  constexpr void Characters(std::string_view text) {
    for (const char c : text) Byte(static_cast<std::uint8_t>(c));
  }
  constexpr void Put(const Value& value) {
    switch (value.type) {
      case Type::i8:
        return Number(value.number, 8);
      case Type::f4:
        return Number(value.number, 4);
      case Type::b:
      case Type::u1:
        return Number(value.number, 1);
      case Type::s:
        Number(static_cast<std::int64_t>(value.text.size()), 4);
        return Characters(value.text);
      case Type::c:
        Byte(value.color.first);
        Byte(value.color.green);
        Byte(value.color.third);
        return Byte(value.color.fourth);
    }
  }

 private:
  unsigned char* to_;
  std::size_t count_ = 0;
};

/// Writes the block of a row: each key of the kind, in sequence, with the row's value or the common
/// one. Returns the length of the entries in bytes, without the leading 0xFF.
constexpr std::size_t Write(unsigned char* to, std::span<const Key> kind,
                            std::span<const Entry> row) {
  Writer writer(to);
  writer.Byte(0xFF);
  std::size_t next = 0;
  for (const Key& key : kind) {
    const bool given = next < row.size() && row[next].key == key.name;
    if (!given && !key.common) throw "a row without a key that its kind demands";
    const Value& value = given ? row[next++].value : key.value;
    if (value.type != key.type) throw "a value of another type than its key's";
    writer.Characters(key.name);
    writer.Byte(' ');
    writer.Put(value);
  }
  if (next != row.size()) throw "a key that its kind does not know, or not at this place";
  return writer.Count() - 1;
}

/// The constant bytes of one block, with the zero bytes that fill its last sixteen.
template <std::size_t kLength>
struct Encoded {
  alignas(16) std::array<unsigned char, (1 + kLength + 15) / 16 * 16> bytes{};

  constexpr framework::Block View() const { return {bytes.data(), kLength}; }
};

/// kLength is what Write returns for the row.
template <std::size_t kLength>
consteval Encoded<kLength> Encode(std::span<const Key> kind, std::span<const Entry> row) {
  Encoded<kLength> block;
  Write(block.bytes.data(), kind, row);
  return block;
}

/// The block of row number kRow of a table whose rows say themselves what their entries are.
template <const auto& kKind, const auto& kTable, std::size_t kRow>
inline constexpr auto kBlock =
    Encode<Write(nullptr, kKind, kTable[kRow].Entries())>(kKind, kTable[kRow].Entries());

/// The blocks of a whole table, in its order.
template <const auto& kKind, const auto& kTable>
inline constexpr auto kBlocks = []<std::size_t... kRows>(std::index_sequence<kRows...>) {
  return std::array{kBlock<kKind, kTable, kRows>.View()...};
}
(std::make_index_sequence<std::size(kTable)>());

}  // namespace window::encoder
