#include "framework/events/toolkit.h"

namespace framework {

namespace {

Toolkit* current = nullptr;

}  // namespace

Toolkit::Toolkit() { current = this; }
Toolkit::~Toolkit() { current = nullptr; }

Toolkit& Toolkit::Current() {
  if (current == nullptr) RaiseNilObjectException("Toolkit");
  return *current;
}

}  // namespace framework
