#include "data/championship_store.h"
#include "editors/stad_editor.h"
#include "editors/team_editor.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

class EditorsTest : public ScreenTest {
 protected:
  EditorsTest() {
    AddTeams({"A", "B"});
    EXPECT_TRUE(SaveStadiums(folder_.Folder, {{"A", "Mill", "Leat", "9"}}).Ok());
  }

  TeamEditor OpenTeams(const std::string& league = "N/A") { return {folder_.Folder, desktop_, league}; }

  // Each types an entry, adds it and gives the messages.
  Texts AddTeam(TeamEditor& editor, const std::string& name, const std::string& skill) {
    editor.Text1 = name;
    editor.Text5 = skill;
    editor.Command7_Click();
    return desktop_.Taken();
  }
  Texts AddPlayer(TeamEditor& editor, const std::string& name, const std::string& skill) {
    editor.Text2 = name;
    editor.Text4 = skill;
    editor.Command8_Click();
    return desktop_.Taken();
  }
  Texts AddStadium(StadEditor& editor, const std::string& name, const std::string& capacity) {
    editor.Text1 = name;
    editor.Text2 = "Dell";
    editor.Text3 = capacity;
    editor.Command2_Click();
    return desktop_.Taken();
  }
};

TEST_F(EditorsTest, ANewTeamIsCheckedInOrder) {
  TeamEditor editor = OpenTeams();
  desktop_.Yes = false;
  const Texts details = {"!: Please enter all the Team Details properly."};
  const Texts number = {"!: Please enter a numerical value for Skill."};
  EXPECT_EQ(AddTeam(editor, "", "x"), details);
  EXPECT_EQ(AddTeam(editor, "A", ""), details);
  for (const char* skill : {"+5", "1.", "-"}) EXPECT_EQ(AddTeam(editor, "A", skill), number);
  for (const char* skill : {"-1", "0"})
    EXPECT_EQ(AddTeam(editor, "A", skill), Texts{"!: Please enter a skill value from 1 to 99."});
  EXPECT_EQ(AddTeam(editor, "A", "50"), Texts{"i: A already exists"});
  EXPECT_EQ(AddTeam(editor, "A:", "50"), Texts{"!: A: can't be used as a file name."});
  EXPECT_EQ(AddTeam(editor, "New", "50"), Texts{"?: Are you sure you want to add New?"});
  EXPECT_EQ(editor.Text1, "New");  // What was typed stays.
  EXPECT_EQ(ListTeams(folder_.Folder), (Texts{"A", "B"}));
}

TEST_F(EditorsTest, ANewPlayerIsCheckedInOrder) {
  TeamEditor editor = OpenTeams();
  desktop_.Yes = false;
  EXPECT_EQ(AddPlayer(editor, "", "x"), Texts{"!: Please enter all the Player Details properly."});
  EXPECT_EQ(AddPlayer(editor, "A0", "x"), Texts{"!: Please enter a numerical value for Skill."});
  EXPECT_EQ(AddPlayer(editor, "A0", "0"), Texts{"!: Please enter a skill value from 1 to 99."});
  EXPECT_EQ(AddPlayer(editor, "A0", "5"), Texts{"i: A0 already exists"});
  EXPECT_EQ(AddPlayer(editor, "Ann", "5"), Texts{"?: Are you sure you want to add Ann?"});
  EXPECT_EQ(editor.Label14(), "11");
}

TEST_F(EditorsTest, ANewStadiumIsCheckedInOrder) {
  StadEditor editor(folder_.Folder, desktop_);
  desktop_.Yes = false;
  EXPECT_EQ(AddStadium(editor, "", "x"), Texts{"!: Please enter all the Stadium Details properly."});
  EXPECT_EQ(AddStadium(editor, "Mill", "x"), Texts{"!: Please enter a numerical value for Capacity."});
  EXPECT_EQ(AddStadium(editor, "Mill", "0"), Texts{"!: Please enter a capacity value from 1 to 99999."});
  EXPECT_EQ(AddStadium(editor, "Mill", "5"), Texts{"i: Mill already exists"});
  EXPECT_EQ(AddStadium(editor, "Park", "5"), Texts{"?: Are you sure you want to add this stadium?"});
  EXPECT_EQ(editor.Label8(), "1");
}

