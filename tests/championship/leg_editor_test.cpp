#include "championship/leg_editor.h"

#include <gtest/gtest.h>

#include "support/fakes.h"
#include "support/folders.h"
#include "support/scripted_random.h"

namespace kickwell {
namespace {

std::string Text(const std::vector<Pairing>& fixtures) {
  Texts pairs;
  for (const Pairing& fixture : fixtures) pairs.push_back(fixture.Home + "-" + fixture.Away);
  return Joined(pairs);
}

TEST(Fixtures, ArePairedAndThenExchangedBetweenDrawnPlaces) {
  ScriptedRandom random("6:0 6:5 6:1x10 2:1 2:0 2:0x2 4:3 4:1 4:2x6 1:0x2");
  EXPECT_EQ(Text(LeagueFixture({"A", "B", "C"}, random)), "C-B|B-A|A-C|C-A|B-C|A-B");
  EXPECT_EQ(Text(KnockOutFixture({"A", "B", "C", "D"}, random)), "B-D|A-C|Winner 1-Winner 2");
  EXPECT_EQ(Text(KnockOutFixture({"A", "B", "C", "D", "E", "F", "G", "H"}, random)),
            "A-E|D-H|C-G|B-F|Winner 1-Winner 2|Winner 3-Winner 4|Winner 5-Winner 6");
  EXPECT_EQ(Text(KnockOutFixture({"A", "B"}, random)), "A-B");
}

class LegEditorTest : public testing::Test {
 protected:
  LegEditorTest() { MakeTeams(6); }

  void MakeTeams(int count) {
    for (int i = 0; i < count; ++i) {
      EXPECT_TRUE(CreateTeam(folder_.Folder, "T" + std::to_string(100 + i), "50").Ok());
    }
  }

  LegEditor Open() { return {folder_.Folder, desktop_, random_}; }

  static void Select(EditorSide& side, int count) {
    for (int i = 0; i < count; ++i) LegEditor::AddTeam_Click(side);
  }

  static void Add(LegEditor& editor, int home, int away) {
    editor.League.Home.Picked = home;
    editor.League.Away.Picked = away;
    editor.AddFixture_Click();
  }

  std::string Bytes(const char* file) const { return ReadBytes(folder_ / file); }

