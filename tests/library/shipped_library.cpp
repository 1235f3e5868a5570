#include "shipped_library.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>

#include "framework/text.h"
#include "framework/text_input_stream.h"
#include "pitch/tscale.h"

using namespace framework;

const std::vector<Entry>& ShippedLibrary() {
  static const std::vector<Entry> library = [] {
    std::vector<Entry> entries;
    const auto stream = TextInputStream::Open(GetFolderItem(SHIPPED_LIBRARY));
    stream->ReadLine();
    stream->ReadLine();
    while (!stream->EOF_()) {
      pitch::TScale scale;
      scale.Constructor(Split(stream->ReadLine(), ","));
      entries.push_back(
          {std::string(scale.Bank().View()), std::string(scale.Scale().View()), scale.Notes()});
    }
    return entries;
  }();
  return library;
}

std::int64_t NotesOf(const std::string& title) {
  const auto& library = ShippedLibrary();
  const auto entry = std::ranges::find(library, title, &Entry::Title);
  if (entry != library.end()) return entry->notes;
  ADD_FAILURE() << "no " << title;
  return -1;
}

std::string ShippedFile() {
  std::ifstream file(SHIPPED_LIBRARY, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}
