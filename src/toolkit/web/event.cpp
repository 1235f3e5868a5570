#include "toolkit/web/event.h"

#include "toolkit/web/dom.h"

namespace toolkit::web::event {

Key PressedKey() {
  return static_cast<Key>(page_Key("ArrowUp ArrowDown PageUp PageDown Home End Escape"));
}

std::int64_t Row() { return page_Row(); }

bool IsByHand() { return page_IsByHand(); }

bool IsTouch() { return page_IsTouch(); }

bool HasCtrl() { return page_HasCtrl(); }

void Take() { page_Take(); }

void TellCut() { page_TellCut(); }

}  // namespace toolkit::web::event
