#include "championship/knock_charts.h"

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
  auto match = Matches.begin();
  for (const Fixture& fixture : read->Fixtures) {
    if (match == Matches.end()) break;
    At(team_, match->Home) = fixture.Home;
    At(team_, match->Away) = fixture.Away;
    At(team_, match->Winner) = fixture.Winner;
    ++match;
  }
}

}  // namespace kickwell
