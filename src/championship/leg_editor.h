// The championship editor: builds, saves, loads and deletes leagues and knock-outs.
#pragma once

#include <string>
#include <vector>

#include "base/desktop.h"
#include "base/item_list.h"
#include "base/random.h"
#include "championship/fixtures.h"
#include "data/championship.h"
#include "data/program_folder.h"

namespace kickwell {

/// What one side of the editor holds.
struct EditorSide {
  explicit EditorSide(ChampionshipKind kind) : Kind(kind) {}

  ChampionshipKind Kind;
  std::string Name;              ///< The name box, at most 20 characters.
  ItemList Available, Selected;  ///< Team lists, alphabetical ignoring letter case.
  ItemList FixtureList;          ///< As the fixtures are shown.
  std::vector<Pairing> Table;    ///< The fixtures of the list.
  ItemList Load;                 ///< Main files of this kind.

  ItemList Home, Away;       ///< League only: the selected teams.
  bool ManualEntry = false;  ///< League only: the next hand-made fixture is added to the list.
  int NumberOfTeams = 2;     ///< Knock-out only: the chosen number, 2, 4, 8 or 16.
};

class LegEditor {
 public:
  LegEditor(ProgramFolder folder, Desktop& desktop, Random& random);

  /// Fills the team lists and the load choosers and shows the league side.
  void Form_Load();

  void Kind_Click(int entry) { Kind.Picked = entry; }

  // Actions of one side, which is `League` or `KnockOut` of this editor.
  static void AddTeam_Click(EditorSide& side);
  static void RemoveTeam_Click(EditorSide& side);
  void AutoFixtures_Click(EditorSide& side);
  void Save_Click(EditorSide& side);
  void Load_Click(EditorSide& side, int entry);
  void Delete_Click(EditorSide& side);

  /// Adds a fixture of the home and away teams picked. The first one replaces a generated list.
  void AddFixture_Click();
  void MoreTeams_Click();   ///< Doubles the number of teams, up to 16.
  void FewerTeams_Click();  ///< Halves it, down to 2.
  void Exit_Click() { Closed = true; }

  ItemList Kind;  ///< "League Championship" or "Knock Out Championship".
  EditorSide League{ChampionshipKind::League};
  EditorSide KnockOut{ChampionshipKind::KnockOut};
  bool Closed = false;

 private:
  static void ShowFixture(EditorSide& side, Pairing fixture);
  bool MayBeSaved(const EditorSide& side);

  ProgramFolder folder_;
  Desktop& desktop_;
  Random& random_;
};

}  // namespace kickwell
