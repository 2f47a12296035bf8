#include <tuple>

#include "data/championship_store.h"
#include "editors/stad_editor.h"
#include "editors/team_editor.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

class EditorsTest : public ScreenTest {
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

  /// Presses a button with the answer No and then so many times with Yes; gives the messages.
  template <typename Editor>
  std::string Press(Editor& editor, void (Editor::*button)(), int times) {
    for (int i = 0; i <= times; ++i) {
      desktop_.Yes = i > 0;
      (editor.*button)();
    }
    desktop_.Yes = true;
    return desktop_.Told();
  }

  /// Chosen team, its skill and players, the picked one with his figures, and what is typed.
  static std::string Shown(TeamEditor& e) {
    return Joined({e.Combo3.Text(), e.Label13(), e.Label14(), e.List1.Text(), e.Label4(), e.Label5(), e.Text1,
                   e.Text5, e.Text2, e.Text4});
  }
};

TEST_F(EditorsTest, InputIsTestedInOrder) {
  AddTeams(folder_, {"A", "B"});
  ASSERT_TRUE(SaveStadiums(folder_.Folder, {{"A", "Mill", "Leat", "9"}}).Ok());
  TeamEditor editor = OpenTeams();
  StadEditor stadiums(folder_.Folder, desktop_);
  desktop_.Yes = false;
  const std::string sure = "?: Are you sure you want to add ", enter = "!: Please enter ";
  const std::string details = enter + "all the Team Details properly.|" + enter +
                              "all the Player Details properly.|" + enter +
                              "all the Stadium Details properly.";
  const std::string numerical = enter + "a numerical value for Skill.|" + enter +
                                "a numerical value for Skill.|" + enter + "a numerical value for Capacity.";
  const std::string range = enter + "a skill value from 1 to 99.|" + enter + "a skill value from 1 to 99.|" +
                            enter + "a capacity value from 1 to 99999.";
  const auto expect = [&](const char* name, const char* number, const std::string& messages) {
    EXPECT_EQ(Joined({AddTeam(editor, name, number), AddPlayer(editor, name, number),
                      AddStadium(stadiums, name, number)}),
              messages);
  };
  expect("", "x", details);
  expect("A", "", details);
  for (const char* number : {"x", "+5", "1.", " 7", "-"}) expect("A", number, numerical);
  for (const char* number : {"0", "-1", "00"}) expect("A", number, range);
  expect("A", "50", "i: A already exists|" + sure + "A?|" + sure + "this stadium?");
  expect("A0", "50", sure + "A0?|i: A0 already exists|" + sure + "this stadium?");
  expect("Mill", "50", sure + "Mill?|" + sure + "Mill?|i: Mill already exists");
  expect("A:", "50", "!: A: can't be used as a file name.|" + sure + "A:?|" + sure + "this stadium?");
  EXPECT_EQ(AddStadium(stadiums, "Bowl", "5", ""), enter + "all the Stadium Details properly.");
  EXPECT_EQ(Shown(editor), "A|75|11|A0|80|GK|A:|50|A:|50");  // What was typed stays.
  EXPECT_EQ(Joined(ListTeams(folder_.Folder)) + stadiums.Label8(), "A|B1");
}

TEST_F(EditorsTest, TeamsAreAddedToTheListAndTheStandingsAndDeletedDownToTwo) {
  AddTeams(folder_, {"A", "B"});
  const std::string rows = "A\n1\n1\n0\n0\n2\n1\n3\nB\n1\n0\n0\n1\n1\n2\n0\n";
  Write("Leagues/Top.rec", rows + "cut");
  TeamEditor editor = OpenTeams("Top");
  AddTeam(editor, "C", "05");
  EXPECT_EQ(Shown(editor), "C|05|0|||||||");
  EXPECT_EQ(Bytes("Teams/C"), AsWritten("05\n"));
  EXPECT_EQ(Bytes("Leagues/Top.rec"), AsWritten(rows + "C\n0\n0\n0\n0\n0\n0\n0\n"));
  TeamEditor other = OpenTeams();
  Write("settings.cfg", "");
  other.Combo3_Click(1);
  EXPECT_EQ(Press(other, &TeamEditor::Command5_Click, 2),
            "?: Are you sure you want to delete B?|?: Are you sure you want to delete B?|"
            "!: You can't delete any more team.");
  EXPECT_EQ(Joined(ListTeams(folder_.Folder)) + ", " + Shown(other), "A|C, A|75|11|A0|80|GK||||");
  EXPECT_FALSE(Exists("settings.cfg"));
  AddTeam(other, "D", "1");  // In no league.
  EXPECT_EQ(ReadLines(folder_ / "Leagues/Top.rec")->size(), 24U);
}

