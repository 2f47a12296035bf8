#include "championship/standings_table.h"

#include <algorithm>
#include <optional>
#include <tuple>

#include "data/championship_store.h"

namespace kickwell {

Ranking StandingsTable(const ProgramFolder& folder, const std::string& league) {
  Ranking table;
  table.Label1 = "Kickwell Current League Standings";
  const std::optional<Championship> read =
      ReadChampionship(folder, ChampionshipKind::League, MainFileName(ChampionshipKind::League, league));
  if (!read) return table;
  table.Label1 = read->Name + " Standings";
  std::vector<StandingsRow> standings = ReadStandings(folder, league, read->Teams);
  // A stable sort by the three keys at once gives what sorting by each in turn among the rows still level
  // gives.
  const auto keys = [](const StandingsRow& row) {
    return std::tuple(row.Points, static_cast<long long>(row.GoalsFor) - row.GoalsAgainst, row.GoalsFor);
  };
  std::stable_sort(standings.begin(), standings.end(),
                   [&keys](const StandingsRow& a, const StandingsRow& b) { return keys(a) > keys(b); });
  if (standings.size() > MostStandings) standings.resize(MostStandings);
  for (const StandingsRow& row : standings) {
    std::vector<std::string> texts{std::to_string(table.Rows.size() + 1), row.Team};
    for (const int figure :
         {row.Played, row.Won, row.Drawn, row.Lost, row.GoalsFor, row.GoalsAgainst, row.Points}) {
      texts.push_back(std::to_string(figure));
    }
    table.Rows.push_back(std::move(texts));
  }
  table.Pages.Open(static_cast<int>(table.Rows.size()));
  return table;
}

}  // namespace kickwell
