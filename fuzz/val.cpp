#include <cctype>
#include <cmath>

#include "framework/values/text.h"
#include "target.h"

// Val, against C's reading of the characters that make up the number; and back from Str and Bin.

using namespace framework;
using namespace fuzz;

namespace {

/// The number at the start of the text, if there is one, without the blanks before it.
std::string NumberIn(std::string_view text) {
  const auto at = [&](std::size_t i) { return i < text.size() ? text[i] : '\0'; };
  const auto is_digit = [&](std::size_t i) {
    return std::isdigit(static_cast<unsigned char>(at(i))) != 0;
  };
  std::size_t begin = 0;
  while (at(begin) == ' ' || at(begin) == '\t') ++begin;
  std::size_t i = at(begin) == '-' ? begin + 1 : begin;
  const bool starts = is_digit(i) || (at(i) == '.' && is_digit(i + 1));
  if (!starts) return "";
  while (is_digit(i)) ++i;
  if (at(i) == '.') ++i;
  while (is_digit(i)) ++i;
  if (at(i) == 'e' || at(i) == 'E') {
    const std::size_t power = at(i + 1) == '-' || at(i + 1) == '+' ? i + 2 : i + 1;
    if (is_digit(power)) i = power;
    while (is_digit(i)) ++i;
  }
  return std::string(text.substr(begin, i - begin));
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = Text(data, size);
  const double plain = std::strtod(NumberIn(text).c_str(), nullptr);
  Expect("value", Val(text), std::isfinite(plain) ? plain : 0.0);

  std::uint64_t bits = 0;
  for (std::size_t i = 0; i < size && i < 8; ++i) bits = bits << 8 | data[i];
  const auto number = static_cast<std::int64_t>(bits);
  Expect<std::string>("decimal", std::string(Str(number)), std::to_string(number));
  Expect<std::uint64_t>("base 2", std::stoull(std::string(Bin(number)), nullptr, 2), bits);
  return 0;
}
