#include "championship/leg_editor.h"

#include "support/screen_test.h"

namespace kickwell {

void PrintTo(const Pairing& fixture, std::ostream* out) {
  *out << fixture.Home << " v " << fixture.Away;
}

namespace {

TEST(Fixtures, OfALeagueAreExchangedBetweenDrawnPlaces) {
  // The first and the last fixture change places; the other draws change nothing.
  ScriptedRandom random("6:0 6:5 6:1x10");
  EXPECT_EQ(LeagueFixture({"A", "B", "C"}, random),
            (std::vector<Pairing>{{"C", "B"}, {"B", "A"}, {"A", "C"}, {"C", "A"}, {"B", "C"}, {"A", "B"}}));
}

TEST(Fixtures, OfAKnockOutPairTheHalvesInADrawnOrder) {
  ScriptedRandom random("4:3 4:1 4:2x6");  // The fourth and the second change places.
  EXPECT_EQ(KnockOutFixture({"A", "B", "C", "D", "E", "F", "G", "H"}, random),
            (std::vector<Pairing>{{"A", "E"},
                                  {"D", "H"},
                                  {"C", "G"},
                                  {"B", "F"},
                                  {"Winner 1", "Winner 2"},
                                  {"Winner 3", "Winner 4"},
                                  {"Winner 5", "Winner 6"}}));
}

class LegEditorTest : public ScreenTest {
 protected:
  LegEditorTest() { MakeTeams(6); }

  /// Teams "T100", "T101" and so on.
  void MakeTeams(int count) {
    for (int number = 100; number < 100 + count; ++number) Write("Teams/T" + std::to_string(number), "50\n");
  }

  LegEditor Open() { return {folder_.Folder, desktop_, random_}; }

  /// Selects the first `count` available teams.
  static void Select(EditorSide& side, int count) {
    for (int i = 0; i < count; ++i) LegEditor::AddTeam_Click(side);
  }

