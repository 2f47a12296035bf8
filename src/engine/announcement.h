// The end of a match: the result in the summary and the commentary, and on to the recording.
#pragma once

#include "base/random.h"
#include "engine/match_session.h"
#include "engine/recording.h"

namespace kickwell {

class Announcement {
 public:
  Announcement(MatchSession& session, Random& random, Recording& recording)
      : session_(session), random_(random), recording_(recording) {}

  /// Announces the result of play from the final goals and records it, except for a knock-out match that is
  /// level: that one waits for PenResult.
  void ShowResult();

  /// Announces the shoot-out, settles a level one by toss, and records a knock-out match.
  void PenResult();

 private:
  void Beats(const Side& winner, const Side& loser);
  void WinsShootOut(const Side& winner, const Side& loser);

  MatchSession& session_;
  Random& random_;
  Recording& recording_;
};

}  // namespace kickwell