  TestFolder folder_;
  FakeDesktop desktop_;
  QuietRandom random_;
};

TEST_F(LegEditorTest, TeamsMoveBetweenTheListsAndTheChoosers) {
  LegEditor editor = Open();
  EditorSide& side = editor.League;
  const auto lists = [&side] {
    std::string text;
    for (const Chooser* list : {&side.Available, &side.Selected, &side.Home, &side.Away})
      text += Joined(list->Entries) + " " + std::to_string(list->Picked) + "; ";
    return text;
  };
  side.Available.Picked = 2;
  LegEditor::AddTeam_Click(side);
  LegEditor::RemoveTeam_Click(side);  // None is picked yet.
  side.Home.Picked = side.Selected.Picked = 0;
  LegEditor::AddTeam_Click(side);
  EXPECT_EQ(lists(), "T101|T103|T104|T105 0; T100|T102 1; T100|T102 1; T100|T102 -1; ");
  side.Selected.Picked = 0;
  LegEditor::RemoveTeam_Click(side);
  EXPECT_EQ(lists(), "T100|T101|T103|T104|T105 1; T102 0; T102 0; T102 -1; ");
  LegEditor::RemoveTeam_Click(side);
  EXPECT_EQ(lists(), "T100|T101|T102|T103|T104|T105 1;  -1;  -1;  -1; ");
  std::string sizes;
  for (int i = 0; i < 8; ++i) {
    i < 4 ? editor.MoreTeams_Click() : editor.FewerTeams_Click();
    sizes += std::to_string(editor.KnockOut.NumberOfTeams) + " ";
  }
  EXPECT_EQ(sizes, "4 8 16 16 8 4 2 2 ");
}

TEST_F(LegEditorTest, EveryRefusalHasItsMessage) {
  LegEditor editor = Open();
  EditorSide& league = editor.League;
  EditorSide& cup = editor.KnockOut;
  editor.AddFixture_Click();
  Select(league, 1);
  editor.AutoFixtures_Click(league);
  editor.Save_Click(league);
  Select(league, 1);
  editor.AddFixture_Click();
  Add(editor, 1, 1);
  editor.Save_Click(league);
  editor.AutoFixtures_Click(league);
  editor.Save_Click(league);
  league.Name = "a/b";
  editor.Save_Click(league);
  editor.Delete_Click(league);
  EXPECT_EQ(desktop_.Told(),
            "i: There must be atleast two teams in the competition|"
            "i: There must be at least two teams in the competition|"
            "i: Please select the championship teams properly|"
            "i: Select both the home and away teams properly|i: T101 can't play againt itself|"
            "i: Please add the championship fixtures properly|i: Please enter a name for the championship|"
            "!: a/b can't be used as a file name.|i: Please load a championship to delete");
  editor.MoreTeams_Click();
  Select(cup, 3);
  editor.AutoFixtures_Click(cup);
  Select(cup, 1);
  editor.AutoFixtures_Click(cup);
  EXPECT_EQ(league.FixtureList.Count(), 2);  // Each side has its own.
  cup.Name = "Cup";
  cup.Selected.Picked = 0;
  LegEditor::RemoveTeam_Click(cup);  // The teams no longer are those of the fixtures.
  editor.Save_Click(cup);
  editor.FewerTeams_Click();
  editor.Save_Click(cup);
  EXPECT_EQ(
      desktop_.Told(),
      "i: Total teams selected doesn't match the number of teams|"
      "i: Please add the championship fixtures properly|i: Please add the championship fixtures properly");
  EXPECT_FALSE(std::filesystem::exists(folder_.Folder.Tournies()));
}

TEST_F(LegEditorTest, TheLimitsAreHeldWhereFixturesAreMade) {
  MakeTeams(101);
  LegEditor editor = Open();
  EditorSide& side = editor.League;
  Select(side, 32);
  editor.AutoFixtures_Click(side);
  Select(side, 1);
  editor.AutoFixtures_Click(side);
  EXPECT_EQ(side.FixtureList.Count(), 992);
  for (int i = 0; i < 1002; ++i) Add(editor, 0, 1);  // The first one replaces the generated list.
  EXPECT_EQ(side.FixtureList.Entries.back(), "Match 1001: T100 v T101");
  Select(side, 100 - 33);
  side.Name = "Long";
  editor.Save_Click(side);
  Select(side, 1);
  editor.Save_Click(side);
  EXPECT_EQ(desktop_.Told(),
            "i: A league with generated fixtures can have at most 32 teams|"
            "i: A championship can have at most 1001 matches|?: Are you sure you want to add Long?|"
            "i: A league can have at most 100 teams");
}

TEST_F(LegEditorTest, SavesOverwritesLoadsAndDeletes) {
  LegEditor editor = Open();
  EditorSide& side = editor.League;
  Select(side, 2);
  Add(editor, 1, 0);
  side.Name = "Top";
  desktop_.Yes = false;
  editor.Save_Click(side);
  EXPECT_FALSE(std::filesystem::exists(folder_ / "Leagues"));
  desktop_.Yes = true;
  WriteBytes(folder_ / "Leagues", "no folder");
  editor.Save_Click(side);
  EXPECT_EQ(side.Load.Count(), 0);  // What was not saved is not offered.
  EXPECT_NE(desktop_.Told().find("|?: Are you sure you want to add Top?|!: The file "), std::string::npos);
  std::filesystem::remove(folder_ / "Leagues");
  editor.Save_Click(side);
  EXPECT_EQ(Bytes("Leagues/Top.leg"), AsWritten("Top\n2\nT100\nT101\n1\nNP\nT101\nT100\n"));
  EXPECT_EQ(side.Load.Text(), "Top.leg");
  for (const char* companion : {"Leagues/Top.rec", "Leagues/Top.sco", "Leagues/Top.lrs"})
    WriteBytes(folder_ / companion, "x");
  Add(editor, 0, 1);  // Appends to the list that is loaded.
  desktop_.Yes = false;
  editor.Save_Click(side);
  EXPECT_TRUE(std::filesystem::exists(folder_ / "Leagues/Top.rec"));
  desktop_.Yes = true;
  editor.Save_Click(side);
  EXPECT_EQ(Bytes("Leagues/Top.leg"), AsWritten("Top\n2\nT100\nT101\n2\nNP\nT101\nT100\nNP\nT100\nT101\n"));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_.Folder.Leagues()), {}), 1);
  editor.Delete_Click(side);
  EXPECT_EQ(desktop_.Told(),
            "?: Are you sure you want to add Top?|?: Do you want to overwrite Top?|"
            "?: Do you want to overwrite Top?|i: You can't delete any more championship");

  WriteBytes(folder_ / "Leagues/Old.leg", "Old\n3\nT105\nT100\nGone\n1\nP\nT100\nT105\n");
  LegEditor again = Open();
  EditorSide& old = again.League;
  again.Load_Click(old, 0);
  EXPECT_EQ(Joined({old.Name, Joined(old.Selected.Entries), Joined(old.Home.Entries)}),
            "Old|Gone|T100|T105|Gone|T100|T105");
  EXPECT_EQ(Joined(old.Available.Entries) + std::to_string(old.Available.Picked), "T101|T102|T103|T1040");
  again.AutoFixtures_Click(old);
  Add(again, 1, 2);  // Starts again after generated fixtures.
  EXPECT_EQ(Joined(old.FixtureList.Entries), "Match 1: T100 v T105");
  old.Name.clear();
  again.Delete_Click(old);
  old.Name = "Top";  // Deletes what the question names.
  desktop_.Yes = false;
  again.Delete_Click(old);
  EXPECT_TRUE(std::filesystem::exists(folder_ / "Leagues/Old.leg"));
  desktop_.Yes = true;
  again.Delete_Click(old);
  EXPECT_EQ(desktop_.Told(),
            "i: Please load a championship to delete|?: Are you sure you want to remove Old.leg?|"
            "?: Are you sure you want to remove Old.leg?");
  EXPECT_FALSE(std::filesystem::exists(folder_ / "Leagues/Old.leg"));
  EXPECT_EQ(old.Load.Text() + ", " + Joined(old.FixtureList.Entries), "Top.leg, Match 1: T100 v T105");
}

