#include "championship/championship_play.h"

#include <algorithm>
#include <span>
#include <utility>

#include "data/championship_store.h"
#include "data/knock_out.h"
#include "data/tell_failure.h"

namespace kickwell {
namespace {

/// The match whose winner a fixture of a knock-out waits for; 0 when both teams are known.
int AwaitedMatch(const Fixture& fixture) {
  const int home = PlaceholderNumber(fixture.Home);
  return home > 0 ? home : PlaceholderNumber(fixture.Away);
}

}  // namespace

ChampionshipPlay::ChampionshipPlay(ChampionshipKind kind, ProgramFolder folder, Desktop& desktop,
                                   SetChampionship setChampionship, OpenSelection openSelection)
    : kind_(kind),
      folder_(std::move(folder)),
      desktop_(desktop),
      setChampionship_(std::move(setChampionship)),
      openSelection_(std::move(openSelection)) {
  Form_Load();
}

void ChampionshipPlay::Form_Load() {
  Championships.Entries = ListChampionships(folder_, kind_);
  for (int entry = 0; entry < Championships.Count() && Championships.Picked == ItemList::None; ++entry) {
    Championships_Click(entry);
    if (ChangesAreUnfinished(folder_)) break;  // None can be loaded.
  }
  SimulationType = {{SimulationTexts.begin(), SimulationTexts.end()}, 0};
}

void ChampionshipPlay::Championships_Click(int entry) {
  Load(At(Championships.Entries, entry));
}

void ChampionshipPlay::Fixtures_Click(int first, int last) {
  From.Pick(first);
  To.Pick(last);
}

int ChampionshipPlay::FirstUnplayed() const {
  const auto unplayed = std::ranges::find(fixtures_, NotPlayed, &Fixture::Status);
  return unplayed == fixtures_.end() ? ItemList::None : static_cast<int>(unplayed - fixtures_.begin());
}

std::string ChampionshipPlay::RangeText() const {
  const int count = To.Picked - From.Picked + 1;
  if (From.Picked == ItemList::None || count < 1) return {};
  const auto range =
      std::span(fixtures_).subspan(static_cast<std::size_t>(From.Picked), static_cast<std::size_t>(count));
  const auto left = std::ranges::count(range, NotPlayed, &Fixture::Status);
  const std::string matches =
      count == 1 ? "Match " + From.Text() : "Matches " + From.Text() + " to " + To.Text();
  if (left == count) return matches + (count == 1 ? " is" : " are") + " to be played.";
  if (left > 0)
    return matches + ": " + std::to_string(left) + " of " + std::to_string(count) + " to be played.";
  const int next = FirstUnplayed();
  return matches + (count == 1 ? " has" : " have") + " been played." +
         (next == ItemList::None ? "" : " The next one is match " + std::to_string(next + 1) + ".");
}

void ChampionshipPlay::Load(const std::string& fileName) {
  auto [read, result] = ReadChampionship(folder_, IdOfMainFile(kind_, fileName));
  TellFailure(desktop_, result);
  if (!read) return;
  if (MainFileName(read->Id) != fileName) {
    desktop_.Inform(fileName + " holds the championship " + read->Id.Name + ". Rename the file to play it.");
    return;
  }
  const int place = Championships.PlaceOf(fileName);
  if (place != ItemList::None) Championships.Picked = place;
  name_ = read->Id.Name;
  setChampionship_(name_);
  fixtures_ = std::move(read->Fixtures);
  FixtureList = From = To = {};
  for (const Fixture& fixture : fixtures_) {
    const int number = FixtureList.Count() + 1;
    FixtureList.Add(FixtureText(number, {fixture.Home, fixture.Away}));
    From.Add(std::to_string(number));
  }
  To = From;
  From.PickFirst();
  To.Pick(To.Count() > 1 ? 1 : 0);
  Changed();
}

void ChampionshipPlay::Command1_Click() {
  if (Championships.Picked == ItemList::None || From.Picked == ItemList::None ||
      To.Picked == ItemList::None) {
    desktop_.Inform("Please make all the settings properly");
    return;
  }
  const int from = From.Picked + 1;  // The choosers hold the numbers from 1 on.
  const int to = To.Picked + 1;
  if (to < from) {
    desktop_.Inform("Please select the match numbers properly");
    return;
  }
  for (int number = from; number <= to && IsUpToDate(); ++number) HandOver(number);
}

bool ChampionshipPlay::IsUpToDate() {
  if (!ChangesAreUnfinished(folder_)) return true;
  Load(Championships.Text());
  return !ChangesAreUnfinished(folder_);
}

void ChampionshipPlay::HandOver(int number) {
  if (number > FixtureList.Count()) return;  // The file has lost it in the meantime.
  const Fixture fixture = At(fixtures_, number - 1);
  const std::string match = "Match " + std::to_string(number);
  if (fixture.Status != NotPlayed) {
    desktop_.Inform(match + " has been played already");
    return;
  }
  const int awaited = kind_ == ChampionshipKind::KnockOut ? AwaitedMatch(fixture) : 0;
  if (awaited > 0) {
    desktop_.Inform(match + " can't be played before match " + std::to_string(awaited) + " has been played");
    return;
  }
  MatchSetup setup;
  setup.Mode = ModeOf(kind_);
  setup.ChampionshipName = name_;
  setup.MatchNumber = number;
  setup.Team1Name = TeamOf(folder_, kind_, fixture.Home);
  setup.Team2Name = TeamOf(folder_, kind_, fixture.Away);
  setup.SimulationType = static_cast<SimulationKind>(SimulationType.Picked);
  openSelection_(setup);
}

}  // namespace kickwell
