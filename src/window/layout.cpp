#include "window/layout.h"

#include <algorithm>
#include <iterator>

#include "framework/values/failures.h"
#include "window/kinds.h"

namespace window::layout {

namespace {

using encoder::Entry;
using framework::Block;
using framework::Control;

constexpr std::string_view kPickNotes = "Select which pitch classes must appear in the scale.";

struct ListboxRow {
  static constexpr std::int64_t index = Control::kNoIndex;
  std::string_view name;
  int left, top, width, height, tab, columns;
  std::string_view help;

  constexpr std::array<Entry, 9> Entries() const {
    return {{{"Name", name},
             {"Index", index},
             {"Left", left},
             {"Top", top},
             {"Width", width},
             {"Height", height},
             {"TabIndex", tab},
             {"ColumnCount", columns},
             {"HelpTag", help}}};
  }
};

struct CheckBoxRow {
  std::string_view name;
  std::int64_t index;
  int left, top, width, height, tab;
  std::string_view caption, help, parent;

  constexpr std::array<Entry, 10> Entries() const {
    return {{{"Name", name},
             {"Index", index},
             {"Left", left},
             {"Top", top},
             {"Width", width},
             {"Height", height},
             {"TabIndex", tab},
             {"Caption", caption},
             {"HelpTag", help},
             {"InitialParent", parent}}};
  }
};

struct LabelRow {
  std::string_view name;
  std::int64_t index;
  int left, top, width, height, tab;
  std::string_view help, text;
  int align;
  framework::Color color;
  bool visible;
  float size;
  std::string_view parent;

  constexpr std::array<Entry, 14> Entries() const {
    return {{{"Name", name},
             {"Index", index},
             {"Left", left},
             {"Top", top},
             {"Width", width},
             {"Height", height},
             {"TabIndex", tab},
             {"HelpTag", help},
             {"Text", text},
             {"TextAlign", align},
             {"TextColor", color},
             {"Visible", visible},
             {"TextSize", size},
             {"InitialParent", parent}}};
  }
};

struct PopupMenuRow {
  static constexpr std::int64_t index = Control::kNoIndex;
  std::string_view name;
  int left, top, width, height, tab;
  std::string_view help, items;
  int list_index;

