#include "pitch/tscale.h"

#include "framework/values/text.h"
#include "pitch/mask.h"

namespace pitch {

using framework::RuntimeAddString;
using framework::String;

void TScale::Constructor(const framework::Array<String>& fields) {
  constexpr std::int64_t kFirstPosition = 2;
  bank_ = fields[0];
  scale_ = fields[1];
  notes_ = 0;
  for (std::int64_t i = kFirstPosition; i < kFirstPosition + kPositions; ++i) {
    notes_ = Append(notes_, framework::RuntimeStringCompare(fields[i], "TRUE") == 0);
  }
}

String TScale::Print() const {
  const String names = RuntimeAddString(RuntimeAddString(bank_, " : "), scale_);
  return RuntimeAddString(RuntimeAddString(names, " : "), framework::Str(notes_));
}

}  // namespace pitch
