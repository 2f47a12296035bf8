// Draws that a test fixes.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <sstream>
#include <stdexcept>
#include <string>

#include "base/random.h"

namespace kickwell {

/// The same draws so many times in a row.
inline std::string Times(int count, const std::string& draws) {
  std::string all;
  for (int i = 0; i < count; ++i) all += draws + " ";
  return all;
}

/// Gives the draws of a script: "70:35" must be asked for as Int(70) and gives 35, "4000:7x120" does so 120
/// times. The test fails when a draw has another range, is one too many, or is left over.
class ScriptedRandom : public Random {
 public:
  explicit ScriptedRandom(const std::string& script) {
    std::istringstream words(script);
    char sign = 0;
    for (Draw draw; words >> draw.N >> sign >> draw.Value; script_.push_back(draw)) {
      draw.Times = 1;
      if (words.peek() == 'x') words >> sign >> draw.Times;
    }
  }
  ~ScriptedRandom() override { EXPECT_TRUE(script_.empty()) << "next: Int(" << script_.front().N << ")"; }

  int Int(int n) override {
    if (script_.empty()) throw std::out_of_range("unexpected Int(" + std::to_string(n) + ")");
    const Draw draw = script_.front();
    ++made_;
    EXPECT_EQ(n, draw.N) << "draw " << made_;
    if (--script_.front().Times == 0) script_.pop_front();
    return draw.Value;
  }

 private:
  struct Draw {
    int N = 0, Value = 0, Times = 1;
  };
  std::deque<Draw> script_;
  int made_ = 0;
};

/// Draws of matches between sides of strength 80 in which side 1 has the ball in midfield and nothing happens
/// but the goals that a test asks for. Lists are not shuffled, and nobody scores a penalty.
class QuietRandom : public Random {
 public:
  int Int(int n) override {
    if (n == 4000) return GoalDraw();
    if (n == 100) goalDraws_ = 0;  // The goal number: another match.
    if (n == 100 && !Later.empty()) {
      Goals = Later.front();
      Later.pop_front();
    }
    if (n == 5091) ++Minutes;
    return n >= 80 && n <= 100 ? 50 : n == 5091 ? 2000 : n == 70 ? 30 : n == 4 || n == 5 ? 1 : 0;
  }

  std::string Goals;              ///< Of the match, by second played: "1" or "2" for the side that scores.
  std::deque<std::string> Later;  ///< Goals of the matches to come.
  int Minutes = 0;                ///< Full simulation only: as many as have been played to their end.

 private:
  int GoalDraw() {
    const auto second = static_cast<std::size_t>(goalDraws_ / 2);
    const char side = goalDraws_++ % 2 == 0 ? '1' : '2';
    return second < Goals.size() && Goals[second] == side ? 50 : 7;
  }

  int goalDraws_ = 0;
};

}  // namespace kickwell