TEST_F(EditorsTest, ANewTeamIsShownAndJoinsTheStandings) {
  const std::string row = "A\n1\n1\n0\n0\n2\n1\n3\n";
  Write("Leagues/Top.rec", row + "cut");
  TeamEditor editor = OpenTeams("Top");
  AddTeam(editor, "C", "05");
  EXPECT_EQ(editor.Combo3.Text(), "C");
  EXPECT_EQ(editor.Label13(), "05");
  EXPECT_EQ(editor.List1.Count(), 0);
  EXPECT_EQ(editor.Text1 + editor.Text5, "");
  EXPECT_EQ(Bytes("Teams/C"), AsWritten("05\n"));
  EXPECT_EQ(Bytes("Leagues/Top.rec"), AsWritten(row + "C\n0\n0\n0\n0\n0\n0\n0\n"));
}

TEST_F(EditorsTest, TeamsAreDeletedDownToTwo) {
  AddTeams({"C"});
  Write("settings.cfg", "");
  TeamEditor editor = OpenTeams();
  editor.Combo3_Click(1);
  desktop_.Yes = false;
  editor.Command5_Click();
  EXPECT_TRUE(Exists("Teams/B"));
  desktop_.Yes = true;
  editor.Command5_Click();
  EXPECT_EQ(desktop_.Taken(), Texts(2, "?: Are you sure you want to delete B?"));
  EXPECT_EQ(ListTeams(folder_.Folder), (Texts{"A", "C"}));
  EXPECT_FALSE(Exists("settings.cfg"));
  EXPECT_EQ(editor.Combo3.Text(), "A");
  EXPECT_EQ(editor.List1.Text(), "A0");
  editor.Command5_Click();
  EXPECT_EQ(desktop_.Taken(), Texts{"!: You can't delete any more team."});
}

TEST_F(EditorsTest, PlayersAreAddedWithTheChosenPosition) {
  TeamEditor editor = OpenTeams();
  editor.Combo1_Click(2);
  editor.Combo2_Click(2);
  AddPlayer(editor, "Back", "09");
  EXPECT_EQ(editor.List1.Text(), "Back");
  EXPECT_EQ(editor.Label4(), "09");
  EXPECT_EQ(editor.Label5(), "DFC");
  EXPECT_EQ(editor.Label14(), "12");
  EXPECT_EQ(editor.Combo1.Text() + editor.Combo2.Text(), "FDL");  // Preset again.
  EXPECT_EQ(editor.Text2 + editor.Text4, "");
  editor.Combo1_Click(3);
  AddPlayer(editor, "Keeper", "1");
  EXPECT_EQ(editor.Label5(), "GK");
  EXPECT_EQ(OpenTeams().List1.Entries, editor.List1.Entries);
}

TEST_F(EditorsTest, PlayersAreMovedWithinTheSquad) {
  ASSERT_TRUE(SaveTeam(folder_.Folder, {"A", "75", {{"X", "1", "GK"}, {"Y", "2", "DFL"}}}).Ok());
  TeamEditor editor = OpenTeams();
  editor.Command1_Click();  // At the top already.
  EXPECT_EQ(editor.List1.Entries, (Texts{"X", "Y"}));
  editor.Command2_Click();
  editor.Command2_Click();
  EXPECT_EQ(editor.List1.Text(), "X");
  EXPECT_EQ(Bytes("Teams/A"), AsWritten("75\nY\n2\nDFL\nX\n1\nGK\n"));
}

TEST_F(EditorsTest, PlayersAreDeletedDownToElevenOrFromFewerToNone) {
  TeamEditor editor = OpenTeams();
  AddPlayer(editor, "Ann", "5");
  editor.List1_Click(1);
  desktop_.Yes = false;
  editor.Command6_Click();
  EXPECT_EQ(editor.List1.Count(), 12);
  desktop_.Yes = true;
  editor.Command6_Click();
  EXPECT_EQ(desktop_.Taken(), Texts(2, "?: Are you sure you want to delete A1?"));
  EXPECT_EQ(editor.List1.Text(), "A0");
  EXPECT_EQ(OpenTeams().List1.PlaceOf("A1"), ItemList::None);
  editor.Command6_Click();
  EXPECT_EQ(desktop_.Taken(), Texts{"!: You can't delete any more players."});
  ASSERT_TRUE(SaveTeam(folder_.Folder, {"A", "75", {{"X", "1", "GK"}}}).Ok());
  TeamEditor few = OpenTeams();
  few.Command6_Click();
  few.Command6_Click();
  EXPECT_EQ(desktop_.Taken(),
            (Texts{"?: Are you sure you want to delete X?", "!: You can't delete any more players."}));
  EXPECT_EQ(Bytes("Teams/A"), AsWritten("75\n"));
}

