// The stadium editor. Every change is on disk when its action ends.
#pragma once

#include <string>
#include <vector>

#include "base/desktop.h"
#include "base/item_list.h"
#include "data/program_folder.h"
#include "data/stadium_store.h"

namespace kickwell {

class StadEditor {
 public:
  StadEditor(ProgramFolder folder, Desktop& desktop);

  void List1_Click(int entry) { List1.Picked = entry; }
  void Combo1_Click(int entry) { Combo1.Picked = entry; }

  // Each checks its input in a fixed order and reports the first fault. Without one, it asks first.
  void Command2_Click();  ///< Adds the stadium of the three text boxes and Combo1.
  void Command1_Click();  ///< Removes the selected stadium.
  void Command3_Click() { Closed = true; }

  std::string Label8() const { return std::to_string(stadiums_.size()); }
  const std::vector<Stadium>& Stadiums() const { return stadiums_; }

  ItemList List1;                   ///< Stadiums by name, in the order of the file.
  ItemList Combo1;                  ///< "Neutral" and all teams.
  std::string Text1, Text2, Text3;  ///< Name, city and capacity of a new stadium.
  std::string Next;                 ///< The box to type in after an action; empty for where the user is.
  bool Closed = false;

 private:
  void Form_Load();
  void ShowStadiums(int selected);
  bool Save(std::vector<Stadium> stadiums);

  ProgramFolder folder_;
  Desktop& desktop_;
  std::vector<Stadium> stadiums_;  ///< As they are on disk.
  FileResult loading_;             ///< A failure while there is a list that could not be read.
};

}  // namespace kickwell
