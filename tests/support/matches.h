// Set-ups of matches that tests play, and what matches show.
#pragma once

#include <string>

#include "engine/match_session.h"

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

/// Of each side: team, goals, shots, corners, bookings, fouls and possession.
inline std::string Figures(const MatchSession& s) {
  std::string text;
  for (const Side& side : {s.Side1, s.Side2}) {
    text += (text.empty() ? "" : ", ") + side.Team;
    for (const int figure : {side.Goals, side.Shots, side.Corners, side.Bookings, side.Fouls})
      text += " " + std::to_string(figure);
    text += " " + std::to_string(side.PossessionPercent) + "%";
  }
  return text;
}

/// The display with its lamp, the side that has the ball, and the ball's place.
inline std::string Shown(const MatchSession& s) {
  constexpr const char* Lamps[] = {"", " (green)", " (red)"};
  return s.Controls.Label3 + Lamps[static_cast<std::size_t>(s.Controls.Label2)] + ", " +
         std::to_string(s.BallSide) + " at " + std::to_string(s.BallX) + " " + std::to_string(s.BallY);
}

}  // namespace kickwell
