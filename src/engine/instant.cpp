#include "engine/instant.h"

#include "engine/goal.h"
#include "engine/shoot_out.h"

namespace kickwell {
namespace {

constexpr int InstantKicks = 30;  ///< After so many a level shoot-out is over.

}  // namespace

void Instant::instant_Click() {
  if (!session_.Controls.instantVisible || !session_.Controls.instantEnabled) return;
  InstantMain();
  DrawFacts();
}

void Instant::InstantMain() {
  MatchSession& s = session_;
  for (int minute = 1; minute < FullTime; ++minute) {
    for (int second = 0; second < SecondsPerMinute; ++second) InstantScores(minute, second);
  }
  if (s.ExtraTime && s.IsLevel()) {
    for (int minute = FullTime + 1; minute < ExtraFullTime && s.IsLevel(); ++minute) {
      for (int second = 0; second < SecondsPerMinute && s.IsLevel(); ++second) InstantScores(minute, second);
    }
    if (!s.IsLevel()) AddLine(s.Summary, "GOLDEN GOAL!");
  }
  if (s.PenaltyShootOut && s.IsLevel()) {
    AddLine(s.Summary, "PENALTY SHOOT OUT!");
    InstantPenalty();
  } else {
    s.KeepFinalGoals();
    announcement_.ShowResult();
  }
  s.Controls.instantEnabled = false;
}

void Instant::InstantScores(int minute, int second) {
  Side* const side = DrawGoal(session_, random_);
  if (side == nullptr) return;
  session_.ClockText = ClockReading(minute, second);
  ++side->Goals;
  CreditGoal(session_, *side, random_);
  recording_.StoreScorer(session_);
  AddLine(session_.Summary, session_.SummaryLine);
}

void Instant::InstantPenalty() {
  MatchSession& s = session_;
  s.Controls.PensVisible = true;
  for (int kick = 0; kick < InstantKicks && !IsDecided(s, kick); ++kick) {
    Side& side = s.Taking(kick);
    const bool goal = random_.Int(2) == 1;
    const std::string taker = PickFrom(side.Outfield, random_);
    if (!goal) continue;
    AddLine(s.Summary, side.Naming(taker));
    ++side.Penalties;
  }
  announcement_.ShowResult();
  announcement_.PenResult();
}

void Instant::DrawFacts() {
  Side& side1 = session_.Side1;
  Side& side2 = session_.Side2;
  DrawPossession(session_, random_);
  for (Side* side : {&side1, &side2}) {
    side->Fouls = random_.Int(4);
    side->Bookings = random_.Int(side->Fouls);
  }
  for (Side* side : {&side1, &side2}) side->Corners = random_.Int(5);
  for (Side* side : {&side1, &side2}) side->Shots = random_.Int(5) + side->Goals;
}

}  // namespace kickwell
