#include "engine/shoot_out.h"

#include <array>
#include <cstdlib>

namespace kickwell {
namespace {

constexpr int FiveEach = 10;
constexpr int ShotDraws = 45, FirstScoringDraw = 26;

constexpr SpotPoint InTheNet{1200, 0};
constexpr std::array<SpotPoint, 2> Wide = {{{1040, 0}, {480, 0}}};

}  // namespace

bool IsDecided(const MatchSession& session, int kicks) {
  const int lead = std::abs(session.Side1.Penalties - session.Side2.Penalties);
  if (kicks == 6 || kicks == 7) return lead >= 3;
  if (kicks == 8 || kicks == 9) return lead >= 2;
  return kicks >= FiveEach && kicks % 2 == 0 && lead != 0;
}

void ShootOut::kick_Click() {
  if (!session_.Controls.kickEnabled) return;
  session_.Controls.kickEnabled = false;
  PenaltyCall();
}

void ShootOut::nextshot_Click() {
  MatchControls& controls = session_.Controls;
  if (!controls.nextshotEnabled) return;
  controls.nextshotEnabled = false;
  controls.kickEnabled = true;
  controls.Shape2 = PenaltySpot;
  controls.ClearMessage();
}

void ShootOut::PenaltyCall() {
  MatchSession& s = session_;
  Side& side = s.Taking(s.ShotNumber);
  KickMarker& marker = At(s.Controls.penalty, s.ShotNumber);
  s.ShotDraw = random_.Int(ShotDraws);
  if (s.ShotDraw < FirstScoringDraw) {
    Miss(side, marker);
  } else {
    Goal(side, marker);
  }
  const int kicks = ++s.ShotNumber;
  if (kicks == KickCount || IsDecided(s, kicks)) {
    announcement_.ShowResult();
    announcement_.PenResult();
    return;
  }
  s.Controls.nextshotEnabled = true;
  if (kicks >= FiveEach && kicks % 2 == 0) {
    for (const int next : {kicks, kicks + 1}) At(s.Controls.penalty, next).Visible = true;
  }
}

void ShootOut::Miss(const Side& side, KickMarker& marker) {
  MatchControls& controls = session_.Controls;
  controls.Shape2 = PickFrom(Wide, random_);
  marker.Colour = Lamp::Red;
  controls.ShowMessage(Lamp::Red, "MISS!");
  desktop_.PlaySound(Sound::Boo);
  DrawTaker(side);
  Tell(side, PenaltyMissPhrases);
}

void ShootOut::Goal(Side& side, KickMarker& marker) {
  MatchControls& controls = session_.Controls;
  controls.Shape2 = InTheNet;
  desktop_.PlaySound(Sound::Goal);
  marker.Colour = Lamp::Green;
  ++side.Penalties;
  controls.ShowMessage(Lamp::Green, "GOAL!");
  DrawTaker(side);
  session_.SummaryLine = side.Naming(session_.PhrasePlayer);
  AddLine(session_.Summary, session_.SummaryLine);
  Tell(side, PenaltyGoalPhrases);
}

void ShootOut::DrawTaker(const Side& side) {
  session_.PenaltyTaker = random_.Int(Count(side.Outfield));
  session_.PhrasePlayer = side.Outfield.empty() ? "" : At(side.Outfield, session_.PenaltyTaker);
}

void ShootOut::Tell(const Side& side, Phrases phrases) {
  commentator_.Say(session_.PhrasePlayer + " steps up for " + side.Team);
  commentator_.Say("He shoots and...");
  commentator_.SayOneOf(phrases);
}

}  // namespace kickwell
