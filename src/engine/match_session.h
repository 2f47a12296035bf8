// The state of the match being played.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/item_list.h"
#include "base/random.h"
#include "engine/match_setup.h"

namespace kickwell {

/// One end of the pitch and the team that plays there now. When the teams change ends, each takes along all
/// that Simulation::SwapData names.
struct Side {
  std::string Team{};
  int Goals = 0;
  int GoalRange = 0;                    ///< A goal draw is out of 0..GoalRange-1; one number scores.
  int Draw = 0;                         ///< The last goal draw.
  std::vector<std::string> Outfield{};  ///< The team's ten outfield players.
  int Shots = 0, Corners = 0, Bookings = 0, Fouls = 0;
  int PossessionPercent = 0;
  int Penalties = 0;   ///< Scored in the shoot-out.
  int FinalGoals = 0;  ///< When play ended. An instant shoot-out leaves them 0.

  bool operator==(const Side&) const = default;

  /// One of its players as the summary names him.
  std::string Naming(const std::string& player) const { return player + " (" + Team + ")"; }
};

/// What is played, or what the period button offers to start while it is enabled.
enum class MatchPeriod { FirstHalf, SecondHalf, ExtraTimeFirstHalf, ExtraTimeSecondHalf, PenaltyShootOut };

/// The period button's caption, with its access key.
std::string_view ToText(MatchPeriod period);

constexpr bool IsExtraTime(MatchPeriod period) {
  return period == MatchPeriod::ExtraTimeFirstHalf || period == MatchPeriod::ExtraTimeSecondHalf;
}

inline constexpr int SecondsPerMinute = 60;

/// The minutes at which the periods end.
inline constexpr int HalfTime = 45, FullTime = 90, ExtraHalfTime = 105, ExtraFullTime = 120;

inline constexpr int CentreSpotX = 2520, CentreSpotY = 390;

/// The lamp behind the clock and its messages. A goal or a missed penalty lights it.
enum class Lamp { Black, Green, Red };

/// A place of the ball in the shoot-out's picture, in screen units.
struct SpotPoint {
  int Left, Top;

  bool operator==(const SpotPoint&) const = default;
};

inline constexpr SpotPoint PenaltySpot{1250, 1400};
inline constexpr int KickCount = 20;  ///< Ten each at most, counted from 0. Side 1 takes the even ones.

/// A kick of the shoot-out: black until it is taken, then red or green.
struct KickMarker {
  bool Visible = false;
  Lamp Colour = Lamp::Black;
};

/// What the match screen shows besides the figures, named after its controls.
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
    for (KickMarker& marker : std::span(penalty).first<KickCount / 2>()) marker.Visible = true;
  }

  void ShowMessage(Lamp lamp, std::string message) {
    Label2 = lamp;
    Label3 = std::move(message);
  }
  void ClearMessage() { ShowMessage(Lamp::Black, ""); }
};

/// One match from the opening of its screen to the recorded result. Text is UTF-8.
struct MatchSession {
  /// As handed over. The attackers stay with team 1 and team 2 when the teams change ends.
  MatchSetup Setup;

  int Minute = 0, Second = 0;
  MatchPeriod Period = MatchPeriod::FirstHalf;
  std::string ClockText;     ///< "09:05" or "105:00".
  Side Side1, Side2;         ///< Shown left and right; team 1 starts on side 1.
  int GoalNumber = 0;        ///< The goal draw that scores in this match, 0..99.
  int BallSide = 0;          ///< The side that has the ball, 1 or 2; 0 for none.
  int BallX = 0, BallY = 0;  ///< The ball marker on the pitch, 0..5090 by 0..740 screen units.

  std::string Venue;
  int Capacity = 0;
  std::optional<WeatherKind> Weather;  ///< None in a championship match without a stadium list.
  int Attendance = 0, AttendancePercent = 0;
  bool ExtraTime = false, PenaltyShootOut = false;

  std::string LastScorer, LastScoringTeam;
  std::string PhrasePlayer;      ///< The player that the commentary's next phrase names.
  std::string SummaryLine;       ///< The last line of play or result written to the summary.
  ItemList Summary, Commentary;  ///< The picked line is the one that the screen keeps in view.

  int ShotNumber = 0;    ///< The next kick, from 0.
  int ShotDraw = 0;      ///< Of the last kick, 0..44.
  int PenaltyTaker = 0;  ///< The last taker's place in his side's pool.

  // The result, filled by the announcement.
  std::string WinnerName, LoserName;    ///< Side 1's team and side 2's where the score is level.
  int WinnerGoals = 0, LoserGoals = 0;  ///< LoserGoals is not set where the score is level.
  std::string ResultText;  ///< The winner; "Match Tied"; or the winner of the toss and " (By Toss)".
  bool DecidedByShootOut = false;

  MatchControls Controls;
  bool UserLeft = false;  ///< The screen closes.

  bool IsLevel() const { return Side1.Goals == Side2.Goals; }
  bool IsOver() const { return !ResultText.empty(); }  ///< The result has been announced.
  bool GoldenGoalFell() const { return IsExtraTime(Period) && !IsLevel(); }
  void KeepFinalGoals() {
    Side1.FinalGoals = Side1.Goals;
    Side2.FinalGoals = Side2.Goals;
  }

  /// The side that has the ball, and the other one. Only while one has it.
  Side& WithBall() { return BallSide == 1 ? Side1 : Side2; }
  Side& WithoutBall() { return BallSide == 1 ? Side2 : Side1; }

  /// The side that takes a kick of the shoot-out.
  Side& Taking(int kick) { return kick % 2 == 0 ? Side1 : Side2; }

  void CentreBall() {
    BallX = CentreSpotX;
    BallY = CentreSpotY;
  }
};

/// Minutes and seconds, each with at least two digits, joined by ":".
std::string ClockReading(int minute, int second);

/// The crowd as the screen shows it and the results log keeps it.
std::string AttendanceText(const MatchSession& session);

/// Draws the possession figures that the screen shows: 30 to 69 for side 1, the rest of 100 for side 2.
void DrawPossession(MatchSession& session, Random& random);

/// Adds a line and makes it the one in view.
void AddLine(ItemList& list, std::string line);

}  // namespace kickwell
