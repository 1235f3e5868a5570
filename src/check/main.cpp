#include <algorithm>
#include <cstdio>

#include "check/run.h"
#include "framework/files/standard_files.h"

int main(int argc, char** argv) {
  framework::OpenStandardFiles();
  const std::span arguments(argv, static_cast<std::size_t>(argc));
  const auto print_to = [](std::FILE* file) {
    return [file](std::string_view text) { std::fwrite(text.data(), 1, text.size(), file); };
  };
  return check::Run(arguments.subspan(std::min<std::size_t>(arguments.size(), 1)), print_to(stdout),
                    print_to(stderr));
}
