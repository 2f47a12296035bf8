// Where the results of championship matches are taken down.
#pragma once

#include "engine/match_session.h"

namespace kickwell {

/// Each call reads the session as it stands and records nothing for a friendly.
class Recording {
 public:
  Recording() = default;
  Recording(const Recording&) = delete;
  Recording& operator=(const Recording&) = delete;
  virtual ~Recording() = default;

  virtual void StoreScorer(const MatchSession& session) = 0;        ///< The goal just credited.
  virtual void StoreResult(const MatchSession& session) = 0;        ///< The standings of a league.
  virtual void StoreLeagueResult(const MatchSession& session) = 0;  ///< The results log and the fixture.
};

}  // namespace kickwell
