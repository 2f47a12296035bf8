// The results of a championship, as they were recorded.
#pragma once

#include <string>

#include "base/desktop.h"
#include "base/item_list.h"
#include "data/championship.h"
#include "data/program_folder.h"

namespace kickwell {

class LegResults {
 public:
  /// Reads the results log. Without one the list stays empty.
  LegResults(ProgramFolder folder, Desktop& desktop, const ChampionshipId& id);

  void Command2_Click();  ///< Asks for a file name and writes the list as an HTML page.
  void Command1_Click() { Closed = true; }

  bool Command2Enabled() const { return List1.Count() > 0; }

  std::string Label1;  ///< The heading.
  ItemList List1;      ///< The lines of the log.
  bool Closed = false;

 private:
  ProgramFolder folder_;
  Desktop& desktop_;
};

}  // namespace kickwell
