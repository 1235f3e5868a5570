#include <gmock/gmock.h>

#include <array>
#include <fstream>
#include <map>
#include <set>
#include <sstream>

#include "framework/files/text_input_stream.h"
#include "framework/values/text.h"
#include "pitch/mask.h"
#include "pitch/tscale.h"

// Music theory: holds the library that ships to what is known of its scales.

namespace {

using namespace framework;

constexpr std::int64_t kRoot = 2048;

struct Entry {
  std::string bank;
  std::string name;
  std::int64_t notes;  ///< a mask, as in TScale

  std::string Title() const { return bank + " : " + name; }
};

/// The scales in the order of the file.
std::vector<Entry> ShippedLibrary() {
  std::vector<Entry> entries;
  const auto stream = TextInputStream::Open(GetFolderItem(SHIPPED_LIBRARY));
  stream->ReadLine();
  stream->ReadLine();
  while (!stream->EOF_()) {
    pitch::TScale scale;
    scale.Constructor(Split(stream->ReadLine(), ","));
    entries.push_back({std::string(scale.Bank()), std::string(scale.Scale()), scale.Notes()});
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

TEST(ShippedLibrary, HasItsScalesAsMusiciansKnowThem) {
  const std::vector<Entry> library = ShippedLibrary();
  std::set<std::string> known;
  std::set<std::string> whole_banks;
  std::int64_t notes = 0;
  std::ifstream facts(KNOWN_SCALES);
  for (std::string line; std::getline(facts, line);) {
    if (line.starts_with('[')) whole_banks.insert(line.substr(1, line.size() - 2));
    if (line.find('|') == line.npos) continue;
    const std::int64_t degrees = Degrees(line.substr(0, line.find('|')));
    notes = degrees != 0 ? degrees : NextMode(notes);
    const auto names = Split(line.substr(line.find("| ") + 2), " = ");
    for (std::int64_t i = 0; i <= names.LastIndex(); ++i) {
      const std::string name(names[i]);
      bool found = false;
      for (const Entry& entry : library) {
        if (name != entry.name && name != entry.Title()) continue;
        EXPECT_EQ(entry.notes, notes) << entry.Title();
        known.insert(entry.Title());
        found = true;
      }
      EXPECT_TRUE(found) << "no " << name;
    }
  }
  EXPECT_GT(whole_banks.size(), 0U);
  for (const Entry& entry : library) {
    if (!whole_banks.contains(entry.bank)) continue;
    EXPECT_TRUE(known.contains(entry.Title())) << entry.Title() << " is not known";
  }
}

TEST(ShippedLibrary, MeansTheSameNotesByANameInEachBank) {
  // A raga may have more notes or fewer than the thaat of its name; Bhairavi is two ragas.
  const std::set<std::string> homonyms = {"Bhairavi", "Khamaj", "Marwa", "Purvi"};
  std::map<std::string, Entry> firsts;
  for (const Entry& entry : ShippedLibrary()) {
    if (homonyms.contains(entry.name)) continue;
    const Entry& first = firsts.try_emplace(entry.name, entry).first->second;
    EXPECT_EQ(entry.notes, first.notes) << entry.Title() << " is not " << first.Title();
  }
}

}  // namespace
