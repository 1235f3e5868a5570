#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

#include "target.h"

/// Hands every file of a folder to the target. A folder without files is a mistake of the caller's.
int main(int, char** arguments) {
  int seeds = 0;
  for (const auto& entry : std::filesystem::directory_iterator(arguments[1])) {
    std::ifstream file(entry.path(), std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    std::cerr << entry.path().filename() << std::endl;
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    ++seeds;
  }
  return seeds > 0 ? 0 : 1;
}
