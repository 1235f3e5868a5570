#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// One scale of the library that ships.
struct Entry {
  std::string bank;
  std::string name;
  std::int64_t notes;  ///< a mask, as in TScale

  std::string Title() const { return bank + " : " + name; }
};

/// All of it, in the order of the file.
const std::vector<Entry>& ShippedLibrary();

/// Mask of the entry with that title; a failed test and -1 when there is none.
std::int64_t NotesOf(const std::string& title);

/// Bytes of the library's file.
std::string ShippedFile();
