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
  explicit ScriptedRandom(const std::string& script) : script_(script) {}
  ~ScriptedRandom() override {
    std::string next;
    EXPECT_FALSE(times_ > 0 || script_ >> next) << "draws are left over: " << next;
  }

  int Int(int n) override {
    char sign = 0;
    if (times_ == 0 && script_ >> range_ >> sign >> value_) times_ = 1;
    if (times_ == 0) throw std::out_of_range("unexpected Int(" + std::to_string(n) + ")");
    if (script_.peek() == 'x') script_ >> sign >> times_;
    EXPECT_EQ(n, range_) << "draw " << made_;
    ++made_;
    --times_;
    return value_;
  }

 private:
  std::istringstream script_;
  int range_ = 0, value_ = 0, times_ = 0, made_ = 0;
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
