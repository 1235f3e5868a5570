#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <fstream>
#include <map>
#include <set>
#include <span>
#include <sstream>

#include "framework/files/text_input_stream.h"
#include "framework/values/text.h"
#include "pitch/mask.h"
#include "pitch/tscale.h"

// Music theory: holds the library that ships to what is known of its scales, and to what a musician
// wants to see first.

namespace {

using namespace framework;

constexpr std::int64_t kRoot = 2048;
constexpr std::int64_t kTwelveNotes = 4095;

std::vector<std::string> Cut(const std::string& text, const char* delimiter) {
  const auto parts = Split(text, delimiter);
  return {parts._Items().begin(), parts._Items().end()};
}

using Entry = Ref<pitch::TScale>;

/// "Major / Ionian" is two names.
std::vector<std::string> Names(const Entry& entry) {
  return Cut(std::string(entry->Scale()), " / ");
}

/// The scales in the order of the file.
std::vector<Entry> ShippedLibrary() {
  std::vector<Entry> entries;
  const auto stream = TextInputStream::Open(GetFolderItem(SHIPPED_LIBRARY));
  stream->ReadLine();
  stream->ReadLine();
  while (!stream->EOF_()) {
    entries.push_back(RuntimeNewObject<pitch::TScale>());
    entries.back()->Constructor(Split(stream->ReadLine(), ","));
  }
  return entries;
}

/// The mask of degrees of the major scale: "1 b3 #5".
std::int64_t Degrees(const std::string& formula) {
  constexpr std::array kMajor = {0, 2, 4, 5, 7, 9, 11};
  std::int64_t mask = 0;
  std::istringstream words(formula);
  for (std::string word; words >> word;) {
    const auto digits = word.find_first_of("123456789");
    int semitones = kMajor.at(static_cast<std::size_t>(std::stoi(word.substr(digits)) - 1) % 7);
    for (const char sign : word.substr(0, digits)) semitones += sign == '#' ? 1 : 11;
    mask |= kRoot >> semitones % 12;
  }
  return mask;
}

/// The same notes, measured from the second of them.
std::int64_t NextMode(std::int64_t notes) {
  do notes = pitch::Rotate12(notes, 1);
  while ((notes & kRoot) == 0);
  return notes;
}

/// A file of lines "degrees | name = name", and of banks in brackets.
struct Facts {
  struct Line {
    std::int64_t notes;  ///< 0 where no degrees stand
    std::vector<std::string> names;
  };
  std::vector<Line> lines;
  std::set<std::string> banks;
};

Facts ReadFacts(const char* file) {
  Facts facts;
  std::ifstream stream(file);
  for (std::string line; std::getline(stream, line);) {
    if (line.starts_with('[')) facts.banks.insert(line.substr(1, line.size() - 2));
    const auto stroke = line.find("| ");
    if (stroke == line.npos) continue;
    facts.lines.push_back({Degrees(line.substr(0, stroke)), Cut(line.substr(stroke + 2), " = ")});
  }
  return facts;
}

TEST(ShippedLibrary, HasItsScalesAsMusiciansKnowThem) {
  std::multimap<std::string, Entry> library;  // by each of its names
  std::set<std::string> banks;
  for (const Entry& entry : ShippedLibrary()) {
    for (const std::string& name : Names(entry)) library.emplace(name, entry);
    banks.emplace(entry->Bank());
  }
  const Facts facts = ReadFacts(KNOWN_SCALES);
  std::set<std::string> known;
  std::int64_t notes = 0;
  for (const Facts::Line& fact : facts.lines) {
    notes = fact.notes != 0 ? fact.notes : NextMode(notes);
    for (const std::string& name : fact.names) {
      EXPECT_TRUE(library.contains(name)) << "no " << name;
      const auto [first, last] = library.equal_range(name);
      for (auto found = first; found != last; ++found) {
        EXPECT_EQ(found->second->Notes(), notes) << name << " is " << found->second->Print().View();
      }
      known.insert(name);
    }
  }
  EXPECT_GT(facts.banks.size(), 0U);
  EXPECT_THAT(banks, testing::IsSupersetOf(facts.banks));
  for (const auto& [name, entry] : library) {
    if (!facts.banks.contains(std::string(entry->Bank()))) continue;
    EXPECT_TRUE(known.contains(name)) << name << " in " << entry->Print().View() << " is not known";
  }
}

/// How many different sets of notes there are, but for all twelve.
std::size_t CountSets(std::span<const Entry> entries) {
  std::set<std::int64_t> sets;
  for (const Entry& entry : entries) sets.insert(entry->Notes());
  sets.erase(kTwelveNotes);
  return sets.size();
}

TEST(ShippedLibrary, IsAsLargeAsAMusicianExpectsAndFitsTheLists) {
  const std::vector<Entry> library = ShippedLibrary();
  for (const Entry& entry : library) {
    EXPECT_LE(entry->Bank().View().size(), 18U)
        << entry->Print().View() << ": the bank is cut in the list";
    EXPECT_LE(entry->Scale().View().size(), 28U)
        << entry->Print().View() << ": the name is cut in the list";
  }
  EXPECT_GE(library.size(), 600U);
  EXPECT_GE(CountSets(library), 339U);
}

TEST(ShippedLibrary, AnswersFirstWithWhatATeacherNames) {
  constexpr std::size_t kFirst = 15;      // rows that a user sees without scrolling
  constexpr std::size_t kDifferent = 13;  // of them at least, if the library has so many
  const std::vector<Entry> library = ShippedLibrary();
  ASSERT_FALSE(library.empty());
  EXPECT_EQ(library.back()->Notes(), kTwelveNotes)
      << "the twelve notes contain all, and stand last";
  const Facts queries = ReadFacts(FIRST_ROWS);
  EXPECT_EQ(queries.lines.size(), 40U);
  for (const auto& [notes, names] : queries.lines) {
    std::vector<Entry> rows;
    for (const Entry& entry : library) {
      if (entry->ContainsAll(notes)) rows.push_back(entry);
    }
    const std::size_t different = std::min(kDifferent, CountSets(rows));
    rows.resize(std::min(kFirst, rows.size()));
    std::string shown = "among the rows\n";
    for (const Entry& row : rows) shown.append(row->Print()).append("\n");
    EXPECT_GE(CountSets(rows), different) << shown;

    auto place = rows.begin();
    for (const std::string& name : names) {
      place = std::find_if(place, rows.end(), [&name](const Entry& row) {
        return std::ranges::count(Names(row), name) != 0;
      });
      ASSERT_NE(place, rows.end()) << "no " << name << " in its place " << shown;
      const auto most = name == names.front() ? 3 : std::ssize(rows);
      EXPECT_LT(place - rows.begin(), most) << name << " " << shown;
    }
  }
}

}  // namespace
