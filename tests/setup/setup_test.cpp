// The match settings and the line-up selection.
#include "setup/selection.h"
#include "setup/settings.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

const Texts Good = {"GK", "DFL", "DFC", "DFC", "DFR", "MFL", "MFC", "MFC", "MFR", "FDL", "FDR"};

/// Good positions, but those of a line replaced.
Texts Replaced(const std::string& line, const std::string& by) {
  Texts positions = Good;
  for (std::string& position : positions) {
    if (position.starts_with(line)) position = by;
  }
  return positions;
}

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

  void Save(const std::string& name, const std::string& prefix, const Texts& positions,
            const char* skill = "80") {
    Team team = MakeTeam(name, prefix, skill);
    for (std::size_t i = 0; i < positions.size(); ++i) team.Players[i].Position = positions[i];
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
    teams += s.Combo1.Text() + s.Combo2.Text() + (s.Check2Enabled ? "+ " : " ") + (s.Check2 ? "x" : "");
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
  EXPECT_EQ(setup.SimulationType, SimulationKind::FullSimulation);
  EXPECT_TRUE(setup.ExtraTime && !setup.PenaltyShootOut && s.Closed);
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

TEST_F(SetupTest, TheFirstElevenAreShownWithTheirFigures) {
  Team rovers = MakeTeam("Rovers", "R", "70");
  rovers.Players[10].Skill = "75";
  rovers.Players[1].Skill = "none";  // Counts 0, shown as it is.
  rovers.Players.push_back({"Sub", "99", "SWEEPER"});
  ASSERT_TRUE(SaveTeam(folder_.Folder, rovers).Ok());
  Save("United", "U", Good);
  Selection selection = Open();
  LineUp& side = selection.Side1;
  EXPECT_EQ(Joined({side.NameIn(0), side.NameIn(10), side.Slots[1].Skill}), "R0|R10|none");
  EXPECT_EQ(Figures(side), "4-4-2, 64 72 52 70 70, 75%");  // 64 is 705 / 11.
  selection.Combo1_Click(10, 11);  // A position of no line counts in the overall skill alone.
  EXPECT_EQ(Figures(side) + ", " + side.Slots[10].Position, "4-4-1, 66 70 52 70 70, 75%, SWEEPER");
}

TEST_F(SetupTest, LineUpsAreHandedOverInSlotOrder) {
  Save("Rovers", "R", {"DFL", "MFC", "GK", "FDR", "DFC", "SW"});
  Save("United", "U", Good, "61");
  Selection selection = Open();
  selection.Command1_Click();
  ASSERT_EQ(opened_.size(), 1U);
  const MatchSetup& setup = opened_[0];
  EXPECT_EQ(Joined(setup.Team1Attackers), "R1|R3|R6|R7|R8|R9|R10");
  EXPECT_EQ(Joined(setup.Team1Outfield), "R0|R1|R3|R4|R6|R7|R8|R9|R10");
  EXPECT_EQ(Joined(setup.Team2Attackers), "U5|U6|U7|U8|U9|U10");
  EXPECT_EQ(Joined(setup.Team2Outfield), "U1|U2|U3|U4|U5|U6|U7|U8|U9|U10");
  EXPECT_EQ(setup.Team1Strength * 1000 + setup.Team2Strength * 10 + setup.MatchNumber, 80615);
  EXPECT_TRUE(selection.Closed);
}

TEST_F(SetupTest, TheRulesOfALineUpAreTestedInOrder) {
  const Texts twoKeepers = Replaced("FDR", "GK"), noKeeper = Replaced("GK", "DFC"),
              noForwards = Replaced("FD", "MFC"), noDefenders = Replaced("DF", "MFC"),
              noMidfield = Replaced("MF", "DFC"), nobody(11, "XX");
  // Each case breaks the rule that is told and later ones.
  const std::tuple<Texts, Texts, const char*> cases[] = {
      {twoKeepers, noKeeper, "!: There are more than one Goal Keeper for Rovers."},
      {nobody, twoKeepers, "!: There are more than one Goal Keeper for United."},
      {noKeeper, nobody, "!: There is no Goal Keeper for Rovers."},
      {noForwards, noKeeper, "!: There is no Goal Keeper for United."},
      {noForwards, noForwards, "!: There are no Forwards for Rovers."},
      {noDefenders, noForwards, "!: There are no Forwards for United."},
      {noDefenders, noDefenders, "!: There are no Defenders for Rovers."},
      {noMidfield, noDefenders, "!: There are no Defenders for United."},
      {noMidfield, noMidfield, "!: There are no Mid-Fielders for Rovers."},
      {Good, noMidfield, "!: There are no Mid-Fielders for United."},
  };
  for (const auto& [rovers, united, message] : cases) {
    Save("Rovers", "R", rovers);
    Save("United", "U", united);
    Selection selection = Open();
    selection.Command1_Click();
    EXPECT_EQ(desktop_.Told(), message);
    selection.Combo1_Click(9, 1);  // Nobody plays twice: that is told before all else, of the last pair.
    selection.Combo2_Click(7, 3);
    selection.Command1_Click();
    selection.Combo1_Click(7, 3);  // The same pair on both sides: side 1 is told.
    selection.Command1_Click();
    EXPECT_EQ(desktop_.Told(),
              "!: U3 of United has been selected more than once.|"
              "!: R3 of Rovers has been selected more than once.");
    EXPECT_TRUE(opened_.empty() && !selection.Closed);
  }
}

TEST_F(SetupTest, ASmallSquadCanOnlyBeCancelledAndAMissingTeamOnlyFails) {
  Team small = MakeTeam("Rovers", "R");
  small.Players.pop_back();
  ASSERT_TRUE(SaveTeam(folder_.Folder, small).Ok());
  Save("United", "U", Good);
  Selection selection = Open();
  selection.Command1_Click();  // Dark.
  EXPECT_EQ(desktop_.Told(), "!: Rovers don't have enough players to play.");
  EXPECT_FALSE(selection.Command1Enabled || selection.Closed);
  EXPECT_EQ(selection.Side1.NameIn(0) + selection.Side1.Reputation + selection.Side2.NameIn(0), "75%U0");
  std::filesystem::remove(folder_ / "Teams/Rovers");
  Selection missing = Open();
  missing.Command1_Click();
  EXPECT_EQ(desktop_.Told(), "!:  of Rovers has been selected more than once.");
}

}  // namespace
}  // namespace kickwell
