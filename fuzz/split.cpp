#include <vector>

#include "framework/values/text.h"
#include "target.h"

// Split. The first byte says how many of the next are the delimiter; the rest is the text.

using namespace framework;
using namespace fuzz;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::string_view input = Text(data + 1, size - 1);
  const std::string_view delimiter = input.substr(0, data[0] % 4);
  const std::string_view text = input.substr(delimiter.size());

  std::vector<std::string> wanted(1);
  for (std::size_t i = 0; i < text.size();) {
    if (!delimiter.empty() && text.substr(i, delimiter.size()) == delimiter) {
      wanted.emplace_back();
      i += delimiter.size();
    } else {
      wanted.back() += text[i++];
    }
  }
  const auto parts = Split(text, delimiter);
  Expect("last index", parts.LastIndex(), static_cast<std::int64_t>(wanted.size()) - 1);
  for (std::int64_t i = 0; i <= parts.LastIndex(); ++i) {
    Expect("part", std::string(parts[i]), wanted[static_cast<std::size_t>(i)]);
  }
  return 0;
}
