// Any bytes as the journal: nothing but files of championships changes, and the journal is gone afterwards.
#include <cstdint>

#include "data/journal.h"
#include "fuzz/memory_disk.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kickwell;
  const std::string journal(JournalName);
  const std::map<std::string, std::string> kept = {
      {"Teams/Fuzz", "team"}, {"stadiums.sim", "list"}, {"Kickwell", "program"}};
  Disk() = kept;
  Disk().insert({{"Leagues/Fuzz.leg", "old"}, {"Tournies/Fuzz.trn", "old"}, {"~kickwell-1-2.tmp", "new"}});
  Disk()[journal].assign(reinterpret_cast<const char*>(data), size);
  const bool followed = FinishChanges(MemoryFolder()).Ok();
  Expect(!Disk().contains(journal));
  Expect(followed != Disk().contains("unfinished.bad"));
  for (const auto& [name, bytes] : kept) Expect(Disk().contains(name) && Disk()[name] == bytes);
  Expect(followed || (Disk()["Leagues/Fuzz.leg"] == "old" && Disk()["Tournies/Fuzz.trn"] == "old"));
  return 0;
}
