// The top scorers of a championship.
#pragma once

#include <string>

#include "base/desktop.h"
#include "championship/ranking.h"
#include "data/championship.h"
#include "data/program_folder.h"

namespace kickwell {

/// All scorers, most goals first; those level on goals in the order in which they first scored. Columns:
/// rank, player, team, goals.
Ranking TopScorers(const ProgramFolder& folder, Desktop& desktop, const ChampionshipId& id);

}  // namespace kickwell
