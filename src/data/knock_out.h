// The shape of a knock-out: how many teams it takes, which fixture feeds which, and where its chart shows
// them.
//
// The fixtures of a round stand one after the other, the first round first and the final last. The winners of
// two neighbouring fixtures meet in the next round. Until then a placeholder stands for each of them.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "data/championship.h"

namespace kickwell {

inline constexpr int FewestTeamsOfKnockOut = 2, MostTeamsOfKnockOut = 16;

/// Whether `teams` is 2, 4, 8 or 16.
bool IsKnockOutSize(int teams);

/// The largest number of teams of a knock-out that is no more than `teams`; 2 where even that is more.
int KnockOutSizeWithin(int teams);

/// "Winner " and the number: stands for the winner of fixture `number` until it is played.
std::string WinnerPlaceholder(int number);

/// The fixture that a placeholder waits for; 0 for a text that is none.
int PlaceholderNumber(std::string_view text);

/// The fixtures behind the first round of a knock-out of `teams` teams, all between placeholders.
std::vector<Pairing> LaterRounds(int teams);

/// Whether `fixtures` are a knock-out between `teams`: one fixture less than teams, no team twice, and in
/// each fixture a team or the placeholder of an earlier one.
bool IsKnockOut(const std::vector<std::string>& teams, const std::vector<Pairing>& fixtures);

/// Puts the winner of fixture `number` (from 1) in the place of its placeholders.
void Advance(Championship& knockOut, int number, const std::string& winner);

/// One box of the chart, by its place in screen units; every box is 1575 wide and 255 high.
struct ChartSlot {
  int Left, Top;
};

inline constexpr int SlotTotal = 31, SlotWidth = 1575, SlotHeight = 255;

const std::array<ChartSlot, SlotTotal>& ChartSlots();

/// The slots of a match: home, away, and the winner's in the next column.
struct ChartMatch {
  int Home, Away, Winner;

  bool operator==(const ChartMatch&) const = default;
};

/// The matches of a chart of 2, 4, 8 or 16 teams in the order of the fixtures; none for another number.
std::vector<ChartMatch> ChartMatches(int teams);

}  // namespace kickwell
