#include "championship/standings_table.h"

#include <algorithm>
#include <functional>
#include <tuple>
#include <utility>

#include "data/championship_store.h"
#include "data/tell_failure.h"

namespace kickwell {
namespace {

long long GoalDifference(const StandingsRow& row) {
  return static_cast<long long>(row.GoalsFor) - row.GoalsAgainst;
}

/// What decides the order, the highest first: each figure counts among teams that are level in those before
/// it.
auto Order(const StandingsRow& row) {
  return std::tuple(row.Points, GoalDifference(row), row.GoalsFor);
}

}  // namespace

Ranking StandingsTable(const ProgramFolder& folder, Desktop& desktop, const std::string& league) {
  const ChampionshipId id{ChampionshipKind::League, league};
  Ranking table;
  table.Label1 = "Kickwell Current League Standings";
  const auto [read, result] = ReadChampionship(folder, id);
  TellFailure(desktop, result);
  if (!read) return table;
  table.Label1 = read->Id.Name + " Standings";
  auto [standings, readingStandings] = ReadStandings(folder, id, read->Teams);
  if (!TellFailure(desktop, readingStandings)) return table;  // All zeros would be a wrong table.
  std::ranges::stable_sort(standings, std::greater(), Order);
  if (standings.size() > MostStandings) standings.resize(MostStandings);
  for (const StandingsRow& row : standings) {
    std::vector<std::string> columns{row.Team};
    for (const auto figure : StandingsRow::Figures()) columns.push_back(std::to_string(row.*figure));
    table.Add(std::move(columns));
  }
  return table;
}

}  // namespace kickwell
