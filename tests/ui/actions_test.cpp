// What every window shows after its user's actions. The match's window has a file of its own.
#include <QtTest/QTest>

#include "support/screen_test.h"
#include "support/watch.h"
#include "ui/text.h"
#include "ui/windows/knock_charts_window.h"
#include "ui/windows/leg_editor_window.h"
#include "ui/windows/leg_results_window.h"
#include "ui/windows/opening_window.h"
#include "ui/windows/ranking_window.h"
#include "ui/windows/selection_window.h"
#include "ui/windows/settings_window.h"
#include "ui/windows/stad_editor_window.h"
#include "ui/windows/team_editor_window.h"
#include "user.h"

namespace kickwell {
namespace {

class ActionsTest : public WindowTest {
 protected:
  ActionsTest() {
    AddTeams({"Albion", "Borough", "City"});
    AddStadiums();
  }
};

TEST_F(ActionsTest, TheMenuShowsWhatIsPlayed) {
  const auto open = [] {};
  Opening opening(desktop_, {open, open, open, open, open, open, open, open, open, open});
  OpeningWindow window(opening);
  Watch watch(window);
  const auto choose = [&window](const char* item) { window.findChild<QAction*>(item)->trigger(); };
  choose("LegLoad");
  EXPECT_EQ(watch.Changed(), "&Knock Out Table is disabled, hidden; &Statistics is enabled");
  choose("KnockLoad");
  opening.ChampionshipName = "<Cup>";
  opening.Changed();
  EXPECT_EQ(watch.Changed(), "&Knock Out Table is enabled; &League Table is disabled, hidden; league: <Cup>");
  EXPECT_EQ(User::TextOf(window, "mode"), "KnockOut");
  for (const char* item : {"MatchMenu", "ReadMenu", "HistMenu"}) choose(item);
  EXPECT_EQ(watch.Changed(), "&Statistics is disabled; league: N/A");
  EXPECT_EQ(desktop_.Taken(), (Texts{"i: Read the file 'Help.htm' in your Kickwell folder for help.",
                                     "i: Read the file 'History.txt' in your Kickwell folder for history."}));
  window.close();
  EXPECT_TRUE(opening.Closed);
}

TEST_F(ActionsTest, TheSettingsShowEveryChoice) {
  int opened = 0;
  Settings settings(folder_.Folder, desktop_, [&](auto&) { ++opened; });
  SettingsWindow window(settings, nullptr);
  Watch watch(window);
  User::Pick(window, "Combo1", 2);  // The opposition goes on from Borough to City and from there to Albion.
  EXPECT_EQ(watch.Changed(), "Combo1: City; Combo2: Albion");
  User::Pick(window, "Combo2", 1);
  User::Pick(window, "Combo3", 1);
  User::Pick(window, "Combo4", 1);
  User::Pick(window, "Combo5", 2);
  for (const char* box : {"Check1", "Check2"}) User::Click(window, box);
  EXPECT_EQ(watch.Changed(),
            "Check1 is enabled, checked; Check2 is enabled, checked; Combo2: Borough; Combo3 tips Bowl, Oss "
            "(500); Combo3: Bowl; Combo4: Full Simulation; Combo5: Rainy");
  User::Click(window, "Check1");
  EXPECT_EQ(watch.Changed(), "Check1 is enabled; Check2 is disabled");
  User::Click(window, "Command1");
  EXPECT_EQ(watch.Changed(), "window is closed");
  EXPECT_EQ(opened, 1);
}

TEST_F(ActionsTest, TheSelectionShowsThePlayersOfEverySlotAndTheFigures) {
  Team united = MakeTeam("United", "U");
  for (std::size_t i = 0; i < SlotCount; ++i) united.Players[i].Skill = std::to_string(90 - 4 * i);
  united.Players.push_back({"Sub", "33", "MFC"});
  ASSERT_TRUE(SaveTeam(folder_.Folder, united).Ok());
  Selection selection(
      folder_.Folder, desktop_, [](auto&) {}, MakeSetup());
  SelectionWindow window(selection, nullptr);
  Watch watch(window);
  EXPECT_TRUE(QTest::qWaitFor([&] { return User::TextOf(window, "Post2(0)") == "GK"; }));
  EXPECT_EQ(
      watch.Changed("\\(([1-9]|10)\\)|Combo2.* offers"),
      "Combo1(0) is described as Rovers, player 1. There is no file \"Rovers\" in \"Teams\".; Combo2(0): U0; "
      "Formation2: 4-4-2; Label15: 52; Label16: 80; Label17: 64; Label18: 90; Note1 is enabled; Note1: There "
      "is no file \"Rovers\" in \"Teams\".; Note2 is enabled; OSkill2: 75%; Post2(0): GK; Sk2(0): 90; "
      "Skill2: 70");
  User::Pick(window, "Combo2(10)", 11);
  EXPECT_EQ(watch.Changed(),
            "Combo2(10): Sub; Formation2: 4-5-1; Label15: 54; Label17: 57; Post2(10): MFC; Sk2(10): 33; "
            "Skill2: 68; focus on Combo2(10)");
  User::Pick(window, "Combo2(1)", 2);
  EXPECT_EQ(watch.Changed(),
            "Combo2(1) is described as United, player 2, selected more than once; Combo2(1): U2; Combo2(2) "
            "is described as United, player 3, selected more than once; Label16: 79; Post2(1): DFC; Sk2(1): "
            "82; Twice2(1) is enabled; Twice2(2) is enabled; focus on Combo2(1)");
  User::Pick(window, "Combo2(1)", 1);
  EXPECT_EQ(watch.Changed(),
            "Combo2(1) is described as United, player 2; Combo2(1): U1; Combo2(2) is described as United, "
            "player 3; Label16: 80; Post2(1): DFL; Sk2(1): 86; Twice2(1) is hidden; Twice2(2) is hidden");
  User::Click(window, "Command2");
  EXPECT_EQ(watch.Changed(), "window is closed");
}

TEST_F(ActionsTest, ATeamThatIsTooSmallKeepsTheSelectionFromGoingOn) {
  ASSERT_TRUE(SaveTeam(folder_.Folder, {"Rovers", "75", {{"Ann", "80", "GK"}}}).Ok());
  Selection selection(
      folder_.Folder, desktop_, [](auto&) {}, MakeSetup());
  SelectionWindow window(selection, nullptr);
  window.show();
  const auto* const goOn = window.findChild<QPushButton*>("Command1");
  EXPECT_TRUE(QTest::qWaitFor([goOn] { return !goOn->isEnabled(); }));
}

TEST_F(ActionsTest, ARankingIsTurnedByKeyboardAndItsBarFollows) {
  Ranking table;
  for (int team = 1; team <= 16; ++team)
    table.Add({"Team " + std::to_string(team), "11", "12", "13", "14", "100", "16", "17"});
  RankingWindow window(table, TableScreen(), nullptr);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  const auto* const figure = window.findChild<QLabel*>("GF(1)");
  EXPECT_GE(figure->contentsRect().width(), figure->fontMetrics().horizontalAdvance("100"));  // Never cut.
  const auto row = [&window](int r) { return window.findChild<QWidget*>(ArrayName("Marker", r)); };
  const auto expectBarOn = [&](int r) {
    QTest::qWait(20);
    EXPECT_EQ(window.findChild<QWidget*>("Bar")->y(), row(r)->y()) << r;
  };
  expectBarOn(1);
  QTest::keyClick(&window, Qt::Key_Down);
  expectBarOn(2);
  EXPECT_EQ(window.findChild<QLabel*>("Team(1)")->foregroundRole(), QPalette::WindowText);
  QTest::mouseMove(row(9));
  expectBarOn(9);
  Watch watch(window);
  User::Press(window, Qt::Key_Return);  // "Next" has the focus.
  expectBarOn(1);
  EXPECT_EQ(watch.Changed("\\([3-9]|\\(1.\\)"),
            "GA(2):; GF(2):; Lost(2):; Marker(1) is told as Rank 16, Team Team 16, Played 11, Won 12, Tied "
            "13, Lost 14, Goals for 100, Goals against 16, Points 17; Marker(1) tips Team 16; Marker(2) is "
            "hidden; Played(2):; Points(2):; Pos(1): 16; Pos(2):; Team(1): Team 16; Team(2):; Tied(2):; "
            "Won(2):; nextpage is disabled; prevpage is enabled");
  User::Press(window, Qt::Key_Space);  // The focus is on "Back" now, not on "Close".
  EXPECT_EQ(User::TextOf(window, "Pos(1)"), "1");
}

TEST_F(ActionsTest, ResultsOpenAtTheNewest) {
  std::string log;
  for (int line = 1; line <= 100; ++line) log += std::to_string(line) + "\n";
  Write("Leagues/Top.lrs", log);
  LegResults results(folder_.Folder, desktop_, {ChampionshipKind::League, "Top"});
  LegResultsWindow window(results, nullptr);
  window.show();
  const QScrollBar& bar = *window.findChild<QListWidget*>("List1")->verticalScrollBar();
  EXPECT_EQ(bar.value(), bar.maximum());
  desktop_.SaveName = (folder_ / "page").string();
  User::Click(window, "Command2");
  EXPECT_TRUE(Exists("page.htm"));
  User::Click(window, "Command1");
  EXPECT_FALSE(window.isVisible());
}

TEST_F(ActionsTest, TheChartShowsWhoIsStillIn) {
  const std::string matches = "P\nA\nB\nB\nP\nC\nD\nD (By Toss)\nNP\nB\nD (By Toss)\nWinner 3\n";
  Write("Tournies/Cup.trn", "3\nCup\n4\nA\nB\nC\nD\n" + matches);
  KnockCharts charts(folder_.Folder, desktop_, "Cup");
  KnockChartsWindow window(charts, nullptr);
  Texts teams;
  for (const QLabel* const label : window.findChildren<QLabel*>(QRegularExpression("^team"))) {
    const QString caption = label->property("accessibleCaption").toString();
    if (!label->isHidden())
      teams.push_back((caption + ": " + label->text() + (label->font().bold() ? "!" : "")).toStdString());
  }
  EXPECT_EQ(teams, (Texts{"Match 1, home: A", "Match 1, away: B", "Match 3, home: B!", "Match 2, home: C",
                          "Match 2, away: D", "Match 3, away: D (By Toss)!", "Winner: Winner 3"}));
}

TEST_F(ActionsTest, TheTeamEditorShowsWhatIsOnDisk) {
  ASSERT_TRUE(SaveTeam(folder_.Folder, {"Albion", "70", {{"Ann", "60", "GK"}}}).Ok());
  ASSERT_TRUE(SaveTeam(folder_.Folder, {"Dale", "50", {{"Cy", "62", "FDR"}, {"Di", "63", "MFC"}}}).Ok());
  TeamEditor editor(folder_.Folder, desktop_, "N/A");
  TeamEditorWindow window(editor, nullptr);
  Watch watch(window);
  User::Pick(window, "Combo3", 3);
  for (int times = 0; times < 2; ++times) User::Click(window, "Command2");  // Down, and not beyond.
  User::Type(window, "Text2", "Em");
  User::Type(window, "Text4", "64");
  User::Pick(window, "Combo1", 2);
  User::Pick(window, "Combo2", 1);
  EXPECT_EQ(
      watch.Changed(),
      "Combo1: DF; Combo2: R; Combo3: Dale; Label13: 50; Label14: 2; Label4: 62; Label5 tips Forward, right; "
      "Label5: FDR; List1 offers Di / MFC 63 / Di, Midfielder, centre, skill 63, in the line-up | Cy / FDR "
      "62 / Cy, Forward, right, skill 62, in the line-up; List1: Cy; Text2: Em; Text4: 64; focus on Combo2");
  User::Click(window, "Command8");
  for (int times = 0; times < 3; ++times) User::Click(window, "Command1");  // To the top, and not beyond.
  EXPECT_EQ(watch.Changed(),
            "Combo1: FD; Combo2: L; Label14: 3; Label4: 64; Label5 tips Defender, right; Label5: DFR; List1 "
            "offers Em / DFR 64 / Em, Defender, right, skill 64, in the line-up | Di / MFC 63 / Di, "
            "Midfielder, centre, skill 63, in the line-up | Cy / FDR 62 / Cy, Forward, right, skill 62, in "
            "the line-up; List1: Em; Text2:; Text4:");
  User::Type(window, "Text1", "Newcomers and more");
  User::Type(window, "Text5", "55");
  User::Click(window, "Command7");
  EXPECT_EQ(watch.Changed("^Text1 is described"),
            "Combo3 offers more: Newcomers and mo; Combo3: Newcomers and mo; Label13: 55; Label14: 0; "
            "Label4:; Label5 tips; Label5:; List1 is described as Add the first player of the team on the "
            "right.; List1 offers; List1:; focus on Text2");
  User::Click(window, "Command5");
  User::Click(window, "Command6");
  EXPECT_EQ(watch.Changed(), "Combo3 offers Albion | Borough | City | Dale; Combo3: Albion; Label13: 70");
  User::Click(window, "Command4");
  EXPECT_EQ(watch.Changed(), "window is closed");
}

TEST_F(ActionsTest, TheStadiumEditorShowsWhatIsOnDisk) {
  StadEditor editor(folder_.Folder, desktop_);
  StadEditorWindow window(editor, nullptr);
  Watch watch(window);
  User::Type(window, "Text1", "Park");
  User::Type(window, "Text2", "Ayr");
  User::Type(window, "Text3", "200");
  User::Pick(window, "Combo1", 2);
  User::Click(window, "Command2");
  EXPECT_EQ(
      watch.Changed(),
      "Label8: 3; List1 offers more: Park / Ayr / Park, Ayr (200), Borough; List1: Park; focus on Text1");
  User::Select(window, "List1", 0);
  User::Click(window, "Command1");
  EXPECT_EQ(watch.Changed(),
            "Label8: 2; List1 offers Bowl / Oss / Bowl, Oss (500), Neutral | Park / Ayr / Park, Ayr (200), "
            "Borough; List1: Bowl");
  User::Click(window, "Command3");
  EXPECT_EQ(watch.Changed(), "window is closed");
}

TEST_F(ActionsTest, TheChampionshipEditorShowsBothItsSides) {
  Write("Leagues/Old.leg", "Old\n2\nCity\nAlbion\n1\nP\nCity\nAlbion\n");
  LegEditor editor(folder_.Folder, desktop_, random_);
  LegEditorWindow window(editor, nullptr);
  Watch watch(window);
  const char* const deletion = "Delete is ";  // Not of interest here.
  for (int team = 0; team < 2; ++team) User::Click(window, "LeagueAddTeam");
  User::Pick(window, "Home", 1);
  User::Click(window, "LeagueRemoveTeam");  // Albion; Borough stays the home team.
  User::Click(window, "LeagueAddTeam");
  User::Click(window, "LeagueAutoFixtures");
  User::Pick(window, "Away", 1);
  EXPECT_EQ(watch.Changed(),
            "Away offers Borough | City; Away: City; Home offers Borough | City; Home: Borough; "
            "LeagueAvailable offers Albion; LeagueFixtures is described as; LeagueFixtures offers Match 1: "
            "Borough v City | Match 2: City v Borough; LeagueFixtures: Match 1: Borough v City; "
            "LeagueMatchCount: 2; LeagueSelected is described as; LeagueSelected offers Borough | City; "
            "LeagueSelected: Borough; LeagueTeamCount: 2; focus on Away");
  User::Click(window, "AddFixture");
  User::Type(window, "LeagueName", "New");
  User::Click(window, "LeagueSave");
  EXPECT_EQ(watch.Changed(deletion),
            "Away:; Home:; LeagueFixtures offers Match 1: Borough v City; LeagueLoad offers more: New.leg; "
            "LeagueLoad: New.leg; LeagueMatchCount: 1; LeagueName: New");
  User::Pick(window, "LeagueLoad", 0);
  EXPECT_EQ(watch.Changed(deletion),
            "Away offers Albion | City; Home offers Albion | City; LeagueAvailable offers Borough; "
            "LeagueAvailable: Borough; LeagueFixtures offers Match 1: City v Albion; LeagueFixtures: Match "
            "1: City v Albion; LeagueLoad: Old.leg; LeagueName: Old; LeagueSelected offers Albion | City; "
            "LeagueSelected: Albion; focus on LeagueLoad");

  User::Click(window, "LeagueRemoveTeam");
  EXPECT_EQ(watch.Changed("^(Away|Home|LeagueAvailable|LeagueSelected)|is described"),
            "LeagueFixtureNote is enabled; LeagueFixtureNote: 1 fixture has a team that is not in the "
            "league. Press Auto Fixtures to make all fixtures anew, or add the team again.; LeagueFixtures "
            "offers Match 1: City v "
            "Albion / Match 1: City v Albion, Not in the league; LeagueTeamCount: 1");
  EXPECT_NE(window.findChild<QListWidget*>("LeagueFixtures")->item(0)->foreground(), window.palette().text());

  User::Pick(window, "Kind", 1);
  for (const char* button : {"MoreTeams", "MoreTeams", "FewerTeams"}) User::Click(window, button);
  EXPECT_EQ(watch.Changed(deletion),
            "Kind: Knock Out Championship; KnockOut is enabled; KnockOutSave is enabled; League is hidden; "
            "LeagueSave is hidden; NumberOfTeams: 4");
  User::Click(window, "FewerTeams");
  User::Select(window, "KnockOutAvailable", 1);
  for (const char* button : {"KnockOutAddTeam", "KnockOutAddTeam", "KnockOutAutoFixtures"})
    User::Click(window, button);
  EXPECT_EQ(watch.Changed(),
            "KnockOutAvailable offers City; KnockOutAvailable: City; KnockOutFixtures is described as; "
            "KnockOutFixtures offers Match 1: Albion v Borough; KnockOutFixtures: Match 1: Albion v Borough; "
            "KnockOutMatchCount: 1; KnockOutSelected is described as; KnockOutSelected offers Albion | "
            "Borough; KnockOutSelected: Borough; KnockOutTeamCount: 2; NumberOfTeams: 2");
  desktop_.Yes = false;
  User::Type(window, "KnockOutName", "Cup");
  User::Click(window, "KnockOutSave");
  EXPECT_EQ(desktop_.Taken().back(), "?: Are you sure you want to add Cup?");
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_EQ(watch.Changed(),
            "Exit is described as The league and the knock-out are not saved.; KnockOutName: Cup; Unsaved is "
            "enabled; Unsaved: The league and the knock-out are not saved.");
  EXPECT_EQ(window.focusWidget()->objectName(), "Exit");
  User::Click(window, "Exit");
  EXPECT_EQ(watch.Changed(), "window is closed");
}

}  // namespace
}  // namespace kickwell
