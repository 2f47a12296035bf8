#include "engine/instant.h"

#include <cstdlib>

#include "engine/goal.h"

namespace kickwell {
namespace {

constexpr int InstantKicks = 30;  ///< After these a level shoot-out is over.

/// Whether the shoot-out is decided before kick `k` (from 0) with the two counts `lead` apart.
bool DecidedBefore(int k, int lead) {
  if (k == 6 || k == 7) return lead >= 3;
  if (k == 8 || k == 9) return lead >= 2;
  return k >= 10 && k % 2 == 0 && lead != 0;
}

}  // namespace

void Instant::instant_Click() {
  if (!session_.Controls.instantEnabled) return;
  InstantMain();
  DrawFacts();
}

void Instant::InstantMain() {
  MatchSession& s = session_;
  for (int minute = 1; minute <= 89; ++minute) {
    for (int second = 0; second < SecondsPerMinute; ++second) {
      InstantScores(minute, second);
    }
  }
  const auto level = [&s] { return s.Side1.Goals == s.Side2.Goals; };
  if (s.ExtraTime && level()) {
    for (int minute = 91; minute <= 119 && level(); ++minute) {
      for (int second = 0; second < SecondsPerMinute && level(); ++second) {
        if (InstantScores(minute, second)) AddLine(s.Summary, "GOLDEN GOAL!");
      }
    }
  }
  if (s.PenaltyShootOut && level()) {
    AddLine(s.Summary, "PENALTY SHOOT OUT!");
    InstantPenalty();
  } else {
    s.KeepFinalGoals();
    announcement_.ShowResult();
  }
  s.Controls.instantEnabled = false;
}

bool Instant::InstantScores(int minute, int second) {
  Side* const side = DrawGoal(session_, random_);
  if (side == nullptr) return false;
  session_.ClockText = ClockText(minute, second);
  ++side->Goals;
  CreditGoal(session_, *side, random_);
  recording_.StoreScorer(session_);
  AddLine(session_.Summary, session_.SummaryLine);
  return true;
}

void Instant::InstantPenalty() {
  MatchSession& s = session_;
  s.Controls.PensVisible = true;
  for (int k = 0; k < InstantKicks; ++k) {
    if (DecidedBefore(k, std::abs(s.Side1.Penalties - s.Side2.Penalties))) break;
    Side& side = k % 2 == 0 ? s.Side1 : s.Side2;
    const bool goal = random_.Int(2) == 1;
    const std::string taker = PickFrom(side.Outfield, random_);
    if (!goal) continue;
    AddLine(s.Summary, taker + " (" + side.Team + ")");
    ++side.Penalties;
  }
  announcement_.ShowResult();
  announcement_.PenResult();
}

void Instant::DrawFacts() {
  Side& side1 = session_.Side1;
  Side& side2 = session_.Side2;
  ShowPossession(session_, random_);
  for (Side* side : {&side1, &side2}) {
    side->Fouls = random_.Int(4);
    side->Bookings = random_.Int(side->Fouls);
  }
  for (Side* side : {&side1, &side2}) side->Corners = random_.Int(5);
  for (Side* side : {&side1, &side2}) side->Shots = random_.Int(5) + side->Goals;
}

}  // namespace kickwell
