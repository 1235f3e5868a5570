#pragma once

#include <array>
#include <bit>
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
  constexpr Value(float value) : type(Type::f4), number(std::bit_cast<std::uint32_t>(value)) {}
  constexpr Value(framework::FontUnits value)
      : type(Type::u1), number(static_cast<std::int64_t>(value)) {}
};

/// One place in a kind's key sequence. A common value stands for every row of the kind; a key
/// without one must stand in each row.
struct Key {
  std::string_view name;
  Type type;
  bool common;
  Value value;

  constexpr Key(std::string_view key, Type key_type)
      : name(key), type(key_type), common(false), value(0) {}
  constexpr Key(std::string_view key, Value common_value)
      : name(key), type(common_value.type), common(true), value(common_value) {}
};

/// A row's value for one key.
struct Entry {
  std::string_view key;
  Value value;
};

constexpr std::size_t ValueSize(const Value& value) {
  switch (value.type) {
    case Type::i8:
      return 8;
    case Type::s:
      return 4 + value.text.size();
    case Type::c:
    case Type::f4:
      return 4;
    case Type::b:
    case Type::u1:
      return 1;
  }
  throw "a type without a form";
}

/// Hands each key of the kind, in sequence, with the row's value or the common one to visit.
template <class Visit>
constexpr void Walk(std::span<const Key> kind, std::span<const Entry> row, Visit visit) {
  std::size_t next = 0;
  for (const Key& key : kind) {
    if (next < row.size() && row[next].key == key.name) {
      if (row[next].value.type != key.type) throw "a value of another type than its key's";
      visit(key.name, row[next].value);
      ++next;
    } else if (key.common) {
      visit(key.name, key.value);
    } else {
      throw "a row without a key that its kind demands";
    }
  }
  if (next != row.size()) throw "a key that its kind does not know, or not at this place";
}

/// Length of a row's block, in bytes, without the leading 0xFF.
constexpr std::size_t BlockLength(std::span<const Key> kind, std::span<const Entry> row) {
  std::size_t length = 0;
  Walk(kind, row, [&](std::string_view key, const Value& value) {
    length += key.size() + 1 + ValueSize(value);
  });
  return length;
}

/// The constant bytes of one block, with the zero bytes that fill its last sixteen.
template <std::size_t kLength>
struct Encoded {
  alignas(16) std::array<unsigned char, (1 + kLength + 15) / 16 * 16> bytes{};

  constexpr framework::Block View() const { return {bytes.data(), kLength}; }
};

/// Writes bytes one after the other.
class Writer {
 public:
  constexpr explicit Writer(std::span<unsigned char> to) : to_(to) {}

  constexpr void Byte(std::uint8_t byte) { to_[at_++] = byte; }
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
  std::span<unsigned char> to_;
  std::size_t at_ = 0;
};

template <std::size_t kLength>
consteval Encoded<kLength> Encode(std::span<const Key> kind, std::span<const Entry> row) {
  Encoded<kLength> block;
  Writer writer(block.bytes);
  writer.Byte(0xFF);
  Walk(kind, row, [&](std::string_view key, const Value& value) {
    writer.Characters(key);
    writer.Byte(' ');
    writer.Put(value);
  });
  return block;
}

/// The block of row number kRow of a table whose rows say themselves what their entries are.
template <const auto& kKind, const auto& kTable, std::size_t kRow>
inline constexpr auto kBlock =
    Encode<BlockLength(kKind, kTable[kRow].Entries())>(kKind, kTable[kRow].Entries());

/// The blocks of a whole table, in its order.
template <const auto& kKind, const auto& kTable>
inline constexpr auto kBlocks = []<std::size_t... kRows>(std::index_sequence<kRows...>) {
  return std::array{kBlock<kKind, kTable, kRows>.View()...};
}
(std::make_index_sequence<std::size(kTable)>());

}  // namespace window::encoder
