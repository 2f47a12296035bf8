// The editors' windows, by what their user does.
#include <QtTest/QTest>

#include "support/screen_test.h"
#include "support/watch.h"
#include "ui/windows/leg_editor_window.h"
#include "ui/windows/stad_editor_window.h"
#include "ui/windows/team_editor_window.h"
#include "user.h"

namespace kickwell {
namespace {

const char* const Deletion = "Delete is ";  ///< Tested with the editor's logic.

class EditorWindowsTest : public WindowTest {
 protected:
  static void Type(QWidget& window, const char* box, const char* text) {
    auto* const edit = window.findChild<QLineEdit*>(box);
    edit->setFocus();
    QTest::keyClicks(edit, text);
  }

  static void Select(QWidget& window, const char* name, int row) {
    auto* const list = window.findChild<QListWidget*>(name);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualItemRect(list->item(row)).center());
  }
};

TEST_F(EditorWindowsTest, TeamsAndPlayersAreShownAsTheyAreOnDisk) {
  ASSERT_TRUE(SaveTeam(folder_.Folder, {"Albion", "70", {{"Ann", "60", "GK"}}}).Ok());
  ASSERT_TRUE(SaveTeam(folder_.Folder, {"Dale", "50", {{"Cy", "62", "FDR"}, {"Di", "63", "MFC"}}}).Ok());
  TeamEditor editor(folder_.Folder, desktop_, "N/A");
  TeamEditorWindow window(editor, nullptr);
  window.show();
  Watch watch(window);
  User::Pick(window, "Combo3", 1);
  EXPECT_EQ(watch.Changed(),
            "Combo3: Dale; Label13: 50; Label14: 2; Label4: 62; Label5 tips Forward, right; Label5: FDR; "
            "List1 offers Cy / FDR 62 / Cy, Forward, right, skill 62, in the line-up | Di / MFC 63 / Di, "
            "Midfielder, centre, skill 63, in the line-up; List1: Cy");
  Select(window, "List1", 1);
  EXPECT_EQ(watch.Changed(),
            "Label4: 63; Label5 tips Midfielder, centre; Label5: MFC; List1: Di; focus on List1");
  User::Click(window, "Command1");
  EXPECT_EQ(watch.Changed(),
            "List1 offers Di / MFC 63 / Di, Midfielder, centre, skill 63, in the line-up | Cy / FDR 62 / Cy, "
            "Forward, right, skill 62, in the line-up");
  User::Click(window, "Command2");
  Type(window, "Text2", "Em");
  Type(window, "Text4", "64");
  User::Pick(window, "Combo1", 2);
  User::Pick(window, "Combo2", 1);
  User::Click(window, "Command8");
  EXPECT_EQ(
      watch.Changed(),
      "Label14: 3; Label4: 64; Label5 tips Defender, right; Label5: DFR; List1 offers Cy / FDR 62 / Cy, "
      "Forward, right, skill 62, in the line-up | Di / MFC 63 / Di, Midfielder, centre, skill 63, in the "
      "line-up | Em / DFR 64 / Em, Defender, right, skill 64, in the line-up; List1: Em; focus on Text2");
  Type(window, "Text1", "Newcomers and more");
  Type(window, "Text5", "55");
  User::Click(window, "Command7");
  EXPECT_EQ(watch.Changed(),
            "Combo3 offers more: Newcomers and mo; Combo3: Newcomers and mo; Label13: 55; Label14: 0; "
            "Label4:; Label5 tips; Label5:; List1 is described as Add the first player of the team on the "
            "right.; List1 offers; List1:");
  User::Click(window, "Command5");
  User::Click(window, "Command6");
  EXPECT_EQ(watch.Changed(), "Combo3 offers Albion | Dale; Combo3: Albion; Label13: 70");
  User::Click(window, "Command4");
  EXPECT_EQ(watch.Changed(), "window is closed");
}

TEST_F(EditorWindowsTest, StadiumsAreShownAsTheyAreOnDisk) {
  AddTeams({"Albion", "Dale"});
  Write("stadiums.sim", "2\nAlbion\nMill\nLeat\n1000\nNeutral\nBowl\nOss\n500\n");
  StadEditor editor(folder_.Folder, desktop_);
  StadEditorWindow window(editor, nullptr);
  window.show();
  Watch watch(window);
  Type(window, "Text1", "Park");
  Type(window, "Text2", "Ayr");
  Type(window, "Text3", "200");
  User::Pick(window, "Combo1", 2);
  User::Click(window, "Command2");
  EXPECT_EQ(watch.Changed(),
            "Label8: 3; List1 offers more: Park / Ayr / Park, Ayr (200), Dale; List1: Park; focus on Text1");
  Select(window, "List1", 1);
  User::Click(window, "Command1");
  EXPECT_EQ(watch.Changed(),
            "Label8: 2; List1 offers Mill / Leat / Mill, Leat (1000), Albion | Park / Ayr / Park, Ayr (200), "
            "Dale; List1: Mill");
  User::Click(window, "Command3");
  EXPECT_EQ(watch.Changed(), "window is closed");
}

TEST_F(EditorWindowsTest, ChampionshipsArePutTogetherSavedAndLoaded) {
  AddTeams({"Albion", "Borough", "City"});
  Write("Leagues/Old.leg", "Old\n2\nCity\nAlbion\n1\nP\nCity\nAlbion\n");
  LegEditor editor(folder_.Folder, desktop_, random_);
  LegEditorWindow window(editor, nullptr);
  window.show();
  Watch watch(window);
  for (int team = 0; team < 2; ++team) User::Click(window, "LeagueAddTeam");
  EXPECT_EQ(watch.Changed(),
            "Away offers Albion | Borough; Home offers Albion | Borough; LeagueAvailable offers City; "
            "LeagueAvailable: City; LeagueSelected is described as; LeagueSelected offers Albion | Borough; "
            "LeagueSelected: Albion; LeagueTeamCount: 2");
  Select(window, "LeagueSelected", 1);
  User::Click(window, "LeagueRemoveTeam");
  EXPECT_EQ(watch.Changed(),
            "Away offers Albion; Home offers Albion; LeagueAvailable offers Borough | City; LeagueSelected "
            "offers Albion; LeagueTeamCount: 1");
  User::Click(window, "LeagueAddTeam");
  User::Click(window, "LeagueAutoFixtures");
  User::Pick(window, "Home", 1);
  User::Pick(window, "Away", 0);
  EXPECT_EQ(watch.Changed(),
            "Away offers more: City; Away: Albion; Home offers more: City; Home: City; LeagueAvailable "
            "offers Borough; LeagueAvailable: Borough; LeagueFixtures is described as; LeagueFixtures offers "
            "Match 1: Albion v City | Match 2: City v Albion; LeagueFixtures: Match 1: Albion v City; "
            "LeagueMatchCount: 2; LeagueSelected offers more: City; LeagueTeamCount: 2; focus on Away");
  User::Click(window, "AddFixture");
  Type(window, "LeagueName", "New");
  User::Click(window, "LeagueSave");
  EXPECT_EQ(
      watch.Changed(Deletion),
      "Away:; Home:; LeagueFixtures offers Match 1: City v Albion; LeagueFixtures: Match 1: City v Albion; "
      "LeagueLoad offers more: New.leg; LeagueLoad: New.leg; LeagueMatchCount: 1; LeagueName: New");
  User::Pick(window, "LeagueLoad", 0);
  EXPECT_EQ(watch.Changed(Deletion), "LeagueLoad: Old.leg; LeagueName: Old; focus on LeagueLoad");

  User::Pick(window, "Kind", 1);
  EXPECT_EQ(watch.Changed(Deletion),
            "Kind: Knock Out Championship; KnockOut is enabled; KnockOutSave is enabled; League is hidden; "
            "LeagueSave is hidden; focus on Kind");
  for (const char* button : {"MoreTeams", "MoreTeams", "FewerTeams"}) User::Click(window, button);
  EXPECT_EQ(watch.Changed(), "NumberOfTeams: 4");
  User::Click(window, "FewerTeams");
  Select(window, "KnockOutAvailable", 1);
  for (const char* button : {"KnockOutAddTeam", "KnockOutAddTeam", "KnockOutAutoFixtures"})
    User::Click(window, button);
  EXPECT_EQ(watch.Changed(),
            "KnockOutAvailable offers City; KnockOutAvailable: City; KnockOutFixtures is described as; "
            "KnockOutFixtures offers Match 1: Albion v Borough; KnockOutFixtures: Match 1: Albion v Borough; "
            "KnockOutMatchCount: 1; KnockOutSelected is described as; KnockOutSelected offers Albion | "
            "Borough; KnockOutSelected: Borough; KnockOutTeamCount: 2; NumberOfTeams: 2");
  desktop_.Yes = false;
  Type(window, "KnockOutName", "Cup");
  User::Click(window, "KnockOutSave");
  EXPECT_EQ(desktop_.Taken().back(), "?: Are you sure you want to add Cup?");
  User::Click(window, "Exit");
  EXPECT_EQ(watch.Changed(), "window is closed");
}

}  // namespace
}  // namespace kickwell
