#include "championship/top_scorers.h"

#include <algorithm>
#include <functional>

#include "data/championship_store.h"
#include "data/tell_failure.h"

namespace kickwell {

Ranking TopScorers(const ProgramFolder& folder, Desktop& desktop, const ChampionshipId& id) {
  Ranking list;
  list.Label1 = id.Name + " Goal Scorers";
  auto [scorers, result] = ReadScorers(folder, id);
  TellFailure(desktop, result);
  std::ranges::stable_sort(scorers, std::greater(), &ScorerRow::Goals);
  for (const ScorerRow& row : scorers) list.Add({row.Player, row.Team, std::to_string(row.Goals)});
  return list;
}

}  // namespace kickwell
