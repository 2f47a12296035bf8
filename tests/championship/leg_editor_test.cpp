#include "championship/leg_editor.h"

#include "data/knock_out.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

TEST(Fixtures, OfAKnockOutPairTheHalvesInADrawnOrder) {
  ScriptedRandom random;
  random.Expect({{2, 0}, {2, 1}, {2, 0, 2}});  // The first and the second change places.
  EXPECT_EQ(KnockOutFixture({"A", "B", "C", "D"}, random),
            (std::vector<Pairing>{{"B", "D"}, {"A", "C"}, {"Winner 1", "Winner 2"}}));
}

TEST(Fixtures, AreAKnockOutWhenEveryEntryIsStillIn) {
  EXPECT_TRUE(IsKnockOut({"A", "B"}, {{"A (By Toss)", "B"}}));
  EXPECT_FALSE(IsKnockOut({"A", "B"}, {{"C", "A"}}));
  EXPECT_FALSE(IsKnockOut({"A", "B"}, {{"A", "Winner 1"}}));  // Waits for itself.
  EXPECT_FALSE(IsKnockOut({"A", "B"}, {{"A", "B"}, {"A", "B"}}));
  EXPECT_FALSE(IsKnockOut({"A", "A"}, {{"A", "A"}}));
  for (const char* team : {"Winner", "Winner 0", "Winner -1", "Winner 01", "Winner 1 ", "winner 1"})
    EXPECT_EQ(PlaceholderNumber(team), 0) << team;
}

class LegEditorTest : public ScreenTest {
 protected:
  /// With the teams "T100" to "T200".
  LegEditor Open() {
    for (int number = 100; number <= 200; ++number) Write("Teams/T" + std::to_string(number), "50\n");
    return {folder_.Folder, desktop_, random_};
  }

  /// Selects the first `count` available teams.
  static void Select(EditorSide& side, int count) {
    for (int i = 0; i < count; ++i) LegEditor::AddTeam_Click(side);
  }

  /// Adds a fixture between two teams of the choosers.
  static void AddFixture(LegEditor& editor, int home, int away) {
    editor.League.Home.Picked = home;
    editor.League.Away.Picked = away;
    editor.AddFixture_Click();
  }

  LegEditor editor_ = Open();
  EditorSide &league_ = editor_.League, &knockOut_ = editor_.KnockOut;
};

TEST_F(LegEditorTest, EveryRefusalHasItsMessage) {
  Write("Tournies/Cup.trn", "1\nCup\n2\nA\nWinner 1\nNP\nA\nWinner 1\nWinner 1\n");
  LegEditor editor = Open();
  EditorSide &league = editor.League, &knockOut = editor.KnockOut;
  Select(league, 1);
  editor.AddFixture_Click();
  editor.AutoFixtures_Click(league);
  editor.Save_Click(league);
  Select(league, 1);
  editor.AddFixture_Click();  // Neither team is picked.
  AddFixture(editor, 1, 1);
  editor.Save_Click(league);
  editor.AutoFixtures_Click(league);
  editor.Save_Click(league);
  league.Name = "a/b";
  editor.Save_Click(league);
  EXPECT_EQ(desktop_.Taken(),
            (Texts{"i: There must be atleast two teams in the competition",
                   "i: There must be at least two teams in the competition",
                   "i: Please select the championship teams properly",
                   "i: Select both the home and away teams properly", "i: T101 can't play againt itself",
                   "i: Please add the championship fixtures properly",
                   "i: Please enter a name for the championship", "!: a/b can't be used as a file name."}));
  Select(knockOut, 2);
  editor.AutoFixtures_Click(knockOut);
  editor.MoreTeams_Click();
  editor.Save_Click(knockOut);  // Two of four teams.
  editor.FewerTeams_Click();
  Select(knockOut, 1);
  editor.AutoFixtures_Click(knockOut);
  LegEditor::RemoveTeam_Click(knockOut);
  editor.Save_Click(knockOut);  // The fixture's home team is not selected any more.
  editor.Load_Click(knockOut, 0);
  editor.Save_Click(knockOut);
  EXPECT_EQ(desktop_.Taken(), (Texts{"i: Please add the championship fixtures properly",
                                     "i: Total teams selected doesn't match the number of teams",
                                     "i: Please add the championship fixtures properly",
                                     "i: A knock-out can't be played with a team called Winner 1"}));
}

TEST_F(LegEditorTest, ALeagueIsKeptWithinItsLimits) {
  Select(league_, 32);
  editor_.AutoFixtures_Click(league_);
  Select(league_, 1);
  editor_.AutoFixtures_Click(league_);
  EXPECT_EQ(desktop_.Taken(), Texts{"i: A league with generated fixtures can have at most 32 teams"});
  EXPECT_EQ(league_.FixtureList.Count(), 992);
  for (int i = 0; i < 1002; ++i) AddFixture(editor_, 0, 1);
  EXPECT_EQ(desktop_.Taken(), Texts{"i: A championship can have at most 1001 matches"});
  EXPECT_EQ(league_.FixtureList.Entries.back(), "Match 1001: T100 v T101");
  Select(league_, 67);
  league_.Name = "Long";
  desktop_.Yes = false;
  editor_.Save_Click(league_);
  Select(league_, 1);
  editor_.Save_Click(league_);
  EXPECT_EQ(desktop_.Taken(),
            (Texts{"?: Are you sure you want to add Long?", "i: A league can have at most 100 teams"}));
}

