// The match clock: periods, their ends, and what follows them.
#pragma once

#include "base/desktop.h"
#include "engine/announcement.h"
#include "engine/commentary.h"
#include "engine/match_screen.h"
#include "engine/match_session.h"
#include "engine/simulation.h"

namespace kickwell {

class Clock {
 public:
  Clock(MatchSession& session, Random& random, Desktop& desktop, Simulation& simulation,
        Announcement& announcement)
      : session_(session),
        desktop_(desktop),
        simulation_(simulation),
        announcement_(announcement),
        commentator_(session, random) {}

  /// One tick of the timer: plays a minute and checks the time. Nothing while no period is being played.
  void Timer1_Timer(MatchScreen& screen);

  /// Starts the period that the period button names. Nothing while the button is disabled.
  void halftime_Click();

 private:
  void TimeCheck();
  void EndOfHalf(std::string line, MatchPeriod next);
  void EndOfNormalTime();
  void EndOfExtraTime();
  void GoldenGoal();
  void StopClock(std::string line);
  void Offer(MatchPeriod next);
  void Start(int minute);
  void ShowShootOut();

  MatchSession& session_;
  Desktop& desktop_;
  Simulation& simulation_;
  Announcement& announcement_;
  Commentator commentator_;
};

}  // namespace kickwell
