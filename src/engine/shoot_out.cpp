#include "engine/shoot_out.h"

#include <cstdlib>

namespace kickwell {
namespace {

constexpr int LastKick = KickCount - 1;
constexpr int LastOfFiveEach = 9;
constexpr int FirstScoringDraw = 26;  ///< Of 0..44: 19 chances in 45.

constexpr SpotPoint InTheNet{1200, 0};
constexpr SpotPoint Wide[] = {{1040, 0}, {480, 0}};

}  // namespace

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
  controls.Label2 = Lamp::Black;
  controls.Label3.clear();
}

void ShootOut::PenaltyCall() {
  MatchSession& s = session_;
  const int kick = s.ShotNumber;
  Side& side = kick % 2 == 0 ? s.Side1 : s.Side2;
  KickMarker& marker = s.Controls.penalty.at(static_cast<std::size_t>(kick));
  s.ShotDraw = random_.Int(45);
  if (s.ShotDraw < FirstScoringDraw) {
    Miss(side, marker);
  } else {
    Score(side, marker);
  }
  ++s.ShotNumber;
  if (IsDecided(kick)) {
    announcement_.ShowResult();
    announcement_.PenResult();
    return;
  }
  s.Controls.nextshotEnabled = true;
  if (kick >= LastOfFiveEach && kick % 2 == 1) {
    for (const int next : {kick + 1, kick + 2})
      s.Controls.penalty.at(static_cast<std::size_t>(next)).Visible = true;
  }
}

void ShootOut::Miss(const Side& side, KickMarker& marker) {
  MatchControls& controls = session_.Controls;
  controls.Shape2 = Wide[random_.Int(2)];
  marker.Colour = Lamp::Red;
  controls.Label2 = Lamp::Red;
  controls.Label3 = "MISS!";
  desktop_.PlaySound(Sound::Boo);
  DrawTaker(side);
  Tell(side, PenaltyMissPhrases);
}

void ShootOut::Score(Side& side, KickMarker& marker) {
  MatchControls& controls = session_.Controls;
  controls.Shape2 = InTheNet;
  desktop_.PlaySound(Sound::Goal);
  marker.Colour = Lamp::Green;
  ++side.Penalties;
  controls.Label2 = Lamp::Green;
  controls.Label3 = "GOAL!";
  DrawTaker(side);
  session_.SummaryLine = session_.PhrasePlayer + " (" + side.Team + ")";
  AddLine(session_.Summary, session_.SummaryLine);
  Tell(side, PenaltyGoalPhrases);
}

void ShootOut::DrawTaker(const Side& side) {
  session_.PenaltyTaker = random_.Int(static_cast<int>(side.Outfield.size()));
  const auto taker = static_cast<std::size_t>(session_.PenaltyTaker);
  session_.PhrasePlayer = taker < side.Outfield.size() ? side.Outfield[taker] : std::string();
}

void ShootOut::Tell(const Side& side, Phrases phrases) {
  commentator_.Say(session_.PhrasePlayer + " steps up for " + side.Team);
  commentator_.Say("He shoots and...");
  commentator_.SayOneOf(phrases);
}

bool ShootOut::IsDecided(int kick) const {
  const int lead = std::abs(session_.Side1.Penalties - session_.Side2.Penalties);
  if (kick == LastKick) return true;
  if (kick == 5 || kick == 6) return lead >= 3;
  if (kick == 7 || kick == 8) return lead >= 2;
  return kick >= LastOfFiveEach && kick % 2 == 1 && lead != 0;
}

}  // namespace kickwell
