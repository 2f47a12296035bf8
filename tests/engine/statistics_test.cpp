// Large samples of seeded matches against the exact expectations of the draw rules.
#include <gtest/gtest.h>

#include <cmath>
#include <map>

#include "engine/goal.h"
#include "engine/match.h"
#include "support/fakes.h"
#include "support/matches.h"

namespace kickwell {
namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__clang__)
constexpr int Matches = 2000;  // The sanitizers look for other faults, at a tenth of the speed.
#else
constexpr int Matches = 20000;
#endif

/// The mean of `sum` over all matches lies within four standard errors of that of `tries` chances each.
void ExpectMean(double sum, double tries, double chance, const char* what) {
  const double error = std::sqrt(tries * chance * (1 - chance) / Matches);
  EXPECT_NEAR(sum / Matches, tries * chance, 4 * error) << what;
}

/// The chance of a side's goal in a second: its draw is the goal number, and the other's is not.
double GoalChance(double range) {
  return 1 / range * (1 - 1 / range);
}

TEST(Statistics, MeanGoalsOfInstantMatchesFollowTheDrawRule) {
  SeededRandom random(20260101);
  FakeDesktop desktop;
  FakeRecording recording;
  for (const int strength : {1, 80, 99}) {
    double goals[2] = {0, 0};
    MatchSetup setup = MakeSetup();
    setup.Team1Strength = setup.Team2Strength = strength;
    for (int i = 0; i < Matches; ++i) {
      Match match({}, desktop, random, recording, setup);
      match.instant_Click();
      goals[0] += match.Session().Side1.Goals;
      goals[1] += match.Session().Side2.Goals;
      recording.Calls.clear();
    }
    for (const double sum : goals) ExpectMean(sum, 5340, GoalChance(GoalRange(strength)), "goals");
  }
}

/// Counts what each range of draws gave.
class CountingRandom : public Random {
 public:
  int Int(int n) override {
    const int value = source_.Int(n);
    std::vector<int>& counts = Counts[n];
    counts.resize(static_cast<std::size_t>(n));
    ++counts[static_cast<std::size_t>(value)];
    return value;
  }

  std::map<int, std::vector<int>> Counts;

 private:
  SeededRandom source_{20260202};
};

/// What the team on a side has done, shots without goals.
struct Facts {
  double Goals = 0, Shots = 0, Corners = 0, Fouls = 0, Bookings = 0;

  void Add(const Side& side, double sign = 1) {
    Goals += sign * side.Goals;
    Shots += sign * (side.Shots - side.Goals);
    Corners += sign * side.Corners;
    Fouls += sign * side.Fouls;
    Bookings += sign * side.Bookings;
  }
};

TEST(Statistics, FullSimulationsFollowTheirDrawRules) {
  CountingRandom random;
  FakeDesktop desktop;
  FakeRecording recording;
  FakeScreen screen;
  Facts side1, side2;  // By end of the pitch, not by team.
  for (int i = 0; i < Matches; ++i) {
    Match match({}, desktop, random, recording, MakeFullSetup());
    const MatchSession& s = match.Session();
    const auto playHalf = [&] {
      match.halftime_Click();
      for (int minute = 0; minute < 45; ++minute) match.Timer1_Timer(screen);
      side1.Add(s.Side1);
      side2.Add(s.Side2);
    };
    playHalf();
    side1.Add(s.Side2, -1);  // The teams change ends with what they have done.
    side2.Add(s.Side1, -1);
    playHalf();
    desktop.Messages.clear();
    recording.Calls.clear();
  }
  const double shot1 = 0.5 * 1011 / 5091;
  const double shot2 = 0.5 * 961 / 5091;
  ExpectMean(side1.Goals, 5400, GoalChance(4000), "goals 1");
  ExpectMean(side2.Goals, 5400, GoalChance(4000), "goals 2");
  ExpectMean(side1.Shots, 90, shot1, "shots 1");
  ExpectMean(side2.Shots, 90, shot2, "shots 2");
  ExpectMean(side1.Corners, 90, shot1 / 3, "corners 1");
  ExpectMean(side2.Corners, 90, shot2 / 3, "corners 2");
  ExpectMean(side1.Fouls + side2.Fouls, 90, 1.0 / 70, "fouls");
  ExpectMean(side1.Bookings + side2.Bookings, 90, 1.0 / 210, "bookings");

  for (const auto& [n, counts] : random.Counts) {
    double total = 0;
    for (const int count : counts) total += count;
    if (n < 2 || total / n < 20) continue;  // Too few for the test.
    double chiSquare = 0;
    for (const int count : counts) chiSquare += (count - total / n) * (count - total / n) * n / total;
    EXPECT_NEAR(chiSquare, n - 1, 5 * std::sqrt(2.0 * (n - 1))) << "draws of Int(" << n << ")";
  }
}

}  // namespace
}  // namespace kickwell
