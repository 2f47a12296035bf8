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

  bool IsLeague() const { return Kind == ChampionshipKind::League; }

  /// Whether the name, the teams or the fixtures differ from what was loaded or saved last.
  bool IsUnsaved() const { return Saved != Content{Name, Selected.Entries, Table}; }
  void MarkSaved() { Saved = {Name, Selected.Entries, Table}; }

  /// Whether both sides of the fixture at `place` (from 0) are still in the championship.
  bool IsInPlay(int place) const;

  /// What to do about fixtures that are not; empty without any. Save takes those of a league as they are.
  std::string FixtureNote() const;

  ChampionshipKind Kind;
  std::string Name;              ///< In the name box, at most 20 characters.
  ItemList Available, Selected;  ///< Team lists, in the order of ListedBefore.
  ItemList FixtureList;          ///< As the fixtures are shown.
  std::vector<Pairing> Table;    ///< The fixtures themselves.
  ItemList Load;                 ///< Main files of this kind.
  bool LoadIsOnView = false;     ///< Whether the rest shows what Load has picked; not after a deletion.

  ItemList Home, Away;       ///< League only: the selected teams.
  bool ManualEntry = false;  ///< League only: the next hand-made fixture joins the list.
  int NumberOfTeams = 2;     ///< Knock-out only: the chosen number, 2, 4, 8 or 16.

  struct Content {
    std::string Name;
    std::vector<std::string> Teams;
    std::vector<Pairing> Fixtures;

    bool operator==(const Content&) const = default;
  };
  Content Saved;  ///< What was loaded or saved last.
};

class LegEditor {
 public:
  LegEditor(ProgramFolder folder, Desktop& desktop, Random& random);

  void Kind_Click(int entry) { Kind.Picked = entry; }

  // Actions of one side, `League` or `KnockOut`.
  static void AddTeam_Click(EditorSide& side);
  static void RemoveTeam_Click(EditorSide& side);
  void AutoFixtures_Click(EditorSide& side);
  void Save_Click(EditorSide& side);
  void Load_Click(EditorSide& side, int entry);  ///< A file that is missing or can't be read changes nothing.
  /// Deletes the championship that the load chooser shows, but not one that only a deletion has put there.
  void Delete_Click(EditorSide& side);

  /// Adds a fixture of the picked home and away teams. The first one replaces a generated list.
  void AddFixture_Click();
  void MoreTeams_Click();   ///< Doubles the number of teams, up to 16.
  void FewerTeams_Click();  ///< Halves it, down to 2.
  void Exit_Click() { Closed = true; }

  /// What is not saved, as sentences; empty where everything is.
  std::string UnsavedNote() const;

  ItemList Kind;  ///< "League Championship" or "Knock Out Championship".
  EditorSide League{ChampionshipKind::League};
  EditorSide KnockOut{ChampionshipKind::KnockOut};
  std::string Next;  ///< The box to type in after an action; empty for where the user is.
  bool Closed = false;

 private:
  void Form_Load();
  static void ClearFixtures(EditorSide& side);
  static void AddFixture(EditorSide& side, Pairing fixture);
  bool MayBeSaved(const EditorSide& side);

  ProgramFolder folder_;
  Desktop& desktop_;
  Random& random_;
};

}  // namespace kickwell
