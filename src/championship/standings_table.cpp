#include "championship/standings_table.h"

#include <algorithm>
#include <functional>
#include <tuple>

#include "data/championship_store.h"
#include "data/tell_failure.h"

namespace kickwell {

Ranking StandingsTable(const ProgramFolder& folder, Desktop& desktop, const std::string& league) {
  const ChampionshipId id{ChampionshipKind::League, league};
  Ranking table;
  table.Label1 = "Kickwell Current League Standings";
  const auto [read, result] = ReadChampionship(folder, id);
  TellFailure(desktop, result);
  if (!read) return table;
  table.Label1 = read->Id.Name + " Standings";
  auto [standings, readingStandings] = ReadStandings(folder, id, read->Teams);
  if (!TellFailure(desktop, readingStandings)) return table;
  // A stable sort by the three keys at once gives what sorting by each in turn among the rows still level
  // gives.
  const auto keys = [](const StandingsRow& row) {
    return std::tuple(row.Points, static_cast<long long>(row.GoalsFor) - row.GoalsAgainst, row.GoalsFor);
  };
  std::ranges::stable_sort(standings, std::greater(), keys);
  if (standings.size() > MostStandings) standings.resize(MostStandings);
  for (const StandingsRow& row : standings) {
    std::vector<std::string> texts{std::to_string(table.Rows.size() + 1), row.Team};
    for (const auto figure : StandingsRow::Figures()) texts.push_back(std::to_string(row.*figure));
    table.Rows.push_back(std::move(texts));
  }
  table.Pages.Open(static_cast<int>(table.Rows.size()));
  return table;
}

}  // namespace kickwell
