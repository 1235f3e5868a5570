#include <iostream>

#include "check/run.h"

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  const std::span arguments(argv, static_cast<std::size_t>(argc));
  return check::Run(arguments.subspan(argc > 0 ? 1 : 0), std::cout, std::cerr);
}