TEST_F(EditorsTest, PlayersAreAddedMovedAndDeletedDownToElevenOrFromFewerToNone) {
  AddTeams(folder_, {"A"});
  TeamEditor editor = OpenTeams();
  const auto file = [this] {
    Texts players;
    const std::optional<Team> saved = LoadTeam(folder_.Folder, "A");
    for (const Player& player : saved->Players) players.push_back(player.Name);
    return Joined(players);
  };
  editor.Combo1_Click(3);
  editor.Combo2_Click(1);
  EXPECT_EQ(AddPlayer(editor, "a0", "09"), "?: Are you sure you want to add a0?");
  EXPECT_EQ(Shown(editor) + editor.Combo1.Text() + editor.Combo2.Text(), "A|75|12|a0|09|GK||||FDL");
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
  EXPECT_EQ(file() + ", " + editor.List1.Text(), "Last|A1|A0|A2|A3|A4|A5|A6|A7|A8|A9|A10|a0, A0");
  EXPECT_EQ(Press(editor, &TeamEditor::Command6_Click, 3),
            "?: Are you sure you want to delete A0?|?: Are you sure you want to delete A0?|"
            "?: Are you sure you want to delete Last?|!: You can't delete any more players.");
  EXPECT_EQ(file() + ", " + editor.List1.Text(), "A1|A2|A3|A4|A5|A6|A7|A8|A9|A10|a0, A1");
  ASSERT_TRUE(SaveTeam(folder_.Folder, {"A", "75", {{"X", "1", "GK"}, {"Y", "2", "GK"}}}).Ok());
  TeamEditor few = OpenTeams();
  EXPECT_EQ(Press(few, &TeamEditor::Command6_Click, 3),
            "?: Are you sure you want to delete X?|?: Are you sure you want to delete X?|"
            "?: Are you sure you want to delete Y?|!: You can't delete any more players.");
  EXPECT_EQ(Bytes("Teams/A"), AsWritten("75\n"));
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
  Write("Teams", "no folder");
  std::filesystem::remove(folder_ / "stadiums.sim");
  Write("stadiums.sim/x", "a folder");
  const std::string failures =
      Joined({AddPlayer(editor, "Ann", "5"), AddTeam(editor, "New", "5"),
              Press(editor, &TeamEditor::Command2_Click, 0), AddStadium(stadiums, "Park", "5"),
              Press(stadiums, &StadEditor::Command1_Click, 1)});
  std::size_t told = 0;
  for (std::size_t at = 0; (at = failures.find("!: The file ", at)) != std::string::npos; ++at) ++told;
  EXPECT_EQ(told, 5U) << failures;
  EXPECT_EQ(Shown(editor) + std::to_string(editor.Combo3.Count()), "A|75|11|A0|80|GK|New|5|Ann|53");
  EXPECT_EQ(Joined(stadiums.List1.Entries) + stadiums.Text1, "Mill|BowlPark");
}

TEST_F(EditorsTest, StadiumsAreAddedAndRemovedDownToOne) {
  AddTeams(folder_, {"A"});
  StadEditor editor(folder_.Folder, desktop_);
  EXPECT_EQ(Joined(editor.Combo1.Entries) + editor.Label8(), "Neutral|A0");
  AddStadium(editor, "Mill", "99999");
  editor.Combo1_Click(1);
  AddStadium(editor, "Bowl", "5", "Oss");
  EXPECT_EQ(Bytes("stadiums.sim"), AsWritten("2\nNeutral\nMill\nLeat\n99999\nA\nBowl\nOss\n5\n"));
  EXPECT_EQ(Joined({editor.List1.Text(), editor.Combo1.Text(), editor.Label8(), editor.Text1, editor.Text2,
                    editor.Text3}),
            "Bowl|Neutral|2|||");
  for (const char* name : {"Park", "Lane", "Road"}) AddStadium(editor, name, "5");
  Write("settings.cfg", "");
  editor.List1_Click(2);
  EXPECT_EQ(Press(editor, &StadEditor::Command1_Click, 1),
            "?: Are you sure you want to remove Park?|?: Are you sure you want to remove Park?");
  EXPECT_EQ(Joined(editor.List1.Entries) + " " + editor.List1.Text(), "Mill|Bowl|Lane|Road Mill");
  EXPECT_EQ(LoadStadiums(folder_.Folder).size(), 4U);
  EXPECT_FALSE(Exists("settings.cfg"));
  EXPECT_TRUE(Press(editor, &StadEditor::Command1_Click, 4)
                  .ends_with("want to remove Lane?|!: You can't delete any more stadium."));
}

}  // namespace
}  // namespace kickwell
