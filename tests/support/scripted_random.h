// Draws that a test fixes, one by one and in order.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <vector>

#include "base/random.h"

namespace kickwell {

/// What a draw must be asked for and what it gives, so many times in a row.
struct Draw {
  int N;
  int Value;
  int Times = 1;
};

/// Fails the test when a draw has another range than the script says, when the script ends too early, and
/// when draws are left over at the end.
class ScriptedRandom : public Random {
 public:
  ScriptedRandom(std::initializer_list<Draw> script) : script_(script) {}
  explicit ScriptedRandom(const std::vector<Draw>& script) : script_(script.begin(), script.end()) {}
  ~ScriptedRandom() override { EXPECT_TRUE(script_.empty()) << "next: Int(" << script_.front().N << ")"; }

  void Then(Draw draw) { script_.push_back(draw); }

  int Int(int n) override {
    if (script_.empty()) {
      ADD_FAILURE() << "unexpected Int(" << n << ")";
      return 0;
    }
    Draw& draw = script_.front();
    EXPECT_EQ(n, draw.N) << "draw " << made_;
    const int value = draw.Value;
    if (--draw.Times == 0) script_.pop_front();
    ++made_;
    return value;
  }

 private:
  std::deque<Draw> script_;
  int made_ = 0;
};

/// Draws of a match between two sides of strength 80 in which nothing happens: side 1 has the ball in
/// midfield, no remarks, shots, fouls or goals, but for the goals that a test asks for. The goal number
/// is 50.
class QuietRandom : public Random {
 public:
  int Int(int n) override {
    if (n == 4000) {
      const int side = ++goalDraws_ % 2 == 1 ? 1 : 2;
      const bool goal = side == ScoringSide && (goalDraws_ - 1) / 2 % 60 == ScoringSecond;
      if (goal) ScoringSide = 0;
      return goal ? 50 : 7;
    }
    if (n == 5091) ++BallDraws;
    return n == 100 ? 50 : n == 5091 ? 2000 : n == 4 ? 1 : 0;
  }

  int BallDraws = 0;      ///< One a minute.
  int ScoringSide = 0;    ///< Scores once, in the next ScoringSecond.
  int ScoringSecond = 0;  ///< Of a minute, from 0.

 private:
  int goalDraws_ = 0;
};

}  // namespace kickwell
