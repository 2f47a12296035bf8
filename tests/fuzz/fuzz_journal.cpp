// Any bytes as the journal: nothing but files of championships changes, and the journal is gone afterwards.
#include <cstdint>

#include "data/journal.h"
#include "fuzz/fuzz_folder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kickwell;
  const TestFolder& folder = FuzzFolder();
  const char* const kept[] = {"Teams/Fuzz", "stadiums.sim", "Kickwell"};
  const char* const changing[] = {"Leagues/Fuzz.leg", "Tournies/Fuzz.trn", "~kickwell-1-2.tmp"};
  for (const char* file : kept) WriteBytes(folder / file, "kept");
  for (const char* file : changing) WriteBytes(folder / file, "old");
  const std::filesystem::path journal = folder / std::string(JournalName), aside = folder / "unfinished.bad";
  std::filesystem::remove(aside);
  WriteBytes(journal, {reinterpret_cast<const char*>(data), size});
  const bool followed = FinishChanges(folder.Folder).Ok();
  Expect(!FileExists(journal) && followed != FileExists(aside));
  for (const char* file : kept) Expect(ReadBytes(folder / file) == "kept");
  for (const char* file : changing) Expect(followed || ReadBytes(folder / file) == "old");
  return 0;
}
