// Draws that a test fixes.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>

#include "base/random.h"

namespace kickwell {

/// The same draws so many times in a row.
inline std::string Times(int count, const std::string& draws) {
  std::string all;
  for (int i = 0; i < count; ++i) all += draws + " ";
  return all;
}

/// Gives the draws that the test expects, in their order. The test fails when a draw has another range, is
/// one too many, or is left over.
class ScriptedRandom : public Random {
 public:
  ScriptedRandom() = default;

  /// "70:35" expects Int(70) and gives 35; "4000:7x120" does so 120 times.
  explicit ScriptedRandom(const std::string& script) {
    std::istringstream draws(script);
    char sign = 0;
    for (Draw draw; draws >> draw.Range >> sign >> draw.Value; draw.Times = 1) {
      if (draws.peek() == 'x') draws >> sign >> draw.Times;
      draws_.push_back(draw);
    }
  }
  ~ScriptedRandom() override {
    EXPECT_TRUE(draws_.empty()) << "draws are left over: Int(" << draws_.front().Range << ")";
  }

  /// Expects Int(range), so many times, and gives `value`.
  void Expect(int range, int value, int times = 1) {
    if (times > 0) draws_.push_back({range, value, times});
  }

  int Int(int n) override {
    if (draws_.empty()) throw std::out_of_range("unexpected Int(" + std::to_string(n) + ")");
    Draw& next = draws_.front();
    EXPECT_EQ(n, next.Range) << "draw " << made_;
    ++made_;
    const int value = next.Value;
    if (--next.Times == 0) draws_.pop_front();
    return value;
  }

 private:
  struct Draw {
    int Range = 0, Value = 0, Times = 1;
  };

  std::deque<Draw> draws_;
  int made_ = 0;
};

/// Draws of matches between sides of strength 80 in which side 1 has the ball in midfield and nothing happens
/// but the goals that a test asks for. Lists are not shuffled, and nobody scores a penalty.
class QuietRandom : public Random {
 public:
  int Int(int n) override {
    if (n == 4000) return GoalDraw();
    if (n == 100) opened_ = true;  // The goal number, the last draw of a match's opening.
    if (n == 5091) ++Minutes;
    return n > 50 && n <= 100 ? 50 : n == 5091 ? 2000 : n == 4 ? 1 : 0;
  }

  /// Side 1 or 2 scores in one second of the match, counted from 1; in none with 0.
  void ScoreIn(int second, int side) {
    Goals = second == 0 ? "" : std::string(static_cast<std::size_t>(second - 1), '.') + std::to_string(side);
  }

  std::string Goals;              ///< Of the match, by second played: "1" or "2" for the side that scores.
  std::deque<std::string> Later;  ///< Goals of the matches to come.
  int Minutes = 0;                ///< Full simulation only: as many as have been played to their end.

 private:
  int GoalDraw() {
    if (std::exchange(opened_, false)) Begin();
    const auto second = static_cast<std::size_t>(goalDraws_ / 2);
    const char side = goalDraws_++ % 2 == 0 ? '1' : '2';
    return second < Goals.size() && Goals[second] == side ? 50 : 7;
  }

  void Begin() {
    goalDraws_ = 0;
    if (Later.empty()) return;
    Goals = Later.front();
    Later.pop_front();
  }

  bool opened_ = false;
  int goalDraws_ = 0;
};

}  // namespace kickwell
