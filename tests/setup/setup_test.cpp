// The match settings and the line-up selection.
#include "base/at.h"
#include "setup/selection.h"
#include "setup/settings.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

class SetupTest : public ScreenTest {
 protected:
  Settings OpenSettings() { return {folder_.Folder, desktop_, open_}; }

  /// The selection for Rovers and United, loaded.
  Selection OpenSelection() {
    Selection selection(folder_.Folder, desktop_, open_, MakeSetup());
    selection.Timer1_Timer();
    selection.Timer1_Timer();  // Loads once.
    return selection;
  }

  std::vector<MatchSetup> opened_;  ///< What the next screen was given.
  const std::function<void(const MatchSetup&)> open_ = [this](const auto& setup) {
    opened_.push_back(setup);
  };
};

TEST_F(SetupTest, AMatchNeedsTwoTeamsAndAVenue) {
  OpenSettings().Command1_Click();  // Not even the folders exist.
  AddTeams({"A"});
  Settings settings = OpenSettings();
  EXPECT_EQ(settings.Combo1.Text(), "");  // One team is no default.
  settings.Combo1_Click(0);
  settings.Combo2_Click(0);  // There is no other entry to move on to.
  settings.Command1_Click();
  AddTeams({"B"});
  OpenSettings().Command1_Click();
  EXPECT_EQ(desktop_.Taken(), Texts(3, "i: Please make all the settings properly"));
  ASSERT_TRUE(SaveStadiums(folder_.Folder, {{"A", "Mill", "Leat", "100"}}).Ok());
  Settings complete = OpenSettings();
  complete.Combo5_Click(3);
  complete.Command1_Click();
  EXPECT_EQ(opened_.at(0).Weather.Text, "Warm & Humid");
}

TEST_F(SetupTest, TheFirstElevenAreHandedOverInSlotOrder) {
  AddTeams({"United"});
  Team rovers = MakeTeam("Rovers", "R", "70");
  std::swap(rovers.Players[0], rovers.Players[9]);  // The keeper's slot is the last but one.
  rovers.Players[1].Skill = "none";                 // Counts 0.
  rovers.Players.push_back({"Sub", "99", "MFX"});   // Plays in no line.
  ASSERT_TRUE(SaveTeam(folder_.Folder, rovers).Ok());
  Selection selection = OpenSelection();
  EXPECT_EQ(selection.Side1.Defence, 52);  // 210 / 4
  selection.Combo1_Click(10, 11);
  EXPECT_EQ(selection.Side1.Formation, "4-4-1");
  selection.Command1_Click();
  ASSERT_EQ(opened_.size(), 1U);
  EXPECT_EQ(opened_[0].Team1Attackers, (Texts{"R9", "R5", "R6", "R7", "R8"}));
  EXPECT_EQ(opened_[0].Team1Outfield, (Texts{"R9", "R1", "R2", "R3", "R4", "R5", "R6", "R7", "R8"}));
  EXPECT_EQ(opened_[0].Team2Outfield.size(), 10U);
  EXPECT_EQ(opened_[0].Team1Strength, 66);
  EXPECT_EQ(opened_[0].Team2Strength, 80);
}

TEST_F(SetupTest, NobodyCanPlayWithoutSquads) {
  Selection empty = OpenSelection();
  empty.Command1_Click();  // All names are empty.
  EXPECT_EQ(empty.Side1.Note, "There is no file \"Rovers\" in \"Teams\".");
  EXPECT_EQ(desktop_.Taken(), Texts{"!:  of Rovers has been selected more than once."});
  const Texts message = {MakeUnreadable("Teams/Rovers")};
  EXPECT_FALSE(OpenSelection().Command1Enabled);
  EXPECT_EQ(desktop_.Taken(), message);
}

TEST_F(SetupTest, TheLastPlayerChosenTwiceIsReported) {
  AddTeams({"Rovers", "United"});
  Selection selection = OpenSelection();
  selection.Combo2_Click(10, 9);
  selection.Command1_Click();
  selection.Combo1_Click(10, 9);  // The same pair as on side 2.
  selection.Command1_Click();
  EXPECT_EQ(desktop_.Taken(), (Texts{"!: United9 of United has been selected more than once.",
                                     "!: Rovers9 of Rovers has been selected more than once."}));
}

/// A line-up whose first players have these positions, while the others play in no line.
LineUp LineUpOf(Texts positions) {
  positions.resize(SlotCount, "SWEEPER");
  LineUp side;
  for (int slot = 0; slot < SlotCount; ++slot) {
    side.Squad.push_back({std::to_string(slot), "61", At(positions, slot)});
    side.Choose(slot, slot);
  }
  return side;
}

TEST(LineUpFault, IsTheFirstInTheOrderOfTheRulesAndOfSideOneFirst) {
  const std::pair<Texts, std::string> rules[] = {{{"GK", "GK"}, "There are more than one Goal Keeper for "},
                                                 {{}, "There is no Goal Keeper for "},
                                                 {{"GK"}, "There are no Forwards for "},
                                                 {{"GK", "FDR"}, "There are no Defenders for "},
                                                 {{"GK", "FDR", "DFC"}, "There are no Mid-Fielders for "}};
  LineUp next = LineUpOf({"GK", "FDR", "DFC", "MFL"});
  for (auto rule = std::rbegin(rules); rule != std::rend(rules); ++rule) {
    const LineUp broken = LineUpOf(rule->first);  // Breaks the rules below it, too.
    EXPECT_EQ(LineUpFault(next, "Home", broken, "Away"), rule->second + "Away.");
    EXPECT_EQ(LineUpFault(broken, "Home", broken, "Away"), rule->second + "Home.");
    next = broken;
  }
}

}  // namespace
}  // namespace kickwell
