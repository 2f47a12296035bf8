#include "championship/knock_charts.h"

#include <algorithm>
#include <optional>

namespace kickwell {

const std::array<ChartSlot, SlotTotal>& ChartSlots() {
  constexpr int First = 240, Second = 1920, Third = 3600, Fourth = 5280, Fifth = 6960;
  static constexpr std::array<ChartSlot, SlotTotal> Slots = {{
      {First, 600},   {First, 840},  {Second, 720},  {First, 1200},  {First, 1440}, {Second, 1320},
      {Third, 960},   {First, 1800}, {First, 2040},  {Second, 1920}, {First, 2400}, {First, 2640},
      {Second, 2520}, {Third, 2160}, {Fourth, 1560}, {First, 3000},  {First, 3240}, {Second, 3120},
      {First, 3600},  {First, 3840}, {Second, 3720}, {Third, 3480},  {First, 4200}, {First, 4440},
      {Second, 4320}, {First, 4800}, {First, 5040},  {Second, 4920}, {Third, 4680}, {Fourth, 4080},
      {Fifth, 2760},
  }};
  return Slots;
}

std::vector<ChartMatch> ChartMatches(int teams) {
  switch (teams) {
    case 2:
      return {{0, 1, 2}};
    case 4:
      return {{0, 1, 2}, {3, 4, 5}, {2, 5, 6}};
    case 8:
      return {{0, 1, 2}, {3, 4, 5}, {7, 8, 9}, {10, 11, 12}, {2, 5, 6}, {9, 12, 13}, {6, 13, 14}};
    case 16:
      return {{0, 1, 2},    {3, 4, 5},    {7, 8, 9},    {10, 11, 12}, {15, 16, 17},
              {18, 19, 20}, {22, 23, 24}, {25, 26, 27}, {2, 5, 6},    {9, 12, 13},
              {17, 20, 21}, {24, 27, 28}, {6, 13, 14},  {21, 28, 29}, {14, 29, 30}};
    default:
      return {};
  }
}

KnockCharts::KnockCharts(const ProgramFolder& folder, const std::string& championship) {
  const std::optional<Bracket> read = ReadBracket(folder, championship);
  if (!read) return;
  Label1 = read->Name + " Table";
  Matches = ChartMatches(read->TeamCount);
  if (!Matches.empty()) VisibleSlots = 2 * read->TeamCount - 1;
  for (std::size_t k = 0; k < std::min(Matches.size(), read->Fixtures.size()); ++k) {
    const Fixture& fixture = read->Fixtures[k];
    const auto [home, away, winner] = Matches[k];
    team_.at(static_cast<std::size_t>(home)) = fixture.Home;
    team_.at(static_cast<std::size_t>(away)) = fixture.Away;
    team_.at(static_cast<std::size_t>(winner)) = fixture.Winner;
  }
}

}  // namespace kickwell
