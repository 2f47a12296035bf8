// How goals fall: the draw of a second and the credit for a goal, alike in every kind of simulation.
#pragma once

#include "base/random.h"
#include "engine/match_session.h"

namespace kickwell {

/// The range of a team's goal draw in a second, from its strength: 12000 - 100 x strength, so 2100 at
/// strength 99 and 11900 at strength 1. Strengths of damaged team files count as the nearest of 0..99.
int GoalRangeOf(int strength);

/// Draws for side 1, then for side 2. A side scores when its draw is the match's goal number; nobody does
/// when the draws are equal. Gives the side that scored, or nullptr.
Side* DrawGoal(MatchSession& session, Random& random);

/// Draws the scorer from the attackers of the team that scored. Notes him, his team and the goal's summary
/// line, which begins with the session's clock text.
void CreditGoal(MatchSession& session, const Side& side, Random& random);

}  // namespace kickwell
