#include <tuple>

#include "data/championship_store.h"
#include "editors/stad_editor.h"
#include "editors/team_editor.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

class EditorsTest : public ScreenTest {
 protected:
  EditorsTest() {
    AddTeams(folder_, {"A", "B"});
    EXPECT_TRUE(SaveStadiums(folder_.Folder, {{"A", "Mill", "Leat", "9"}}).Ok());
  }

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
  std::string AddStadium(StadEditor& editor, const std::string& name, const std::string& seats) {
    std::tie(editor.Text1, editor.Text2, editor.Text3) = std::tie(name, name, seats);
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
  static std::string Shown(const TeamEditor& e) {
    return Joined({e.Combo3.Text(), e.Label13(), e.Label14(), e.List1.Text(), e.Label4(), e.Label5(), e.Text1,
                   e.Text5, e.Text2, e.Text4});
  }
};

TEST_F(EditorsTest, InputIsTestedInOrder) {
  TeamEditor editor = OpenTeams();
  StadEditor stadiums(folder_.Folder, desktop_);
  desktop_.Yes = false;
  const auto allEnter = [](const std::string& team, const std::string& player, const std::string& stadium) {
    const std::string enter = "!: Please enter ";
    return Joined({enter + team, enter + player, enter + stadium});
  };
  const std::string details = allEnter("all the Team Details properly.", "all the Player Details properly.",
                                       "all the Stadium Details properly.");
  const std::string skill = "a numerical value for Skill.", range = "a skill value from 1 to 99.";
  const std::string numerical = allEnter(skill, skill, "a numerical value for Capacity.");
  const std::string sure = "?: Are you sure you want to add ", stadium = sure + "this stadium?";
  const std::tuple<const char*, const char*, std::string> inputs[] = {
      {"", "x", details},
      {"A", "", details},
      {"A", "+5", numerical},
      {"A", "1.", numerical},
      {"A", "-", numerical},
      {"A", "-1", allEnter(range, range, "a capacity value from 1 to 99999.")},
      {"A", "50", "i: A already exists|" + sure + "A?|" + stadium},
      {"A0", "50", sure + "A0?|i: A0 already exists|" + stadium},
      {"Mill", "50", sure + "Mill?|" + sure + "Mill?|i: Mill already exists"},
      {"A:", "50", "!: A: can't be used as a file name.|" + sure + "A:?|" + stadium}};
  for (const auto& [name, number, messages] : inputs)
    EXPECT_EQ(Joined({AddTeam(editor, name, number), AddPlayer(editor, name, number),
                      AddStadium(stadiums, name, number)}),
              messages);
  EXPECT_EQ(Shown(editor), "A|75|11|A0|80|GK|A:|50|A:|50");  // What was typed stays.
  EXPECT_EQ(Joined(ListTeams(folder_.Folder)) + stadiums.Label8(), "A|B1");
}

TEST_F(EditorsTest, TeamsAreAddedToTheListAndTheStandingsAndDeletedDownToTwo) {
  const std::string rows = "A\n1\n1\n0\n0\n2\n1\n3\nB\n1\n0\n0\n1\n1\n2\n0\n";
  Write("Leagues/Top.rec", rows + "cut");
  Write("settings.cfg", "");
  TeamEditor editor = OpenTeams("Top");
  AddTeam(editor, "C", "05");
  EXPECT_EQ(Shown(editor), "C|05|0|||||||");
  EXPECT_EQ(Bytes("Teams/C") + Bytes("Leagues/Top.rec"),
            AsWritten("05\n") + AsWritten(rows + "C\n0\n0\n0\n0\n0\n0\n0\n"));
  editor.Combo3_Click(1);
  EXPECT_EQ(Press(editor, &TeamEditor::Command5_Click, 2),
            "?: Are you sure you want to delete B?|?: Are you sure you want to delete B?|"
            "!: You can't delete any more team.");
  EXPECT_EQ(Joined(ListTeams(folder_.Folder)) + ", " + Shown(editor), "A|C, A|75|11|A0|80|GK||||");
  EXPECT_FALSE(Exists("settings.cfg"));
}

TEST_F(EditorsTest, PlayersAreAddedMovedAndDeletedDownToElevenOrFromFewerToNone) {
  TeamEditor editor = OpenTeams();
  const auto squad = [&] { return Joined(OpenTeams().List1.Entries) + ", " + editor.List1.Text(); };
  editor.Combo1_Click(3);
  AddPlayer(editor, "Keeper", "09");
  EXPECT_EQ(Shown(editor) + editor.Combo1.Text(), "A|75|12|Keeper|09|GK||||FD");
  editor.Combo1_Click(2);
  editor.Combo2_Click(2);
  AddPlayer(editor, "Last", "1");
  editor.Command2_Click();  // At the bottom: nothing moves.
  EXPECT_EQ(Shown(editor) + editor.Combo2.Text(), "A|75|13|Last|1|DFC||||L");
  for (int i = 0; i < 14; ++i) editor.Command1_Click();
  editor.List1_Click(1);
  editor.Command2_Click();
  EXPECT_EQ(squad(), "Last|A1|A0|A2|A3|A4|A5|A6|A7|A8|A9|A10|Keeper, A0");
  EXPECT_EQ(Press(editor, &TeamEditor::Command6_Click, 3),
            "?: Are you sure you want to delete A0?|?: Are you sure you want to delete A0?|"
            "?: Are you sure you want to delete Last?|!: You can't delete any more players.");
  EXPECT_EQ(squad(), "A1|A2|A3|A4|A5|A6|A7|A8|A9|A10|Keeper, A1");
  ASSERT_TRUE(SaveTeam(folder_.Folder, {"A", "75", {{"X", "1", "GK"}}}).Ok());
  TeamEditor few = OpenTeams();
  EXPECT_TRUE(Press(few, &TeamEditor::Command6_Click, 2).ends_with("!: You can't delete any more players."));
  EXPECT_EQ(Bytes("Teams/A"), AsWritten("75\n"));
}

TEST_F(EditorsTest, WithoutAFileNothingIsChosenAndWhatCannotBeSavedIsNotShown) {
  TeamEditor editor = OpenTeams();
  StadEditor stadiums(folder_.Folder, desktop_);
  std::filesystem::remove(folder_ / "Teams/B");
  editor.Combo3_Click(1);
  std::filesystem::remove_all(folder_ / "Teams");
  Write("Teams", "no folder");
  std::filesystem::remove(folder_ / "stadiums.sim");
  Write("stadiums.sim/x", "a folder");
  for (const std::string& told :
       {AddPlayer(editor, "Ann", "5"), AddTeam(editor, "New", "5"), AddStadium(stadiums, "Park", "5")})
    EXPECT_NE(told.find("!: The file "), std::string::npos) << told;
  EXPECT_EQ(Shown(editor) + std::to_string(editor.Combo3.Count()), "A|75|11|A0|80|GK|New|5|Ann|52");
  EXPECT_EQ(Joined(stadiums.List1.Entries) + stadiums.Label8() + stadiums.Text1, "Mill1Park");
}

TEST_F(EditorsTest, StadiumsAreAddedAndRemovedDownToOne) {
  StadEditor editor(folder_.Folder, desktop_);
  editor.Combo1_Click(2);
  AddStadium(editor, "Bowl", "99999");
  EXPECT_EQ(Bytes("stadiums.sim"), AsWritten("2\nA\nMill\nLeat\n9\nB\nBowl\nBowl\n99999\n"));
  EXPECT_EQ(Joined({editor.List1.Text(), editor.Combo1.Text(), editor.Text1, editor.Text2, editor.Text3}),
            "Bowl|Neutral|||");
  AddStadium(editor, "Park", "5");
  Write("settings.cfg", "");
  editor.List1_Click(1);
  EXPECT_EQ(Press(editor, &StadEditor::Command1_Click, 3),
            "?: Are you sure you want to remove Bowl?|?: Are you sure you want to remove Bowl?|"
            "?: Are you sure you want to remove Mill?|!: You can't delete any more stadium.");
  EXPECT_EQ(Joined(editor.List1.Entries) + editor.List1.Text() + LoadStadiums(folder_.Folder)[0].Name,
            "ParkParkPark");
  EXPECT_FALSE(Exists("settings.cfg"));
}

}  // namespace
}  // namespace kickwell
