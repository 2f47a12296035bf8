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

  TeamEditor OpenTeams() { return {folder_.Folder, desktop_, "Top"}; }

  // Each types something new, adds it and gives the messages.
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

TEST_F(EditorsTest, WhatIsTypedIsCheckedInOrder) {
  TeamEditor teams = OpenTeams();
  EXPECT_EQ(AddTeam(teams, "", "x"), Texts{"!: Please enter all the Team Details properly."});
  EXPECT_EQ(AddTeam(teams, "A", ""), Texts{"!: Please enter all the Team Details properly."});
  for (const char* skill : {"+5", "1.", "-"})
    EXPECT_EQ(AddTeam(teams, "A", skill), Texts{"!: Please enter a numerical value for Skill."});
  EXPECT_EQ(AddTeam(teams, "A", "0"), Texts{"!: Please enter a skill value from 1 to 99."});
  EXPECT_EQ(AddTeam(teams, "A", "50"), Texts{"i: A already exists"});
  EXPECT_EQ(AddTeam(teams, "A:", "50"), Texts{"!: A: can't be used as a file name."});
  EXPECT_EQ(AddPlayer(teams, "", "x"), Texts{"!: Please enter all the Player Details properly."});
  EXPECT_EQ(AddPlayer(teams, "A0", "5"), Texts{"i: A0 already exists"});
  StadEditor stadiums(folder_.Folder, desktop_);
  EXPECT_EQ(AddStadium(stadiums, "", "x"), Texts{"!: Please enter all the Stadium Details properly."});
  EXPECT_EQ(AddStadium(stadiums, "Mill", "x"), Texts{"!: Please enter a numerical value for Capacity."});
  EXPECT_EQ(AddStadium(stadiums, "Mill", "0"), Texts{"!: Please enter a capacity value from 1 to 99999."});
  EXPECT_EQ(AddStadium(stadiums, "Mill", "5"), Texts{"i: Mill already exists"});
}

TEST_F(EditorsTest, NothingChangesUnlessTheUserSaysYes) {
  AddTeams({"C"});
  TeamEditor teams = OpenTeams();
  StadEditor stadiums(folder_.Folder, desktop_);
  teams.Combo1.Picked = teams.Combo1.PlaceOf("GK");
  AddPlayer(teams, "Twelfth", "5");
  EXPECT_EQ(teams.Label5(), "GK");  // Who has no side.
  AddStadium(stadiums, "Park", "5");
  const auto before = folder_.Files.All();
  desktop_.Yes = false;
  EXPECT_EQ(AddTeam(teams, "New", "50"), Texts{"?: Are you sure you want to add New?"});
  EXPECT_EQ(AddPlayer(teams, "Ann", "5"), Texts{"?: Are you sure you want to add Ann?"});
  EXPECT_EQ(AddStadium(stadiums, "Bowl", "5"), Texts{"?: Are you sure you want to add this stadium?"});
  teams.Command5_Click();
  teams.Command6_Click();
  stadiums.Command1_Click();
  EXPECT_EQ(desktop_.Taken(), (Texts{"? (No): Are you sure you want to delete A?",
                                     "? (No): Are you sure you want to delete Twelfth?",
                                     "? (No): Are you sure you want to remove Park?"}));
  EXPECT_EQ(folder_.Files.All(), before);
}

TEST_F(EditorsTest, DeletingStopsAtTwoTeamsElevenPlayersAndOneStadium) {
  const std::string row = "A\n1\n1\n0\n0\n2\n1\n3\n";
  Write("Leagues/Top.rec", row);
  TeamEditor teams = OpenTeams();
  StadEditor stadiums(folder_.Folder, desktop_);
  AddPlayer(teams, "Twelfth", "5");
  AddTeam(teams, "C", "05");
  EXPECT_EQ(Bytes("Leagues/Top.rec"), AsWritten(row + "C\n0\n0\n0\n0\n0\n0\n0\n"));
  AddStadium(stadiums, "Park", "5");
  const auto deleteTwice = [this](auto& editor, auto deletion) {
    Write("settings.cfg", "");
    for (int times = 0; times < 2; ++times) (editor.*deletion)();
    return desktop_.Taken().back();
  };
  EXPECT_EQ(deleteTwice(teams, &TeamEditor::Command5_Click), "!: You can't delete any more team.");
  EXPECT_FALSE(Exists("settings.cfg"));
  EXPECT_EQ(deleteTwice(stadiums, &StadEditor::Command1_Click), "!: You can't delete any more stadium.");
  EXPECT_FALSE(Exists("settings.cfg"));
  teams.List1_Click(1);
  EXPECT_EQ(deleteTwice(teams, &TeamEditor::Command6_Click), "!: You can't delete any more players.");
  EXPECT_EQ(ListTeams(folder_.Folder), (Texts{"A", "B"}));
  EXPECT_EQ(Bytes("stadiums.sim"), AsWritten("1\nA\nMill\nLeat\n9\n"));
  EXPECT_EQ(OpenTeams().List1.PlaceOf("A1"), ItemList::None);
}

TEST_F(EditorsTest, AFileThatCannotBeReadIsReportedOnceAndKept) {
  const std::string stadiumList = Bytes("stadiums.sim");
  const Texts messages = {MakeUnreadable("Teams/B"), MakeUnreadable("stadiums.sim")};
  AddTeams({"C"});
  TeamEditor teams = OpenTeams();
  teams.Combo3_Click(1);
  EXPECT_EQ(teams.Combo3.Text(), "A");
  StadEditor stadiums(folder_.Folder, desktop_);
  EXPECT_EQ(desktop_.Taken(), messages);
  Write("settings.cfg/in the way", "");  // Can't be deleted.
  teams.Command5_Click();                // A goes, and B can't take its place.
  EXPECT_EQ(teams.Combo3.Entries, (Texts{"B", "C"}));
  AddPlayer(teams, "Ann", "5");
  teams.Command1_Click();
  teams.Command6_Click();
  EXPECT_EQ(teams.List1.Count(), 0);
  EXPECT_FALSE(Exists("Teams/A"));  // Nothing brings it back.
  Remove("Teams/C");
  teams.Combo3_Click(1);
  EXPECT_EQ(teams.Combo3.Text(), "");
  folder_.Files.Unreadable.clear();
  AddStadium(stadiums, "Park", "5");
  EXPECT_EQ(Bytes("stadiums.sim"), stadiumList);
}

TEST_F(EditorsTest, WhatCannotBeSavedIsNotShown) {
  TeamEditor teams = OpenTeams();
  StadEditor stadiums(folder_.Folder, desktop_);
  for (const char* file : {"Teams/A", "Teams/New", "stadiums.sim"}) MakeUnreadable(file);
  EXPECT_EQ(AddTeam(teams, "New", "5").size(), 2U);  // The question and the failure.
  EXPECT_EQ(AddPlayer(teams, "Ann", "5").size(), 2U);
  EXPECT_EQ(AddStadium(stadiums, "Park", "5").size(), 2U);
  EXPECT_EQ(teams.Combo3.Entries, (Texts{"A", "B"}));
  EXPECT_EQ(teams.Label14(), "11");
  EXPECT_EQ(stadiums.Label8(), "1");
  EXPECT_EQ(stadiums.Text1, "Park");
}

}  // namespace
}  // namespace kickwell
