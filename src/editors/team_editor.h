// The team editor: teams and their squads. Every change is on disk when its action ends.
#pragma once

#include <string>
#include <vector>

#include "base/desktop.h"
#include "base/item_list.h"
#include "data/program_folder.h"
#include "data/team_store.h"

namespace kickwell {

class TeamEditor {
 public:
  /// `league` is the current championship, whose standings a new team joins, or "N/A".
  TeamEditor(ProgramFolder folder, Desktop& desktop, std::string league);

  void Combo3_Click(int entry);  ///< Loads a team. A file that is missing or can't be read changes nothing.
  void List1_Click(int entry) { List1.Picked = entry; }
  void Combo1_Click(int entry) { Combo1.Picked = entry; }
  void Combo2_Click(int entry) { Combo2.Picked = entry; }

  // Each checks its input in a fixed order and reports the first fault. Without one, it asks first.
  void Command7_Click();  ///< Adds the team of Text1 and Text5.
  void Command8_Click();  ///< Adds the player of Text2, Text4, Combo1 and Combo2 to the team.
  void Command6_Click();  ///< Deletes the selected player.
  void Command5_Click();  ///< Deletes the team.

  void Command1_Click() { Move(-1); }  ///< The selected player up.
  void Command2_Click() { Move(+1); }  ///< The selected player down.
  void Command4_Click() { Closed = true; }

  std::string Label13() const { return team_.Skill; }
  std::string Label14() const { return std::to_string(team_.Players.size()); }
  std::string Label4() const { return Selected() == nullptr ? "" : Selected()->Skill; }
  std::string Label5() const { return Selected() == nullptr ? "" : Selected()->Position; }

  const std::vector<Player>& Players() const { return team_.Players; }

  ItemList Combo3;           ///< Teams.
  ItemList List1;            ///< The squad's names.
  ItemList Combo1, Combo2;   ///< Line and side of a new player.
  std::string Text1, Text5;  ///< Name and skill of a new team.
  std::string Text2, Text4;  ///< Name and skill of a new player.
  std::string Next;          ///< The control to go on in after an action; empty for where the user is.
  bool Closed = false;

 private:
  void Form_Load();
  void PresetPosition();
  void ShowSquad(int selected);
  bool Save(Team changed, int selected);
  void Move(int direction);
  bool SkillIsFine(const std::string& skill, const char* control);
  const Player* Selected() const;

  ProgramFolder folder_;
  Desktop& desktop_;
  std::string league_;
  Team team_;  ///< The chosen team, as it is on disk.
};

}  // namespace kickwell
