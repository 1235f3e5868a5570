#include "framework/string.h"

#include <new>

namespace framework {

String::String(std::string_view a, std::string_view b) {
  const std::size_t size = a.size() + b.size();
  if (size == 0) return;
  bytes_ = static_cast<Bytes*>(::operator new(sizeof(Bytes) + size));
  bytes_->references = 1;
  bytes_->size = size;
  a.copy(bytes_->Text(), a.size());
  b.copy(bytes_->Text() + a.size(), b.size());
}

void String::Release() const noexcept {
  if (--bytes_->references == 0) ::operator delete(bytes_);
}

}  // namespace framework
