#pragma once

#include <string_view>

#include "framework/values/ref.h"

namespace framework {

/// Raises an IllegalCastException whose message names the class that was asked for.
[[noreturn]] void RaiseIllegalCastException(std::string_view class_name);

/// The same object under another class of its tree; nil stays nil. Raises IllegalCastException when
/// the object is not of that class.
template <class To, class From>
Ref<To> RuntimeCheckCast(const Ref<From>& object) {
  if (!object) return nullptr;
  auto* const cast = dynamic_cast<To*>(object.Get());
  if (cast == nullptr) RaiseIllegalCastException(TypeName<To>());
  return Ref<To>(cast);
}

}  // namespace framework
