#pragma once

#include <cstdlib>
#include <iostream>
#include <string_view>

/// How a fuzz target tells that an invariant is broken.
namespace mavCycEd::fuzz {

[[noreturn]] inline void broken(std::string_view what) {
  std::cerr << "BROKEN: " << what << std::endl;
  std::abort();
}

inline void require(bool holds, std::string_view what) {
  if (!holds) broken(what);
}

inline void requireSame(std::string_view actual, std::string_view expected, std::string_view what) {
  if (actual == expected) return;
  std::cerr << "--- is\n" << actual << "\n--- should be\n" << expected << "\n---" << std::endl;
  broken(what);
}

}  // namespace mavCycEd::fuzz
