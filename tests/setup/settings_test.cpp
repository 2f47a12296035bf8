#include "setup/settings.h"

#include <gtest/gtest.h>

#include "support/fakes.h"
#include "support/folders.h"

namespace kickwell {
namespace {

class SettingsTest : public testing::Test {
 protected:
  void AddTeams(std::initializer_list<const char*> names) {
    for (const char* name : names) ASSERT_TRUE(CreateTeam(folder_.Folder, name, "50").Ok());
  }
  Settings Open() {
    return {folder_.Folder, desktop_, [this](const MatchSetup& setup) { opened_.push_back(setup); }};
  }

  TestFolder folder_;
  FakeDesktop desktop_;
  std::vector<MatchSetup> opened_;
};

TEST_F(SettingsTest, OffersTeamsStadiumsWeatherAndTypes) {
  AddTeams({"b", "A", "C"});
  ASSERT_TRUE(
      SaveStadiums(folder_.Folder, {{"A", "Mill", "Leat", "100"}, {"Neutral", "Bowl", "Oss", "7x"}}).Ok());
  Settings settings = Open();
  EXPECT_EQ(settings.Combo1.Entries, (std::vector<std::string>{"A", "b", "C"}));
  EXPECT_EQ(settings.Combo1.Text() + settings.Combo2.Text() + settings.Combo3.Text(), "AbMill");
  EXPECT_EQ(settings.Combo4.Text() + "/" + settings.Combo5.Text(), "Instant Result/Clear Skies");
  EXPECT_EQ(settings.Combo5.Entries,
            (std::vector<std::string>{"Clear Skies", "Overcast", "Rainy", "Warm & Humid", "Windy"}));

  settings.Combo3_Click(1);
  settings.Combo4_Click(1);
  settings.Combo5_Click(3);
  settings.Check1_Click(true);
  settings.Command1_Click();
  ASSERT_EQ(opened_.size(), 1U);
  const MatchSetup& setup = opened_[0];
  EXPECT_EQ(setup.Team1Name + setup.Team2Name + setup.Venue, "AbBowl, Oss");
  EXPECT_EQ(setup.Capacity, 0);  // "7x" is no number.
  EXPECT_EQ(setup.Weather, WeatherCondition::WarmAndHumid);
  EXPECT_EQ(setup.SimulationType, SimulationKind::FullSimulation);
  EXPECT_TRUE(setup.ExtraTime && !setup.PenaltyShootOut);
  EXPECT_EQ(setup.Mode, MatchMode::Friendly);
  EXPECT_TRUE(settings.Closed);
}

TEST_F(SettingsTest, TheTwoTeamsStayDifferent) {
  AddTeams({"A", "B", "C"});
  Settings settings = Open();
  const auto teams = [&settings] { return settings.Combo1.Text() + settings.Combo2.Text(); };
  settings.Combo1_Click(1);
  EXPECT_EQ(teams(), "BC");
  settings.Combo1_Click(2);
  EXPECT_EQ(teams(), "CA");  // From the last entry to the first.
  settings.Combo2_Click(2);
  EXPECT_EQ(teams(), "AC");
  settings.Combo2_Click(1);
  EXPECT_EQ(teams(), "AB");
}

TEST_F(SettingsTest, ThePenaltyShootOutDependsOnExtraTime) {
  Settings settings = Open();
  EXPECT_FALSE(settings.Check2Enabled);
  settings.Check1_Click(true);
  EXPECT_TRUE(settings.Check2Enabled);
  settings.Check2_Click(true);
  settings.Check1_Click(false);
  EXPECT_FALSE(settings.Check2 || settings.Check2Enabled);
}

TEST_F(SettingsTest, WithoutTeamsOrStadiumsItAsksForProperSettings) {
  const std::string message = "i: Please make all the settings properly";
  Settings empty = Open();  // Not even the folders exist.
  empty.Command1_Click();
  AddTeams({"A"});
  ASSERT_TRUE(SaveStadiums(folder_.Folder, {{"A", "Mill", "Leat", "100"}}).Ok());
  Settings single = Open();
  EXPECT_EQ(single.Combo1.Picked, Chooser::None);
  single.Combo1_Click(0);
  single.Command1_Click();
  EXPECT_EQ(desktop_.Taken(), (std::vector{message, message}));
  EXPECT_TRUE(opened_.empty());
  EXPECT_FALSE(single.Closed);
  single.Combo2_Click(0);  // There is no other entry to move on to.
  single.Command1_Click();
  EXPECT_EQ(opened_.size(), 1U);
}

}  // namespace
}  // namespace kickwell
