#pragma once

#include <string_view>
#include <type_traits>

#include "framework/values/cast.h"
#include "framework/values/ref.h"
#include "framework/values/weak_ref.h"

namespace framework {

/// A handler bound to an object, as an event keeps it. It does not keep the object alive; once that
/// has gone, a call does nothing.
class Delegate final : public Object {
 public:
  /// Calls the handler of the target with the object that raised the event.
  using Stub = void (*)(Object& target, const Ref<Object>& sender);

  Delegate(Stub stub, const Ref<Object>& target, std::string_view signature)
      : stub_(stub), target_(RuntimeNewObject<WeakRef>(target)), signature_(signature) {}

  void Invoke(const Ref<Object>& sender) const {
    if (const Ref<Object> target = target_->Value()) stub_(*target, sender);
  }
  /// The handler's arguments in text form: "( Listbox )".
  std::string_view Signature() const { return signature_; }

 private:
  Stub stub_;
  Ref<WeakRef> target_;
  std::string_view signature_;
};

namespace detail {

template <class>
struct HandlerTraits;
template <class T, class C>
struct HandlerTraits<void (T::*)(const Ref<C>&)> {
  using Target = T;
  using Sender = C;
};

}  // namespace detail

/// A delegate on a method of target that takes the object which raised the event. The sender is
/// cast to the class that the method names, which raises IllegalCastException if it is none. Raises
/// NilObjectException for a nil target.
template <auto kHandler>
Ref<Delegate> RuntimeCreateDelegate(
    const Ref<typename detail::HandlerTraits<std::remove_cv_t<decltype(kHandler)>>::Target>& target,
    std::string_view signature) {
  using Traits = detail::HandlerTraits<std::remove_cv_t<decltype(kHandler)>>;
  if (!target) RaiseNilObjectException(TypeName<typename Traits::Target>());
  return RuntimeNewObject<Delegate>(
      [](Object& object, const Ref<Object>& sender) {
        (static_cast<typename Traits::Target&>(object).*
         kHandler)(RuntimeCheckCast<typename Traits::Sender>(sender));
      },
      target, signature);
}

}  // namespace framework
