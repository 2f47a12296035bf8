#include "setup/settings.h"

#include <utility>

#include "base/number.h"
#include "data/stadium_store.h"
#include "data/team_store.h"
#include "data/tell_failure.h"

namespace kickwell {
namespace {

/// Moves `other` on to its next entry, or from the last to the first, if it shows what `picked` shows.
void KeepApart(const ItemList& picked, ItemList& other) {
  if (other.Picked != ItemList::None && other.Text() == picked.Text()) {
    other.Picked = (other.Picked + 1) % other.Count();
  }
}

template <typename Texts>
ItemList OfferTexts(const Texts& texts) {
  return {{texts.begin(), texts.end()}, 0};
}

}  // namespace

Settings::Settings(ProgramFolder folder, Desktop& desktop, OpenSelection openSelection)
    : folder_(std::move(folder)), desktop_(desktop), openSelection_(std::move(openSelection)) {
  Form_Load();
}

void Settings::Form_Load() {
  const auto [stadiums, result] = LoadStadiums(folder_);
  for (const Stadium& stadium : stadiums) {
    Combo3.Add(stadium.Name);
    Combo7.Add(stadium.City);
    Combo6.Add(stadium.Capacity);
    HomeTeams.push_back(stadium.HomeTeam);
  }
  Combo1.Entries = Combo2.Entries = ListTeams(folder_);
  if (Combo1.Count() >= 2) {
    Combo1_Click(0);
    Combo2_Click(1);
  }
  if (Combo3.Count() > 0) Combo3_Click(0);
  Combo4 = OfferTexts(SimulationTexts);
  for (const WeatherKind& weather : Weathers) Combo5.Add(std::string(weather.Text));
  Combo5.PickFirst();
  TellFailure(desktop_, result);
}

void Settings::Combo1_Click(int entry) {
  Combo1.Picked = entry;
  KeepApart(Combo1, Combo2);
}

void Settings::Combo2_Click(int entry) {
  Combo2.Picked = entry;
  KeepApart(Combo2, Combo1);
}

void Settings::Combo3_Click(int entry) {
  Combo3.Picked = Combo6.Picked = Combo7.Picked = entry;
}

void Settings::Check1_Click(bool checked) {
  Check1 = Check2Enabled = checked;
  if (!checked) Check2 = false;
}

void Settings::Command1_Click() {
  if (Combo1.Text().empty() || Combo2.Text().empty() || Combo3.Text().empty()) {
    desktop_.Inform("Please make all the settings properly");
    return;
  }
  MatchSetup setup;
  setup.Team1Name = Combo1.Text();
  setup.Team2Name = Combo2.Text();
  setup.SimulationType = static_cast<SimulationKind>(Combo4.Picked);
  setup.ExtraTime = Check1;
  setup.PenaltyShootOut = Check2;
  setup.Venue = VenueText({.HomeTeam = {}, .Name = Combo3.Text(), .City = Combo7.Text(), .Capacity = {}});
  setup.Capacity = ToNumber(Combo6.Text());
  setup.Weather = At(Weathers, Combo5.Picked);
  openSelection_(setup);
  Closed = true;
}

}  // namespace kickwell
