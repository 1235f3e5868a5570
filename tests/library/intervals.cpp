#include "intervals.h"

#include <algorithm>
#include <array>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <utility>

namespace {

using Degree = std::pair<int, int>;  ///< number, and semitones by which it is altered

std::int64_t Bit(const Degree& degree) {
  constexpr std::array kMajorScale = {0, 2, 4, 5, 7, 9, 11};
  const auto step = static_cast<std::size_t>((degree.first - 1) % 7);
  return std::int64_t{2048} >> ((kMajorScale[step] + degree.second + 12) % 12);
}

int Alteration(std::string_view accidentals) {
  return static_cast<int>(std::ranges::count(accidentals, '#') -
                          std::ranges::count(accidentals, 'b'));
}

}  // namespace

std::int64_t Degrees(std::string_view formula) {
  std::int64_t mask = 0;
  std::istringstream words{std::string(formula)};
  for (std::string word; words >> word;) {
    const auto digits = word.find_first_of("123456789");
    mask |= Bit({std::stoi(word.substr(digits)), Alteration(word.substr(0, digits))});
  }
  return mask;
}

std::int64_t Chord(std::string_view symbol) {
  std::string text(symbol);
  std::erase(text, ' ');
  static const std::regex kSymbol(
      "(mMaj|dimMaj|maj|dim|aug|m|)(6/9|13|11|9|7|6|5|)((?:(?:sus|add|no|)[b#]?\\d+)*)");
  static const std::regex kChange("(sus|add|no|)([b#]?)(\\d+)");
  std::smatch parts;
  if (!std::regex_match(text, parts, kSymbol)) return -1;
  const std::string quality = parts[1];
  const std::string number = parts[2];
  const std::string changes = parts[3];

  const bool diminished = quality.starts_with("dim");
  const bool minor = diminished || quality == "m" || quality == "mMaj";
  std::set<Degree> degrees = {{1, 0},
                              {3, minor ? -1 : 0},
                              {5, diminished         ? -1
                                  : quality == "aug" ? 1
                                                     : 0}};
  const auto drop = [&](int degree) {
    std::erase_if(degrees, [&](const Degree& each) { return each.first == degree; });
  };
  if (number == "5") drop(3);
  if (number.starts_with('6')) degrees.insert({6, 0});
  if (number == "6/9") degrees.insert({9, 0});
  const int top = number.starts_with('6') || number.empty() ? 0 : std::stoi(number);
  const bool major_seventh = quality.ends_with("aj");
  if (top >= 7) degrees.insert({7, major_seventh ? 0 : diminished ? -2 : -1});
  for (int degree = 9; degree <= top; degree += 2) degrees.insert({degree, 0});

  for (std::sregex_iterator at(changes.begin(), changes.end(), kChange), end; at != end; ++at) {
    const std::string word = (*at)[1];
    const int degree = std::stoi((*at)[3]);
    if (word == "no") {
      drop(degree);
      continue;
    }
    if (word == "sus") drop(3);
    if (word.empty()) {
      degrees.erase({degree, 0});
      if (top == 13 && degrees.contains({3, 0})) degrees.erase({11, 0});
    }
    degrees.insert({degree, Alteration((*at)[2].str())});
  }

  std::int64_t mask = 0;
  for (const Degree& degree : degrees) mask |= Bit(degree);
  return mask;
}
