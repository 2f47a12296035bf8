// Matches that tests play: set-ups, draws and facts.
#pragma once

#include <ostream>

#include "engine/match_session.h"
#include "support/scripted_random.h"

namespace kickwell {

/// Rovers (home, R1..) against United (U1..), both of strength 80, so with goal draws out of 4000.
inline MatchSetup MakeSetup(MatchMode mode = MatchMode::Friendly, bool extraTime = false,
                            bool shootOut = false) {
  MatchSetup setup;
  setup.Mode = mode;
  setup.Team1Name = "Rovers";
  setup.Team2Name = "United";
  setup.Team1Strength = setup.Team2Strength = 80;
  setup.Team1Attackers = {"R5", "R6"};
  setup.Team2Attackers = {"U5", "U6", "U7"};
  setup.Team1Outfield = {"R1", "R2", "R3", "R4", "R5", "R6"};
  setup.Team2Outfield = {"U1", "U2", "U3", "U4", "U5", "U6", "U7"};
  setup.Venue = "The Mill, Leat";
  setup.Capacity = 1000;
  setup.ExtraTime = extraTime;
  setup.PenaltyShootOut = shootOut;
  return setup;
}

inline MatchSetup MakeFullSetup(bool extraTime = false, bool shootOut = false) {
  MatchSetup setup = MakeSetup(MatchMode::Friendly, extraTime, shootOut);
  setup.SimulationType = SimulationKind::FullSimulation;
  return setup;
}

/// The first match of the championship "Cup", at its end, between Rovers and United on their first sides.
inline MatchSession EndedMatch(MatchMode mode, int rovers = 0, int united = 0) {
  MatchSession s;
  s.Setup = MakeSetup(mode);
  s.Setup.ChampionshipName = "Cup";
  s.Setup.MatchNumber = 1;
  s.Side1.Team = "Rovers";
  s.Side1.Goals = s.Side1.FinalGoals = rovers;
  s.Side2.Team = "United";
  s.Side2.Goals = s.Side2.FinalGoals = united;
  s.Venue = s.Setup.Venue;
  s.Attendance = 500;
  s.AttendancePercent = 50;
  return s;
}

/// The match facts of a side.
struct Facts {
  int Goals = 0, Shots = 0, Corners = 0, Bookings = 0, Fouls = 0, Possession = 0;

  bool operator==(const Facts&) const = default;
};

inline Facts FactsOf(const Side& side) {
  return {side.Goals, side.Shots, side.Corners, side.Bookings, side.Fouls, side.PossessionPercent};
}

inline void PrintTo(const Facts& facts, std::ostream* out) {
  *out << "goals " << facts.Goals << ", shots " << facts.Shots << ", corners " << facts.Corners
       << ", bookings " << facts.Bookings << ", fouls " << facts.Fouls << ", possession " << facts.Possession;
}

/// The draws of matches of MakeSetup, named by what they decide.
class MatchDraws : public ScriptedRandom {
 public:
  static constexpr int GoalNumber = 3;

  void OpenFriendly(int crowdPercent = 50) {
    Expect(100, crowdPercent);
    Expect(100, GoalNumber);
  }
  void OpenWithoutStadiums() { Expect(100, GoalNumber); }

  void GoalDraws(int side1, int side2) {
    Expect(4000, side1);
    Expect(4000, side2);
  }
  void NoGoals(int seconds = 1) { Expect(4000, 7, 2 * seconds); }

  /// A goal by an attacker of Rovers on side 1 or of United on side 2.
  void RoversScore(int attacker) {
    GoalDraws(GoalNumber, 9);
    Expect(2, attacker);
  }
  void UnitedScore(int attacker) {
    GoalDraws(9, GoalNumber);
    Expect(3, attacker);
  }
  void PickRoversOutfield(int player) { Expect(6, player); }
  void PickUnitedOutfield(int player) { Expect(7, player); }
};

}  // namespace kickwell