TEST_F(EditorsTest, StadiumsAreAddedAndRemovedDownToOne) {
  StadEditor editor(folder_.Folder, desktop_);
  editor.Combo1_Click(2);
  AddStadium(editor, "Bowl", "99999");
  EXPECT_EQ(Bytes("stadiums.sim"), AsWritten("2\nA\nMill\nLeat\n9\nB\nBowl\nDell\n99999\n"));
  EXPECT_EQ(editor.List1.Text(), "Bowl");
  EXPECT_EQ(editor.Combo1.Text(), "Neutral");
  EXPECT_EQ(editor.Text1 + editor.Text2 + editor.Text3, "");
  AddStadium(editor, "Park", "5");
  Write("settings.cfg", "");
  editor.List1_Click(1);
  desktop_.Yes = false;
  editor.Command1_Click();
  EXPECT_EQ(editor.Label8(), "3");
  desktop_.Yes = true;
  editor.Command1_Click();
  EXPECT_EQ(desktop_.Taken(), Texts(2, "?: Are you sure you want to remove Bowl?"));
  EXPECT_EQ(Bytes("stadiums.sim"), AsWritten("2\nA\nMill\nLeat\n9\nNeutral\nPark\nDell\n5\n"));
  EXPECT_FALSE(Exists("settings.cfg"));
  EXPECT_EQ(editor.List1.Text(), "Mill");
  editor.Command1_Click();
  editor.Command1_Click();
  EXPECT_EQ(desktop_.Taken().back(), "!: You can't delete any more stadium.");
}

TEST_F(EditorsTest, WhatCannotBeSavedIsNotShown) {
  TeamEditor teams = OpenTeams();
  StadEditor stadiums(folder_.Folder, desktop_);
  Remove("Teams");
  Write("Teams", "no folder");
  Remove("stadiums.sim");
  Write("stadiums.sim/x", "a folder");
  for (const Texts& told :
       {AddTeam(teams, "New", "5"), AddPlayer(teams, "Ann", "5"), AddStadium(stadiums, "Park", "5")})
    EXPECT_TRUE(told.back().starts_with("!: The file ")) << told.back();
  EXPECT_EQ(teams.Combo3.Entries, (Texts{"A", "B"}));
  EXPECT_EQ(teams.Label14(), "11");
  EXPECT_EQ(teams.Text1, "New");
  EXPECT_EQ(stadiums.List1.Entries, Texts{"Mill"});
  EXPECT_EQ(stadiums.Text1, "Park");
}

TEST_F(EditorsTest, AFileThatCannotBeReadIsReportedOnceAndKept) {
  AddTeams({"C", "D"});
  TeamEditor teams = OpenTeams();
  Remove("Teams/C");
  teams.Combo3_Click(2);  // Missing, which is not reported.
  const Texts teamMessage = {MakeUnreadable("Teams/B")};
  teams.Combo3_Click(1);
  EXPECT_EQ(desktop_.Taken(), teamMessage);
  EXPECT_EQ(teams.Combo3.Text(), "A");
  teams.Command5_Click();  // A goes, and B cannot take its place.
  teams.Command2_Click();
  EXPECT_EQ(teams.List1.Count(), 0);
  EXPECT_FALSE(Exists("Teams/A"));

  desktop_.Taken();
  const std::string list = Bytes("stadiums.sim");
  const Texts listMessage = {MakeUnreadable("stadiums.sim")};
  StadEditor stadiums(folder_.Folder, desktop_);
  EXPECT_EQ(desktop_.Taken(), listMessage);
  folder_.Files.Unreadable.clear();
  AddStadium(stadiums, "Park", "5");
  EXPECT_EQ(Bytes("stadiums.sim"), list);  // Never replaced by what has not been read.
}

}  // namespace
}  // namespace kickwell
