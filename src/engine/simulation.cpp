#include "engine/simulation.h"

#include <array>
#include <string>
#include <utility>

#include "engine/goal.h"

namespace kickwell {
namespace {

constexpr int PitchWidth = 5091, PitchHeight = 741;  ///< Places of the ball marker.
constexpr int Side1ShootsFrom = 4080, Side2ShootsFrom = 960;
constexpr int GoalSpotY = 390, Side1GoalSpotX = 5090, Side2GoalSpotX = 0;
constexpr int FoulDraws = 70, FoulDraw = 35;                            ///< One minute in so many has a foul.
constexpr std::array PossessionSides = {1, 1, 2, 2, 1, 1, 2, 2, 1, 2};  ///< By draw.

}  // namespace

void Simulation::MainFunction(MatchScreen& screen) {
  MatchSession& s = session_;
  const bool commented = random_.Int(4) == 0;
  if (commented) {
    commentator_.Say("We're into minute " + std::to_string(s.Minute + 1) + " here...");
    commentator_.Say("And the scoreline is " + std::to_string(s.Side1.Goals) + "-" +
                     std::to_string(s.Side2.Goals));
  }
  for (int second = 0; second < SecondsPerMinute; ++second) {
    PlaySecond(commented, screen);
    if (s.UserLeft) return;
    if (s.GoldenGoalFell()) {
      s.Controls.Timer1Enabled = false;
      break;
    }
  }
  // Between the seconds, only a goal lets the user see the clock. "GOAL!" stays after one in the last second.
  s.ClockText = ClockReading(s.Minute, s.Second);
  if (s.Controls.Label2 == Lamp::Black) s.Controls.Label3 = s.ClockText;
  s.BallX = random_.Int(PitchWidth);
  s.BallY = random_.Int(PitchHeight);
  TryShot();
  TryFoul();
  if (random_.Int(3) == 1) DrawPossession(s, random_);
}

void Simulation::PlaySecond(bool commented, MatchScreen& screen) {
  MatchSession& s = session_;
  s.Controls.Label2 = Lamp::Black;
  s.BallSide = PickFrom(PossessionSides, random_);
  if (++s.Second == SecondsPerMinute) {
    s.Second = 0;
    ++s.Minute;
  }
  CalculationMain(screen);
  if (commented && !s.UserLeft) commentator_.CommentaryMain();
}

void Simulation::CalculationMain(MatchScreen& screen) {
  if (Side* const side = DrawGoal(session_, random_)) Goal(*side, screen);
}

void Simulation::Goal(Side& side, MatchScreen& screen) {
  MatchSession& s = session_;
  const bool isSide1 = &side == &s.Side1;
  s.BallX = isSide1 ? Side1GoalSpotX : Side2GoalSpotX;
  s.BallY = GoalSpotY;
  ++side.Goals;
  ++side.Shots;
  desktop_.PlaySound(Sound::Goal);
  s.ClockText = ClockReading(s.Minute, s.Second);
  CreditGoal(s, side, random_);
  recording_.StoreScorer(s);
  s.BallSide = isSide1 ? 1 : 2;
  s.PhrasePlayer = s.LastScorer;
  commentator_.SayOneOf(GoalPhrases);
  commentator_.Say("And its a GOAL!!");
  commentator_.Say(isSide1 ? "The players are celebrating" : "It's celebration time");
  AddLine(s.Summary, s.SummaryLine);
  s.Controls.ShowMessage(Lamp::Green, "GOAL!");
  screen.Refresh();
  screen.PauseFunction();
}

void Simulation::TryShot() {
  MatchSession& s = session_;
  const bool shoots = s.BallSide == 1 ? s.BallX >= Side1ShootsFrom : s.BallX <= Side2ShootsFrom;
  if (!shoots) return;
  Side& side = s.WithBall();
  ++side.Shots;
  s.PhrasePlayer = PickFrom(side.Outfield, random_);
  commentator_.AfterShot();
}

void Simulation::TryFoul() {
  if (random_.Int(FoulDraws) != FoulDraw) return;
  Side& side = session_.WithoutBall();
  ++side.Fouls;
  session_.PhrasePlayer = PickFrom(side.Outfield, random_);
  commentator_.AfterFoul();
}

void Simulation::SwapData() {
  Side &a = session_.Side1, &b = session_.Side2;
  std::swap(a.Team, b.Team);
  std::swap(a.Outfield, b.Outfield);
  for (int Side::*const figure : {&Side::Goals, &Side::GoalRange, &Side::Shots, &Side::Corners,
                                  &Side::Bookings, &Side::Fouls, &Side::PossessionPercent})
    std::swap(a.*figure, b.*figure);
  session_.CentreBall();
}

void Simulation::BreakPosition() {
  session_.CentreBall();
  session_.BallSide = 0;
}

}  // namespace kickwell
