// Any bytes as the journal: nothing but files of championships changes, and the journal is gone afterwards.
#include <cstdint>

#include "data/journal.h"
#include "fuzz/fuzz_folder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kickwell;
  FuzzFolder files;
  const char* const kept[] = {"Teams/Fuzz", "stadiums.sim", "Kickwell"};
  const char* const changing[] = {"Leagues/Fuzz.leg", "Tournies/Fuzz.trn", "~kickwell-1-2.tmp"};
  for (const char* file : kept) files.Write(file, "kept");
  for (const char* file : changing) files.Write(file, "old");
  files.Write(std::string(JournalName), {reinterpret_cast<const char*>(data), size});
  const bool followed = FinishChanges(files.Folder).Ok();
  Expect(!files.Has(std::string(JournalName)) && followed != files.Has("unfinished.bad"));
  for (const char* file : kept) Expect(files.Bytes(file) == "kept");
  for (const char* file : changing) Expect(followed || files.Bytes(file) == "old");
  return 0;
}
