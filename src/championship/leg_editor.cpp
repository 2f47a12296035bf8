#include "championship/leg_editor.h"

#include <algorithm>
#include <utility>

#include "base/at.h"
#include "data/championship_store.h"
#include "data/file_names.h"
#include "data/knock_out.h"
#include "data/name_order.h"
#include "data/team_store.h"
#include "data/tell_failure.h"

namespace kickwell {

bool EditorSide::IsInPlay(int place) const {
  const auto knows = [this](const std::string& entry) {
    const bool team = Selected.PlaceOf(entry) != ItemList::None;
    return team || (!IsLeague() &&
                    (PlaceholderNumber(entry) > 0 || Selected.PlaceOf(WithoutToss(entry)) != ItemList::None));
  };
  const Pairing& fixture = At(Table, place);
  return knows(fixture.Home) && knows(fixture.Away);
}

std::string EditorSide::FixtureNote() const {
  int others = 0;
  for (int place = 0; place < Count(Table); ++place) others += IsInPlay(place) ? 0 : 1;
  if (others == 0) return {};
  return (others == 1 ? "1 fixture has" : std::to_string(others) + " fixtures have") +
         " a team that is not in the " + (IsLeague() ? "league" : "knock-out") +
         ". Press Auto Fixtures to make all fixtures anew, or add the team again.";
}

LegEditor::LegEditor(ProgramFolder folder, Desktop& desktop, Random& random)
    : folder_(std::move(folder)), desktop_(desktop), random_(random) {
  Form_Load();
}

void LegEditor::Form_Load() {
  for (EditorSide* side : {&League, &KnockOut}) {
    side->Available.Entries = ListTeams(folder_);
    side->Available.PickFirst();
    side->Load.Entries = ListChampionships(folder_, side->Kind);
    side->ManualEntry = false;
  }
  Kind = {{"League Championship", "Knock Out Championship"}, 0};
}

std::string LegEditor::UnsavedNote() const {
  if (League.IsUnsaved() && KnockOut.IsUnsaved()) return "The league and the knock-out are not saved.";
  if (League.IsUnsaved()) return "The league is not saved.";
  return KnockOut.IsUnsaved() ? "The knock-out is not saved." : "";
}

void LegEditor::AddTeam_Click(EditorSide& side) {
  if (side.Available.Picked == ItemList::None) return;
  const std::string team = side.Available.Text();
  for (ItemList* list : {&side.Selected, &side.Home, &side.Away}) list->Insert(team, ListedBefore);
  if (side.Selected.Picked == ItemList::None) side.Selected.PickFirst();
  side.Available.RemoveAt(side.Available.Picked);
  side.Available.PickFirst();
}

void LegEditor::RemoveTeam_Click(EditorSide& side) {
  const int place = side.Selected.Picked;
  if (place == ItemList::None) return;
  side.Available.Insert(side.Selected.Text(), ListedBefore);
  for (ItemList* list : {&side.Home, &side.Away, &side.Selected}) list->RemoveAt(place);
  side.Selected.PickFirst();
}

void LegEditor::MoreTeams_Click() {
  if (KnockOut.NumberOfTeams < MostTeamsOfKnockOut) KnockOut.NumberOfTeams *= 2;
}

void LegEditor::FewerTeams_Click() {
  if (KnockOut.NumberOfTeams > FewestTeamsOfKnockOut) KnockOut.NumberOfTeams /= 2;
}

void LegEditor::ClearFixtures(EditorSide& side) {
  side.FixtureList = {};
  side.Table.clear();
}

void LegEditor::AddFixture(EditorSide& side, Pairing fixture) {
  side.FixtureList.Add(FixtureText(side.FixtureList.Count() + 1, fixture));
  side.FixtureList.PickLast();
  side.Table.push_back(std::move(fixture));
}

void LegEditor::AutoFixtures_Click(EditorSide& side) {
  const bool league = side.IsLeague();
  if (!league && side.NumberOfTeams != side.Selected.Count()) {
    desktop_.Inform("Total teams selected doesn't match the number of teams");
    return;
  }
  if (side.Selected.Count() < 2) {
    desktop_.Inform("There must be at least two teams in the competition");
    return;
  }
  if (league && side.Selected.Count() > MostTeamsOfGeneratedLeague) {
    desktop_.Inform("A league with generated fixtures can have at most " +
                    std::to_string(MostTeamsOfGeneratedLeague) + " teams");
    return;
  }
  side.ManualEntry = false;
  ClearFixtures(side);
  const std::vector<std::string>& teams = side.Selected.Entries;
  for (Pairing& fixture : league ? LeagueFixture(teams, random_) : KnockOutFixture(teams, random_)) {
    AddFixture(side, std::move(fixture));
  }
  side.FixtureList.PickFirst();
}

void LegEditor::AddFixture_Click() {
  const std::string home = League.Home.Text();
  const std::string away = League.Away.Text();
  if (League.Home.Count() < 2) {
    desktop_.Inform("There must be atleast two teams in the competition");
  } else if (home.empty() || away.empty()) {
    desktop_.Inform("Select both the home and away teams properly");
  } else if (home == away) {
    desktop_.Inform(home + " can't play againt itself");
  } else if (League.FixtureList.Count() >= MostFixtures) {
    desktop_.Inform("A championship can have at most " + std::to_string(MostFixtures) + " matches");
  } else {
    if (!std::exchange(League.ManualEntry, true)) ClearFixtures(League);
    AddFixture(League, {home, away});
  }
}

bool LegEditor::MayBeSaved(const EditorSide& side) {
  const bool complete = side.IsLeague() || (side.Selected.Count() == side.NumberOfTeams &&
                                            IsKnockOut(side.Selected.Entries, side.Table));
  if (side.Selected.Count() < 2) {
    desktop_.Inform("Please select the championship teams properly");
  } else if (side.Table.empty() || !complete) {
    desktop_.Inform("Please add the championship fixtures properly");
  } else if (side.Name.empty()) {
    Next = side.IsLeague() ? "LeagueName" : "KnockOutName";
    desktop_.Inform("Please enter a name for the championship");
  } else if (side.IsLeague() && side.Selected.Count() > MostTeamsOfLeague) {
    desktop_.Inform("A league can have at most " + std::to_string(MostTeamsOfLeague) + " teams");
  } else if (const auto placeholder = std::ranges::find_if(side.Selected.Entries, PlaceholderNumber);
             !side.IsLeague() && placeholder != side.Selected.Entries.end()) {
    desktop_.Inform("A knock-out can't be played with a team called " + *placeholder);
  } else if (const ChampionshipId id{side.Kind, side.Name};
             !IsFileName(MainFileName(id)) && !ChampionshipExists(folder_, id)) {
    Next = side.IsLeague() ? "LeagueName" : "KnockOutName";
    desktop_.Warn(FileNameRefusal(side.Name));
  } else {
    return true;
  }
  return false;
}

void LegEditor::Save_Click(EditorSide& side) {
  if (!MayBeSaved(side)) return;
  const ChampionshipId id{side.Kind, side.Name};
  const bool known = ChampionshipExists(folder_, id);
  if (!(known ? desktop_.Ask("Do you want to overwrite " + side.Name + "?", Enter::No)
              : desktop_.Ask("Are you sure you want to add " + side.Name + "?", Enter::Yes))) {
    return;
  }
  Championship championship{id, side.Selected.Entries, {}};
  for (const Pairing& fixture : side.Table) {
    const int number = static_cast<int>(championship.Fixtures.size()) + 1;
    championship.Fixtures.push_back({NotPlayed, fixture.Home, fixture.Away, WinnerPlaceholder(number)});
  }
  if (known) {
    if (!TellFailure(desktop_, ReplaceChampionship(folder_, championship))) return;
    side.MarkSaved();
    side.LoadIsOnView = side.LoadIsOnView || side.Load.Text() == MainFileName(id);
  } else if (TellFailure(desktop_, WriteChampionship(folder_, championship))) {
    side.MarkSaved();
    side.Load.Add(MainFileName(id));
    Load_Click(side, side.Load.Count() - 1);
  }
}

void LegEditor::Load_Click(EditorSide& side, int entry) {
  const auto [loaded, result] =
      ReadChampionship(folder_, IdOfMainFile(side.Kind, At(side.Load.Entries, entry)));
  TellFailure(desktop_, result);
  if (!loaded) return;
  side.Load.Picked = entry;
  side.LoadIsOnView = true;
  side.Available.Entries = ListTeams(folder_);
  side.Selected = {};
  ClearFixtures(side);
  side.Name = loaded->Id.Name;
  for (const std::string& team : loaded->Teams) {
    side.Selected.Insert(team, ListedBefore);
    std::erase(side.Available.Entries, team);
  }
  side.Available.PickFirst();
  side.Selected.PickFirst();
  side.Home = side.Away = {side.Selected.Entries};
  side.NumberOfTeams = KnockOutSizeWithin(side.Selected.Count());
  for (const Fixture& fixture : loaded->Fixtures) AddFixture(side, {fixture.Home, fixture.Away});
  side.FixtureList.PickFirst();
  side.ManualEntry = true;
  side.MarkSaved();
}

void LegEditor::Delete_Click(EditorSide& side) {
  const std::string fileName = side.Load.Text();
  if (fileName.empty() || side.Name.empty()) {
    desktop_.Inform("Please load a championship to delete");
    return;
  }
  if (side.Load.Count() <= 1) {
    desktop_.Inform("You can't delete any more championship");
    return;
  }
  if (!side.LoadIsOnView) {
    desktop_.Inform("Please load a championship to delete");
    return;
  }
  if (!desktop_.Ask("Are you sure you want to remove " + fileName + "?", Enter::No)) return;
  if (!TellFailure(desktop_, DeleteChampionship(folder_, IdOfMainFile(side.Kind, fileName)))) return;
  side.Load.RemoveAt(side.Load.Picked);
  side.Load.PickFirst();
  side.LoadIsOnView = false;
}

}  // namespace kickwell