TEST_F(LegEditorTest, OnlyAKnockOutIsSavedAsOne) {
  const std::string two = "1\nK\n2\nT100\nT101\nNP\n";
  const std::string teams = "i: Please select the championship teams properly";
  const std::string fixtures = "i: Please add the championship fixtures properly";
  const std::pair<std::string, std::string> files[] = {
      {two + "T100\nT101\nWinner 1\n", "?: Do you want to overwrite K?"},
      {two + "T100 (By Toss)\nT101\nWinner 1\n", "?: Do you want to overwrite K?"},
      {two + "T100\nT105\nWinner 1\n", fixtures},          // A team that is not selected.
      {two + "Winner 7\nWinner 1\nWinner 1\n", fixtures},  // Waits for itself.
      {"1\nK\n2\nT100\nT100\nNP\nT100\nT100\nWinner 1\n", fixtures},
      {"2\nK\n3\nT100\nT101\nT102\nNP\nT100\nT101\nWinner 1\nNP\nWinner 1\nT102\nWinner 2\n", fixtures},
      {"", teams},
  };
  for (const auto& [text, message] : files) {
    SCOPED_TRACE(text);
    WriteBytes(folder_ / "Tournies/K.trn", text);
    WriteBytes(folder_ / "Tournies/K.lrs", "x");
    LegEditor editor = Open();
    editor.KnockOut.NumberOfTeams = 16;
    editor.Load_Click(editor.KnockOut, 0);
    editor.KnockOut.Name = "K";
    editor.Save_Click(editor.KnockOut);
    EXPECT_EQ(desktop_.Told(), message);
    EXPECT_EQ(std::filesystem::exists(folder_ / "Tournies/K.lrs"), message[0] == 'i');
  }
}

}  // namespace
}  // namespace kickwell
