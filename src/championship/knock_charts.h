// The bracket of a knock-out.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/at.h"
#include "base/desktop.h"
#include "data/knock_out.h"
#include "data/program_folder.h"

namespace kickwell {

class KnockCharts {
 public:
  /// Reads the knock-out of that name. Without one the chart stays empty.
  KnockCharts(const ProgramFolder& folder, Desktop& desktop, const std::string& championship);

  void Command3_Click() { Closed = true; }

  /// The team or placeholder in a slot; empty where none is written.
  const std::string& Text(int slot) const { return At(team_, slot); }

  std::string Label1 = "Knock Out Table";  ///< The heading.
  std::vector<ChartMatch> Matches;         ///< In the order of the fixtures.
  int VisibleSlots = 0;                    ///< The first so many slots are shown.
  bool Closed = false;

 private:
  std::array<std::string, SlotTotal> team_;
};

}  // namespace kickwell
