// The top scorers of a championship.
#pragma once

#include <string>

#include "base/program.h"
#include "championship/ranking.h"
#include "data/championship_store.h"

namespace kickwell {

/// All scorers, most goals first; those with equally many in the order in which they first scored. Columns:
/// rank, player, team, goals.
Ranking TopScorers(const ProgramFolder& folder, ChampionshipKind kind, const std::string& championship);

}  // namespace kickwell
