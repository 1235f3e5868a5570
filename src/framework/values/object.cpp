#include "framework/values/object.h"

namespace framework {

Object::~Object() {
  if (link_ != nullptr) ForgetWeakReferences();
}

void Object::ForgetWeakReferences() noexcept {
  link_->object = nullptr;
  if (link_->holders == 0) delete link_;
  link_ = nullptr;
}

Object::WeakLink& Object::Link() {
  if (link_ == nullptr) link_ = new WeakLink{this, 0};
  return *link_;
}

// Not in the class: where it is compiled into a caller, GCC warns of uses behind a delete that the
// caller's own reference rules out.
void Object::Go() noexcept {
  if (link_ != nullptr) ForgetWeakReferences();
  delete this;
}

}  // namespace framework
