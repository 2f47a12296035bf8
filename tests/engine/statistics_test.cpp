// Large samples of seeded matches against the exact expectations of the draw rules.
#include <gtest/gtest.h>

#include <cmath>

#include "engine/goal.h"
#include "engine/instant.h"
#include "support/fakes.h"
#include "support/matches.h"

namespace kickwell {
namespace {

TEST(Statistics, MeanGoalsOfInstantMatchesFollowTheDrawRule) {
  constexpr int Matches = 20000;
  constexpr double Seconds = 5340;
  SeededRandom random(20260101);
  FakeRecording recording;
  for (const int strength : {1, 80, 99}) {
    double goals[2] = {0, 0};
    for (int i = 0; i < Matches; ++i) {
      MatchSession session;
      session.Setup = MakeSetup();
      session.Side1.Team = "Rovers";
      session.Side2.Team = "United";
      session.Side1.GoalRange = session.Side2.GoalRange = GoalRange(strength);
      session.GoalNumber = random.Int(100);
      Announcement announcement(session, random, recording);
      Instant(session, random, announcement, recording).instant_Click();
      goals[0] += session.Side1.Goals;
      goals[1] += session.Side2.Goals;
      recording.Calls.clear();
    }
    // A side scores in a second when its draw is the goal number and the other's is not.
    const double range = GoalRange(strength);
    const double chance = 1 / range * (1 - 1 / range);
    const double error = std::sqrt(Seconds * chance * (1 - chance) / Matches);
    for (const double sum : goals) EXPECT_NEAR(sum / Matches, Seconds * chance, 4 * error) << strength;
  }
}

}  // namespace
}  // namespace kickwell
