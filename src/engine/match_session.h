// The state of the match being played.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/chooser.h"
#include "engine/match_setup.h"

namespace kickwell {

/// One end of the pitch with the team that plays there now: everything that moves with a team when the teams
/// change ends.
struct Side {
  std::string Team;
  int Goals = 0;
  int GoalRange = 0;  ///< The goal draw of a second is out of 0..GoalRange-1; one number scores.
  std::vector<std::string> Outfield;  ///< The team's ten outfield players.
  int Shots = 0, Corners = 0, Bookings = 0, Fouls = 0;
  int PossessionPercent = 0;
};

/// The lamp behind the clock, which also carries the messages: lit after a goal or a missed penalty.
enum class Lamp { Black, Green, Red };

/// What the match screen shows beside the figures, named after its controls.
struct MatchControls {
  std::string Label3 = "00:00";  ///< Clock and messages: green on the black lamp, black on a lit one.
  Lamp Label2 = Lamp::Black;
  bool halftimeVisible = true;
  bool instantVisible = false, instantEnabled = true;
  bool PensVisible = false;  ///< Pen1 and Pen2 are shown; the goals make room for them.
  bool Option1Enabled = true;
  int Option1 = 1;  ///< The view: 0 commentary, 1 summary.
};

/// One match from the opening of its screen to the recorded result. Text is UTF-8.
struct MatchSession {
  MatchSetup
      Setup;  ///< As handed over; the attackers' pools stay with team 1 and team 2 through every change.

  int Minute = 0, Second = 0;
  std::string ClockText;  ///< Minutes and seconds, each with two digits at least: "09:05", "105:00".
  Side Side1, Side2;      ///< Shown left and right; team 1 starts on side 1.
  int Side1Draw = 0, Side2Draw = 0;  ///< The last goal draws.
  int GoalNumber = 0;                ///< The goal draw that scores in this match, 0..99.
  int BallX = 0, BallY = 0;          ///< The ball marker on the pitch, 0..5090 by 0..740 screen units.

  std::string Venue;
  int Capacity = 0;
  std::optional<WeatherCondition> Weather;  ///< None in a championship match without a stadium list.
  int Attendance = 0, AttendancePercent = 0;
  bool ExtraTime = false, PenaltyShootOut = false;

  std::string LastScorer, LastScoringTeam;
  std::string SummaryLine;      ///< The last line of play or result written to the summary.
  Chooser Summary, Commentary;  ///< The two line lists; the newest line is picked so that it stays in view.

  int Side1Penalties = 0, Side2Penalties = 0;  ///< Scored in the shoot-out.

  // The result, filled by the announcement.
  int Side1FinalGoals = 0,
      Side2FinalGoals = 0;              ///< When play ended; stay 0 where an instant shoot-out follows.
  std::string WinnerName, LoserName;    ///< Side 1's team and side 2's where the score is level.
  int WinnerGoals = 0, LoserGoals = 0;  ///< LoserGoals is not set where the score is level.
  std::string ResultText;  ///< The winner; "Match Tied"; or the winner of the toss and " (By Toss)".
  bool DecidedByShootOut = false;

  MatchControls Controls;
};

inline constexpr int CentreSpotX = 2520, CentreSpotY = 390;

/// Minutes and seconds, each with at least two digits, joined by ":".
std::string ClockText(int minute, int second);

/// The crowd as the screen shows it and the results log keeps it.
std::string AttendanceText(const MatchSession& session);

/// Adds a line and makes it the one in view.
void AddLine(Chooser& list, std::string line);

}  // namespace kickwell
