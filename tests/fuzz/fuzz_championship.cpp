// Any bytes as each file of a league or, at odd sizes, of a knock-out: what a reader takes survives a save,
// and a match can be recorded.
#include <cstdint>

#include "data/championship_store.h"
#include "fuzz/memory_disk.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kickwell;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const ProgramFolder& folder = MemoryFolder();
  const bool league = size % 2 == 0;
  const auto kind = league ? ChampionshipKind::League : ChampionshipKind::KnockOut;
  const std::string place = league ? "Leagues/Fuzz" : "Tournies/Fuzz";
  Disk() = {{place + (league ? ".leg" : ".trn"), bytes}, {place + ".sco", bytes}, {place + ".lrs", bytes}};
  auto read = ReadChampionship(folder, kind, MainFileName(kind, "Fuzz"));
  Expect(read.has_value());
  Expect(read->Teams.size() + read->Fixtures.size() <= size);
  Expect(league || ReadBracket(folder, "Fuzz").has_value());
  read->Name = "Fuzz";
  const Lines log = ReadResults(folder, kind, "Fuzz");
  std::vector<ChangedFile> changes = {ChangedChampionship(*read),
                                      ChangedResults(folder, kind, "Fuzz", {"1", "2", "3", "4", "5"})};
  if (league) {
    Disk()[place + ".rec"] = bytes;
    const auto standings = ReadStandings(folder, "Fuzz", read->Teams);
    Expect(standings.size() <= read->Teams.size());
    changes.push_back(ChangedStandings("Fuzz", standings));
  }
  Expect(ChangeFiles(folder, changes).Ok());
  Expect(ReadChampionship(folder, kind, MainFileName(kind, "Fuzz")) == read);
  Expect(ReadResults(folder, kind, "Fuzz").size() == log.size() + (log.empty() ? 5 : 6));
  const auto scorers = ReadScorers(folder, kind, "Fuzz");
  Expect(WriteScorers(folder, kind, "Fuzz", scorers).Ok());
  Expect(ReadScorers(folder, kind, "Fuzz") == scorers);
  Expect(Disk().size() == (league ? 4 : 3));
  return 0;
}
