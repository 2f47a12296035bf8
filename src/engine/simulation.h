// The play of a simulated match, a minute at a time.
#pragma once

#include "base/desktop.h"
#include "base/random.h"
#include "engine/commentary.h"
#include "engine/match_screen.h"
#include "engine/match_session.h"
#include "engine/recording.h"

namespace kickwell {

class Simulation {
 public:
  Simulation(MatchSession& session, Random& random, Desktop& desktop, Recording& recording)
      : session_(session),
        random_(random),
        desktop_(desktop),
        recording_(recording),
        commentator_(session, random) {}

  /// Plays a minute: sixty seconds, then its ball, shot, foul and possession figure. A golden goal stops the
  /// timer and the seconds. When the user leaves the match in a goal pause, the rest of the minute is not
  /// played.
  void MainFunction(MatchScreen& screen);

  /// The teams change ends, each with its score, goal range, facts and players; the ball goes to the centre
  /// spot. The last draws stay, and so does who has the ball.
  void SwapData();

  /// The ball goes to the centre spot and nobody has it.
  void BreakPosition();

 private:
  void PlaySecond(bool commented, MatchScreen& screen);
  void CalculationMain(MatchScreen& screen);
  void Goal(Side& side, MatchScreen& screen);
  void TryShot();
  void TryFoul();

  MatchSession& session_;
  Random& random_;
  Desktop& desktop_;
  Recording& recording_;
  Commentator commentator_;
};

}  // namespace kickwell
