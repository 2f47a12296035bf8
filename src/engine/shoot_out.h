// The penalty shoot-out that the user steps through kick by kick.
#pragma once

#include "base/desktop.h"
#include "base/random.h"
#include "engine/announcement.h"
#include "engine/commentary.h"
#include "engine/match_session.h"

namespace kickwell {

/// Whether a shoot-out is decided once `kicks` have been taken: five each, with an early end when one side is
/// far enough ahead, then pair by pair.
bool IsDecided(const MatchSession& session, int kicks);

class ShootOut {
 public:
  ShootOut(MatchSession& session, Random& random, Desktop& desktop, Announcement& announcement)
      : session_(session),
        random_(random),
        desktop_(desktop),
        announcement_(announcement),
        commentator_(session, random) {}

  void kick_Click();      ///< Takes the next penalty. Nothing while the button is disabled.
  void nextshot_Click();  ///< Brings the next taker to the spot. Nothing while the button is disabled.

 private:
  void PenaltyCall();
  void Miss(const Side& side, KickMarker& marker);
  void Goal(Side& side, KickMarker& marker);
  void DrawTaker(const Side& side);
  void Tell(const Side& side, Phrases phrases);

  MatchSession& session_;
  Random& random_;
  Desktop& desktop_;
  Announcement& announcement_;
  Commentator commentator_;
};

}  // namespace kickwell