  constexpr std::array<Entry, 10> Entries() const {
    return {{{"Name", name},
             {"Index", index},
             {"Left", left},
             {"Top", top},
             {"Width", width},
             {"Height", height},
             {"TabIndex", tab},
             {"HelpTag", help},
             {"InitialValue", items},
             {"ListIndex", list_index}}};
  }
};

/// A member of the set of note boxes.
constexpr CheckBoxRow NoteBox(int index, int top, int tab, std::string_view caption,
                              std::string_view parent) {
  return {"cbScale", index, 30, top, 100, 25, tab, caption, kPickNotes, parent};
}

/// A member of the set of stars, each in the strip at the left of its box.
constexpr LabelRow Star(int index, int top, int tab, std::string_view parent) {
  return {"lbStar", index,           15,    top,   15,    20, tab, kPickNotes, "*",
          1,        encoder::kGreen, false, 30.0F, parent};
}

/// A label in the platform's own text.
constexpr LabelRow Text(std::string_view name, int left, int top, int width, int tab, bool visible,
                        std::string_view text) {
  return {name, Control::kNoIndex, left,    top,  width, 20, tab, "", text,
          0,    encoder::kBlack,   visible, 0.0F, ""};
}

// clang-format off

constexpr ListboxRow kListboxes[] = {
    //               left  top width height tab columns
    {"lbContaining",  208, 210,  387,   249,  0, 4,
     "This list will show scales which contain all of the pitch classes specified and which satisfy "
     "the specified root note requirements."},
    {"lbExact",       208,  52,  387,    95,  8, 3,
     "This list will contain only those scales which are an exact match for the pitch classes "
     "specified and contain no other pitch classes."},
};

constexpr PopupMenuRow kPopupMenus[] = {
    {"pmRoot", 30, 50, 80, 20, 12,
     "Specify the pitch class which must serve as the root of the scale.",
     "A\rA# / Bb\rB\rC\rC# / Db\rD\rD# / Eb\rE\rF\rF# / Gb\rG\rG# / Ab", 3},
};

constexpr CheckBoxRow kOptions[] = {
    {"cbOther", Control::kNoIndex, 30,  82, 158, 20, 23, "Include Other Roots",
     "Include all scales which contain the specified pitch classes, even those with a root note "
     "other than that specified above.", ""},
    // The two blanks after "only" are in the text.
    {"cbRinL",  Control::kNoIndex, 30, 114, 100, 20, 24, "Roots in List Only",
     "The lists will contain only  scales where the root note is included in the pitch scales "
     "selected below.", ""},
};

constexpr LabelRow kTexts[] = {
    //            left  top width tab visible
    Text("Label4",  30,  20,  100, 13, true,  "Root Note"),
    Text("Label1",  30, 158,  100,  9, true,  "Notes in Scale"),
    Text("Label2", 215,  20,  100, 10, true,  "Exact Match"),
    Text("Label3", 215, 178,  141, 11, true,  "Containing All Notes"),
    Text("lbValue", 30, 563,  121,  7, false, " "),
    Text("lbScale", 208, 563, 100, 22, false, " "),
};

// The boxes are not spaced quite evenly, and the tab numbers count within a parent: both are wanted.
constexpr CheckBoxRow kNoteBoxes[] = {
    //          top tab caption
    NoteBox( 0, 188, 1, "C",       ""),
    NoteBox( 1, 218, 2, "C# / Db", ""),
    NoteBox( 2, 248, 3, "D",       ""),
    NoteBox( 3, 279, 4, "D# / Eb", ""),
    NoteBox( 4, 308, 0, "E",       "cbScale$2"),
    NoteBox( 5, 339, 0, "F",       "cbScale$3"),
    NoteBox( 6, 368, 0, "F# / Gb", "cbScale$4"),
    NoteBox( 7, 399, 0, "G",       "cbScale$5"),
    NoteBox( 8, 428, 0, "G# / Ab", "cbScale$6"),
    NoteBox( 9, 459, 0, "A",       "cbScale$7"),
    NoteBox(10, 488, 0, "A# / Bb", "cbScale$8"),
    NoteBox(11, 518, 5, "B",       ""),
};

constexpr LabelRow kStars[] = {
    //       top  tab
    Star( 0, 188, 14, ""),
    Star( 1, 218, 15, ""),
    Star( 2, 248, 16, ""),
    Star( 3, 278, 17, ""),
    Star( 4, 308, 18, ""),
    Star( 5, 338,  0, "lbStar$2"),
    Star( 6, 368,  0, "lbStar$3"),
    Star( 7, 398, 19, ""),
    Star( 8, 428, 20, ""),
    Star( 9, 458,  1, "cbScale$2"),
    Star(10, 488,  0, "lbStar$7"),
    Star(11, 518, 21, ""),
};

// clang-format on

/// The block of the row with that name and index; nullptr when the table has none.
template <const auto& kKind, const auto& kTable>
const Block* Find(std::string_view name, std::int64_t index) {
  const auto found = std::find_if(std::begin(kTable), std::end(kTable), [&](const auto& row) {
    return row.name == name && row.index == index;
  });
  if (found == std::end(kTable)) return nullptr;
  return &encoder::kBlocks<kKind, kTable>[static_cast<std::size_t>(found - std::begin(kTable))];
}

}  // namespace

Block MainWindow() {
  static constexpr auto kWindow =
      encoder::Encode<encoder::Write(nullptr, encoder::kWindow, {})>(encoder::kWindow, {});
  return kWindow.View();
}

Block Of(std::string_view name, std::int64_t index) {
  for (const auto find :
       {&Find<encoder::kListbox, kListboxes>, &Find<encoder::kCheckBox, kOptions>,
        &Find<encoder::kCheckBox, kNoteBoxes>, &Find<encoder::kLabel, kTexts>,
        &Find<encoder::kLabel, kStars>, &Find<encoder::kPopupMenu, kPopupMenus>}) {
    if (const Block* const block = find(name, index)) return *block;
  }
  framework::RuntimeRaiseException(framework::KeyNotFoundException(name));
}

}  // namespace window::layout
