#include "shipped_library.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>
#include <set>
#include <sstream>
#include <utility>

#include "framework/text.h"
#include "intervals.h"
#include "pitch/mask.h"

namespace {

using pitch::Rotate12;

constexpr std::int64_t kRoot = 2048;

/// The notes measured from the note with that number, from 1.
std::int64_t FromNote(std::int64_t notes, int number) {
  std::int64_t position = 0;
  for (int note = 1; note < number; ++note) {
    do ++position;
    while ((notes & (kRoot >> position)) == 0);
  }
  return Rotate12(notes, position);
}

/// The fewest steps that rotate the notes onto themselves.
std::int64_t Period(std::int64_t notes) {
  std::int64_t steps = 1;
  while (Rotate12(notes, steps) != notes) ++steps;
  return steps;
}

/// Each note as far below the root as it was above.
std::int64_t Mirrored(std::int64_t notes) {
  std::int64_t mirrored = 0;
  for (std::int64_t k = 0; k < 12; ++k) {
    if ((notes & (kRoot >> k)) != 0) mirrored |= kRoot >> (12 - k) % 12;
  }
  return mirrored;
}

/// The melakarta of that number, from 1: the natural fourth, then the sharp one; under each the six
/// pairs of Ri and Ga; under each of these the six pairs of Dha and Ni.
std::int64_t Melakarta(int number) {
  const char* const ri_ga[] = {"b2 2", "b2 b3", "b2 3", "2 b3", "2 3", "#2 3"};
  const char* const dha_ni[] = {"b6 6", "b6 b7", "b6 7", "6 b7", "6 7", "#6 7"};
  const int index = number - 1;
  const std::string ma = index < 36 ? " 4 5 " : " #4 5 ";
  return Degrees("1 " + std::string(ri_ga[index / 6 % 6]) + ma + dha_ni[index % 6]);
}

std::vector<std::string> Parts(const std::string& text, const char* separator) {
  std::vector<std::string> parts;
  const auto cut = framework::Split(text, separator);
  for (std::int64_t i = 0; i <= cut.LastIndex(); ++i) parts.emplace_back(cut[i].View());
  return parts;
}

bool IsIn(const Entry& entry, std::initializer_list<std::string_view> banks) {
  return std::ranges::find(banks, entry.bank) != banks.end();
}

/// A parent by its degrees, and in the order of its notes the names of the mode on each.
struct Family {
  const char* bank;
  const char* parent;
  const char* modes;
};

const Family kFamilies[] = {
    {"Major Modes", "1 2 3 4 5 6 7",
     "Ionian | Dorian | Phrygian | Lydian | Mixolydian | Aeolian | Locrian"},
    {"Harmonic Minor", "1 2 b3 4 5 b6 7",
     "Harmonic Minor | Locrian #6 | Ionian #5 = Ionian Augmented | Dorian #4 = Ukrainian Dorian | "
     "Phrygian Dominant = Phrygian Major | Lydian #2 | Super Locrian bb7 = Ultralocrian"},
    {"Melodic Minor", "1 2 b3 4 5 6 7",
     "Melodic Minor = Jazz Minor | Dorian b2 = Phrygian #6 | Lydian Augmented | Lydian Dominant = "
     "Acoustic = Overtone | Mixolydian b6 = Aeolian Dominant = Hindu = Melodic Major = Major-Minor "
     "| Locrian #2 = Half-Diminished = Aeolian b5 | Altered = Super Locrian = Diminished Whole "
     "Tone"},
    {"Harmonic Major", "1 2 3 4 5 b6 7",
     "Harmonic Major = Ionian b6 | Dorian b5 | Phrygian b4 | Lydian b3 = Lydian Diminished | "
     "Mixolydian b2 | Lydian Augmented #2 | Locrian bb7"},
    {"Double Harmonic", "1 b2 3 4 5 b6 7",
     "Double Harmonic Major | Lydian #2 #6 | Ultraphrygian | Double Harmonic Minor = Hungarian "
     "Minor | Mixolydian b2 b5 = Oriental | Ionian #2 #5 | Locrian bb3 bb7"},
    {"Neapolitan Modes", "1 b2 b3 4 5 6 7",
     "Neapolitan Major | Leading Whole Tone = Lydian Augmented #6 | Lydian Augmented Dominant | "
     "Lydian Minor | Major Locrian = Arabian | Semilocrian b4 | Super Locrian bb3"},
    {"Neapolitan Modes", "1 b2 b3 4 5 b6 7",
     "Neapolitan Minor | Lydian #6 | Mixolydian Augmented | Aeolian #4 | Locrian Dominant | Ionian "
     "#2 | Ultralocrian bb3"},
    // The diatonic octave species from B up.
    {"Ancient Greek", "1 b2 b3 4 b5 b6 b7",
     "Greek Mixolydian | Greek Lydian | Greek Phrygian | Greek Dorian | Greek Hypolydian | Greek "
     "Hypophrygian | Greek Hypodorian"},
    // The chromatic ones: semitone, semitone, minor third, twice, then a whole tone.
    {"Ancient Greek", "1 b2 bb3 4 b5 bb6 b7",
     "Chromatic Mixolydian | Chromatic Lydian | Chromatic Phrygian | Chromatic Dorian | Chromatic "
     "Hypolydian | Chromatic Hypophrygian | Chromatic Hypodorian"},
    {"Pentatonic", "1 2 3 5 6",
     "Major Pentatonic | Suspended Pentatonic = Egyptian | Man Gong | Ritusen = Scottish "
     "Pentatonic | Minor Pentatonic"},
    {"Chinese/Indonesian", "1 2 3 5 6", "Gong | Shang | Jue | Zhi | Yu"},
};

TEST(ShippedLibrary, ModesAreRotationsOfTheirParentsByDegree) {
  std::set<std::string> known;
  for (const auto& [bank, parent, modes] : kFamilies) {
    int degree = 0;
    for (const std::string& names : Parts(modes, " | ")) {
      const std::int64_t expected = FromNote(Degrees(parent), ++degree);
      for (const std::string& name : Parts(names, " = ")) {
        const std::string title = bank + (" : " + name);
        EXPECT_EQ(NotesOf(title), expected) << title;
        known.insert(title);
      }
    }
  }
  for (const Entry& entry : ShippedLibrary()) {
    if (IsIn(entry, {"Major Modes", "Harmonic Minor", "Melodic Minor", "Harmonic Major",
                     "Double Harmonic", "Neapolitan Modes", "Ancient Greek"})) {
      EXPECT_TRUE(known.contains(entry.Title())) << entry.Title() << " is a mode of what?";
    }
  }
}

TEST(ShippedLibrary, TheMelakartaComeOutOfTheirSchemeInTheOrderOfTheirNumbers) {
  int number = 0;
  for (const Entry& entry : ShippedLibrary()) {
    if (!IsIn(entry, {"Carnatic Melakarta"})) continue;
    EXPECT_EQ(std::stoi(entry.name), ++number) << entry.Title();
    EXPECT_EQ(entry.notes, Melakarta(number)) << entry.Title();
  }
  EXPECT_EQ(number, 72);
}

TEST(ShippedLibrary, TheThaatsAreMelakartas) {
  const std::pair<std::string, int> thaats[] = {
      {"Bilawal", 29}, {"Kalyan", 65}, {"Khamaj", 28},  {"Bhairav", 15}, {"Purvi", 51},
      {"Marwa", 53},   {"Kafi", 22},   {"Asavari", 20}, {"Bhairavi", 8}, {"Todi", 45}};
  for (const auto& [name, number] : thaats) {
    EXPECT_EQ(NotesOf("Hindustani Thaats : " + name), Melakarta(number)) << name;
  }
}

TEST(ShippedLibrary, SymmetricScalesAreUnchangedByARotation) {
  constexpr std::int64_t kPeriods[] = {2, 3, 4, 6, 6, 6, 6};
  int inverses = 0;
  for (const Entry& entry : ShippedLibrary()) {
    if (!IsIn(entry, {"Symmetric"})) continue;
    SCOPED_TRACE(entry.Title());
    EXPECT_LT(Period(entry.notes), 12);
    if (entry.name.starts_with("Messiaen Mode ")) {
      EXPECT_EQ(Period(entry.notes), kPeriods[entry.name[14] - '1']);
    }
    if (entry.name.starts_with("Messiaen Trunc. ")) {
      const auto whole = NotesOf(std::string("Symmetric : Messiaen Mode ") + entry.name[16]);
      std::int64_t k = 0;
      while (k < 12 && (entry.notes & ~Rotate12(whole, k)) != 0) ++k;
      EXPECT_LT(k, 12) << "holds notes that its mode has not";
    }
    if (const auto end = entry.name.find(" Inverse"); end != std::string::npos) {
      EXPECT_EQ(entry.notes, Mirrored(NotesOf("Symmetric : " + entry.name.substr(0, end))));
      ++inverses;
    }
  }
  EXPECT_GT(inverses, 0);
}

TEST(ShippedLibrary, ChordsAreWhatTheirSymbolsSay) {
  int chords = 0;
  for (const Entry& entry : ShippedLibrary()) {
    if (!IsIn(entry, {"Triads", "Sixth/Add Chords", "Seventh Chords", "Ninth Chords",
                      "Eleventh Chords", "Thirteenth Chords", "Altered Chords"})) {
      continue;
    }
    EXPECT_EQ(entry.notes, Chord(entry.name.substr(0, entry.name.find(" (")))) << entry.Title();
    ++chords;
  }
  EXPECT_GT(chords, 100);
}

TEST(ShippedLibrary, ANameMeansTheSameNotesInEachBank) {
  // A raga may have more notes or fewer than the thaat of its name; Bhairavi is two ragas.
  const std::set<std::string> homonyms = {"Bhairavi", "Khamaj", "Marwa", "Purvi"};
  std::map<std::string, Entry> firsts;
  for (const Entry& entry : ShippedLibrary()) {
    if (homonyms.contains(entry.name)) continue;
    const Entry& first = firsts.try_emplace(entry.name, entry).first->second;
    EXPECT_EQ(entry.notes, first.notes) << entry.Title() << " is not " << first.Title();
  }
}

TEST(ShippedLibrary, OneSetOfNotesHasItsNamesInManyTraditions) {
  const char* const groups[] = {
      "Common : Major Pentatonic = Hindustani Ragas : Bhupali = Carnatic Ragas : Mohanam = "
      "Japanese : Ryo = Ethiopian : Tizita Major",
      "Pentatonic : Man Gong = Hindustani Ragas : Malkauns = Carnatic Ragas : Hindolam",
      "Pentatonic : Ritusen = Hindustani Ragas : Durga = Carnatic Ragas : Shuddha Saveri = "
      "Japanese : Yo",
      "Common : Phrygian Dominant = Arabic and Persian : Maqam Hijaz = Jewish and Klezmer : Ahava "
      "Rabbah = Spanish/Flamenco : Spanish Gypsy = Greek Dromoi : Hitzaz = Carnatic Melakarta : 14 "
      "Vakulabharanam",
      "Common : Double Harmonic Major = Arabic and Persian : Maqam Hijaz Kar = Turkish Makam : "
      "Makam Hicazkar = Hungarian/Romani : Romani Major",
      "Common : Hungarian Minor = Arabic and Persian : Maqam Nawa Athar = Turkish Makam : Makam "
      "Neveser = Greek Dromoi : Niavent",
      "Common : Major = Arabic and Persian : Maqam Ajam = Turkish Makam : Makam Cargah",
      "Common : Half-Whole Diminished = Symmetric : Messiaen Mode 2",
      "Special Chords : Tristan Chord = Seventh Chords : m7b5 (Half-Diminished)",
  };
  for (const char* const group : groups) {
    const std::vector<std::string> titles = Parts(group, " = ");
    for (const std::string& title : titles) {
      EXPECT_EQ(NotesOf(title), NotesOf(titles[0])) << title << " is not " << titles[0];
    }
  }
}

TEST(ShippedLibrary, TheWellKnownDozenByHand) {
  const std::pair<std::string, const char*> dozen[] = {
      {"Major", "101011010101"},
      {"Natural Minor", "101101011010"},
      {"Harmonic Minor", "101101011001"},
      {"Melodic Minor", "101101010101"},
      {"Major Pentatonic", "101010010100"},
      {"Minor Pentatonic", "100101010010"},
      {"Blues", "100101110010"},
      {"Dorian", "101101010110"},
      {"Mixolydian", "101011010110"},
      {"Lydian Dominant", "101010110110"},
      {"Whole Tone", "101010101010"},
      {"Half-Whole Diminished", "110110110110"},
  };
  for (const auto& [name, notes] : dozen) {
    EXPECT_EQ(framework::Bin(NotesOf("Common : " + name)).View(), notes) << name;
  }
}

TEST(ShippedLibrary, EachScaleHoldsItsRootAndEachNameStandsOnceInItsBank) {
  const auto less = [](const std::string& a, const std::string& b) {
    return framework::RuntimeStringCompare(a, b) < 0;
  };
  std::set<std::string, decltype(less)> seen;
  std::vector<std::string> banks;
  for (const Entry& entry : ShippedLibrary()) {
    EXPECT_NE(entry.notes & kRoot, 0) << entry.Title() << " has no root";
    EXPECT_TRUE(seen.insert(entry.Title()).second) << entry.Title() << " again";
    if (!banks.empty() && banks.back() == entry.bank) continue;
    EXPECT_THAT(banks, testing::Not(testing::Contains(entry.bank))) << entry.Title();
    banks.push_back(entry.bank);
  }
  EXPECT_EQ(banks.front(), "Common");
}

TEST(ShippedLibrary, ItsFileSurvivesASpreadsheetProgram) {
  const std::string bytes = ShippedFile();
  EXPECT_EQ(bytes.find_first_of("\r;\"\t"), bytes.npos);
  EXPECT_FALSE(bytes.ends_with('\n'));
  std::istringstream lines(bytes);
  int number = 1;
  for (std::string line; std::getline(lines, line); ++number) {
    EXPECT_EQ(std::ranges::count(line, ','), number == 2 ? 0 : 13) << line;
  }
}

}  // namespace