TEST_F(LegEditorTest, ALeagueIsOverwrittenOrSavedAsANewFileUnlessItCannotHaveThatName) {
  for (const char* companion : {"Leagues/Aux.rec", "Leagues/Aux.lrs"}) Write(companion, "x");
  Write("Leagues/Aux.leg", "Aux\n2\nT100\nT101\n1\nP\nT101\nT100\n");
  LegEditor editor = Open();
  EditorSide& league = editor.League;
  editor.Load_Click(league, 0);
  AddFixture(editor, 0, 1);
  MakeUnreadable("Leagues/New.leg");  // It can't be written either.
  for (const char* name : {"Aux", "Div 1 res.", "Con", "New"}) {
    league.Name = name;
    editor.Save_Click(league);
  }
  const Texts told = desktop_.Taken();
  EXPECT_EQ((Texts{told.begin(), told.end() - 1}),
            (Texts{"? (No): Do you want to overwrite Aux?", "?: Are you sure you want to add Div 1 res.?",
                   "!: Con can't be used as a file name.", "?: Are you sure you want to add New?"}));
  EXPECT_EQ(league.Load.Text(), "Div 1 res..leg");  // Which was loaded again; "New" was not saved.
  EXPECT_EQ(Bytes("Leagues/Aux.leg"), AsWritten("Aux\n2\nT100\nT101\n2\nNP\nT101\nT100\nNP\nT100\nT101\n"));
  EXPECT_FALSE(Exists("Leagues/Aux.rec") || Exists("Leagues/Aux.lrs"));
}

TEST_F(LegEditorTest, AKnockOutIsSavedAndLoadedWithItsNumberOfTeams) {
  for (int i = 0; i < 4; ++i) editor_.MoreTeams_Click();
  EXPECT_EQ(knockOut_.NumberOfTeams, 16);
  for (int i = 0; i < 4; ++i) editor_.FewerTeams_Click();
  Select(knockOut_, 2);
  for (int i = 0; i < 2; ++i) editor_.AutoFixtures_Click(knockOut_);  // Replaces what it made before.
  knockOut_.Name = "Cup";
  editor_.Save_Click(knockOut_);
  EXPECT_EQ(Bytes("Tournies/Cup.trn"), AsWritten("1\nCup\n2\nT100\nT101\nNP\nT100\nT101\nWinner 1\n"));
  editor_.MoreTeams_Click();
  editor_.Load_Click(knockOut_, 0);
  EXPECT_EQ(knockOut_.NumberOfTeams, 2);
}

TEST_F(LegEditorTest, FixturesOfATeamThatWasRemovedAreToldApart) {
  const std::string advice = ". Press Auto Fixtures to make all fixtures anew, or add the team again.";
  for (EditorSide* const side : {&league_, &knockOut_}) {
    Select(*side, 2);
    editor_.AutoFixtures_Click(*side);
    LegEditor::RemoveTeam_Click(*side);
  }
  EXPECT_EQ(league_.FixtureNote(), "2 fixtures have a team that is not in the league" + advice);
  EXPECT_EQ(knockOut_.FixtureNote(), "1 fixture has a team that is not in the knock-out" + advice);
  knockOut_.Table = {{"T101", "Winner 1"}, {"T101 (By Toss)", "T101"}};
  EXPECT_EQ(knockOut_.FixtureNote(), "");
}

TEST_F(LegEditorTest, ALoadedLeagueGoesOnWithItsFixtures) {
  Write("Leagues/Old.leg", "Old\n3\nT105\nT100\nGone\n1\nP\nT100\nT105\n");
  LegEditor editor = Open();
  EditorSide& league = editor.League;
  editor.Load_Click(league, 0);
  EXPECT_EQ(league.NumberOfTeams, 2);  // The most of three that play a knock-out.
  AddFixture(editor, 0, 1);
  EXPECT_EQ(league.FixtureList.Entries, (Texts{"Match 1: T100 v T105", "Match 2: Gone v T100"}));
  editor.AutoFixtures_Click(league);
  AddFixture(editor, 1, 2);  // Replaces what was generated.
  EXPECT_EQ(league.FixtureList.Entries, Texts{"Match 1: T100 v T105"});
}

TEST_F(LegEditorTest, TheLoadedChampionshipIsDeletedUnlessItIsTheLast) {
  for (const std::string name : {"A", "B", "C"}) Write("Leagues/" + name + ".leg", name + "\n0\n0\n");
  LegEditor editor = Open();
  EditorSide& league = editor.League;
  editor.Load_Click(league, 2);
  league.Name = "A";  // The question names what is deleted.
  for (const bool yes : {false, true}) {
    desktop_.Yes = yes;
    editor.Delete_Click(league);
    EXPECT_NE(Exists("Leagues/C.leg"), yes);
  }
  editor.Delete_Click(league);  // The screen still shows C.
  editor.Load_Click(league, 1);
  editor.Delete_Click(league);
  editor.Delete_Click(league);
  league.Name = "";
  editor.Delete_Click(league);
  const std::string question = "? (No): Are you sure you want to remove ";
  const std::string refusal = "i: Please load a championship to delete";
  EXPECT_EQ(desktop_.Taken(), (Texts{question + "C.leg?", question + "C.leg?", refusal, question + "B.leg?",
                                     "i: You can't delete any more championship", refusal}));
  EXPECT_EQ(league.Load.Entries, Texts{"A.leg"});
}

}  // namespace
}  // namespace kickwell
