// The main menu, the program's first screen. It keeps the mode and the championship for the whole run.
#pragma once

#include <functional>
#include <string>

#include "base/desktop.h"
#include "engine/match_setup.h"

namespace kickwell {

/// Each opens a screen over the menu and returns when it has closed.
struct OpeningScreens {
  using Open = std::function<void()>;
  Open Settings, KnockSettings, LegSettings;
  Open TeamEditor, StadEditor, LegEditor;
  Open TopScorers, Table, LegResults, KnockCharts;
};

class Opening {
 public:
  Opening(Desktop& desktop, OpeningScreens screens);

  void MatchMenu_Click();
  void KnockLoad_Click();
  void LegLoad_Click();
  void ExitMenu_Click() { Closed = true; }
  void TeamMenu_Click() { OpenScreen(screens_.TeamEditor); }
  void StadMenu_Click() { OpenScreen(screens_.StadEditor); }
  void LegMenu_Click() { OpenScreen(screens_.LegEditor); }
  void ScorerMenu_Click() { OpenScreen(screens_.TopScorers); }
  void LeagueMenu_Click() { OpenScreen(screens_.Table); }
  void LegRes_Click() { OpenScreen(screens_.LegResults); }
  void KnockChart_Click() { OpenScreen(screens_.KnockCharts); }
  void ReadMenu_Click();
  void HistMenu_Click();

  MatchMode Mode = MatchMode::Friendly;
  std::string ChampionshipName{NoChampionship};
  bool StatisticsEnabled = false;
  bool LeagueMenuVisible = true;
  bool KnockChartVisible = true;
  bool Closed = false;  ///< The program is to end.

  /// Called when what the menu shows has changed, before a screen opens.
  std::function<void()> Changed = [] {};

 private:
  void Choose(MatchMode mode);
  void OpenScreen(const OpeningScreens::Open& screen) const;
  void Read(const std::string& file, const std::string& purpose);

  Desktop& desktop_;
  OpeningScreens screens_;
};

}  // namespace kickwell
