#include "toolkit/web/listbox_peer.h"

#include <algorithm>
#include <utility>

#include "toolkit/web/event.h"

namespace toolkit::web {

using namespace framework;
using event::Key;

namespace {

/// The row that a key leads to from the chosen one; the chosen one itself for a key that leads to
/// none. Without a choice, an arrow or a page key chooses the first row.
std::int64_t RowFor(Key key, std::int64_t chosen, std::int64_t last, std::int64_t page) {
  const auto to = [&](std::int64_t row) {
    return chosen < 0 ? 0 : std::clamp<std::int64_t>(row, 0, last);
  };
  switch (key) {
    case Key::kUp:
      return to(chosen - 1);
    case Key::kDown:
      return to(chosen + 1);
    case Key::kPageUp:
      return to(chosen - page);
    case Key::kPageDown:
      return to(chosen + page);
    case Key::kHome:
      return 0;
    case Key::kEnd:
      return last;
    case Key::kEscape:
      return -1;
    case Key::kOther:
      break;
  }
  return chosen;
}

}  // namespace

ListboxPeer::ListboxPeer(const Ref<Listbox>& list, const Element& content)
    : ControlPeer(list, content, "div"),
      list_(list),
      rows_(Outer(), Id(), [this](std::int64_t row, int column) {
        // No column shows more; laying out a megabyte would take seconds.
        constexpr std::size_t kMost = 1000;
        return list_->Cell(row, columns_[static_cast<std::size_t>(column)]).View().substr(0, kMost);
      }) {
  Outer().Attribute("role", "grid");
  Outer().Attribute("tabindex", "0");
  Outer().On("pointerdown", [this] {
    pressed_ = event::Row();
    touched_ = event::IsTouch();
  });
  Outer().On("click", [this] { Clicked(); });
  Outer().On("keydown", [this] { KeyPressed(); });
  Outer().On("mousemove", &event::TellCut);
  Outer().On("scroll", [this] { rows_.Scrolled(); });
  Outer().OnMedia("(pointer: coarse)", [this] { rows_changed_ = true; });  // rows of another height
}

void ListboxPeer::Show(Change what) {
  if (what == Change::Rows) rows_changed_ = true;
  if (what == Change::ListIndex && !rows_changed_) rows_.Choose(list_->ListIndex());
  if (what == Change::Look) ShareColumns();
}

bool ListboxPeer::Refresh() {
  if (!std::exchange(rows_changed_, false)) return false;
  rows_.Reset(list_->LastIndex() + 1, list_->ListIndex());
  return true;
}

void ListboxPeer::ShareColumns() {
  // Of the width inside the frame. The last column ends at the scroll bar.
  const std::vector<int> shares = list_->_ColumnShares();
  std::string tracks;
  columns_.clear();
  for (std::size_t column = 0; column < shares.size(); ++column) {
    if (shares[column] == 0) continue;
    columns_.push_back(static_cast<int>(column));
    const std::int64_t width = shares[column] * (list_->Width() - 2) / 1000;
    tracks += column + 1 < shares.size() ? std::to_string(width) + "px " : "minmax(0,1fr)";
  }
  Outer().Style("--columns", tracks);
  Outer().Attribute("aria-colcount", static_cast<std::int64_t>(columns_.size()));
  rows_.SetColumns(static_cast<int>(columns_.size()));
  rows_changed_ = true;
}

void ListboxPeer::Clicked() {
  // A press that ends elsewhere than it began is no click. A screen reader clicks without one.
  const std::int64_t row = event::Row();
  const bool by_hand = event::IsByHand();
  if (by_hand && row != pressed_) return;
  // For a finger there is no key to hold.
  const bool takes_back = event::HasCtrl() || (by_hand && touched_);
  list_->Select(takes_back && row == list_->ListIndex() ? -1 : row);
}

void ListboxPeer::KeyPressed() {
  const Key key = event::PressedKey();
  if (key == Key::kOther) return;
  event::Take();  // or the browser would scroll as well
  if (list_->LastIndex() < 0) return;
  list_->Select(RowFor(key, list_->ListIndex(), list_->LastIndex(), rows_.PageRows()));
}

}  // namespace toolkit::web
