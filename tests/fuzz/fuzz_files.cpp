// Any bytes as each of the program's files, at odd sizes as those of a knock-out: what is read stays the same
// when it is saved and read again, and a journal changes nothing but files of championships.
#include <cstdint>
#include <cstdlib>
#include <utility>

#include "data/championship_store.h"
#include "data/stadium_store.h"
#include "data/team_store.h"
#include "support/folders.h"

namespace {

using namespace kickwell;

void Expect(bool holds) {
  if (!holds) std::abort();
}

/// The value, which must have been read without a failure.
template <typename T>
T Value(Loaded<T> loaded) {
  Expect(loaded.Ok());
  return std::move(loaded.Value);
}

void TryTeamAndStadiums(const ProgramFolder& folder) {
  const Team team = Value(LoadTeam(folder, "Fuzz")).value();
  const std::vector<Stadium> stadiums = Value(LoadStadiums(folder));
  Expect(SaveTeam(folder, team).Ok() && SaveStadiums(folder, stadiums).Ok());
  Expect(Value(LoadTeam(folder, "Fuzz")) == team && Value(LoadStadiums(folder)) == stadiums);
}

std::pair<Championship, std::vector<StandingsRow>> Read(const ProgramFolder& folder,
                                                        const ChampionshipId& id) {
  Championship championship = Value(ReadChampionship(folder, id)).value();
  championship.Id = id;  // Whatever the file says.
  std::vector<StandingsRow> standings = Value(ReadStandings(folder, id, championship.Teams));
  return {std::move(championship), std::move(standings)};
}

void TryChampionship(const ProgramFolder& folder, const ChampionshipId& id) {
  const auto content = Read(folder, id);
  const auto& [championship, standings] = content;
  const ChangedFile results = Value(ChangedResults(folder, id, {"1", "2", "3", "4", "5"}));
  const std::size_t scorers = Value(ReadScorers(folder, id)).size();
  Expect(Value(ReadBracket(folder, id)).has_value());
  Expect(AddGoals(folder, id, {"A", "A", 1}).Result.Ok());
  Expect(Value(ReadScorers(folder, id)).size() <= scorers + 1);
  Expect(ChangeFiles(folder, {ChangedChampionship(championship), ChangedStandings(id, standings), results})
             .Ok());
  Expect(Read(folder, id) == content);
}

void TryJournal(TestFolder& files, const std::string& bytes) {
  const std::string journal(JournalName);
  const char* const changing[] = {"Leagues/Fuzz.leg", "Tournies/Fuzz.trn", "~kickwell-1-2.tmp"};
  for (const char* file : changing) files.Write(file, "old");
  files.Write("stadiums.sim", "kept");
  files.Write(journal, bytes);
  const bool followed = FinishChanges(files.Folder).Ok();
  Expect(!files.Exists(journal) && followed != files.Exists("unfinished.bad"));
  Expect(files.Bytes("stadiums.sim") == "kept");
  for (const char* file : changing) Expect(followed || files.Bytes(file) == "old");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const bool league = size % 2 == 0;
  const ChampionshipId id{league ? ChampionshipKind::League : ChampionshipKind::KnockOut, "Fuzz"};
  const std::string place = league ? "Leagues/Fuzz" : "Tournies/Fuzz";
  TestFolder files;
  for (const char* file : {"Teams/Fuzz", "stadiums.sim"}) files.Write(file, bytes);
  for (const char* extension : {league ? ".leg" : ".trn", ".rec", ".sco", ".lrs"})
    files.Write(place + extension, bytes);
  TryTeamAndStadiums(files.Folder);
  TryChampionship(files.Folder, id);
  TryJournal(files, bytes);
  return 0;
}
