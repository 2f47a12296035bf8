#include "engine/goal.h"

#include <algorithm>

namespace kickwell {

int GoalRange(int strength) {
  return 2000 + (100 - std::clamp(strength, 0, 99)) * 100;
}

Side* DrawGoal(MatchSession& session, Random& random) {
  session.Side1Draw = random.Int(session.Side1.GoalRange);
  session.Side2Draw = random.Int(session.Side2.GoalRange);
  if (session.Side1Draw == session.Side2Draw) return nullptr;
  if (session.Side1Draw == session.GoalNumber) return &session.Side1;
  if (session.Side2Draw == session.GoalNumber) return &session.Side2;
  return nullptr;
}

void CreditGoal(MatchSession& session, const Side& side, Random& random) {
  const MatchSetup& setup = session.Setup;
  session.LastScorer =
      PickFrom(side.Team == setup.Team1Name ? setup.Team1Attackers : setup.Team2Attackers, random);
  session.LastScoringTeam = side.Team;
  session.SummaryLine = session.ClockText + " >> " + session.LastScorer + " (" + side.Team + ")";
}

}  // namespace kickwell
