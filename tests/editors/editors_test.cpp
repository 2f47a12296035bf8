#include <gtest/gtest.h>

#include <tuple>

#include "data/championship_store.h"
#include "editors/stad_editor.h"
#include "editors/team_editor.h"
#include "support/fakes.h"
#include "support/folders.h"

namespace kickwell {
namespace {

class EditorsTest : public testing::Test {
 protected:
  TeamEditor OpenTeams(const std::string& league = "N/A") { return {folder_.Folder, desktop_, league}; }

  // Each adds what is typed and gives the messages.
  std::string AddTeam(TeamEditor& editor, const std::string& name, const std::string& skill) {
    std::tie(editor.Text1, editor.Text5) = std::tie(name, skill);
    editor.Command7_Click();
    return desktop_.Told();
  }
  std::string AddPlayer(TeamEditor& editor, const std::string& name, const std::string& skill) {
    std::tie(editor.Text2, editor.Text4) = std::tie(name, skill);
    editor.Command8_Click();
    return desktop_.Told();
  }
  std::string AddStadium(StadEditor& editor, const std::string& name, const std::string& seats,
                         const std::string& city = "Leat") {
    std::tie(editor.Text1, editor.Text2, editor.Text3) = std::tie(name, city, seats);
    editor.Command2_Click();
    return desktop_.Told();
  }

  /// Chosen team; its skill, players and the picked one with his figures; what is typed.
  static std::string Shown(TeamEditor& e) {
    return Joined({e.Combo3.Text(), e.Label13(), e.Label14(), e.List1.Text(), e.Label4(), e.Label5(), e.Text1,
                   e.Text5, e.Text2, e.Text4});
  }

