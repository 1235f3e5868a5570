#pragma once

#include <fstream>
#include <iterator>
#include <random>
#include <string>

namespace bench {

/// The library that ships, as it stands in its file.
inline std::string Shipped() {
  std::ifstream file(SHIPPED_LIBRARY, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// A library file of that many scales, the same at each call. They have their root, and each other
/// note as often as not. 0 stands for the shipped library.
inline std::string LibraryOf(int scales) {
  if (scales == 0) return Shipped();
  std::mt19937 random(20);
  std::string file = "Bank,Scale\nNotes";
  for (int i = 0; i < scales; ++i) {
    file += "\nBank " + std::to_string(i / 20) + ",Scale of Number " + std::to_string(i) + ",TRUE";
    for (int note = 1; note < 12; ++note) file += random() % 2 == 0 ? ",TRUE" : ",FALSE";
  }
  return file;
}

}  // namespace bench
