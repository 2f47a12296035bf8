// What the engine needs of whoever takes the results of championship matches down.
#pragma once

#include "engine/match_session.h"

namespace kickwell {

/// Each call takes the session as it stands and records nothing for a friendly. Of a match that is left
/// before its last call, nothing stays.
class Recording {
 public:
  Recording() = default;
  Recording(const Recording&) = delete;
  Recording& operator=(const Recording&) = delete;
  virtual ~Recording() = default;

  /// The goal just credited. Players of one name share one tally; the team of the first goal stays.
  virtual void StoreScorer(const MatchSession& session) = 0;

  /// The standings of a league: three points for a win, one each for a draw.
  virtual void StoreResult(const MatchSession& session) = 0;

  /// The last of a match: the results log, the fixture's mark and, in a knock-out, the winner's way into the
  /// next round.
  virtual void StoreLeagueResult(const MatchSession& session) = 0;

  /// The user leaves the match, be it over or not.
  virtual void MatchLeft() = 0;
};

}  // namespace kickwell
