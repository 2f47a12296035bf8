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
  list.Rows.reserve(scorers.size());
  for (ScorerRow& row : scorers) {
    list.Rows.push_back({std::to_string(list.Rows.size() + 1), std::move(row.Player), std::move(row.Team),
                         std::to_string(row.Goals)});
  }
  list.Pages.Open(static_cast<int>(list.Rows.size()));
  return list;
}

}  // namespace kickwell
