#include "framework/controls/block.h"

#include <cstring>
#include <map>

#include "framework/application/runtime.h"
#include "framework/controls/check_box.h"
#include "framework/controls/label.h"
#include "framework/controls/listbox.h"
#include "framework/controls/popup_menu.h"
#include "framework/controls/window.h"
#include "framework/values/failures.h"
#include "framework/values/text.h"
#include "target.h"
#include "toolkit/memory/memory_toolkit.h"
#include "window/kinds.h"

// The block reader, on damaged blocks. The first byte, where a block has its 0xFF, picks the class;
// the rest is the block. The second reader here knows the keys from the tables that write blocks.

using namespace framework;
using namespace fuzz;
using window::encoder::Key;
using window::encoder::Type;

namespace {

struct Program {
  Program() { RuntimeInit(); }
  toolkit::memory::MemoryToolkit toolkit;
};

/// How an object answers to a block: what it holds then, or why it was refused.
struct Answer {
  std::map<std::string, std::string> values;  ///< of the keys that were set, in small letters
  std::string refusal;
};

std::string Small(std::string_view text) {
  std::string small;
  for (const char c : text) small += c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
  return small;
}

std::uint64_t LowByteFirst(std::string_view bytes) {
  std::uint64_t number = 0;
  std::uint64_t weight = 1;
  for (const char c : bytes) {
    number += weight * static_cast<unsigned char>(c);
    weight *= 256;
  }
  return number;
}

/// Reads the block plainly. bytes begin with the byte in the place of the 0xFF.
Answer Plain(std::string_view bytes, std::string_view class_name, std::span<const Key> kind) {
  Answer answer;
  std::size_t at = 1;
  std::string_view key;
  const auto refuse = [&](std::string_view why) {
    answer.refusal = "Description block of " + std::string(class_name) + ", key \"" +
                     std::string(key) + "\", offset " + std::to_string(at) + ": " +
                     std::string(why);
    return answer;
  };
  while (at < bytes.size()) {
    const std::size_t blank = bytes.find(' ', at);
    if (blank == bytes.npos) {
      key = {};
      return refuse("a key without an end");
    }
    key = bytes.substr(at, blank - at);
    at = blank + 1;
    const Key* found = nullptr;
    for (const Key& candidate : kind) {
      if (Small(candidate.name) == Small(key)) found = &candidate;
    }
    if (found == nullptr) return refuse("no such property");
    std::size_t size = found->type == Type::i8                             ? 8
                       : found->type == Type::b || found->type == Type::u1 ? 1
                                                                           : 4;
    if (size > bytes.size() - at) return refuse("the value runs past the end");
    if (found->type == Type::s) {
      const std::uint64_t length = LowByteFirst(bytes.substr(at, 4));
      at += 4;
      if (length > bytes.size() - at) return refuse("the value runs past the end");
      size = length;
    }
    std::string_view value = bytes.substr(at, size);
    at += size;
    const std::string name = Small(key);
    const auto number = static_cast<std::int64_t>(LowByteFirst(value));
    if (name == "columncount" && number < 1) {
      answer.refusal = "InvalidArgumentException";
      return answer;
    }
    if (name == "initialparent" && !value.empty()) {
      answer.refusal = "InvalidParentException";
      return answer;
    }
    // -0.0 is no change to a property that holds 0.0, and so is either of the two.
    if (found->type == Type::f4 && number == 0x8000'0000) value = std::string_view("\0\0\0", 4);
    answer.values[name] = found->type == Type::b ? (value[0] == 0 ? "false" : "true") : value;
  }
  return answer;
}

template <class Value>
std::string Bytes(const Value& value) {
  std::string bytes(sizeof value, '\0');
  std::memcpy(bytes.data(), &value, sizeof value);
  return bytes;
}
std::string Bytes(bool value) { return value ? "true" : "false"; }
std::string Bytes(const String& value) { return std::string(value); }

/// Applies the block to a new object and compares: the refusal, and of each type of value a
/// property as it reads back.
template <class C>
void Try(const std::uint8_t* data, std::size_t size, std::span<const Key> kind) {
  const auto window = RuntimeNewObject<Window>();
  Ref<Component> object;
  if constexpr (std::is_same_v<C, Window>) {
    object = window;
  } else {
    object = window->__New<C>();
  }
  std::string refusal;
  try {
    _SetProperties(*object, {data, size - 1});
  } catch (const UnsupportedFormatException& failure) {
    refusal = std::string(failure.Message());
  } catch (const RuntimeException& failure) {
    refusal = failure.ClassName();
  }
  const Answer wanted = Plain(Text(data, size), C::kClass.name, kind);
  Expect("refusal", refusal, wanted.refusal);

  const auto holds = [&](const char* key, const auto& value) {
    const auto set = wanted.values.find(key);
    if (set != wanted.values.end()) Expect(key, Bytes(value), set->second);
  };
  const auto& same = static_cast<const C&>(*object);
  holds("width", same.Width());
  holds("height", same.Height());
  holds("visible", same.Visible());
  if constexpr (std::is_same_v<C, Window>) {
    holds("title", same.Title());
    holds("backcolor", same.BackColor());
  } else {
    holds("name", same.Name());
    holds("index", same.Index());
    holds("tabstop", same.TabStop());
    holds("helptag", same.HelpTag());
    holds("textsize", same.TextSize() == 0 ? 0.0F : same.TextSize());
    holds("textunit", same.TextUnit());
    holds("initialparent", same.InitialParent());
  }
  if constexpr (std::is_same_v<C, Label>) {
    holds("textcolor", same.TextColor());
    holds("multiline", same.MultiLine());
  }
  if constexpr (std::is_same_v<C, Listbox>) holds("columncount", same.ColumnCount());
  if constexpr (std::is_same_v<C, PopupMenu>) holds("listindex", same.ListIndex());
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  static Program program;
  constexpr auto kTries = std::to_array<void (*)(const std::uint8_t*, std::size_t)>({
      [](auto d, auto s) { Try<Window>(d, s, window::encoder::kWindow); },
      [](auto d, auto s) { Try<Listbox>(d, s, window::encoder::kListbox); },
      [](auto d, auto s) { Try<CheckBox>(d, s, window::encoder::kCheckBox); },
      [](auto d, auto s) { Try<Label>(d, s, window::encoder::kLabel); },
      [](auto d, auto s) { Try<PopupMenu>(d, s, window::encoder::kPopupMenu); },
  });
  kTries[data[0] % kTries.size()](data, size);
  return 0;
}
