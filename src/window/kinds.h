#pragma once

#include <algorithm>
#include <array>

#include "framework/controls/control.h"
#include "window/block_encoder.h"

// The key sequence of each kind of object, with the values that all rows of the kind share.

namespace window::encoder {

inline constexpr framework::Color kBlack{0x00, 0x00, 0x00, 0x00};
inline constexpr framework::Color kWhite{0xFF, 0xFF, 0xFF, 0x00};
inline constexpr framework::Color kGreen{0x00, 0x81, 0x00, 0x00};

/// The sequence of one part behind that of another.
template <std::size_t kHead, std::size_t kTail>
consteval auto Join(const Key (&head)[kHead], const Key (&tail)[kTail]) {
  std::array<Key, kHead + kTail> keys;
  std::copy_n(tail, kTail, std::copy_n(head, kHead, keys.begin()));
  return keys;
}

inline constexpr Key kWindow[] = {
    {"Width", 615},
    {"Height", 605},
    {"MinWidth", 64},
    {"MinHeight", 64},
    {"MaxWidth", 32000},
    {"MaxHeight", 32000},
    {"Frame", 0},
    {"Title", "Orrel Pitchsieve"},
    {"CloseButton", true},
    {"Resizeable", true},
    {"MaximizeButton", true},
    {"MinimizeButton", true},
    {"FullScreenButton", false},
    {"Composite", false},
    {"MacProcID", 0},
    {"FullScreen", false},
    {"LiveResize", true},
    {"Placement", 0},
    {"Visible", true},
    {"HasBackColor", false},
    {"BackColor", kWhite},
    {"MenuBarVisible", true},
};

inline constexpr Key kControlHead[] = {
    {"Name", Type::s},    {"Index", Type::i8},   {"Left", Type::i8},     {"Top", Type::i8},
    {"Width", Type::i8},  {"Height", Type::i8},  {"LockLeft", true},     {"LockTop", true},
    {"LockRight", false}, {"LockBottom", false}, {"TabIndex", Type::i8}, {"TabPanelIndex", 0},
    {"TabStop", true},
};

inline constexpr Key kListboxTail[] = {
    {"_ScrollOffset", 0},
    {"_ScrollWidth", -1},
    {"AutoDeactivate", true},
    {"Border", true},
    {"ColumnCount", Type::i8},
    {"ColumnWidths", "35%,50%,15%,0%"},
    {"DefaultRowHeight", -1},
    {"Enabled", true},
    {"GridLinesHorizontal", 0},
    {"GridLinesVertical", 0},
    {"HasHeading", false},
    {"HeadingIndex", -1},
    {"HelpTag", Type::s},
    {"InitialValue", ""},
    {"ScrollbarHorizontal", false},
    {"ScrollBarVertical", true},
    {"ShowDropIndicator", false},
    {"Transparent", false},
    {"UseFocusRing", true},
    {"Visible", true},
    {"Bold", false},
    {"Italic", false},
    {"TextFont", "System"},
    {"TextSize", 0.0F},
    {"TextUnit", framework::FontUnits::Default},
    {"Underline", false},
    {"AutoHideScrollbars", true},
    {"ColumnsResizable", false},
    {"EnableDrag", false},
    {"EnableDragReorder", false},
    {"Hierarchical", false},
    {"RequiresSelection", false},
    {"SelectionType", 0},
    {"DataSource", ""},
    {"DataField", ""},
    {"InitialParent", ""},
};

inline constexpr Key kCheckBoxTail[] = {
    {"AutoDeactivate", true},
    {"Caption", Type::s},
    {"Enabled", true},
    {"HelpTag", Type::s},
    {"Transparent", false},
    {"Visible", true},
    {"Bold", false},
    {"Italic", false},
    {"TextFont", "System"},
    {"TextSize", 0.0F},
    {"TextUnit", framework::FontUnits::Default},
    {"Underline", false},
    {"State", 0},
    {"Value", false},
    {"DataField", ""},
    {"DataSource", ""},
    {"InitialParent", Type::s},
};

inline constexpr Key kLabelTail[] = {
    {"AutoDeactivate", true},   {"Enabled", true},      {"HelpTag", Type::s},
    {"Multiline", false},       {"Selectable", false},  {"Text", Type::s},
    {"TextAlign", Type::i8},    {"TextColor", Type::c}, {"Transparent", false},
    {"Visible", Type::b},       {"Bold", false},        {"Italic", false},
    {"TextFont", "System"},     {"TextSize", Type::f4}, {"TextUnit", framework::FontUnits::Default},
    {"Underline", false},       {"DataSource", ""},     {"DataField", ""},
    {"InitialParent", Type::s},
};

inline constexpr Key kPopupMenuTail[] = {
    {"AutoDeactivate", true}, {"Enabled", true},
    {"HelpTag", Type::s},     {"InitialValue", Type::s},
    {"ListIndex", Type::i8},  {"Transparent", false},
    {"Visible", true},        {"TextFont", "System"},
    {"TextSize", 0.0F},       {"TextUnit", framework::FontUnits::Default},
    {"Bold", false},          {"Italic", false},
    {"Underline", false},     {"DataSource", ""},
    {"DataField", ""},        {"InitialParent", ""},
};

inline constexpr auto kListbox = Join(kControlHead, kListboxTail);
inline constexpr auto kCheckBox = Join(kControlHead, kCheckBoxTail);
inline constexpr auto kLabel = Join(kControlHead, kLabelTail);
inline constexpr auto kPopupMenu = Join(kControlHead, kPopupMenuTail);

}  // namespace window::encoder
