// The league table.
#pragma once

#include <string>

#include "base/desktop.h"
#include "championship/ranking.h"
#include "data/program_folder.h"

namespace kickwell {

inline constexpr int MostStandings = 100;  ///< Rows of a table.

/// The table of the league of that name: by points, then goal difference, then goals for, all highest first;
/// teams level in all three stay in the order of the file. Columns: rank, team, played, won, tied, lost,
/// goals for, goals against, points. Without a standings file every team has zeros. Without a league file,
/// or with a file that can't be read, the table is empty.
Ranking StandingsTable(const ProgramFolder& folder, Desktop& desktop, const std::string& league);

}  // namespace kickwell
