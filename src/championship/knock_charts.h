// The bracket of a knock-out.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/program.h"
#include "data/championship_store.h"

namespace kickwell {

/// One box of the chart. The slots of a match stand one under the other, its winner's in the next column.
struct ChartSlot {
  int Left, Top;  ///< In screen units; every slot is 1575 wide and 255 high.
};

inline constexpr int SlotTotal = 31, SlotWidth = 1575, SlotHeight = 255;

/// Home, away and winner slot of a match.
using ChartMatch = std::array<int, 3>;

const std::array<ChartSlot, SlotTotal>& ChartSlots();

/// The matches of a bracket of 2, 4, 8 or 16 teams in the order of the fixtures; none for another number.
std::vector<ChartMatch> ChartMatches(int teams);

class KnockCharts {
 public:
  /// Reads the knock-out of that name; there may be none.
  KnockCharts(const ProgramFolder& folder, const std::string& championship);

  void Command3_Click() { Closed = true; }

  /// The team or placeholder in a slot; empty where none is written.
  const std::string& Text(int slot) const { return team_.at(static_cast<std::size_t>(slot)); }

  std::string Label1 = "Knock Out Table";  ///< The heading.
  std::vector<ChartMatch> Matches;         ///< What the chart shows.
  int VisibleSlots = 0;                    ///< Slots 0 to this, less one, are shown.
  bool Closed = false;

 private:
  std::array<std::string, SlotTotal> team_;
};

}  // namespace kickwell
