#include "championship/leg_results.h"

#include <optional>
#include <utility>

#include "data/championship_store.h"
#include "data/tell_failure.h"
#include "engine/pages.h"

namespace kickwell {

LegResults::LegResults(ProgramFolder folder, Desktop& desktop, const ChampionshipId& id)
    : Label1(id.Name + " Results"), folder_(std::move(folder)), desktop_(desktop) {
  auto [lines, result] = ReadResults(folder_, id);
  List1.Entries = std::move(lines);
  TellFailure(desktop_, result);
}

void LegResults::Command2_Click() {
  if (!Command2Enabled()) return;
  const std::optional<std::string> name = desktop_.AskSaveName(Label1);
  if (!name || name->empty()) return;
  TellFailure(desktop_, WritePage(folder_, PageFile(*name), ResultsPage(Label1, List1)));
}

}  // namespace kickwell
