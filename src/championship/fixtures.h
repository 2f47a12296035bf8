// Generated fixtures.
#pragma once

#include <string>
#include <vector>

#include "base/random.h"
#include "data/championship.h"

namespace kickwell {

inline constexpr int MostFixtures = 1001;              ///< Of one championship.
inline constexpr int MostTeamsOfGeneratedLeague = 32;  ///< Their fixtures are no more than MostFixtures.
inline constexpr int MostTeamsOfLeague = 100;

/// The double round robin of `teams`, in an order drawn: every ordered pair of teams once.
std::vector<Pairing> LeagueFixture(const std::vector<std::string>& teams, Random& random);

/// The draw of a knock-out between 2, 4, 8 or 16 teams. The teams of the first half meet those of the second
/// at home, in an order drawn; then come the placeholders of the later rounds, the final last.
std::vector<Pairing> KnockOutFixture(const std::vector<std::string>& teams, Random& random);

}  // namespace kickwell
