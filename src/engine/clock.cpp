#include "engine/clock.h"

#include <utility>

namespace kickwell {

void Clock::Timer1_Timer(MatchScreen& screen) {
  if (!session_.Controls.Timer1Enabled) return;
  simulation_.MainFunction(screen);
  if (!session_.Left) TimeCheck();
}

void Clock::halftime_Click() {
  MatchSession& s = session_;
  if (!s.Controls.halftimeEnabled) return;
  desktop_.PlaySound(Sound::Whistle);
  switch (s.Period) {
    case Period::FirstHalf:
      commentator_.Say("Here's the kick off");
      commentator_.Say("The match is between " + s.Side1.Team + " and " + s.Side2.Team);
      Start(0);
      break;
    case Period::SecondHalf:
      commentator_.Say("Play for the 2nd half gets underway");
      simulation_.SwapData();
      Start(45);
      break;
    case Period::ExtraTimeFirstHalf:
      s.Commentary.Add("Referee starts the extra time");
      simulation_.SwapData();
      Start(90);
      break;
    case Period::ExtraTimeSecondHalf:
      s.Commentary.Add("Extra time 2nd half gets underway");
      simulation_.SwapData();
      Start(105);
      break;
    case Period::PenaltyShootOut:
      commentator_.Say("Players getting ready for the shoot out");
      ShowShootOut();
  }
}

void Clock::Start(int minute) {
  MatchSession& s = session_;
  s.Minute = minute;
  s.Second = 0;
  s.ClockText = ClockText(minute, 0);
  s.Controls.Label3 = s.ClockText;
  s.Controls.halftimeEnabled = false;
  s.Controls.Timer1Enabled = true;
}

void Clock::ShowShootOut() {
  MatchSession& s = session_;
  MatchControls& controls = s.Controls;
  controls.ShootOutVisible = true;
  controls.PensVisible = true;
  controls.Label3.clear();
  controls.halftimeVisible = false;
  controls.kickEnabled = true;
}

void Clock::TimeCheck() {
  MatchSession& s = session_;
  if (IsExtraTime(s.Period) && s.Side1.Goals != s.Side2.Goals) {
    GoldenGoal();
  } else if (s.Second == 0 && s.Minute == 45) {
    EndOfHalf("Here comes the half time whistle", Period::SecondHalf);
  } else if (s.Second == 0 && s.Minute == 90) {
    EndOfNormalTime();
  } else if (s.Second == 0 && s.Minute == 105) {
    EndOfHalf("Extra Time 1st half comes to an end", Period::ExtraTimeSecondHalf);
  } else if (s.Second == 0 && s.Minute == 120) {
    EndOfExtraTime();
  }
}

void Clock::StopClock(std::string line) {
  session_.Controls.Timer1Enabled = false;
  desktop_.PlaySound(Sound::Whistle);
  commentator_.Say(std::move(line));
}

void Clock::Offer(Period next) {
  session_.Period = next;
  session_.Controls.halftimeEnabled = true;
}

void Clock::EndOfHalf(std::string line, Period next) {
  StopClock(std::move(line));
  Offer(next);
  simulation_.BreakPosition();
}

bool Clock::LevelAtTheEnd() {
  session_.KeepFinalGoals();
  return session_.Side1.FinalGoals == session_.Side2.FinalGoals;
}

void Clock::EndOfNormalTime() {
  StopClock("Referee blows the full time whistle");
  if (LevelAtTheEnd() && session_.ExtraTime) {
    commentator_.Say("The match goes into extra time");
    Offer(Period::ExtraTimeFirstHalf);
  } else {
    announcement_.ShowResult();
  }
  simulation_.BreakPosition();
}

void Clock::EndOfExtraTime() {
  MatchSession& s = session_;
  StopClock("The match remains undecided after Extra Time 2nd half");
  if (LevelAtTheEnd() && s.PenaltyShootOut) {
    commentator_.Say("The match goes into penalty shoot out");
    s.SummaryLine = "PENALTY SHOOT OUT!";
    AddLine(s.Summary, s.SummaryLine);
    Offer(Period::PenaltyShootOut);
  } else {
    announcement_.ShowResult();
  }
  simulation_.BreakPosition();
}

void Clock::GoldenGoal() {
  MatchSession& s = session_;
  LevelAtTheEnd();
  s.SummaryLine = "GOLDEN GOAL!";
  AddLine(s.Summary, s.SummaryLine);
  commentator_.Say("Referee blows the final whistle");
  commentator_.Say("The match ends with a Golden Goal");
  simulation_.BreakPosition();
  announcement_.ShowResult();
}

}  // namespace kickwell