  /// Adds a fixture between the teams at two places of the choosers.
  static void AddFixture(LegEditor& editor, int home, int away) {
    editor.League.Home.Picked = home;
    editor.League.Away.Picked = away;
    editor.AddFixture_Click();
  }
};

TEST_F(LegEditorTest, TeamsMoveBetweenTheListsAndTheChoosers) {
  LegEditor editor = Open();
  EditorSide& side = editor.League;
  LegEditor::RemoveTeam_Click(side);  // Nothing is selected yet.
  side.Available.Picked = 2;
  LegEditor::AddTeam_Click(side);
  side.Home.Picked = 0;
  LegEditor::AddTeam_Click(side);
  EXPECT_EQ(side.Available.Entries, (Texts{"T101", "T103", "T104", "T105"}));
  EXPECT_EQ(side.Available.Text(), "T101");
  for (const ItemList* list : {&side.Selected, &side.Home, &side.Away})
    EXPECT_EQ(list->Entries, (Texts{"T100", "T102"}));
  EXPECT_EQ(side.Home.Text(), "T102");  // Stays picked at its new place.

  side.Selected.Picked = 0;
  LegEditor::RemoveTeam_Click(side);
  EXPECT_EQ(side.Available.Entries, (Texts{"T100", "T101", "T103", "T104", "T105"}));
  EXPECT_EQ(side.Available.Text(), "T101");
  for (const ItemList* list : {&side.Selected, &side.Home, &side.Away})
    EXPECT_EQ(list->Entries, Texts{"T102"});
  EXPECT_EQ(side.Selected.Text(), "T102");
  EXPECT_EQ(side.Home.Text(), "T102");
}

TEST_F(LegEditorTest, TheNumberOfTeamsIsTwoFourEightOrSixteen) {
  LegEditor editor = Open();
  editor.FewerTeams_Click();
  EXPECT_EQ(editor.KnockOut.NumberOfTeams, 2);
  for (int i = 0; i < 4; ++i) editor.MoreTeams_Click();
  EXPECT_EQ(editor.KnockOut.NumberOfTeams, 16);
  editor.FewerTeams_Click();
  EXPECT_EQ(editor.KnockOut.NumberOfTeams, 8);
}

TEST_F(LegEditorTest, FixturesNeedTeamsToPlayThem) {
  LegEditor editor = Open();
  Select(editor.League, 1);
  editor.AddFixture_Click();
  editor.AutoFixtures_Click(editor.League);
  Select(editor.League, 1);
  editor.AddFixture_Click();  // Neither team is picked.
  AddFixture(editor, 1, 1);
  Select(editor.KnockOut, 3);
  editor.AutoFixtures_Click(editor.KnockOut);
  EXPECT_EQ(desktop_.Taken(),
            (Texts{"i: There must be atleast two teams in the competition",
                   "i: There must be at least two teams in the competition",
                   "i: Select both the home and away teams properly", "i: T101 can't play againt itself",
                   "i: Total teams selected doesn't match the number of teams"}));
  EXPECT_EQ(editor.League.FixtureList.Count(), 0);
}

TEST_F(LegEditorTest, SavingIsRefusedInOrder) {
  LegEditor editor = Open();
  EditorSide& league = editor.League;
  Select(league, 1);
  editor.Save_Click(league);
  Select(league, 1);
  editor.Save_Click(league);
  editor.AutoFixtures_Click(league);
  editor.Save_Click(league);
  league.Name = "a/b";
  editor.Save_Click(league);
  EXPECT_EQ(desktop_.Taken(),
            (Texts{"i: Please select the championship teams properly",
                   "i: Please add the championship fixtures properly",
                   "i: Please enter a name for the championship", "!: a/b can't be used as a file name."}));
}

TEST_F(LegEditorTest, ALeagueIsKeptWithinItsLimits) {
  MakeTeams(101);
  LegEditor editor = Open();
  EditorSide& league = editor.League;
  Select(league, 32);
  editor.AutoFixtures_Click(league);
  Select(league, 1);
  editor.AutoFixtures_Click(league);
  EXPECT_EQ(desktop_.Taken(), Texts{"i: A league with generated fixtures can have at most 32 teams"});
  EXPECT_EQ(league.FixtureList.Count(), 992);
  for (int i = 0; i < 1002; ++i) AddFixture(editor, 0, 1);
  EXPECT_EQ(desktop_.Taken(), Texts{"i: A championship can have at most 1001 matches"});
  EXPECT_EQ(league.FixtureList.Entries.back(), "Match 1001: T100 v T101");
  Select(league, 67);
  league.Name = "Long";
  desktop_.Yes = false;
  editor.Save_Click(league);
  Select(league, 1);
  editor.Save_Click(league);
  EXPECT_EQ(desktop_.Taken(),
            (Texts{"?: Are you sure you want to add Long?", "i: A league can have at most 100 teams"}));
  EXPECT_FALSE(Exists("Leagues/Long.leg"));
}

TEST_F(LegEditorTest, ALeagueIsSavedAndOverwritten) {
  LegEditor editor = Open();
  EditorSide& league = editor.League;
  Select(league, 2);
  AddFixture(editor, 1, 0);
  league.Name = "Top";
  Write("Leagues", "no folder");
  editor.Save_Click(league);
  EXPECT_EQ(league.Load.Count(), 0);  // What was not saved is not offered.
  Remove("Leagues");
  desktop_.Taken();
  editor.Save_Click(league);
  EXPECT_EQ(Bytes("Leagues/Top.leg"), AsWritten("Top\n2\nT100\nT101\n1\nNP\nT101\nT100\n"));
  EXPECT_EQ(league.Load.Text(), "Top.leg");

  Write("Leagues/Top.rec", "x");
  AddFixture(editor, 0, 1);
  desktop_.Yes = false;
  editor.Save_Click(league);
  EXPECT_TRUE(Exists("Leagues/Top.rec"));
  desktop_.Yes = true;
  editor.Save_Click(league);
  EXPECT_EQ(Bytes("Leagues/Top.leg"), AsWritten("Top\n2\nT100\nT101\n2\nNP\nT101\nT100\nNP\nT100\nT101\n"));
  EXPECT_FALSE(Exists("Leagues/Top.rec"));
  EXPECT_EQ(desktop_.Taken(),
            (Texts{"?: Are you sure you want to add Top?", "?: Do you want to overwrite Top?",
                   "?: Do you want to overwrite Top?"}));
  EXPECT_EQ(league.Load.Entries, Texts{"Top.leg"});
}

TEST_F(LegEditorTest, ALoadedLeagueGoesOnWithItsFixtures) {
  Write("Leagues/Old.leg", "Old\n3\nT105\nT100\nGone\n1\nP\nT100\nT105\n");
  LegEditor editor = Open();
  EditorSide& league = editor.League;
  editor.Load_Click(league, 0);
  EXPECT_EQ(league.Name, "Old");
  EXPECT_EQ(league.Available.Entries, (Texts{"T101", "T102", "T103", "T104"}));
  EXPECT_EQ(league.Available.Text(), "T101");
  for (const ItemList* list : {&league.Selected, &league.Home, &league.Away})
    EXPECT_EQ(list->Entries, (Texts{"Gone", "T100", "T105"}));
  AddFixture(editor, 0, 1);
  EXPECT_EQ(league.FixtureList.Entries, (Texts{"Match 1: T100 v T105", "Match 2: Gone v T100"}));
  editor.AutoFixtures_Click(league);
  AddFixture(editor, 1, 2);  // The first one replaces what was generated.
  EXPECT_EQ(league.FixtureList.Entries, Texts{"Match 1: T100 v T105"});
}

TEST_F(LegEditorTest, TheLoadedChampionshipIsDeletedButNotTheLastOne) {
  Write("Leagues/A.leg", "A\n0\n0\n");
  Write("Leagues/B.leg", "B\n0\n0\n");
  LegEditor editor = Open();
  EditorSide& league = editor.League;
  editor.Delete_Click(league);
  editor.Load_Click(league, 1);
  league.Name.clear();
  editor.Delete_Click(league);
  EXPECT_EQ(desktop_.Taken(), Texts(2, "i: Please load a championship to delete"));
  league.Name = "A";  // What the question names is deleted.
  desktop_.Yes = false;
  editor.Delete_Click(league);
  EXPECT_TRUE(Exists("Leagues/B.leg"));
  desktop_.Yes = true;
  editor.Delete_Click(league);
  EXPECT_EQ(desktop_.Taken(), Texts(2, "?: Are you sure you want to remove B.leg?"));
  EXPECT_FALSE(Exists("Leagues/B.leg"));
  EXPECT_EQ(league.Load.Text(), "A.leg");
  editor.Delete_Click(league);
  EXPECT_EQ(desktop_.Taken(), Texts{"i: You can't delete any more championship"});
}

TEST_F(LegEditorTest, OnlyAKnockOutIsSavedAsOne) {
  const std::string refused = "i: Please add the championship fixtures properly";
  const std::string two = "1\nK\n2\nT100\nT101\nNP\n";
  const std::tuple<const char*, std::string, std::string> files[] = {
      {"won by toss", two + "T100 (By Toss)\nT101\nWinner 1\n", "?: Do you want to overwrite K?"},
      {"a team not selected", two + "T105\nT100\nWinner 1\n", refused},
      {"waits for itself", two + "T100\nWinner 1\nWinner 1\n", refused},
      {"one fixture too many", "2" + two.substr(1) + "T100\nT101\nWinner 1\nNP\nT100\nT101\nWinner 2\n",
       refused},
      {"a team twice", "1\nK\n2\nT100\nT100\nNP\nT100\nT100\nWinner 1\n", refused},
      {"three teams", "2\nK\n3\nT100\nT101\nT102\nNP\nT100\nT101\nWinner 1\nNP\nWinner 1\nT102\nWinner 2\n",
       refused}};
  for (const auto& [what, text, message] : files) {
    Write("Tournies/K.trn", text);
    LegEditor editor = Open();
    editor.Load_Click(editor.KnockOut, 0);
    editor.Save_Click(editor.KnockOut);
    EXPECT_EQ(desktop_.Taken(), Texts{message}) << what;
  }
}

}  // namespace
}  // namespace kickwell
