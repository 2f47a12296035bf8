// The match settings and the line-up selection.
#include <tuple>

#include "setup/selection.h"
#include "setup/settings.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

class SetupTest : public ScreenTest {
 protected:
  Settings OpenSettings() {
    return {folder_.Folder, desktop_, [this](const MatchSetup& setup) { opened_.push_back(setup); }};
  }

  /// The selection for Rovers and United, loaded.
  Selection Open() {
    MatchSetup setup;
    setup.Team1Name = "Rovers";
    setup.Team2Name = "United";
    setup.MatchNumber = 5;
    Selection selection(
        folder_.Folder, desktop_, [this](const MatchSetup& s) { opened_.push_back(s); }, setup);
    selection.Timer1_Timer();
    selection.Timer1_Timer();  // Loads once.
    return selection;
  }

  /// Writes a team of eleven with so many goalkeepers, defenders, midfielders and forwards: "1442". Those
  /// that are left play in no line.
  void Save(const std::string& name, const std::string& lines) const {
    Team team{name, "75", {}};
    constexpr const char* Positions[] = {"GK", "DFC", "MFL", "FDR"};
    for (std::size_t line = 0; line < 4; ++line)
      team.Players.insert(team.Players.end(), static_cast<std::size_t>(lines[line] - '0'),
                          {"", "61", Positions[line]});
    team.Players.resize(11, {"", "61", "XX"});
    for (std::size_t i = 0; i < 11; ++i) team.Players[i].Name = name[0] + std::to_string(i);
    ASSERT_TRUE(SaveTeam(folder_.Folder, team).Ok());
  }

  /// Formation; overall skill, attack, defence, midfield and keeping; reputation.
  static std::string Figures(const LineUp& side) {
    std::string text = side.Formation + ", " + std::to_string(side.OverallSkill);
    for (const auto& figure : {side.Attack, side.Defence, side.Midfield, side.Keeping})
      text += " " + std::to_string(figure.value_or(-1));
    return text + ", " + side.Reputation;
  }

  std::vector<MatchSetup> opened_;
};

TEST_F(SetupTest, SettingsOfferTeamsStadiumsWeatherAndTypesAndKeepTheTeamsDifferent) {
  AddTeams(folder_, {"b", "A", "C"});
  ASSERT_TRUE(
      SaveStadiums(folder_.Folder, {{"A", "Mill", "Leat", "100"}, {"Neutral", "Bowl", "Oss", "7x"}}).Ok());
  Settings s = OpenSettings();
  EXPECT_EQ(Joined({s.Combo1.Text(), s.Combo2.Text(), s.Combo3.Text(), s.Combo4.Text(), s.Combo5.Text()}),
            "A|b|Mill|Instant Result|Clear Skies");
  EXPECT_EQ(Joined(s.Combo1.Entries), "A|b|C");
  std::string teams;
  const auto pick = [&](void (Settings::*combo)(int), int entry) {
    (s.*combo)(entry);
    teams += s.Combo1.Text() + s.Combo2.Text() + " ";
  };
  pick(&Settings::Combo1_Click, 1);
  pick(&Settings::Combo1_Click, 2);  // The other moves from the last entry to the first.
  pick(&Settings::Combo2_Click, 2);
  pick(&Settings::Combo2_Click, 1);
  EXPECT_EQ(teams, "bC CA AC Ab ");
  s.Check1_Click(true);
  EXPECT_TRUE(s.Check2Enabled);
  s.Check2_Click(true);
  s.Check1_Click(false);
  EXPECT_FALSE(s.Check2 || s.Check2Enabled);
  s.Combo3_Click(1);
  s.Combo4_Click(1);
  s.Combo5_Click(3);
  s.Check1_Click(true);
  s.Command1_Click();
  ASSERT_EQ(opened_.size(), 1U);
  const MatchSetup& setup = opened_[0];
  EXPECT_EQ(Joined({setup.Team1Name, setup.Team2Name, setup.Venue}), "A|b|Bowl, Oss");
  EXPECT_EQ(setup.Capacity, 0);  // "7x" is no number.
  EXPECT_EQ(setup.Weather, WeatherCondition::WarmAndHumid);
  EXPECT_TRUE(setup.SimulationType == SimulationKind::FullSimulation && setup.ExtraTime &&
              !setup.PenaltyShootOut);
  EXPECT_TRUE(s.Closed);
}

