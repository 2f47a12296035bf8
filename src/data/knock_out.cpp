#include "data/knock_out.h"

#include <algorithm>
#include <bit>
#include <set>

#include "base/number.h"

namespace kickwell {
namespace {

constexpr std::string_view WinnerOf = "Winner ";

}  // namespace

bool IsKnockOutSize(int teams) {
  return teams >= FewestTeamsOfKnockOut && teams <= MostTeamsOfKnockOut &&
         std::has_single_bit(static_cast<unsigned>(teams));
}

int KnockOutSizeWithin(int teams) {
  const int bounded = std::clamp(teams, FewestTeamsOfKnockOut, MostTeamsOfKnockOut);
  return static_cast<int>(std::bit_floor(static_cast<unsigned>(bounded)));
}

std::string WinnerPlaceholder(int number) {
  return std::string(WinnerOf) + std::to_string(number);
}

int PlaceholderNumber(std::string_view text) {
  if (!text.starts_with(WinnerOf)) return 0;
  const int number = ToNumber(text.substr(WinnerOf.size()));
  return text == WinnerPlaceholder(number) ? std::max(number, 0) : 0;
}

std::vector<Pairing> LaterRounds(int teams) {
  std::vector<Pairing> fixtures;
  for (int earlier = 1; earlier <= teams - 2; earlier += 2) {
    fixtures.push_back({WinnerPlaceholder(earlier), WinnerPlaceholder(earlier + 1)});
  }
  return fixtures;
}

bool IsKnockOut(const std::vector<std::string>& teams, const std::vector<Pairing>& fixtures) {
  const std::set<std::string> known(teams.begin(), teams.end());
  if (known.size() != teams.size() || fixtures.size() + 1 != teams.size()) return false;
  int number = 0;
  const auto isEntry = [&](const std::string& entry) {
    const int earlier = PlaceholderNumber(entry);
    return (earlier > 0 && earlier < number) || known.contains(entry) || known.contains(WithoutToss(entry));
  };
  return std::ranges::all_of(fixtures, [&](const Pairing& fixture) {
    ++number;
    return isEntry(fixture.Home) && isEntry(fixture.Away);
  });
}

void Advance(Championship& knockOut, int number, const std::string& winner) {
  const std::string placeholder = WinnerPlaceholder(number);
  for (Fixture& fixture : knockOut.Fixtures) {
    if (fixture.Home == placeholder) {
      fixture.Home = winner;
    } else if (fixture.Away == placeholder) {
      fixture.Away = winner;
    }
  }
}

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
  if (!IsKnockOutSize(teams)) return {};
  // The slots are numbered as the tree is walked: both entrants of a match, then its winner.
  std::vector<int> entrants;
  entrants.reserve(static_cast<std::size_t>(teams));
  for (int team = 0; team < teams; ++team) {
    entrants.push_back(2 * team - std::popcount(static_cast<unsigned>(team)));
  }
  std::vector<ChartMatch> matches;
  while (entrants.size() > 1) {
    std::vector<int> winners;
    for (std::size_t i = 0; i < entrants.size(); i += 2) {
      const int home = entrants[i], away = entrants[i + 1], winner = away + 1;
      matches.push_back({home, away, winner});
      winners.push_back(winner);
    }
    entrants = std::move(winners);
  }
  return matches;
}

}  // namespace kickwell
