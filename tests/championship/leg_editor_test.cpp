#include "championship/leg_editor.h"

#include <sstream>

#include "data/file_names.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

TEST(Fixtures, ArePairedAndThenExchangedBetweenDrawnPlaces) {
  ScriptedRandom random("6:0 6:5 6:1x10 4:3 4:1 4:2x6 1:0x2");
  const auto text = [](const std::vector<Pairing>& fixtures) {
    Texts pairs;
    for (const Pairing& fixture : fixtures) pairs.push_back(fixture.Home + "-" + fixture.Away);
    return Joined(pairs);
  };
  EXPECT_EQ(text(LeagueFixture({"A", "B", "C"}, random)), "C-B|B-A|A-C|C-A|B-C|A-B");
  EXPECT_EQ(text(KnockOutFixture({"A", "B", "C", "D", "E", "F", "G", "H"}, random)),
            "A-E|D-H|C-G|B-F|Winner 1-Winner 2|Winner 3-Winner 4|Winner 5-Winner 6");
  EXPECT_EQ(text(KnockOutFixture({"A", "B"}, random)), "A-B");
}

class LegEditorTest : public ScreenTest {
 protected:
  LegEditorTest() { MakeTeams(6); }

  /// Teams "T100", "T101" and so on.
  void MakeTeams(int count) {
    for (int i = 100; i < 100 + count; ++i) Write("Teams/T" + std::to_string(i), "50\n");
  }

  /// Does one after the other on a side: "team" adds the picked team and "remove" removes it, "avail2" and
  /// "sel2" pick, "auto", "save", "delete" and "load0" are those buttons, "fix01" adds a fixture of the first
  /// two teams, "name=N" types, and "yes" and "no" are the answers from then on. Gives the messages.
  std::string Do(LegEditor& editor, EditorSide& side, const std::string& actions) {
    std::istringstream words(actions);
    for (std::string word; words >> word;) {
      const int n = word.back() - '0';
      if (word == "team") LegEditor::AddTeam_Click(side);
      if (word == "remove") LegEditor::RemoveTeam_Click(side);
      if (word.starts_with("avail")) side.Available.Picked = n;
      if (word.starts_with("sel")) side.Selected.Picked = n;
      if (word.starts_with("fix") && word.size() == 5) side.Home.Picked = word[3] - '0';
      if (word.starts_with("fix") && word.size() == 5) side.Away.Picked = n;
      if (word == "auto") editor.AutoFixtures_Click(side);
      if (word == "save") editor.Save_Click(side);
      if (word == "delete") editor.Delete_Click(side);
      if (word.starts_with("load")) editor.Load_Click(side, n);
      if (word == "more") editor.MoreTeams_Click();
      if (word == "fewer") editor.FewerTeams_Click();
      if (word.starts_with("name=")) side.Name = word.substr(5);
      if (word == "yes" || word == "no") desktop_.Yes = word == "yes";
      if (word.starts_with("fix")) editor.AddFixture_Click();
    }
    return desktop_.Told();
  }

  /// The entries of the lists with what is picked.
  static std::string Lists(const EditorSide& side) {
    std::string text;
    for (const ItemList* list : {&side.Available, &side.Selected, &side.Home, &side.Away, &side.FixtureList})
      text += Joined(list->Entries) + " " + std::to_string(list->Picked) + "; ";
    return text;
  }
};

TEST_F(LegEditorTest, TeamsMoveBetweenTheListsAndTheChoosers) {
  LegEditor editor(folder_.Folder, desktop_, random_);
  EditorSide& side = editor.League;
  Do(editor, side, "avail2 team remove sel0");  // None was picked for the removal.
  side.Home.Picked = 0;
  Do(editor, side, "team");
  EXPECT_EQ(Lists(side), "T101|T103|T104|T105 0; T100|T102 1; T100|T102 1; T100|T102 -1;  -1; ");
  Do(editor, side, "sel0 remove");
  EXPECT_EQ(Lists(side), "T100|T101|T103|T104|T105 1; T102 0; T102 0; T102 -1;  -1; ");
  Do(editor, side, "remove");
  EXPECT_EQ(Lists(side), "T100|T101|T102|T103|T104|T105 1;  -1;  -1;  -1;  -1; ");
  Do(editor, side, "fewer more more more more fewer");  // Never fewer than 2 teams, nor more than 16.
  EXPECT_EQ(editor.KnockOut.NumberOfTeams, 8);
}

