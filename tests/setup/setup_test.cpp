// The match settings and the line-up selection.
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
  Selection OpenSelection() {
    Selection selection(
        folder_.Folder, desktop_, [this](const MatchSetup& setup) { opened_.push_back(setup); }, MakeSetup());
    selection.Timer1_Timer();
    selection.Timer1_Timer();  // Loads once.
    return selection;
  }

  /// A side's figures as the selection shows them, with the last player's position.
  static std::string Figures(const LineUp& side) {
    std::string text = side.Formation + ", " + std::to_string(side.OverallSkill);
    for (const auto& figure : {side.Attack, side.Defence, side.Midfield, side.Keeping})
      text += " " + std::to_string(figure.value_or(-1));
    return text + ", " + side.Reputation + ", " + side.Slots[10].Position;
  }

  std::vector<MatchSetup> opened_;
};

TEST_F(SetupTest, SettingsKeepTheTeamsDifferentAndTheDecidersInOrder) {
  AddTeams(folder_, {"A", "b", "C"});
  ASSERT_TRUE(SaveStadiums(folder_.Folder, {{"A", "Mill", "Leat", "100"}}).Ok());
  Settings s = OpenSettings();
  std::string teams = s.Combo1.Text() + s.Combo2.Text();
  for (const auto& [combo, entry] : {std::pair(&Settings::Combo1_Click, 1),
                                     {&Settings::Combo1_Click, 2},  // The other moves from last to first.
                                     {&Settings::Combo2_Click, 2},
                                     {&Settings::Combo2_Click, 1}}) {
    (s.*combo)(entry);
    teams += " " + s.Combo1.Text() + s.Combo2.Text();
  }
  EXPECT_EQ(teams, "Ab bC CA AC Ab");
  s.Check1_Click(true);
  s.Check2_Click(true);
  s.Check1_Click(false);
  EXPECT_FALSE(s.Check2 || s.Check2Enabled);  // No shoot-out without extra time.
  s.Combo5_Click(3);
  s.Command1_Click();
  ASSERT_EQ(opened_.size(), 1U);
  EXPECT_EQ(opened_[0].Weather.Text, "Warm & Humid");
  EXPECT_EQ(opened_[0].Capacity, 100);
}

TEST_F(SetupTest, WithoutTeamsOrStadiumsTheSettingsAreNotProper) {
  OpenSettings().Command1_Click();  // Not even the folders exist.
  AddTeams(folder_, {"A"});
  Settings settings = OpenSettings();
  settings.Combo1_Click(0);
  settings.Combo2_Click(0);  // There is no other entry to move on to.
  settings.Command1_Click();
  EXPECT_EQ(desktop_.Told(), Joined(Texts(2, "i: Please make all the settings properly")));
  settings.Combo3.Entries = {"Mill"};
  settings.Combo3_Click(0);
  settings.Command1_Click();
  EXPECT_EQ(opened_.size(), 1U);
}

TEST_F(SetupTest, TheFirstElevenAreShownWithTheirFiguresAndHandedOverInSlotOrder) {
  AddTeams(folder_, {"United"});
  Team rovers = MakeTeam("Rovers", "R", "70");
  rovers.Players[10].Skill = "75";
  rovers.Players[1].Skill = "none";  // Counts 0.
  std::swap(rovers.Players[0], rovers.Players[9]);
  rovers.Players.push_back({"Sub", "99", "SWEEPER"});
  ASSERT_TRUE(SaveTeam(folder_.Folder, rovers).Ok());
  Selection selection = OpenSelection();
  EXPECT_EQ(Figures(selection.Side1), "4-4-2, 64 72 52 70 70, 75%, FDR");  // 64 is 705 / 11.
  selection.Combo1_Click(10, 11);  // A position of no line counts in the overall skill alone.
  EXPECT_EQ(Figures(selection.Side1), "4-4-1, 66 70 52 70 70, 75%, SWEEPER");
  selection.Command1_Click();
  ASSERT_EQ(opened_.size(), 1U);
  const MatchSetup& setup = opened_[0];
  EXPECT_EQ(Joined(setup.Team1Attackers) + " " + Joined(setup.Team1Outfield),
            "R9|R5|R6|R7|R8 R9|R1|R2|R3|R4|R5|R6|R7|R8");
  EXPECT_EQ(Joined(setup.Team2Attackers), "United5|United6|United7|United8|United9|United10");
  EXPECT_EQ(setup.Team1Strength * 100 + setup.Team2Strength, 6680);
}

TEST_F(SetupTest, ASquadTooSmallOrAPlayerChosenTwiceIsRefused) {
  Selection missing = OpenSelection();
  missing.Command1_Click();
  EXPECT_EQ(desktop_.Told(), "!:  of Rovers has been selected more than once.");
  AddTeams(folder_, {"Rovers", "United"});
  Selection selection = OpenSelection();
  selection.Combo1_Click(0, 1);  // No goalkeeper either, but that is told later.
  selection.Combo2_Click(10, 9);
  selection.Command1_Click();  // The last pair is told,
  selection.Combo1_Click(10, 9);
  selection.Command1_Click();  // and side 1 of the same pair on both sides.
  Team small = MakeTeam("Rovers", "R");
  small.Players.pop_back();
  ASSERT_TRUE(SaveTeam(folder_.Folder, small).Ok());
  OpenSelection().Command1_Click();  // Dark.
  EXPECT_EQ(desktop_.Told(),
            "!: United9 of United has been selected more than once.|"
            "!: Rovers9 of Rovers has been selected more than once.|"
            "!: Rovers don't have enough players to play.");
  EXPECT_TRUE(opened_.empty() && !selection.Closed);
}

/// A line-up of goalkeepers, defenders, midfielders and forwards, the rest of it playing in no line.
LineUp LineUpOf(const std::string& lines) {
  LineUp side;
  for (int slot = 0; slot < SlotCount; ++slot) {
    const std::string line = slot < std::ssize(lines) ? lines.substr(static_cast<std::size_t>(slot), 1) : "X";
    const std::string position = line == "G" ? "GK" : line == "F" ? "FDR" : line + "FC";
    side.Squad.push_back({std::to_string(slot), "61", position});
    side.Choose(slot, slot);
  }
  return side;
}

TEST(LineUpFault, IsTheFirstInTheOrderOfTheRulesAndOfSideOneFirst) {
  const std::pair<const char*, std::string> rules[] = {{"GG", "There are more than one Goal Keeper for "},
                                                       {"", "There is no Goal Keeper for "},
                                                       {"G", "There are no Forwards for "},
                                                       {"GF", "There are no Defenders for "},
                                                       {"GFD", "There are no Mid-Fielders for "}};
  LineUp kept = LineUpOf("GFDM");
  EXPECT_EQ(LineUpFault(kept, "Home", kept, "Away"), std::nullopt);
  for (auto rule = std::rbegin(rules); rule != std::rend(rules); ++rule) {
    const LineUp broken = LineUpOf(rule->first);  // Breaks, but for the second keeper, all later ones, too.
    EXPECT_EQ(LineUpFault(kept, "Home", broken, "Away"), rule->second + "Away.");
    EXPECT_EQ(LineUpFault(broken, "Home", broken, "Away"), rule->second + "Home.");
    kept = broken;
  }
}

}  // namespace
}  // namespace kickwell
