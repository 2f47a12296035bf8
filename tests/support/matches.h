// Matches that tests play: set-ups, sessions and draws.
#pragma once

#include "engine/match_session.h"
#include "support/scripted_random.h"

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

/// The draws of matches of MakeSetup, named by what they decide.
class MatchDraws : public ScriptedRandom {
 public:
  static constexpr int GoalNumber = 3;

  void DrawGoalNumber() { Expect(100, GoalNumber); }  ///< All that opens a match without stadiums.
  void OpenFriendly() {
    Expect(100, 50);  // The crowd, in percent.
    DrawGoalNumber();
  }
  void NoGoals(int seconds = 1) { Expect(4000, 7, 2 * seconds); }
  void Goal(int side, int attacker) {
    Expect(4000, side == 1 ? GoalNumber : 7);
    Expect(4000, side == 2 ? GoalNumber : 7);
    Expect(2, attacker);
  }
  void PickOutfield(int player) { Expect(6, player); }
  void InstantKick(bool scored) {
    Expect(2, scored ? 1 : 0);
    PickOutfield(0);
  }
};

}  // namespace kickwell