TEST_F(LegEditorTest, EveryRefusalHasItsMessageAndLimitsAreHeldWhereFixturesAreMade) {
  MakeTeams(101);
  LegEditor editor(folder_.Folder, desktop_, random_);
  EditorSide& league = editor.League;
  EXPECT_EQ(Do(editor, league, "fix team auto save team fix fix11 save auto save name=a/b save delete"),
            "i: There must be atleast two teams in the competition|"
            "i: There must be at least two teams in the competition|"
            "i: Please select the championship teams properly|"
            "i: Select both the home and away teams properly|i: T101 can't play againt itself|"
            "i: Please add the championship fixtures properly|i: Please enter a name for the championship|"
            "!: a/b can't be used as a file name.|i: Please load a championship to delete");
  EXPECT_EQ(Do(editor, editor.KnockOut, "more team team team auto"),
            "i: Total teams selected doesn't match the number of teams");
  EXPECT_EQ(league.FixtureList.Count(), 2);  // Each side has its own.
  EXPECT_EQ(Do(editor, league, Times(30, "team") + "auto team auto"),
            "i: A league with generated fixtures can have at most 32 teams");
  EXPECT_EQ(league.FixtureList.Count(), 992);
  EXPECT_EQ(Do(editor, league, Times(1002, "fix01")), "i: A championship can have at most 1001 matches");
  EXPECT_EQ(league.FixtureList.Entries.back(), "Match 1001: T100 v T101");  // None of the generated ones.
  EXPECT_EQ(Do(editor, league, "no name=Long " + Times(67, "team") + "save team save"),
            "?: Are you sure you want to add Long?|i: A league can have at most 100 teams");
  EXPECT_FALSE(Exists("Leagues"));
}

TEST_F(LegEditorTest, SavesOverwritesLoadsAndDeletes) {
  LegEditor editor(folder_.Folder, desktop_, random_);
  EditorSide& side = editor.League;
  Write("Leagues", "no folder");
  Do(editor, side, "team team fix10 name=Top save");
  EXPECT_EQ(side.Load.Count(), 0);  // What was not saved is not offered.
  std::filesystem::remove(folder_ / "Leagues");
  EXPECT_EQ(Do(editor, side, "save"), "?: Are you sure you want to add Top?");
  EXPECT_EQ(Bytes("Leagues/Top.leg"), AsWritten("Top\n2\nT100\nT101\n1\nNP\nT101\nT100\n"));
  Write("Leagues/Top.rec", "x");
  Do(editor, side, "no fix01 save");  // Appends to the list that is loaded.
  EXPECT_TRUE(Exists("Leagues/Top.rec"));
  EXPECT_EQ(Do(editor, side, "yes save delete"),
            "?: Do you want to overwrite Top?|i: You can't delete any more championship");
  EXPECT_EQ(Bytes("Leagues/Top.leg"), AsWritten("Top\n2\nT100\nT101\n2\nNP\nT101\nT100\nNP\nT100\nT101\n"));
  EXPECT_FALSE(Exists("Leagues/Top.rec"));

  Write("Leagues/Old.leg", "Old\n3\nT105\nT100\nGone\n1\nP\nT100\nT105\n");
  LegEditor again(folder_.Folder, desktop_, random_);
  EditorSide& old = again.League;
  Do(again, old, "load0 fix01");  // Goes on with the list that is loaded.
  EXPECT_EQ(old.Name + " " + Lists(old),
            "Old T101|T102|T103|T104 0; Gone|T100|T105 -1; Gone|T100|T105 0; Gone|T100|T105 1; "
            "Match 1: T100 v T105|Match 2: Gone v T100 -1; ");
  Do(again, old, "auto fix12");  // Starts again after generated fixtures.
  EXPECT_EQ(old.FixtureList.Count(), 1);
  EXPECT_EQ(Do(again, old, "name= delete name=Top no delete yes delete"),  // Deletes what the question names.
            "i: Please load a championship to delete|?: Are you sure you want to remove Old.leg?|"
            "?: Are you sure you want to remove Old.leg?");
  EXPECT_EQ(Joined(ListFiles(folder_ / "Leagues")) + ", " + old.Load.Text(), "Top.leg, Top.leg");
}

TEST_F(LegEditorTest, OnlyAKnockOutIsSavedAsOne) {
  const std::string two = "1\nK\n2\nT100\nT101\nNP\n", overwrite = "?: Do you want to overwrite K?";
  const std::string fixtures = "i: Please add the championship fixtures properly";
  const std::pair<std::string, std::string> files[] = {
      {two + "T100 (By Toss)\nT101\nWinner 1\n", overwrite},
      {two + "T105\nT100\nWinner 1\n", fixtures},      // A team that is not selected.
      {two + "T100\nWinner 1\nWinner 1\n", fixtures},  // Waits for itself.
      {"2" + two.substr(1) + "T100\nT101\nWinner 1\nNP\nT100\nT101\nWinner 2\n", fixtures},
      {"1\nK\n2\nT100\nT100\nNP\nT100\nT100\nWinner 1\n", fixtures},
      {"2\nK\n3\nT100\nT101\nT102\nNP\nT100\nT101\nWinner 1\nNP\nWinner 1\nT102\nWinner 2\n", fixtures},
  };
  for (const auto& [text, message] : files) {
    SCOPED_TRACE(text);
    Write("Tournies/K.trn", text);
    LegEditor editor(folder_.Folder, desktop_, random_);
    EXPECT_EQ(Do(editor, editor.KnockOut, "more more more load0 name=K save"), message);
  }
}

}  // namespace
}  // namespace kickwell
