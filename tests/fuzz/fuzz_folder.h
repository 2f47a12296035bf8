// A program folder in memory for the inputs of a fuzzer.
#pragma once

#include <cstdlib>
#include <string>

#include "data/program_folder.h"
#include "support/memory_files.h"

namespace kickwell {

struct FuzzFolder {
  void Write(const std::string& file, const std::string& bytes) { Files.Put(Folder.Root / file, bytes); }
  std::string Bytes(const std::string& file) const { return Files.Bytes(Folder.Root / file); }
  bool Has(const std::string& file) const { return Files.Has(Folder.Root / file); }

  MemoryFiles Files;
  ProgramFolder Folder{"/kickwell", Files};
};

inline void Expect(bool holds) {
  if (!holds) std::abort();
}

}  // namespace kickwell
