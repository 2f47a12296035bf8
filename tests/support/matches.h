// Matches that tests play: set-ups, sessions and draws.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <utility>

#include "base/random.h"
#include "engine/match_session.h"

namespace kickwell {

/// Rovers (home, R1..) against United (U1..), both of strength 80, so with goal draws out of 4000.
inline MatchSetup MakeSetup(MatchMode mode = MatchMode::Friendly) {
  MatchSetup setup;
  setup.Mode = mode;
  setup.Team1Name = "Rovers";
  setup.Team2Name = "United";
  setup.Team1Strength = setup.Team2Strength = 80;
  setup.Team1Attackers = {"R5", "R6"};
  setup.Team2Attackers = {"U5", "U6"};
  setup.Team1Outfield = {"R1", "R2", "R3", "R4", "R5", "R6"};
  setup.Team2Outfield = {"U1", "U2", "U3", "U4", "U5", "U6"};
  setup.Venue = "The Mill, Leat";
  setup.Capacity = 1000;
  return setup;
}

/// A friendly.
inline MatchSetup MakeFullSetup(bool extraTime = false, bool shootOut = false) {
  MatchSetup setup = MakeSetup();
  setup.SimulationType = SimulationKind::FullSimulation;
  setup.ExtraTime = extraTime;
  setup.PenaltyShootOut = shootOut;
  return setup;
}

/// The first match of the championship "Cup", with this score, between Rovers and United on their first
/// sides.
inline MatchSession MakeSession(MatchMode mode, int rovers = 0, int united = 0) {
  MatchSession s;
  s.Setup = MakeSetup(mode);
  s.Setup.ChampionshipName = "Cup";
  s.Setup.MatchNumber = 1;
  s.Side1 = {.Team = "Rovers", .Goals = rovers, .Outfield = s.Setup.Team1Outfield, .FinalGoals = rovers};
  s.Side2 = {.Team = "United", .Goals = united, .Outfield = s.Setup.Team2Outfield, .FinalGoals = united};
  s.Venue = s.Setup.Venue;
  s.Attendance = 500;
  s.AttendancePercent = 50;
  return s;
}

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

/// The draws of matches of MakeSetup, named by what they decide.
class MatchDraws : public ScriptedRandom {
 public:
  static constexpr int GoalNumber = 3;

  void DrawGoalNumber() { Expect(100, GoalNumber); }  ///< All that opens a match without stadiums.
  void NoGoals(int seconds = 1) { Expect(4000, 7, 2 * seconds); }
  void InstantKick(bool scored) { Expect({{2, scored ? 1 : 0}, {6, 0}}); }
};

/// Draws of matches between sides of strength 80 in which side 1 has the ball in midfield and nothing happens
/// but the goals that a test asks for. Lists are not shuffled, and nobody scores a penalty.
class QuietRandom : public Random {
 public:
  int Int(int n) override {
    if (n == 4000) return GoalDraw();
    if (n == 100) goalDraws_ = 0;  // The goal number, the last draw of a match's opening.
    return n > 50 && n <= 100 ? 50 : n == 5091 ? 2000 : n == 4 ? 1 : 0;
  }

  std::string Goals;  ///< Of every match, by second played: "1" or "2" for the side that scores.

 private:
  int GoalDraw() {
    const auto second = static_cast<std::size_t>(goalDraws_ / 2);
    const char side = goalDraws_++ % 2 == 0 ? '1' : '2';
    return second < Goals.size() && Goals[second] == side ? 50 : 7;
  }

  int goalDraws_ = 0;
};

}  // namespace kickwell
