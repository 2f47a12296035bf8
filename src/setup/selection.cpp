#include "setup/selection.h"

#include <utility>

#include "data/team_store.h"
#include "data/tell_failure.h"

namespace kickwell {

Selection::Selection(ProgramFolder folder, Desktop& desktop, OpenMatch openMatch, MatchSetup setup)
    : folder_(std::move(folder)),
      desktop_(desktop),
      openMatch_(std::move(openMatch)),
      setup_(std::move(setup)) {}

void Selection::Timer1_Timer() {
  if (std::exchange(loaded_, true)) return;
  LoadSquad(Side1, setup_.Team1Name);
  LoadSquad(Side2, setup_.Team2Name);
}

void Selection::LoadSquad(LineUp& side, const std::string& team) {
  auto [loaded, result] = LoadTeam(folder_, team);
  if (!TellFailure(desktop_, result)) Command1Enabled = false;
  if (!loaded) {
    if (result.Ok()) side.Note = R"(There is no file ")" + team + R"(" in "Teams".)";
    return;
  }
  side.Reputation = loaded->Skill + "%";
  side.Squad = std::move(loaded->Players);
  if (!side.CanPlay()) {
    Changed();
    desktop_.Warn(team + " don't have enough players to play.");
    Command1Enabled = false;
    return;
  }
  for (int slot = 0; slot < SlotCount; ++slot) side.Choose(slot, slot);
  Changed();
}

void Selection::Command1_Click() {
  if (!Command1Enabled) return;
  if (const auto fault = LineUpFault(Side1, setup_.Team1Name, Side2, setup_.Team2Name)) {
    desktop_.Warn(*fault);
    return;
  }
  setup_.Team1Attackers = Side1.Attackers();
  setup_.Team1Outfield = Side1.Outfield();
  setup_.Team1Strength = Side1.OverallSkill;
  setup_.Team2Attackers = Side2.Attackers();
  setup_.Team2Outfield = Side2.Outfield();
  setup_.Team2Strength = Side2.OverallSkill;
  openMatch_(setup_);
  Closed = true;
}

}  // namespace kickwell
