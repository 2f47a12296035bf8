#include "engine/goal.h"

#include <algorithm>

namespace kickwell {

int GoalRangeOf(int strength) {
  return 2000 + (100 - std::clamp(strength, 0, 99)) * 100;
}

Side* DrawGoal(MatchSession& session, Random& random) {
  Side& side1 = session.Side1;
  Side& side2 = session.Side2;
  side1.Draw = random.Int(side1.GoalRange);
  side2.Draw = random.Int(side2.GoalRange);
  if (side1.Draw == side2.Draw) return nullptr;
  if (side1.Draw == session.GoalNumber) return &side1;
  if (side2.Draw == session.GoalNumber) return &side2;
  return nullptr;
}

void CreditGoal(MatchSession& session, const Side& side, Random& random) {
  const MatchSetup& setup = session.Setup;
  session.LastScorer =
      PickFrom(side.Team == setup.Team1Name ? setup.Team1Attackers : setup.Team2Attackers, random);
  session.LastScoringTeam = side.Team;
  session.SummaryLine = session.ClockText + " >> " + side.Naming(session.LastScorer);
}

}  // namespace kickwell
