#include "framework/values/weak_ref.h"

namespace framework {

WeakRef::WeakRef(Object* object) {
  if (object == nullptr) return;
  link_ = &object->Link();
  ++link_->holders;
}

WeakRef::~WeakRef() {
  if (link_ == nullptr) return;
  --link_->holders;
  if (link_->holders == 0 && link_->object == nullptr) delete link_;
}

Ref<Object> WeakRef::Value() const {
  return Ref<Object>(link_ == nullptr ? nullptr : link_->object);
}

}  // namespace framework
