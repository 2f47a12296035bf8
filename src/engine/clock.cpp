#include "engine/clock.h"

#include <utility>

namespace kickwell {

void Clock::Timer1_Timer(MatchScreen& screen) {
  if (!session_.Controls.Timer1Enabled) return;
  simulation_.MainFunction(screen);
  if (!session_.UserLeft) TimeCheck();
}

void Clock::halftime_Click() {
  MatchSession& s = session_;
  if (!s.Controls.halftimeVisible || !s.Controls.halftimeEnabled) return;
  desktop_.PlaySound(Sound::Whistle);
  switch (s.Period) {
    case MatchPeriod::FirstHalf:
      commentator_.Say("Here's the kick off");
      commentator_.Say("The match is between " + s.Side1.Team + " and " + s.Side2.Team);
      Start(0);
      break;
    case MatchPeriod::SecondHalf:
      commentator_.Say("Play for the 2nd half gets underway");
      simulation_.SwapData();
      Start(HalfTime);
      break;
    case MatchPeriod::ExtraTimeFirstHalf:
      s.Commentary.Add("Referee starts the extra time");
      simulation_.SwapData();
      Start(FullTime);
      break;
    case MatchPeriod::ExtraTimeSecondHalf:
      s.Commentary.Add("Extra time 2nd half gets underway");
      simulation_.SwapData();
      Start(ExtraHalfTime);
      break;
    case MatchPeriod::PenaltyShootOut:
      commentator_.Say("Players getting ready for the shoot out");
      ShowShootOut();
  }
}

void Clock::Start(int minute) {
  MatchSession& s = session_;
  s.Minute = minute;
  s.Second = 0;
  s.ClockText = ClockReading(minute, 0);
  s.Controls.Label3 = s.ClockText;
  s.Controls.halftimeEnabled = false;
  s.Controls.Timer1Enabled = true;
}

void Clock::ShowShootOut() {
  MatchControls& controls = session_.Controls;
  controls.ShootOutVisible = true;
  controls.PensVisible = true;
  controls.Label3.clear();
  controls.halftimeVisible = false;
  controls.kickEnabled = true;
}

void Clock::TimeCheck() {
  if (session_.GoldenGoalFell()) {
    GoldenGoal();
    return;
  }
  if (session_.Second != 0) return;
  switch (session_.Minute) {
    case HalfTime:
      EndOfHalf("Here comes the half time whistle", MatchPeriod::SecondHalf);
      break;
    case FullTime:
      EndOfNormalTime();
      break;
    case ExtraHalfTime:
      EndOfHalf("Extra Time 1st half comes to an end", MatchPeriod::ExtraTimeSecondHalf);
      break;
    case ExtraFullTime:
      EndOfExtraTime();
      break;
    default:
      break;
  }
}

void Clock::StopClock(std::string line) {
  session_.Controls.Timer1Enabled = false;
  desktop_.PlaySound(Sound::Whistle);
  commentator_.Say(std::move(line));
}

void Clock::Offer(MatchPeriod next) {
  session_.Period = next;
  session_.Controls.halftimeEnabled = true;
}

void Clock::EndOfHalf(std::string line, MatchPeriod next) {
  StopClock(std::move(line));
  Offer(next);
  simulation_.BreakPosition();
}

void Clock::EndOfNormalTime() {
  StopClock("Referee blows the full time whistle");
  session_.KeepFinalGoals();
  if (session_.IsLevel() && session_.ExtraTime) {
    commentator_.Say("The match goes into extra time");
    Offer(MatchPeriod::ExtraTimeFirstHalf);
  } else {
    announcement_.ShowResult();
  }
  simulation_.BreakPosition();
}

void Clock::EndOfExtraTime() {
  MatchSession& s = session_;
  StopClock("The match remains undecided after Extra Time 2nd half");
  s.KeepFinalGoals();
  if (s.IsLevel() && s.PenaltyShootOut) {
    commentator_.Say("The match goes into penalty shoot out");
    s.SummaryLine = "PENALTY SHOOT OUT!";
    AddLine(s.Summary, s.SummaryLine);
    Offer(MatchPeriod::PenaltyShootOut);
  } else {
    announcement_.ShowResult();
  }
  simulation_.BreakPosition();
}

void Clock::GoldenGoal() {
  MatchSession& s = session_;
  s.KeepFinalGoals();
  s.SummaryLine = "GOLDEN GOAL!";
  AddLine(s.Summary, s.SummaryLine);
  commentator_.Say("Referee blows the final whistle");
  commentator_.Say("The match ends with a Golden Goal");
  simulation_.BreakPosition();
  announcement_.ShowResult();
}

}  // namespace kickwell
