#include "framework/values/string.h"

#include <limits>
#include <new>

namespace framework {

String::Bytes* String::Allocate(std::size_t size) {
  if (size > std::numeric_limits<std::uint32_t>::max()) throw std::bad_alloc();
  auto* const bytes = static_cast<Bytes*>(::operator new(sizeof(Bytes) + size + kShort));
  bytes->references = 1;
  return bytes;
}

void String::Free(Bytes* bytes) noexcept { ::operator delete(bytes); }

String::String(std::string_view a, std::string_view b) {
  const std::size_t size = a.size() + b.size();
  char* to = held_.data();
  if (size > kShort) {
    Hold(Allocate(size), 0);
    to = Shared()->Text();
  }
  size_ = static_cast<std::uint32_t>(size);
  a.copy(to, a.size());
  b.copy(to + a.size(), b.size());
}

}  // namespace framework
