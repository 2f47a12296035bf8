// Draws that a test fixes.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <utility>

#include "base/random.h"

namespace kickwell {

/// Int(Range), so many times in a row, and what each gives.
struct Draw {
  int Range, Value, Times = 1;
};

/// Gives the draws that a test expects, in their order. The test fails when a draw has another range, is one
/// too many, or is left over.
class ScriptedRandom : public Random {
 public:
  ~ScriptedRandom() override {
    EXPECT_TRUE(draws_.empty()) << "draws are left over: Int(" << draws_.front().Range << ")";
  }

  void Expect(int range, int value, int times = 1) { draws_.push_back({range, value, times}); }
  void Expect(std::initializer_list<Draw> draws) { draws_.insert(draws_.end(), draws); }

  int Int(int n) override {
    if (draws_.empty()) throw std::out_of_range("unexpected Int(" + std::to_string(n) + ")");
    Draw& next = draws_.front();
    EXPECT_EQ(n, next.Range);
    const int value = next.Value;
    if (--next.Times == 0) draws_.pop_front();
    return value;
  }

 private:
  std::deque<Draw> draws_;
};

/// Draws of matches between sides of strength 80 in which side 1 has the ball in midfield and nothing happens
/// but the goals that a test asks for. Lists are not shuffled, and nobody scores a penalty.
class QuietRandom : public Random {
 public:
  int Int(int n) override {
    if (n == 4000) return GoalDraw();
    if (n == 100) opened_ = true;  // The goal number, the last draw of a match's opening.
    return n > 50 && n <= 100 ? 50 : n == 5091 ? 2000 : n == 4 ? 1 : 0;
  }

  std::string Goals;              ///< Of the match, by second played: "1" or "2" for the side that scores.
  std::deque<std::string> Later;  ///< Goals of the matches to come.

 private:
  int GoalDraw() {
    if (std::exchange(opened_, false)) {
      goalDraws_ = 0;
      if (!Later.empty()) {
        Goals = Later.front();
        Later.pop_front();
      }
    }
    const auto second = static_cast<std::size_t>(goalDraws_ / 2);
    const char side = goalDraws_++ % 2 == 0 ? '1' : '2';
    return second < Goals.size() && Goals[second] == side ? 50 : 7;
  }

  bool opened_ = false;
  int goalDraws_ = 0;
};

}  // namespace kickwell
