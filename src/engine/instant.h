// A whole match computed at once.
#pragma once

#include "base/random.h"
#include "engine/announcement.h"
#include "engine/match_session.h"
#include "engine/recording.h"

namespace kickwell {

class Instant {
 public:
  Instant(MatchSession& session, Random& random, Announcement& announcement, Recording& recording)
      : session_(session), random_(random), announcement_(announcement), recording_(recording) {}

  /// Plays the match to its announced result and then draws the match facts that the screen shows. Does
  /// nothing once the match has been played.
  void instant_Click();

 private:
  void InstantMain();
  void InstantScores(int minute, int second);  ///< One second of play.
  void InstantPenalty();
  void DrawFacts();

  MatchSession& session_;
  Random& random_;
  Announcement& announcement_;
  Recording& recording_;
};

}  // namespace kickwell
