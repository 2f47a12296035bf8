// Any bytes as each file of a league or, at odd sizes, of a knock-out. What a reader takes survives a save,
// and a match can be recorded: this is tried at one size in four, because it costs much more than reading.
#include <cstdint>

#include "base/number.h"
#include "data/championship_store.h"
#include "fuzz/fuzz_folder.h"

namespace {

using namespace kickwell;

/// What a championship's files hold.
struct Content {
  Championship Main;
  std::vector<StandingsRow> Standings;
  std::vector<ScorerRow> Scorers;
  Lines Results;

  bool operator==(const Content&) const = default;
};

Content Read(ChampionshipKind kind) {
  const ProgramFolder& folder = FuzzFolder().Folder;
  Content content{ReadChampionship(folder, kind, MainFileName(kind, "Fuzz")).value(), {}, {}, {}};
  content.Main.Name = "Fuzz";
  content.Standings = ReadStandings(folder, "Fuzz", content.Main.Teams);
  content.Scorers = ReadScorers(folder, kind, "Fuzz");
  content.Results = ReadResults(folder, kind, "Fuzz");
  return content;
}

void Save(ChampionshipKind kind, const Content& content) {
  const ProgramFolder& folder = FuzzFolder().Folder;
  std::vector<ChangedFile> changes = {ChangedChampionship(content.Main),
                                      ChangedResults(folder, kind, "Fuzz", {"1", "2", "3", "4", "5"})};
  if (kind == ChampionshipKind::League) changes.push_back(ChangedStandings("Fuzz", content.Standings));
  Expect(ChangeFiles(folder, changes).Ok());
  Expect(AddGoal(folder, kind, "Fuzz", "A", "A").Ok());
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  const bool league = size % 2 == 0;
  const auto kind = league ? ChampionshipKind::League : ChampionshipKind::KnockOut;
  const std::string place = league ? "Leagues/Fuzz" : "Tournies/Fuzz";
  for (const char* extension : {league ? ".leg" : ".trn", ".sco", ".lrs", ".rec"}) {
    WriteBytes(FuzzFolder() / (place + extension), bytes);
  }
  Content content = Read(kind);
  Expect(content.Main.Teams.size() + content.Main.Fixtures.size() + content.Scorers.size() <= 2 * size);
  Expect(content.Standings.size() <= content.Main.Teams.size());
  Expect(league || ReadBracket(FuzzFolder().Folder, "Fuzz").has_value());
  if (size % 8 >= 2) return 0;
  Save(kind, content);
  bool known = false;
  for (ScorerRow& row : content.Scorers) {
    if (row.Player != "A") continue;
    row.Goals = Raised(row.Goals, 1);
    known = true;
  }
  if (!known) content.Scorers.push_back({"A", "A", 1});
  if (!content.Results.empty()) content.Results.emplace_back();
  content.Results.insert(content.Results.end(), {"1", "2", "3", "4", "5"});
  Expect(Read(kind) == content);
  return 0;
}
