// A program folder in memory, so that millions of inputs can be tried: the linker leads the program's calls
// here (see tests/CMakeLists.txt), and what names no file of this folder goes on to the system.
#pragma once

#include <cstdlib>
#include <map>
#include <string>

#include "base/program.h"

namespace kickwell {

/// The files by their path from the program folder.
std::map<std::string, std::string>& Disk();

/// The folder of these files; no folder on any real disk can be called so.
const ProgramFolder& MemoryFolder();

inline void Expect(bool holds) {
  if (!holds) std::abort();
}

}  // namespace kickwell
