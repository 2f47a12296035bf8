#include "setup/opening.h"

#include <utility>

#include "base/program.h"

namespace kickwell {
Opening::Opening(Desktop& desktop, OpeningScreens screens)
    : desktop_(desktop), screens_(std::move(screens)) {}

void Opening::Choose(MatchMode mode) {
  Mode = mode;
  ChampionshipName = NoChampionship;
  StatisticsEnabled = mode != MatchMode::Friendly;
  if (mode == MatchMode::Friendly) return;
  LeagueMenuVisible = mode == MatchMode::League;
  KnockChartVisible = mode == MatchMode::KnockOut;
}

void Opening::OpenScreen(const OpeningScreens::Open& screen) const {
  Changed();
  screen();
}

void Opening::MatchMenu_Click() {
  Choose(MatchMode::Friendly);
  OpenScreen(screens_.Settings);
}

void Opening::KnockLoad_Click() {
  Choose(MatchMode::KnockOut);
  OpenScreen(screens_.KnockSettings);
}

void Opening::LegLoad_Click() {
  Choose(MatchMode::League);
  OpenScreen(screens_.LegSettings);
}

void Opening::Read(const std::string& file, const std::string& purpose) {
  desktop_.OpenDocument(file, [this, file, purpose] {
    desktop_.Inform("Read the file '" + file + "' in your " + std::string(ProgramTitle) + " folder for " +
                    purpose + ".");
  });
}

void Opening::ReadMenu_Click() {
  Read("Help.htm", "help");
}

void Opening::HistMenu_Click() {
  Read("History.txt", "history");
}

}  // namespace kickwell
