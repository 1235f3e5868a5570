#include "framework/controls/class_info.h"

#include "framework/values/text.h"

namespace framework {

const PropertyInfo* ClassInfo::FindProperty(std::string_view property) const {
  for (const ClassInfo* level = this; level != nullptr; level = level->base) {
    for (const PropertyInfo& candidate : level->properties) {
      if (RuntimeStringCompare(candidate.name, property) == 0) return &candidate;
    }
  }
  return nullptr;
}

const EventInfo* ClassInfo::FindEvent(std::int64_t number) const {
  for (const ClassInfo* level = this; level != nullptr; level = level->base) {
    for (const EventInfo& candidate : level->events) {
      if (candidate.number == number) return &candidate;
    }
  }
  return nullptr;
}

}  // namespace framework
