#include <gtest/gtest.h>

#include "data/championship_store.h"
#include "editors/stad_editor.h"
#include "editors/team_editor.h"
#include "support/fakes.h"
#include "support/folders.h"

namespace kickwell {
namespace {

using Texts = std::vector<std::string>;

class EditorsTest : public testing::Test {
 protected:
  void AddTeams(std::initializer_list<const char*> names) {
    for (const char* name : names) ASSERT_TRUE(SaveTeam(folder_.Folder, MakeTeam(name, name)).Ok());
  }

  TeamEditor OpenTeams(const std::string& league = "N/A") { return {folder_.Folder, desktop_, league}; }

  /// Adds what is typed, and gives the messages.
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
  Texts AddStadium(StadEditor& editor, const std::string& name, const std::string& city,
                   const std::string& capacity) {
    editor.Text1 = name;
    editor.Text2 = city;
    editor.Text3 = capacity;
    editor.Command2_Click();
    return desktop_.Taken();
  }

  TestFolder folder_;
  FakeDesktop desktop_;
};

TEST_F(EditorsTest, TeamInputIsTestedInOrder) {
  AddTeams({"A", "B"});
  TeamEditor editor = OpenTeams();
  const Texts details{"!: Please enter all the Team Details properly."};
  const Texts numerical{"!: Please enter a numerical value for Skill."};
  const Texts range{"!: Please enter a skill value from 1 to 99."};
  EXPECT_EQ(AddTeam(editor, "", "x"), details);
  EXPECT_EQ(AddTeam(editor, "A", ""), details);
  for (const char* text : {"x", "+5", "1.", "1e", " 7", "7 ", "-", "--"})
    EXPECT_EQ(AddTeam(editor, "A", text), numerical) << text;
  for (const char* text : {"0", "-1", "00"}) EXPECT_EQ(AddTeam(editor, "A", text), range) << text;
  EXPECT_EQ(AddTeam(editor, "A", "50"), Texts{"i: A already exists"});
  EXPECT_EQ(AddTeam(editor, "A:", "50"), Texts{"!: A: can't be used as a file name."});
  desktop_.Yes = false;
  EXPECT_EQ(AddTeam(editor, "New", "50"), Texts{"?: Are you sure you want to add New?"});
  EXPECT_EQ(editor.Text1 + editor.Text5, "New50");
  EXPECT_EQ(ListTeams(folder_.Folder), (Texts{"A", "B"}));
}

TEST_F(EditorsTest, ATeamIsAddedToTheListAndToTheStandings) {
  AddTeams({"A", "B"});
  WriteBytes(folder_ / "Leagues/Top.rec", "A\n1\n1\n0\n0\n2\n1\n3\nB\n1\n0\n0\n1\n1\n2\n0\ncut");
  TeamEditor editor = OpenTeams("Top");
  AddTeam(editor, "New", "05");
  EXPECT_EQ(ReadBytes(folder_ / "Teams/New"), AsWritten("05\n"));
  EXPECT_EQ(ReadBytes(folder_ / "Leagues/Top.rec"),
            AsWritten("A\n1\n1\n0\n0\n2\n1\n3\nB\n1\n0\n0\n1\n1\n2\n0\nNew\n0\n0\n0\n0\n0\n0\n0\n"));
  EXPECT_EQ(editor.Combo3.Text() + editor.Label13() + editor.Label14() + editor.Text1 + editor.Text5,
            "New050");
  EXPECT_EQ(editor.List1.Picked, Chooser::None);
  TeamEditor none = OpenTeams();
  AddTeam(none, "Other", "1");
  EXPECT_EQ(ReadLines(folder_ / "Leagues/Top.rec")->size(), 24U);
}

TEST_F(EditorsTest, PlayersAreTestedAddedMovedAndDeleted) {
  AddTeams({"A", "B"});
  TeamEditor editor = OpenTeams();
  EXPECT_EQ(editor.Label13() + " " + editor.Label14() + " " + editor.Label4() + " " + editor.Label5(),
            "75 11 80 GK");
  EXPECT_EQ(AddPlayer(editor, "", "5"), Texts{"!: Please enter all the Player Details properly."});
  EXPECT_EQ(AddPlayer(editor, "A0", "x"), Texts{"!: Please enter a numerical value for Skill."});
  EXPECT_EQ(AddPlayer(editor, "A0", "0"), Texts{"!: Please enter a skill value from 1 to 99."});
  EXPECT_EQ(AddPlayer(editor, "A0", "9"), Texts{"i: A0 already exists"});
  editor.Command6_Click();
  EXPECT_EQ(desktop_.Taken(), Texts{"!: You can't delete any more players."});
  editor.Combo1_Click(3);
  editor.Combo2_Click(1);
  EXPECT_EQ(AddPlayer(editor, "a0", "09"), Texts{"?: Are you sure you want to add a0?"});
  EXPECT_EQ(editor.List1.Text() + editor.Label4() + editor.Label5() + editor.Label14(), "a009GK12");
  EXPECT_EQ(editor.Combo1.Text() + editor.Combo2.Text() + editor.Text2 + editor.Text4, "FDL");
  editor.Combo1_Click(2);
  editor.Combo2_Click(2);
  AddPlayer(editor, "Last", "1");
  EXPECT_EQ(editor.Label5(), "DFC");

  editor.Command2_Click();  // At the bottom: nothing moves.
  EXPECT_EQ(editor.List1.Picked, 12);
  for (int i = 0; i < 14; ++i) editor.Command1_Click();
  EXPECT_EQ(editor.List1.Picked, 0);
  EXPECT_EQ(LoadTeam(folder_.Folder, "A")->Players[0], (Player{"Last", "1", "DFC"}));
  EXPECT_EQ(LoadTeam(folder_.Folder, "A")->Players[1].Name, "A0");
  editor.List1_Click(1);
  editor.Command2_Click();
  EXPECT_EQ(editor.List1.Entries[2] + std::to_string(editor.List1.Picked), "A02");

  desktop_.Yes = false;
  editor.Command6_Click();
  EXPECT_EQ(desktop_.Taken().back(), "?: Are you sure you want to delete A0?");
  EXPECT_EQ(editor.List1.Count(), 13);
  desktop_.Yes = true;
  editor.Command6_Click();
  editor.Command6_Click();
  EXPECT_EQ(editor.List1.Picked, 0);
  EXPECT_EQ(LoadTeam(folder_.Folder, "A")->Players.size(), 11U);
  desktop_.Taken();
  editor.Command6_Click();
  EXPECT_EQ(desktop_.Taken(), Texts{"!: You can't delete any more players."});
}

TEST_F(EditorsTest, TeamsAreDeletedDownToTwo) {
  AddTeams({"A", "B", "C"});
  WriteBytes(folder_ / "settings.cfg", "");
  TeamEditor editor = OpenTeams();
  editor.Combo3_Click(1);
  editor.Command5_Click();
  EXPECT_EQ(desktop_.Taken(), Texts{"?: Are you sure you want to delete B?"});
  EXPECT_EQ(ListTeams(folder_.Folder), (Texts{"A", "C"}));
  EXPECT_FALSE(std::filesystem::exists(folder_ / "settings.cfg"));
  EXPECT_EQ(editor.Combo3.Text() + editor.List1.Entries[0], "AA0");
  editor.Command5_Click();
  EXPECT_EQ(desktop_.Taken(), Texts{"!: You can't delete any more team."});
}

TEST_F(EditorsTest, WithoutATeamOrAFileNothingIsWritten) {
  TeamEditor none = OpenTeams();
  AddPlayer(none, "Ann", "5");
  none.Command1_Click();
  none.Command2_Click();
  EXPECT_TRUE(std::filesystem::is_empty(folder_.Folder.Root));
  AddTeams({"A", "B"});
  TeamEditor editor = OpenTeams();
  std::filesystem::remove(folder_ / "Teams/B");
  editor.Combo3_Click(1);
  EXPECT_EQ(editor.Combo3.Text(), "A");  // What is loaded stays on view.
  std::filesystem::remove_all(folder_ / "Teams");
  WriteBytes(folder_ / "Teams", "no folder");
  AddPlayer(editor, "Ann", "5");
  EXPECT_EQ(editor.List1.Count(), 11);
  EXPECT_EQ(editor.Label14() + editor.Text2, "11Ann");
}

TEST_F(EditorsTest, StadiumsAreTestedAddedAndRemoved) {
  AddTeams({"A"});
  StadEditor editor(folder_.Folder, desktop_);
  EXPECT_EQ(editor.Label8(), "0");
  EXPECT_EQ(editor.Combo1.Entries, (Texts{"Neutral", "A"}));
  EXPECT_EQ(AddStadium(editor, "Mill", "", "x"), Texts{"!: Please enter all the Stadium Details properly."});
  EXPECT_EQ(AddStadium(editor, "Mill", "Leat", "1.5"),
            Texts{"!: Please enter a numerical value for Capacity."});
  EXPECT_EQ(AddStadium(editor, "Mill", "Leat", "0"),
            Texts{"!: Please enter a capacity value from 1 to 99999."});
  desktop_.Yes = false;
  EXPECT_EQ(AddStadium(editor, "Mill", "Leat", "99999"),
            Texts{"?: Are you sure you want to add this stadium?"});
  EXPECT_FALSE(StadiumListExists(folder_.Folder));
  desktop_.Yes = true;
  AddStadium(editor, "Mill", "Leat", "99999");
  editor.Combo1_Click(1);
  AddStadium(editor, "Bowl", "Oss", "5");
  EXPECT_EQ(ReadBytes(folder_ / "stadiums.sim"),
            AsWritten("2\nNeutral\nMill\nLeat\n99999\nA\nBowl\nOss\n5\n"));
  EXPECT_EQ(editor.List1.Text() + editor.Combo1.Text() + editor.Label8() + editor.Text1, "BowlNeutral2");
  EXPECT_EQ(AddStadium(editor, "Bowl", "Oss", "5"), Texts{"i: Bowl already exists"});
  AddStadium(editor, "Park", "Oss", "5");
  WriteBytes(folder_ / "settings.cfg", "");
  editor.List1_Click(1);
  editor.Command1_Click();
  EXPECT_EQ(desktop_.Taken(), Texts{"?: Are you sure you want to remove Bowl?"});
  EXPECT_EQ(editor.List1.Entries, (Texts{"Mill", "Park"}));
  EXPECT_EQ(editor.List1.Picked, 0);
  EXPECT_EQ(LoadStadiums(folder_.Folder).size(), 2U);
  EXPECT_FALSE(std::filesystem::exists(folder_ / "settings.cfg"));
  editor.Command1_Click();
  editor.Command1_Click();
  EXPECT_EQ(desktop_.Taken().back(), "!: You can't delete any more stadium.");
}

}  // namespace
}  // namespace kickwell
