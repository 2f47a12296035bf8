// The state of the match being played.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/item_list.h"
#include "base/random.h"
#include "engine/match_setup.h"

namespace kickwell {

/// One end of the pitch and the team that plays there now. When the teams change ends, all of it goes with
/// the team.
struct Side {
  std::string Team;
  int Goals = 0;
  int GoalRange = 0;                  ///< A goal draw is out of 0..GoalRange-1; one number scores.
  int Draw = 0;                       ///< The last goal draw.
  std::vector<std::string> Outfield;  ///< The team's ten outfield players.
  int Shots = 0, Corners = 0, Bookings = 0, Fouls = 0;
  int PossessionPercent = 0;
  int Penalties = 0;   ///< Scored in the shoot-out.
  int FinalGoals = 0;  ///< When play ended; stay 0 where an instant shoot-out follows.
};

/// What is played, or what the period button offers to start while it is enabled.
enum class Period { FirstHalf, SecondHalf, ExtraTimeFirstHalf, ExtraTimeSecondHalf, PenaltyShootOut };

/// The period button's caption, with its access key.
std::string_view ToText(Period period);

constexpr bool IsExtraTime(Period period) {
  return period == Period::ExtraTimeFirstHalf || period == Period::ExtraTimeSecondHalf;
}

/// The lamp behind the clock, which also carries the messages: lit after a goal or a missed penalty.
enum class Lamp { Black, Green, Red };

/// A place of the ball in the shoot-out's picture, in screen units from its left and top.
struct SpotPoint {
  int Left, Top;

  bool operator==(const SpotPoint&) const = default;
};

inline constexpr SpotPoint PenaltySpot{1250, 1400};
inline constexpr int KickCount = 20;  ///< Ten each at the most; even kicks are side 1's.

/// A kick of the shoot-out: black until it is taken, then red or green.
struct KickMarker {
  bool Visible = false;
  Lamp Colour = Lamp::Black;
};

/// What the match screen shows beside the figures, named after its controls.
struct MatchControls {
  std::string Label3 = "00:00";  ///< Clock and messages: green on the black lamp, black on a lit one.
  Lamp Label2 = Lamp::Black;
  bool Timer1Enabled = false;  ///< A period is being played.
  bool halftimeVisible = true, halftimeEnabled = true;
  bool instantVisible = false, instantEnabled = true;
  bool PensVisible = false;  ///< Pen1 and Pen2 are shown; the goals make room for them.
  bool Option1Enabled = true;
  int Option1 = 1;  ///< The view: 0 commentary, 1 summary.

  bool ShootOutVisible = false;  ///< The goal with its markers and buttons stands in the pitch's place.
  bool kickEnabled = false, nextshotEnabled = false;
  SpotPoint Shape2 = PenaltySpot;  ///< The ball in front of the goal.
  std::array<KickMarker, KickCount> penalty;

  MatchControls() {
    for (std::size_t i = 0; i < KickCount / 2; ++i) penalty[i].Visible = true;
  }
};

/// One match from the opening of its screen to the recorded result. Text is UTF-8.
struct MatchSession {
  MatchSetup
      Setup;  ///< As handed over; the attackers' pools stay with team 1 and team 2 through every change.

  int Minute = 0, Second = 0;
  kickwell::Period Period = kickwell::Period::FirstHalf;
  std::string ClockText;     ///< Minutes and seconds, each with two digits at least: "09:05", "105:00".
  Side Side1, Side2;         ///< Shown left and right; team 1 starts on side 1.
  int GoalNumber = 0;        ///< The goal draw that scores in this match, 0..99.
  int BallSide = 0;          ///< The side that has the ball, 1 or 2; 0 for none.
  int BallX = 0, BallY = 0;  ///< The ball marker on the pitch, 0..5090 by 0..740 screen units.

  std::string Venue;
  int Capacity = 0;
  std::optional<WeatherCondition> Weather;  ///< None in a championship match without a stadium list.
  int Attendance = 0, AttendancePercent = 0;
  bool ExtraTime = false, PenaltyShootOut = false;

  std::string LastScorer, LastScoringTeam;
  std::string PhrasePlayer;      ///< The player that the commentary's next phrase names.
  std::string SummaryLine;       ///< The last line of play or result written to the summary.
  ItemList Summary, Commentary;  ///< The two line lists; the newest line is picked so that it stays in view.

  int ShotNumber = 0;    ///< The next kick, from 0.
  int ShotDraw = 0;      ///< Of the last kick, 0..44.
  int PenaltyTaker = 0;  ///< The last taker's place in his side's pool.

  // The result, filled by the announcement.
  std::string WinnerName, LoserName;    ///< Side 1's team and side 2's where the score is level.
  int WinnerGoals = 0, LoserGoals = 0;  ///< LoserGoals is not set where the score is level.
  std::string ResultText;  ///< The winner; "Match Tied"; or the winner of the toss and " (By Toss)".
  bool DecidedByShootOut = false;

  MatchControls Controls;
  bool Left = false;  ///< The user has left the match; its screen closes.

  void KeepFinalGoals() {
    Side1.FinalGoals = Side1.Goals;
    Side2.FinalGoals = Side2.Goals;
  }

  /// The side that has the ball, and the other one. Only while one has it.
  Side& WithBall() { return BallSide == 1 ? Side1 : Side2; }
  Side& WithoutBall() { return BallSide == 1 ? Side2 : Side1; }
};

inline constexpr int SecondsPerMinute = 60;

inline constexpr int CentreSpotX = 2520, CentreSpotY = 390;

/// Minutes and seconds, each with at least two digits, joined by ":".
std::string ClockText(int minute, int second);

/// The crowd as the screen shows it and the results log keeps it.
std::string AttendanceText(const MatchSession& session);

/// Draws the possession figures that the screen shows: side 1's from 30 to 69, side 2's the rest of 100.
void ShowPossession(MatchSession& session, Random& random);

/// Adds a line and makes it the one in view.
void AddLine(ItemList& list, std::string line);

}  // namespace kickwell
