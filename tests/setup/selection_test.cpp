#include "setup/selection.h"

#include <gtest/gtest.h>

#include "support/fakes.h"
#include "support/folders.h"

namespace kickwell {
namespace {

using Texts = std::vector<std::string>;

class SelectionTest : public testing::Test {
 protected:
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

  /// Opens Rovers and United with these positions for the eleven of Rovers and of United, and continues.
  Texts Continue(const Texts& positions1, const Texts& positions2) {
    SaveWithPositions("Rovers", "R", positions1);
    SaveWithPositions("United", "U", positions2);
    Selection selection = Open();
    selection.Command1_Click();
    EXPECT_EQ(selection.Closed, desktop_.Messages.empty());
    return desktop_.Taken();
  }

  void SaveWithPositions(const std::string& name, const std::string& prefix, const Texts& positions) {
    Team team = MakeTeam(name, prefix);
    for (std::size_t i = 0; i < positions.size(); ++i) team.Players[i].Position = positions[i];
    ASSERT_TRUE(SaveTeam(folder_.Folder, team).Ok());
  }

  TestFolder folder_;
  FakeDesktop desktop_;
  std::vector<MatchSetup> opened_;
};

TEST_F(SelectionTest, LoadsTheFirstElevenWithTheirFigures) {
  Team rovers = MakeTeam("Rovers", "R", "70");
  rovers.Players[10].Skill = "75";
  rovers.Players[1].Skill = "none";  // Counts 0, shown as it is.
  rovers.Players.push_back({"Sub", "99", "SWEEPER"});
  ASSERT_TRUE(SaveTeam(folder_.Folder, rovers).Ok());
  ASSERT_TRUE(SaveTeam(folder_.Folder, MakeTeam("United", "U")).Ok());
  Selection selection = Open();
  LineUp& side = selection.Side1;
  EXPECT_EQ(side.Squad.size(), 12U);
  EXPECT_EQ(side.NameIn(0) + side.NameIn(10), "R0R10");
  EXPECT_EQ(side.Slots[1].Skill, "none");
  EXPECT_EQ(side.Formation, "4-4-2");
  EXPECT_EQ(side.Reputation, "75%");
  EXPECT_EQ(side.OverallSkill, 64);  // 705 / 11.
  EXPECT_EQ(side.Attack, 72);
  EXPECT_EQ(side.Defence, 52);
  EXPECT_EQ(side.Midfield, 70);
  EXPECT_EQ(side.Keeping, 70);
  EXPECT_TRUE(selection.Command1Enabled);

  selection.Combo1_Click(10, 11);  // A position of no line counts in the overall skill alone.
  EXPECT_EQ(side.Formation, "4-4-1");
  EXPECT_EQ(side.OverallSkill, 66);
  EXPECT_EQ(side.Attack, 70);
  EXPECT_EQ(side.Slots[10].Position, "SWEEPER");
  selection.Command1_Click();
  ASSERT_EQ(opened_.size(), 1U);
  EXPECT_EQ(opened_[0].Team1Outfield.size(), 9U);
}

TEST_F(SelectionTest, HandsTheLineUpsOverInSlotOrder) {
  SaveWithPositions("Rovers", "R", {"DFL", "MFC", "GK", "FDR", "DFC", "DFL"});
  ASSERT_TRUE(SaveTeam(folder_.Folder, MakeTeam("United", "U", "61")).Ok());
  Selection selection = Open();
  selection.Command1_Click();
  ASSERT_EQ(opened_.size(), 1U);
  const MatchSetup& setup = opened_[0];
  EXPECT_EQ(setup.Team1Attackers, (Texts{"R1", "R3", "R6", "R7", "R8", "R9", "R10"}));
  EXPECT_EQ(setup.Team1Outfield, (Texts{"R0", "R1", "R3", "R4", "R5", "R6", "R7", "R8", "R9", "R10"}));
  EXPECT_EQ(setup.Team2Attackers, (Texts{"U5", "U6", "U7", "U8", "U9", "U10"}));
  EXPECT_EQ(setup.Team2Outfield.size(), 10U);
  EXPECT_EQ(setup.Team1Strength * 100 + setup.Team2Strength, 8061);
  EXPECT_EQ(setup.MatchNumber, 5);
  EXPECT_TRUE(selection.Closed);
}

TEST_F(SelectionTest, TheRulesAreTestedInOrder) {
  const Texts good = {"GK", "DFL", "DFC", "DFC", "DFR", "MFL", "MFC", "MFC", "MFR", "FDL", "FDR"};
  const auto replaced = [&good](const std::string& line, const std::string& by) {
    Texts positions = good;
    for (std::string& position : positions) {
      if (position.starts_with(line)) position = by;
    }
    return positions;
  };
  Texts twoKeepers = good;
  twoKeepers[10] = "GK";
  const Texts noKeeper = replaced("GK", "DFC");
  const Texts noForwards = replaced("FD", "MFC");
  const Texts noDefenders = replaced("DF", "MFC");
  const Texts noMidfield = replaced("MF", "DFC");
  const Texts nobody(11, "XX");
  struct Case {
    Texts Rovers, United;
    const char* Message;
  };
  // Each case breaks the rule that is told and later ones.
  const Case cases[] = {
      {twoKeepers, noKeeper, "There are more than one Goal Keeper for Rovers."},
      {nobody, twoKeepers, "There are more than one Goal Keeper for United."},
      {noKeeper, nobody, "There is no Goal Keeper for Rovers."},
      {noForwards, noKeeper, "There is no Goal Keeper for United."},
      {noForwards, noForwards, "There are no Forwards for Rovers."},
      {noDefenders, noForwards, "There are no Forwards for United."},
      {noDefenders, noDefenders, "There are no Defenders for Rovers."},
      {noMidfield, noDefenders, "There are no Defenders for United."},
      {noMidfield, noMidfield, "There are no Mid-Fielders for Rovers."},
      {good, noMidfield, "There are no Mid-Fielders for United."},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(Continue(c.Rovers, c.United), Texts{std::string("!: ") + c.Message});
  }
  EXPECT_TRUE(opened_.empty());
  EXPECT_TRUE(Continue(good, good).empty());
}

TEST_F(SelectionTest, NobodyPlaysTwiceAndTheLastPairIsTold) {
  ASSERT_TRUE(SaveTeam(folder_.Folder, MakeTeam("Rovers", "R")).Ok());
  ASSERT_TRUE(SaveTeam(folder_.Folder, MakeTeam("United", "U")).Ok());
  Selection selection = Open();
  selection.Combo1_Click(9, 1);
  selection.Combo2_Click(7, 3);
  selection.Command1_Click();
  EXPECT_EQ(desktop_.Taken(), Texts{"!: U3 of United has been selected more than once."});
  selection.Combo1_Click(7, 3);  // The same pair on both sides: side 1 is told.
  selection.Command1_Click();
  EXPECT_EQ(desktop_.Taken(), Texts{"!: R3 of Rovers has been selected more than once."});
  EXPECT_FALSE(selection.Closed);
}

TEST_F(SelectionTest, ASmallSquadCanOnlyBeCancelledAndAMissingTeamOnlyFails) {
  Team small = MakeTeam("Rovers", "R");
  small.Players.pop_back();
  ASSERT_TRUE(SaveTeam(folder_.Folder, small).Ok());
  ASSERT_TRUE(SaveTeam(folder_.Folder, MakeTeam("United", "U")).Ok());
  Selection selection = Open();
  EXPECT_EQ(desktop_.Taken(), Texts{"!: Rovers don't have enough players to play."});
  EXPECT_FALSE(selection.Command1Enabled);
  EXPECT_EQ(selection.Side1.NameIn(0), "");
  EXPECT_EQ(selection.Side1.Reputation, "75%");
  EXPECT_EQ(selection.Side2.NameIn(0), "U0");
  selection.Command2_Click();
  EXPECT_TRUE(selection.Closed);

  std::filesystem::remove(folder_ / "Teams/Rovers");
  Selection missing = Open();
  EXPECT_TRUE(desktop_.Messages.empty());
  missing.Command1_Click();
  EXPECT_EQ(desktop_.Taken(), Texts{"!:  of Rovers has been selected more than once."});
}

}  // namespace
}  // namespace kickwell
