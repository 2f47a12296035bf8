// Set-ups of matches that tests play.
#pragma once

#include "engine/match_setup.h"

namespace kickwell {

/// Rovers (home, R1..) against United (U1..), both of strength 80, so with goal draws out of 4000.
inline MatchSetup MakeSetup(MatchMode mode = MatchMode::Friendly) {
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
  return setup;
}

inline MatchSetup MakeFullSetup(bool extraTime = false, bool shootOut = false) {
  MatchSetup setup = MakeSetup();
  setup.SimulationType = SimulationKind::FullSimulation;
  setup.ExtraTime = extraTime;
  setup.PenaltyShootOut = shootOut;
  return setup;
}

}  // namespace kickwell
