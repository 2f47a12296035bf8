#include "championship/leg_results.h"

#include <optional>

#include "engine/pages.h"

namespace kickwell {

LegResults::LegResults(const ProgramFolder& folder, Desktop& desktop, ChampionshipKind kind,
                       const std::string& championship)
    : Label1(championship + " Results"), List1{ReadResults(folder, kind, championship)}, desktop_(desktop) {}

void LegResults::Command2_Click() {
  if (!Command2Enabled()) return;
  const std::optional<std::string> name = desktop_.AskSaveName(Label1);
  if (!name || name->empty()) return;
  TellFailure(desktop_, WritePage(PageFile(*name), ResultsPage(Label1, List1)));
}

}  // namespace kickwell