  TestFolder folder_;
  FakeDesktop desktop_;
};

TEST_F(EditorsTest, InputIsTestedInOrder) {
  AddTeams(folder_, {"A", "B"});
  ASSERT_TRUE(SaveStadiums(folder_.Folder, {{"A", "Mill", "Leat", "9"}}).Ok());
  TeamEditor editor = OpenTeams();
  StadEditor stadiums(folder_.Folder, desktop_);
  desktop_.Yes = false;
  const std::string details =
      "!: Please enter all the Team Details properly.|!: Please enter all the Player "
      "Details properly.|!: Please enter all the Stadium Details properly.";
  const std::string numerical =
      "!: Please enter a numerical value for Skill.|!: Please enter a numerical value "
      "for Skill.|!: Please enter a numerical value for Capacity.";
  const std::string range =
      "!: Please enter a skill value from 1 to 99.|!: Please enter a skill value from 1 to "
      "99.|!: Please enter a capacity value from 1 to 99999.";
  const std::string sure = "?: Are you sure you want to add ";
  const std::tuple<const char*, const char*, std::string> cases[] = {
      {"", "x", details},
      {"A", "", details},
      {"A", "x", numerical},
      {"A", "+5", numerical},
      {"A", "1.", numerical},
      {"A", " 7", numerical},
      {"A", "-", numerical},
      {"A", "0", range},
      {"A", "-1", range},
      {"A", "50", "i: A already exists|" + sure + "A?|" + sure + "this stadium?"},
      {"A0", "50", sure + "A0?|i: A0 already exists|" + sure + "this stadium?"},
      {"Mill", "50", sure + "Mill?|" + sure + "Mill?|i: Mill already exists"},
      {"A:", "50", "!: A: can't be used as a file name.|" + sure + "A:?|" + sure + "this stadium?"},
  };
  for (const auto& [name, number, messages] : cases) {
    EXPECT_EQ(Joined({AddTeam(editor, name, number), AddPlayer(editor, name, number),
                      AddStadium(stadiums, name, number)}),
              messages);
  }
  EXPECT_EQ(AddStadium(stadiums, "Bowl", "5", ""), "!: Please enter all the Stadium Details properly.");
  EXPECT_EQ(Shown(editor), "A|75|11|A0|80|GK|A:|50|A:|50");  // What was typed stays.
  EXPECT_EQ(Joined(ListTeams(folder_.Folder)) + stadiums.Label8(), "A|B1");
}

TEST_F(EditorsTest, ATeamIsAddedToTheListAndToTheStandings) {
  AddTeams(folder_, {"A", "B"});
  WriteBytes(folder_ / "Leagues/Top.rec", "A\n1\n1\n0\n0\n2\n1\n3\nB\n1\n0\n0\n1\n1\n2\n0\ncut");
  TeamEditor editor = OpenTeams("Top");
  AddTeam(editor, "New", "05");
  EXPECT_EQ(ReadBytes(folder_ / "Teams/New"), AsWritten("05\n"));
  const std::string standings =
      AsWritten("A\n1\n1\n0\n0\n2\n1\n3\nB\n1\n0\n0\n1\n1\n2\n0\nNew\n0\n0\n0\n0\n0\n0\n0\n");
  EXPECT_EQ(ReadBytes(folder_ / "Leagues/Top.rec"), standings);
  EXPECT_EQ(Shown(editor), "New|05|0|||||||");
  editor.Command6_Click();
  EXPECT_EQ(desktop_.Told(), "!: You can't delete any more players.");  // Of an empty squad.
  TeamEditor none = OpenTeams();
  AddTeam(none, "Other", "1");
  EXPECT_EQ(ReadBytes(folder_ / "Leagues/Top.rec"), standings);
}

TEST_F(EditorsTest, PlayersAreAddedMovedAndDeletedDownToEleven) {
  AddTeams(folder_, {"A", "B"});
  TeamEditor editor = OpenTeams();
  const auto file = [this] {
    Texts players;
    const std::optional<Team> saved = LoadTeam(folder_.Folder, "A");
    for (const Player& player : saved->Players) players.push_back(player.Name);
    return Joined(players);
  };
  editor.Command6_Click();
  EXPECT_EQ(desktop_.Told(), "!: You can't delete any more players.");
  editor.Combo1_Click(3);
  editor.Combo2_Click(1);
  EXPECT_EQ(AddPlayer(editor, "a0", "09"), "?: Are you sure you want to add a0?");
  EXPECT_EQ(Shown(editor), "A|75|12|a0|09|GK||||");
  EXPECT_EQ(editor.Combo1.Text() + editor.Combo2.Text(), "FDL");
  editor.Combo1_Click(2);
  editor.Combo2_Click(2);
  AddPlayer(editor, "Last", "1");
  editor.Command2_Click();  // At the bottom: nothing moves.
  EXPECT_EQ(Shown(editor), "A|75|13|Last|1|DFC||||");
  for (int i = 0; i < 14; ++i) editor.Command1_Click();
  EXPECT_EQ(file(), "Last|A0|A1|A2|A3|A4|A5|A6|A7|A8|A9|A10|a0");
  EXPECT_EQ(editor.List1.Picked, 0);
  editor.List1_Click(1);
  editor.Command2_Click();
  EXPECT_EQ(file(), "Last|A1|A0|A2|A3|A4|A5|A6|A7|A8|A9|A10|a0");
  EXPECT_EQ(editor.List1.Text(), "A0");
  desktop_.Yes = false;
  editor.Command6_Click();
  desktop_.Yes = true;
  for (int i = 0; i < 3; ++i) editor.Command6_Click();
  EXPECT_EQ(desktop_.Told(),
            "?: Are you sure you want to delete A0?|?: Are you sure you want to delete A0?|"
            "?: Are you sure you want to delete Last?|!: You can't delete any more players.");
  EXPECT_EQ(file(), "A1|A2|A3|A4|A5|A6|A7|A8|A9|A10|a0");
  EXPECT_EQ(editor.List1.Picked, 0);
}

TEST_F(EditorsTest, ASquadBelowElevenIsDeletedToItsLastPlayer) {
  Team team = MakeTeam("A", "A");
  team.Players.resize(3);
  ASSERT_TRUE(SaveTeam(folder_.Folder, team).Ok());
  TeamEditor editor = OpenTeams();
  const std::string sure = "?: Are you sure you want to delete ";
  for (const std::string& message :
       Texts{sure + "A0?", sure + "A1?", sure + "A2?", "!: You can't delete any more players."}) {
    editor.Command6_Click();
    EXPECT_EQ(desktop_.Told(), message);
  }
  EXPECT_EQ(ReadBytes(folder_ / "Teams/A"), AsWritten("75\n"));
}

TEST_F(EditorsTest, TeamsAreDeletedDownToTwo) {
  AddTeams(folder_, {"A", "B", "C"});
  WriteBytes(folder_ / "settings.cfg", "");
  TeamEditor editor = OpenTeams();
  editor.Combo3_Click(1);
  desktop_.Yes = false;
  editor.Command5_Click();
  EXPECT_EQ(Joined(ListTeams(folder_.Folder)) + editor.Combo3.Text(), "A|B|CB");
  desktop_.Yes = true;
  editor.Command5_Click();
  EXPECT_EQ(Joined(ListTeams(folder_.Folder)), "A|C");
  EXPECT_FALSE(std::filesystem::exists(folder_ / "settings.cfg"));
  EXPECT_EQ(Shown(editor), "A|75|11|A0|80|GK||||");
  editor.Command5_Click();
  EXPECT_EQ(desktop_.Told(),
            "?: Are you sure you want to delete B?|?: Are you sure you want to delete B?|"
            "!: You can't delete any more team.");
}

TEST_F(EditorsTest, WithoutATeamOrAFileNothingIsWrittenAndWhatCannotBeSavedIsNotShown) {
  TeamEditor none = OpenTeams();
  AddPlayer(none, "Ann", "5");
  none.Command1_Click();
  none.Command2_Click();
  EXPECT_TRUE(std::filesystem::is_empty(folder_.Folder.Root));
  AddTeams(folder_, {"A", "B", "C"});
  ASSERT_TRUE(SaveStadiums(folder_.Folder, {{"A", "Mill", "Leat", "9"}, {"A", "Bowl", "Oss", "9"}}).Ok());
  TeamEditor editor = OpenTeams();
  StadEditor stadiums(folder_.Folder, desktop_);
  std::filesystem::remove(folder_ / "Teams/B");
  editor.Combo3_Click(1);
  EXPECT_EQ(editor.Combo3.Text(), "A");  // What is loaded stays on view.
  std::filesystem::remove_all(folder_ / "Teams");
  WriteBytes(folder_ / "Teams", "no folder");
  std::filesystem::remove(folder_ / "stadiums.sim");
  WriteBytes(folder_ / "stadiums.sim/x", "a folder");
  EXPECT_NE(AddPlayer(editor, "Ann", "5").find("|!: The file "), std::string::npos);
  EXPECT_NE(AddTeam(editor, "New", "5").find("|!: The file "), std::string::npos);
  editor.Command2_Click();
  EXPECT_EQ(Shown(editor) + std::to_string(editor.Combo3.Count()), "A|75|11|A0|80|GK|New|5|Ann|53");
  EXPECT_NE(AddStadium(stadiums, "Park", "5").find("|!: The file "), std::string::npos);
  stadiums.Command1_Click();
  EXPECT_EQ(Joined(stadiums.List1.Entries) + stadiums.Text1, "Mill|BowlPark");
}

TEST_F(EditorsTest, StadiumsAreAddedAndRemovedDownToOne) {
  AddTeams(folder_, {"A"});
  StadEditor editor(folder_.Folder, desktop_);
  EXPECT_EQ(Joined(editor.Combo1.Entries) + editor.Label8(), "Neutral|A0");
  AddStadium(editor, "Mill", "99999");
  editor.Combo1_Click(1);
  AddStadium(editor, "Bowl", "5", "Oss");
  EXPECT_EQ(ReadBytes(folder_ / "stadiums.sim"),
            AsWritten("2\nNeutral\nMill\nLeat\n99999\nA\nBowl\nOss\n5\n"));
  EXPECT_EQ(Joined({editor.List1.Text(), editor.Combo1.Text(), editor.Label8(), editor.Text1, editor.Text2,
                    editor.Text3}),
            "Bowl|Neutral|2|||");
  for (const char* name : {"Park", "Lane", "Road"}) AddStadium(editor, name, "5");
  WriteBytes(folder_ / "settings.cfg", "");
  editor.List1_Click(2);
  desktop_.Yes = false;
  editor.Command1_Click();
  EXPECT_EQ(editor.Label8(), "5");
  desktop_.Yes = true;
  editor.Command1_Click();
  EXPECT_EQ(Joined(editor.List1.Entries) + std::to_string(editor.List1.Picked), "Mill|Bowl|Lane|Road0");
  EXPECT_EQ(LoadStadiums(folder_.Folder).size(), 4U);
  EXPECT_FALSE(std::filesystem::exists(folder_ / "settings.cfg"));
  for (int i = 0; i < 4; ++i) editor.Command1_Click();
  EXPECT_EQ(desktop_.Told(),
            "?: Are you sure you want to remove Park?|?: Are you sure you want to remove Park?|"
            "?: Are you sure you want to remove Mill?|?: Are you sure you want to remove Bowl?|"
            "?: Are you sure you want to remove Lane?|!: You can't delete any more stadium.");
}

}  // namespace
}  // namespace kickwell
