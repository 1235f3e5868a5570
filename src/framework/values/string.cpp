#include "framework/values/string.h"

#include <new>

namespace framework {

String::String(std::string_view a, std::string_view b) : size_(a.size() + b.size()) {
  char* to = held_.bytes.data();
  if (!IsShort()) {
    held_.counted = new (::operator new(sizeof(Counted) + size_)) Counted{1};
    to = held_.counted->Bytes();
  }
  a.copy(to, a.size());
  b.copy(to + a.size(), b.size());
}

void String::Free(Counted* counted) noexcept { ::operator delete(counted); }

}  // namespace framework
