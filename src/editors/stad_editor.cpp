#include "editors/stad_editor.h"

#include <algorithm>
#include <utility>

#include "base/number.h"
#include "data/team_store.h"
#include "data/tell_failure.h"
#include "data/text_file.h"

namespace kickwell {

StadEditor::StadEditor(ProgramFolder folder, Desktop& desktop)
    : folder_(std::move(folder)), desktop_(desktop) {
  Form_Load();
}

void StadEditor::Form_Load() {
  Combo1 = {{NoHomeTeam}, 0};
  for (std::string& team : ListTeams(folder_)) Combo1.Add(std::move(team));
  auto [stadiums, result] = LoadStadiums(folder_);
  stadiums_ = std::move(stadiums);
  loading_ = std::move(result);
  ShowStadiums(0);
  TellFailure(desktop_, loading_);
}

void StadEditor::ShowStadiums(int selected) {
  List1 = {};
  for (const Stadium& stadium : stadiums_) List1.Add(stadium.Name);
  List1.Pick(selected);
}

/// Makes these the stadiums, on disk and here. If saving fails, neither changes. A list that could not be
/// read is never replaced.
bool StadEditor::Save(std::vector<Stadium> stadiums) {
  if (!TellFailure(desktop_, loading_) || !TellFailure(desktop_, SaveStadiums(folder_, stadiums)))
    return false;
  stadiums_ = std::move(stadiums);
  return true;
}

void StadEditor::Command2_Click() {
  const auto isNamed = [this](const Stadium& stadium) { return stadium.Name == Text1; };
  if (Text1.empty() || Text2.empty() || Text3.empty()) {
    Next = Text1.empty() ? "Text1" : Text2.empty() ? "Text2" : "Text3";
    desktop_.Warn("Please enter all the Stadium Details properly.");
  } else if (!IsNumber(Text3)) {
    Next = "Text3";
    desktop_.Warn("Please enter a numerical value for Capacity.");
  } else if (ToNumber(Text3) <= 0) {
    Next = "Text3";
    desktop_.Warn("Please enter a capacity value from 1 to 99999.");
  } else if (std::ranges::any_of(stadiums_, isNamed)) {
    Next = "Text1";
    desktop_.Inform(Text1 + " already exists");
  } else if (desktop_.Ask("Are you sure you want to add this stadium?", Enter::Yes)) {
    std::vector<Stadium> more = stadiums_;
    more.push_back({Combo1.Text(), Text1, Text2, Text3});
    if (!Save(std::move(more))) return;
    Text1.clear();
    Text2.clear();
    Text3.clear();
    Next = "Text1";
    Combo1.Picked = 0;
    ShowStadiums(static_cast<int>(stadiums_.size()) - 1);
  }
}

void StadEditor::Command1_Click() {
  if (List1.Count() <= 1) {
    desktop_.Warn("You can't delete any more stadium.");
    return;
  }
  if (List1.Picked == ItemList::None ||
      !desktop_.Ask("Are you sure you want to remove " + List1.Text() + "?", Enter::No))
    return;
  std::vector<Stadium> fewer = stadiums_;
  fewer.erase(fewer.begin() + List1.Picked);
  if (!Save(std::move(fewer))) return;
  TellFailure(desktop_, DeleteFile(folder_.Files(), folder_.Settings()));
  ShowStadiums(0);
}

}  // namespace kickwell