TEST_F(SetupTest, WithoutTeamsOrStadiumsTheSettingsAreNotProper) {
  Settings empty = OpenSettings();  // Not even the folders exist.
  empty.Command1_Click();
  AddTeams(folder_, {"A"});
  ASSERT_TRUE(SaveStadiums(folder_.Folder, {{"A", "Mill", "Leat", "100"}}).Ok());
  Settings single = OpenSettings();
  single.Combo1_Click(0);
  single.Command1_Click();
  EXPECT_EQ(desktop_.Told(), Joined(Texts(2, "i: Please make all the settings properly")));
  single.Combo2_Click(0);  // There is no other entry to move on to.
  single.Command1_Click();
  EXPECT_EQ(opened_.size(), 1U);
}

TEST_F(SetupTest, TheFirstElevenAreShownWithTheirFiguresAndHandedOverInSlotOrder) {
  Team rovers = MakeTeam("Rovers", "R", "70");
  rovers.Players[10].Skill = "75";
  rovers.Players[1].Skill = "none";  // Counts 0, shown as it is.
  std::swap(rovers.Players[0], rovers.Players[9]);
  rovers.Players.push_back({"Sub", "99", "SWEEPER"});
  ASSERT_TRUE(SaveTeam(folder_.Folder, rovers).Ok());
  Save("United", "1442");
  Selection selection = Open();
  LineUp& side = selection.Side1;
  EXPECT_EQ(Joined({side.NameIn(0), side.NameIn(10), side.Slots[1].Skill}), "R9|R10|none");
  EXPECT_EQ(Figures(side), "4-4-2, 64 72 52 70 70, 75%");  // 64 is 705 / 11.
  selection.Combo1_Click(10, 11);  // A position of no line counts in the overall skill alone.
  EXPECT_EQ(Figures(side) + ", " + side.Slots[10].Position, "4-4-1, 66 70 52 70 70, 75%, SWEEPER");
  selection.Command1_Click();
  ASSERT_EQ(opened_.size(), 1U);
  const MatchSetup& setup = opened_[0];
  EXPECT_EQ(Joined(setup.Team1Attackers) + " " + Joined(setup.Team1Outfield),
            "R9|R5|R6|R7|R8 R9|R1|R2|R3|R4|R5|R6|R7|R8");
  EXPECT_EQ(Joined(setup.Team2Attackers) + " " + Joined(setup.Team2Outfield),
            "U5|U6|U7|U8|U9|U10 U1|U2|U3|U4|U5|U6|U7|U8|U9|U10");
  EXPECT_EQ(setup.Team1Strength * 1000 + setup.Team2Strength * 10 + setup.MatchNumber, 66615);
  EXPECT_TRUE(selection.Closed);
}

TEST_F(SetupTest, TheRulesOfALineUpAreTestedInOrder) {
  // Each case breaks the rule that is told and later ones.
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"2441", "0542", "!: There are more than one Goal Keeper for Rovers."},
      {"0000", "2441", "!: There are more than one Goal Keeper for United."},
      {"0542", "0000", "!: There is no Goal Keeper for Rovers."},
      {"1460", "0542", "!: There is no Goal Keeper for United."},
      {"1460", "1460", "!: There are no Forwards for Rovers."},
      {"1082", "1460", "!: There are no Forwards for United."},
      {"1082", "1082", "!: There are no Defenders for Rovers."},
      {"1802", "1082", "!: There are no Defenders for United."},
      {"1802", "1802", "!: There are no Mid-Fielders for Rovers."},
      {"1442", "1802", "!: There are no Mid-Fielders for United."},
  };
  for (const auto& [rovers, united, message] : cases) {
    Save("Rovers", rovers);
    Save("United", united);
    Selection selection = Open();
    selection.Command1_Click();
    EXPECT_EQ(desktop_.Told(), message);
    selection.Combo1_Click(9, 1);  // Nobody plays twice: that is told before all else, of the last pair.
    selection.Combo2_Click(10, 9);
    selection.Command1_Click();
    selection.Combo1_Click(9, 9);
    selection.Combo1_Click(10, 9);  // The same pair on both sides: side 1 is told.
    selection.Command1_Click();
    EXPECT_EQ(desktop_.Told(),
              "!: U9 of United has been selected more than once.|"
              "!: R9 of Rovers has been selected more than once.");
    EXPECT_TRUE(opened_.empty() && !selection.Closed);
  }
  std::filesystem::remove(folder_ / "Teams/Rovers");
  Selection missing = Open();
  missing.Command1_Click();
  EXPECT_EQ(desktop_.Told(), "!:  of Rovers has been selected more than once.");
}

}  // namespace
}  // namespace kickwell
