#include "framework/values/text.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cstring>
#include <string_view>

namespace framework {

namespace {

/// The value's digits in the given base.
template <class Integer>
String Digits(Integer value, int base) {
  std::array<char, 65> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value, base).ptr;
  return std::string_view(digits.data(), static_cast<std::size_t>(end - digits.data()));
}

/// Bytes that FindAll looks through at a time.
constexpr std::size_t kStretch = 256;

/// Where the byte stands in a text of at most kStretch bytes. How many places there are.
std::size_t FindAll(std::string_view text, char byte, std::array<std::size_t, kStretch>& places) {
  std::size_t count = 0;
  std::size_t at = 0;
  if constexpr (std::endian::native == std::endian::little) {
    constexpr std::uint64_t kLowBits = 0x7f7f7f7f7f7f7f7f;
    const std::uint64_t wanted =
        std::uint64_t{0x0101010101010101} * static_cast<unsigned char>(byte);
    for (; at + sizeof wanted <= text.size(); at += sizeof wanted) {
      std::uint64_t eight = 0;
      std::memcpy(&eight, text.data() + at, sizeof eight);
      eight ^= wanted;
      // The top bit of each byte that has become 0.
      std::uint64_t found = ~(((eight & kLowBits) + kLowBits) | eight | kLowBits);
      for (; found != 0; found &= found - 1) {
        places[count++] = at + static_cast<std::size_t>(std::countr_zero(found)) / 8;
      }
    }
  }
  for (; at < text.size(); ++at) {
    places[count] = at;
    count += text[at] == byte ? 1U : 0U;
  }
  return count;
}

}  // namespace

Array<String> Split(const String& text, const String& delimiter) {
  const std::string_view all = text.View();
  const std::string_view cut = delimiter.View();
  std::vector<String> parts;
  std::size_t begin = 0;
  std::array<std::size_t, kStretch> places;
  for (std::size_t from = 0; !cut.empty() && from < all.size(); from += kStretch) {
    const std::size_t count = FindAll(all.substr(from, kStretch), cut[0], places);
    parts.reserve(count + 1);
    for (std::size_t k = 0; k < count; ++k) {
      const std::size_t at = from + places[k];
      if (cut.size() > 1 && (at < begin || !all.substr(at).starts_with(cut))) continue;
      parts.emplace_back(text, begin, at - begin);
      begin = at + cut.size();
    }
  }
  parts.emplace_back(text, begin, all.size() - begin);
  return Array<String>(std::move(parts));
}

String Str(std::int64_t value) { return Digits(value, 10); }

double Val(const String& text) {
  std::string_view digits = text.View();
  digits.remove_prefix(std::min(digits.find_first_not_of(" \t"), digits.size()));
  const std::size_t sign = digits.starts_with('-') ? 1 : 0;
  // from_chars also reads "nan" and "inf".
  if (digits.find_first_of(".0123456789", sign) != sign) return 0;
  double value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return value;
}

String Bin(std::int64_t value) { return Digits(static_cast<std::uint64_t>(value), 2); }

String RuntimeAddString(const String& a, const String& b) { return {a.View(), b.View()}; }

}  // namespace framework
