// Any bytes as a team, as the stadium list and as each file of a league or, at odd sizes, of a knock-out.
// What a reader takes survives a save, and a match can be recorded.
#include <cstdint>

#include "base/number.h"
#include "data/championship_store.h"
#include "data/stadium_store.h"
#include "data/team_store.h"
#include "fuzz/fuzz_folder.h"

namespace {

using namespace kickwell;

/// The value, which must have been read without a failure.
template <typename T>
T Value(Loaded<T> loaded) {
  Expect(loaded.Ok());
  return std::move(loaded.Value);
}

void TryTeam(FuzzFolder& files, const std::string& bytes) {
  files.Write("Teams/Fuzz", bytes);
  const Team team = Value(LoadTeam(files.Folder, "Fuzz")).value();
  Expect(team.Players.size() <= bytes.size());
  Expect(SaveTeam(files.Folder, team).Ok());
  Expect(Value(LoadTeam(files.Folder, "Fuzz")) == team);
}

void TryStadiums(FuzzFolder& files, const std::string& bytes) {
  files.Write("stadiums.sim", bytes);
  const std::vector<Stadium> stadiums = Value(LoadStadiums(files.Folder));
  Expect(stadiums.size() <= bytes.size());
  Expect(SaveStadiums(files.Folder, stadiums).Ok());
  Expect(Value(LoadStadiums(files.Folder)) == stadiums);
}

/// What a championship's files hold.
struct Content {
  Championship Main;
  std::vector<StandingsRow> Standings;
  std::vector<ScorerRow> Scorers;
  Lines Results;

  bool operator==(const Content&) const = default;
};

Content Read(const ProgramFolder& folder, const ChampionshipId& id) {
  Content content{Value(ReadChampionship(folder, id)).value(), {}, {}, {}};
  content.Main.Id = id;
  content.Standings = Value(ReadStandings(folder, id, content.Main.Teams));
  content.Scorers = Value(ReadScorers(folder, id));
  content.Results = Value(ReadResults(folder, id));
  return content;
}

const std::array<std::string, 5> Block = {"Match 1:", "A 1 vs B 0", "Venue: C", "Total Attendence: 1",
                                          "Winner: A"};

/// Records a match in which a player called A scores for a team called A.
void Record(const ProgramFolder& folder, const Content& content) {
  const ChampionshipId& id = content.Main.Id;
  std::vector<ChangedFile> changes = {ChangedChampionship(content.Main),
                                      Value(ChangedResults(folder, id, Block))};
  if (id.Kind == ChampionshipKind::League) changes.push_back(ChangedStandings(id, content.Standings));
  Expect(ChangeFiles(folder, changes).Ok());
  Expect(AddGoals(folder, id, {"A", "A", 1}).Ok());
}

/// What the files should hold then.
Content Recorded(Content content) {
  bool known = false;
  for (ScorerRow& row : content.Scorers) {
    if (row.Player != "A") continue;
    row.Goals = Raised(row.Goals, 1);
    known = true;
  }
  if (!known) content.Scorers.push_back({"A", "A", 1});
  if (!content.Results.empty()) content.Results.emplace_back();
  content.Results.insert(content.Results.end(), Block.begin(), Block.end());
  return content;
}

void TryChampionship(FuzzFolder& files, const std::string& bytes) {
  const bool league = bytes.size() % 2 == 0;
  const ChampionshipId id{league ? ChampionshipKind::League : ChampionshipKind::KnockOut, "Fuzz"};
  const std::string place = league ? "Leagues/Fuzz" : "Tournies/Fuzz";
  for (const char* extension : {league ? ".leg" : ".trn", ".sco", ".lrs", ".rec"}) {
    files.Write(place + extension, bytes);
  }
  const Content content = Read(files.Folder, id);
  Expect(content.Main.Teams.size() + content.Main.Fixtures.size() + content.Scorers.size() <=
         2 * bytes.size());
  Expect(content.Standings.size() <= content.Main.Teams.size());
  Expect(league || Value(ReadBracket(files.Folder, id)).has_value());
  Record(files.Folder, content);
  Expect(Read(files.Folder, id) == Recorded(content));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  FuzzFolder files;
  TryTeam(files, bytes);
  TryStadiums(files, bytes);
  TryChampionship(files, bytes);
  return 0;
}
