// Large samples of seeded matches against the exact expectations of the draw rules.
#include <algorithm>
#include <cmath>
#include <map>

#include "engine/match.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__clang__)
constexpr int Matches = 2000;  // The sanitizers look for other faults, at a tenth of the speed.
#else
constexpr int Matches = 20000;
#endif

/// Counts what each range of draws gave.
class CountingRandom : public Random {
 public:
  int Int(int n) override {
    const int value = source_.Int(n);
    std::vector<int>& counts = Counts[n];
    counts.resize(static_cast<std::size_t>(std::max(n, 1)));
    ++counts.at(static_cast<std::size_t>(value));
    return value;
  }

  std::map<int, std::vector<int>> Counts;

 private:
  SeededRandom source_{20260202};
};

using Statistics = ScreenTest;

TEST_F(Statistics, MatchesFollowTheDrawRules) {
  constexpr const char* Names[] = {"instant goals", "goals", "shots", "corners", "fouls", "bookings"};
  CountingRandom random;
  double sums[2][6] = {};  // All but the first of first halves, and shots without goals.
  for (int i = 0; i < Matches; ++i) {
    Match quick({}, desktop_, random, recording_, MakeSetup());
    quick.instant_Click();
    Match match({}, desktop_, random, recording_, MakeFullSetup());
    match.halftime_Click();
    for (int minute = 0; minute < 45; ++minute) match.Timer1_Timer(screen_);
    for (const int n : {0, 1}) {
      const Side& instant = n == 0 ? quick.Session().Side1 : quick.Session().Side2;
      const Side& side = n == 0 ? match.Session().Side1 : match.Session().Side2;
      const int figures[] = {instant.Goals, side.Goals, side.Shots - side.Goals,
                             side.Corners,  side.Fouls, side.Bookings};
      for (int k = 0; k < 6; ++k) sums[n][k] += figures[k];
    }
  }
  const double goal = 1 / 4000.0 * (1 - 1 / 4000.0);  // One draw is the goal number, and the other is not.
  for (const int n : {0, 1}) {
    const double shot = 0.5 * (n == 0 ? 1011 : 961) / 5091;
    const double chances[] = {goal, goal, shot, shot / 3, 0.5 / 70, 0.5 / 210};
    for (int k = 0; k < 6; ++k) {  // Within four standard errors of the mean of so many tries.
      const double tries = k == 0 ? 89 * 60 : k == 1 ? 45 * 60 : 45, mean = tries * chances[k];
      EXPECT_NEAR(sums[n][k] / Matches, mean, 4 * std::sqrt(mean * (1 - chances[k]) / Matches)) << Names[k];
    }
  }
  for (const auto& [n, counts] : random.Counts) {
    double total = 0, chiSquare = 0;
    for (const int count : counts) total += count;
    if (n < 2 || total / n < 20) continue;  // Too few for the test.
    for (const int count : counts) chiSquare += (count - total / n) * (count - total / n) * n / total;
    EXPECT_NEAR(chiSquare, n - 1, 5 * std::sqrt(2.0 * (n - 1))) << "draws of Int(" << n << ")";
  }
}

}  // namespace
}  // namespace kickwell
