// The championship play settings: which fixtures of a league or a knock-out are played, and how.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/at.h"
#include "base/desktop.h"
#include "base/item_list.h"
#include "data/championship.h"
#include "data/program_folder.h"
#include "engine/match_setup.h"

namespace kickwell {

class ChampionshipPlay {
 public:
  using OpenSelection = std::function<void(const MatchSetup&)>;  ///< Returns when the selection has closed.
  using SetChampionship = std::function<void(const std::string&)>;  ///< Tells the menu what is being played.

  /// Opens with the first championship of the kind that can be played.
  ChampionshipPlay(ChampionshipKind kind, ProgramFolder folder, Desktop& desktop,
                   SetChampionship setChampionship, OpenSelection openSelection);

  void Championships_Click(int entry);
  void From_Click(int entry) { From.Picked = entry; }
  void To_Click(int entry) { To.Picked = entry; }
  void Fixtures_Click(int first, int last);  ///< Makes these places of the fixture list (from 0) the range.
  void SimulationType_Click(int entry) { SimulationType.Picked = entry; }

  /// Reads the championship's fixtures and offers them all. A file that is missing or can't be read changes
  /// nothing. Neither does one that stores another name than its own, because its results would go to that
  /// other championship, nor any file while an interrupted change can't be finished.
  void Load(const std::string& fileName);

  /// Hands the unplayed fixtures of the range to the line-up selection, one after the other, and reports
  /// those that can't be played.
  void Command1_Click();
  void Command2_Click() { Closed = true; }

  /// The place of the first fixture that is still to be played, or ItemList::None.
  int FirstUnplayed() const;

  /// What has been played of the range, in words. Empty unless the range holds a match.
  std::string RangeText() const;

  /// Whether the fixture at `place` of the list (from 0) has been played.
  bool IsPlayed(int place) const { return At(fixtures_, place).Status != NotPlayed; }

  ItemList Championships;  ///< Main files.
  ItemList FixtureList;
  ItemList From, To;  ///< Match numbers.
  ItemList SimulationType;
  bool Closed = false;

  /// Called when fixtures have been read, also in the middle of a range.
  std::function<void()> Changed = [] {};

 private:
  void Form_Load();
  void HandOver(int number);

  /// Whether the fixtures are as they were recorded. One that a failing disk has recorded in part is finished
  /// and read first; where that fails, the user is told.
  bool IsUpToDate();

  ChampionshipKind kind_;
  ProgramFolder folder_;
  Desktop& desktop_;
  SetChampionship setChampionship_;
  OpenSelection openSelection_;
  std::string name_;  ///< Of the loaded championship.
  std::vector<Fixture> fixtures_;
};

}  // namespace kickwell
