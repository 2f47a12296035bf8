// Fixtures that the program makes, and the limits of a championship.
#pragma once

#include <string>
#include <vector>

#include "base/random.h"
#include "data/championship.h"

namespace kickwell {

inline constexpr int MostFixtures = 1001;              ///< Of a championship.
inline constexpr int MostTeamsOfGeneratedLeague = 32;  ///< More would need more than MostFixtures.
inline constexpr int MostTeamsOfLeague = 100;

/// The double round robin of `teams` in a drawn order: each team once at home to every other.
std::vector<Pairing> LeagueFixture(const std::vector<std::string>& teams, Random& random);

/// The draw of a knock-out between 2, 4, 8 or 16 teams. In the first round the teams of the first half are at
/// home to those of the second, in a drawn order. The later rounds follow between placeholders.
std::vector<Pairing> KnockOutFixture(const std::vector<std::string>& teams, Random& random);

}  // namespace kickwell
