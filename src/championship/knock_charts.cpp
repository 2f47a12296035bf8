#include "championship/knock_charts.h"

#include <algorithm>

#include "data/championship_store.h"
#include "data/tell_failure.h"

namespace kickwell {

KnockCharts::KnockCharts(const ProgramFolder& folder, Desktop& desktop, const std::string& championship) {
  const auto [read, result] = ReadBracket(folder, {ChampionshipKind::KnockOut, championship});
  TellFailure(desktop, result);
  if (!read) return;
  Label1 = read->Name + " Table";
  Matches = ChartMatches(read->TeamCount);
  if (!Matches.empty()) VisibleSlots = 2 * read->TeamCount - 1;
  for (std::size_t k = 0; k < std::min(Matches.size(), read->Fixtures.size()); ++k) {
    const Fixture& fixture = read->Fixtures[k];
    At(team_, Matches[k].Home) = fixture.Home;
    At(team_, Matches[k].Away) = fixture.Away;
    At(team_, Matches[k].Winner) = fixture.Winner;
  }
}

}  // namespace kickwell
