#include "editors/team_editor.h"

#include <utility>

#include "base/at.h"
#include "base/number.h"
#include "data/championship_store.h"
#include "data/file_names.h"
#include "data/tell_failure.h"
#include "data/text_file.h"
#include "engine/match_setup.h"

namespace kickwell {
namespace {

constexpr int FewestTeams = 2;

}  // namespace

TeamEditor::TeamEditor(ProgramFolder folder, Desktop& desktop, std::string league)
    : folder_(std::move(folder)), desktop_(desktop), league_(std::move(league)) {
  Form_Load();
}

void TeamEditor::Form_Load() {
  Combo3.Entries = ListTeams(folder_);
  Combo1.Entries = {"FD", "MF", "DF", "GK"};
  Combo2.Entries = {"L", "R", "C"};
  PresetPosition();
  if (Combo3.Count() > 0) Combo3_Click(0);
}

void TeamEditor::PresetPosition() {
  Combo1.Picked = Combo2.Picked = 0;
}

void TeamEditor::Combo3_Click(int entry) {
  auto [loaded, result] = LoadTeam(folder_, At(Combo3.Entries, entry));
  if (!TellFailure(desktop_, result) || !loaded) return;
  Combo3.Picked = entry;
  team_ = std::move(*loaded);
  ShowSquad(0);
}

void TeamEditor::ShowSquad(int selected) {
  List1 = {};
  for (const Player& player : team_.Players) List1.Add(player.Name);
  List1.Pick(selected);
}

/// Makes `changed` the team, on disk and here. If saving fails, neither changes.
bool TeamEditor::Save(Team changed, int selected) {
  if (!TellFailure(desktop_, SaveTeam(folder_, changed))) return false;
  team_ = std::move(changed);
  ShowSquad(selected);
  return true;
}

const Player* TeamEditor::Selected() const {
  return List1.Picked == ItemList::None ? nullptr : &At(team_.Players, List1.Picked);
}

/// Whether the skill in the box `control` is fine; refuses it otherwise.
bool TeamEditor::SkillIsFine(const std::string& skill, const char* control) {
  if (IsNumber(skill) && ToNumber(skill) > 0) return true;
  Next = control;
  desktop_.Warn(IsNumber(skill) ? "Please enter a skill value from 1 to 99."
                                : "Please enter a numerical value for Skill.");
  return false;
}

void TeamEditor::Command7_Click() {
  const std::string name = Text1;
  if (name.empty() || Text5.empty()) {
    Next = name.empty() ? "Text1" : "Text5";
    desktop_.Warn("Please enter all the Team Details properly.");
    return;
  }
  if (!SkillIsFine(Text5, "Text5")) return;
  // Where file names ignore letter case, a team that is not in the list can still be there.
  if (Combo3.PlaceOf(name) != ItemList::None || TeamExists(folder_, name)) {
    Next = "Text1";
    desktop_.Inform(name + " already exists");
    return;
  }
  if (!IsFileName(name)) {
    Next = "Text1";
    desktop_.Warn(FileNameRefusal(name));
    return;
  }
  if (!desktop_.Ask("Are you sure you want to add " + name + "?", Enter::Yes)) return;
  if (!TellFailure(desktop_, CreateTeam(folder_, name, Text5))) return;
  Combo3.Add(name);
  if (league_ != NoChampionship)
    TellFailure(desktop_, AppendStandings(folder_, {ChampionshipKind::League, league_}, name));
  Text1.clear();
  Text5.clear();
  Next = "Text2";
  Combo3_Click(Combo3.Count() - 1);
}

void TeamEditor::Command8_Click() {
  if (Combo3.Picked == ItemList::None) {
    Next = Combo3.Entries.empty() ? "Text1" : "Combo3";  // First a team.
    return;
  }
  if (Text2.empty() || Text4.empty()) {
    Next = Text2.empty() ? "Text2" : "Text4";
    desktop_.Warn("Please enter all the Player Details properly.");
    return;
  }
  if (!SkillIsFine(Text4, "Text4")) return;
  if (List1.PlaceOf(Text2) != ItemList::None) {
    Next = "Text2";
    desktop_.Inform(Text2 + " already exists");
    return;
  }
  if (!desktop_.Ask("Are you sure you want to add " + Text2 + "?", Enter::Yes)) return;
  const std::string line = Combo1.Text();
  Team more = team_;
  more.Players.push_back({Text2, Text4, line == "GK" ? line : line + Combo2.Text()});
  if (!Save(std::move(more), List1.Count())) return;
  Text2.clear();
  Text4.clear();
  Next = "Text2";
  PresetPosition();
}

void TeamEditor::Command6_Click() {
  if (List1.Count() == LineUpSize || List1.Count() == 0) {
    desktop_.Warn("You can't delete any more players.");
    return;
  }
  if (Selected() == nullptr ||
      !desktop_.Ask("Are you sure you want to delete " + Selected()->Name + "?", Enter::No))
    return;
  Team fewer = team_;
  fewer.Players.erase(fewer.Players.begin() + List1.Picked);
  Save(std::move(fewer), 0);
}

void TeamEditor::Move(int direction) {
  const int from = List1.Picked;
  if (from == ItemList::None) return;
  const int to = from + direction;
  const bool possible = to >= 0 && to < List1.Count();
  Team moved = team_;
  if (possible) std::swap(At(moved.Players, from), At(moved.Players, to));
  Save(std::move(moved), possible ? to : from);
}

void TeamEditor::Command5_Click() {
  if (Combo3.Count() <= FewestTeams) {
    desktop_.Warn("You can't delete any more team.");
    return;
  }
  const std::string name = Combo3.Text();
  if (name.empty() || !desktop_.Ask("Are you sure you want to delete " + name + "?", Enter::No)) return;
  const bool deleted = TellFailure(desktop_, DeleteTeam(folder_, name));
  if (!deleted && !FileIsMissing(folder_.Files(), folder_.Teams() / name)) return;
  Combo3.RemoveAt(Combo3.Picked);
  team_ = {};  // Gone for good, even if no other team can be loaded.
  ShowSquad(0);
  Combo3_Click(0);
}

}  // namespace kickwell
