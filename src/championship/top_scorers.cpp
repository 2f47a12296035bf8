#include "championship/top_scorers.h"

#include <algorithm>

namespace kickwell {

Ranking TopScorers(const ProgramFolder& folder, ChampionshipKind kind, const std::string& championship) {
  Ranking list;
  list.Label1 = championship + " Goal Scorers";
  std::vector<ScorerRow> scorers = ReadScorers(folder, kind, championship);
  std::stable_sort(scorers.begin(), scorers.end(),
                   [](const ScorerRow& a, const ScorerRow& b) { return a.Goals > b.Goals; });
  list.Rows.reserve(scorers.size());
  for (ScorerRow& row : scorers) {
    list.Rows.push_back({std::to_string(list.Rows.size() + 1), std::move(row.Player), std::move(row.Team),
                         std::to_string(row.Goals)});
  }
  list.Pages.Open(static_cast<int>(list.Rows.size()));
  return list;
}

}  // namespace kickwell
