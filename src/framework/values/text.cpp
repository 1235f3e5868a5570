#include "framework/values/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <string>
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

}  // namespace

Array<String> Split(const String& text, const String& delimiter) {
  const std::string_view cut = delimiter.View();
  std::string_view rest = text.View();
  std::vector<String> parts;
  if (!cut.empty()) {
    parts.reserve(static_cast<std::size_t>(std::count(rest.begin(), rest.end(), cut[0])) + 1);
  }
  for (std::size_t at{}; !cut.empty() && (at = rest.find(cut)) != rest.npos;) {
    parts.emplace_back(rest.substr(0, at));
    rest.remove_prefix(at + cut.size());
  }
  parts.emplace_back(rest);
  return Array<String>(std::move(parts));
}

String Str(std::int64_t value) { return Digits(value, 10); }

double Val(const String& text) {
  std::string_view digits = text.View();
  digits.remove_prefix(std::min(digits.find_first_not_of(" \t"), digits.size()));
  const std::size_t sign = digits.starts_with('-') ? 1 : 0;
  // strtod also reads "nan", "inf", a plus sign and hexadecimal numbers.
  if (digits.find_first_of(".0123456789", sign) != sign) return 0;
  const std::string number(digits.substr(0, digits.find_first_not_of("+-.0123456789Ee")));
  static const locale_t plain = newlocale(LC_ALL_MASK, "C", nullptr);
  const double value = strtod_l(number.c_str(), nullptr, plain);
  return std::isfinite(value) ? value : 0;
}

String Bin(std::int64_t value) { return Digits(static_cast<std::uint64_t>(value), 2); }

std::int32_t RuntimeStringCompare(std::string_view a, std::string_view b) {
  const auto same = [](char x, char y) { return Folded(x) == Folded(y); };
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), same) ? 0 : 1;
}

String RuntimeAddString(const String& a, const String& b) { return {a.View(), b.View()}; }

}  // namespace framework
