#pragma once

#include "toolkit/memory/memory_toolkit.h"
#include "window/main_window.h"

namespace support {

/// The user's hand on a window that has no screen.
class MemoryHand {
 public:
  using Toolkit = toolkit::memory::MemoryToolkit;
  static constexpr bool kShowsFailures = false;

  MemoryHand(Toolkit&, window::wdwMainClass& window) : window_(window) {}
  void Tick(int position) { window_.cbScale(position)->Toggle(); }
  void TickOther() { window_.cbOther()->Toggle(); }
  void TickInListOnly() { window_.cbRinL()->Toggle(); }
  void ChooseRoot(int row) { window_.pmRoot()->Choose(row); }
  void ChooseRow(int row) { window_.lbContaining()->Select(row); }
  void ChooseExactRow(int row) { window_.lbExact()->Select(row); }
  void TakeChoiceBack() { window_.lbContaining()->Select(-1); }

 private:
  window::wdwMainClass& window_;
};

}  // namespace support
