// A program folder in memory for the inputs of a fuzzer.
#pragma once

#include <cstdlib>
#include <string>

#include "support/folders.h"

/// The linker leads the program's fsync here: flushing files that live for a moment would take most of the
/// time.
extern "C" [[gnu::used]] inline int __wrap_fsync(int /*descriptor*/) {  // NOLINT: the linker gives the name.
  return 0;
}

namespace kickwell {

inline const TestFolder& FuzzFolder() {
  static const TestFolder folder;
  return folder;
}

inline void Expect(bool holds) {
  if (!holds) std::abort();
}

}  // namespace kickwell
