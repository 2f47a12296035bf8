// The match settings: teams, venue, weather and deciders of a friendly.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/desktop.h"
#include "base/item_list.h"
#include "data/program_folder.h"
#include "engine/match_setup.h"

namespace kickwell {

class Settings {
 public:
  using OpenSelection = std::function<void(const MatchSetup&)>;  ///< Returns when the selection has closed.

  Settings(ProgramFolder folder, Desktop& desktop, OpenSelection openSelection);

  // The actions take the place of the picked entry, from 0. A team picked on one side that the other side
  // shows already moves the other side on to its next entry.
  void Combo1_Click(int entry);
  void Combo2_Click(int entry);
  void Combo3_Click(int entry);
  void Combo4_Click(int entry) { Combo4.Picked = entry; }
  void Combo5_Click(int entry) { Combo5.Picked = entry; }
  void Check1_Click(bool checked);  ///< The shoot-out is on offer only after extra time.
  void Check2_Click(bool checked) { Check2 = checked; }

  /// Opens the line-up selection with these choices and closes after it. If a choice is missing, asks for it
  /// instead.
  void Command1_Click();
  void Command2_Click() { Closed = true; }

  ItemList Combo1, Combo2;             ///< Own team and opposition.
  ItemList Combo3, Combo7, Combo6;     ///< Names, cities and capacities of the stadiums, in step.
  std::vector<std::string> HomeTeams;  ///< Of the stadiums, in step; NoHomeTeam for a neutral ground.
  ItemList Combo5;                     ///< Weather.
  ItemList Combo4;                     ///< Simulation type.
  bool Check1 = false;                 ///< Extra time.
  bool Check2 = false;                 ///< Penalty shoot-out.
  bool Check2Enabled = false;
  bool Closed = false;

 private:
  void Form_Load();

  ProgramFolder folder_;
  Desktop& desktop_;
  OpenSelection openSelection_;
};

}  // namespace kickwell
