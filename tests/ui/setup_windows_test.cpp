// The windows on the way to a match, by what their user does.
#include <QtTest/QTest>

#include "support/screen_test.h"
#include "support/watch.h"
#include "ui/windows/opening_window.h"
#include "ui/windows/selection_window.h"
#include "ui/windows/settings_window.h"
#include "user.h"

namespace kickwell {
namespace {

using SetupWindowsTest = WindowTest;

TEST_F(SetupWindowsTest, TheMenuOpensItsScreensAndShowsWhatIsPlayed) {
  Texts opened;
  const auto open = [&opened](const char* screen) { return [&opened, screen] { opened.push_back(screen); }; };
  OpeningScreens screens{open("settings"),    open("knock-out"),      open("league"),
                         open("team editor"), open("stadium editor"), open("championship editor"),
                         open("top scorers"), open("table"),          open("results"),
                         open("chart")};
  Opening* menu = nullptr;
  screens.LegSettings = [&menu] {
    menu->ChampionshipName = "<Cup>";
    menu->Changed();
  };
  Opening opening(desktop_, screens);
  menu = &opening;
  OpeningWindow window(opening);
  window.show();
  Watch watch(window);
  const auto choose = [&window](const Texts& items) {
    for (const std::string& item : items) window.findChild<QAction*>(item.c_str())->trigger();
  };
  choose({"LegLoad"});
  EXPECT_EQ(watch.Changed(), "&Knock Out Table is disabled, hidden; &Statistics is enabled; league: <Cup>");
  choose({"ScorerMenu", "LegRes", "LeagueMenu", "KnockLoad"});
  EXPECT_EQ(watch.Changed(), "&Knock Out Table is enabled; &League Table is disabled, hidden; league: N/A");
  EXPECT_EQ(User::TextOf(window, "mode"), "KnockOut");
  choose({"KnockChart", "TeamMenu", "StadMenu", "LegMenu"});
  EXPECT_EQ(watch.Changed(), "");
  choose({"MatchMenu"});
  EXPECT_EQ(watch.Changed(), "&Statistics is disabled");
  EXPECT_EQ(opened, (Texts{"top scorers", "results", "table", "knock-out", "chart", "team editor",
                           "stadium editor", "championship editor", "settings"}));
  choose({"ReadMenu", "HistMenu"});
  EXPECT_EQ(desktop_.Taken(), (Texts{"i: Read the file 'Help.htm' in your Kickwell folder for help.",
                                     "i: Read the file 'History.txt' in your Kickwell folder for history."}));
  window.close();
  EXPECT_TRUE(opening.Closed);
}

TEST_F(SetupWindowsTest, TheSettingsShowEveryChoice) {
  AddTeams({"Albion", "Borough", "City"});
  Write("stadiums.sim", "2\nAlbion\nMill\nLeat\n1000\nNeutral\nBowl\nOss\n500\n");
  std::vector<MatchSetup> opened;
  Settings settings(folder_.Folder, desktop_, [&](const MatchSetup& setup) { opened.push_back(setup); });
  SettingsWindow window(settings, nullptr);
  window.show();
  Watch watch(window);
  EXPECT_EQ(watch.Of("Combo3"),
            "is enabled; is told as Match Venue (Stadium/Ground); offers Mill / Leat \xC2\xB7 Albion / Mill, "
            "Leat, home of Albion | Bowl / Oss / Bowl, Oss; tips Mill, Leat (1000); Mill");
  User::Pick(window, "Combo1", 1);
  EXPECT_EQ(watch.Changed(), "Combo1: Borough; Combo2: City");
  User::Pick(window, "Combo2", 0);
  User::Pick(window, "Combo3", 1);
  User::Pick(window, "Combo4", 1);
  User::Pick(window, "Combo5", 2);
  EXPECT_EQ(watch.Changed(),
            "Combo2: Albion; Combo3 tips Bowl, Oss (500); Combo3: Bowl; Combo4: Full Simulation; Combo5: "
            "Rainy; focus on Combo5");
  User::Click(window, "Check1");
  User::Click(window, "Check2");
  EXPECT_EQ(watch.Changed(), "Check1 is enabled, checked; Check2 is enabled, checked");
  User::Click(window, "Check1");
  EXPECT_EQ(watch.Changed(), "Check1 is enabled; Check2 is disabled");
  User::Click(window, "Command1");
  EXPECT_EQ(watch.Changed(), "window is closed");
  ASSERT_EQ(opened.size(), 1U);
  EXPECT_EQ(opened[0].Team1Name + opened[0].Team2Name + opened[0].Venue, "BoroughAlbionBowl, Oss");
}

TEST_F(SetupWindowsTest, TheSelectionShowsThePlayersOfEverySlotAndTheFigures) {
  AddTeams({"Rovers"});
  Team united = MakeTeam("United", "U");
  for (std::size_t i = 0; i < SlotCount; ++i) united.Players[i].Skill = std::to_string(90 - 4 * i);
  united.Players.push_back({"Sub", "33", "MFC"});
  ASSERT_TRUE(SaveTeam(folder_.Folder, united).Ok());
  int opened = 0;
  Selection selection(
      folder_.Folder, desktop_, [&opened](const MatchSetup&) { ++opened; }, MakeSetup());
  SelectionWindow window(selection, nullptr);
  window.show();
  Watch watch(window);
  EXPECT_TRUE(QTest::qWaitFor([&] { return User::TextOf(window, "Post2(0)") == "GK"; }));
  const char* const elsewhere =
      "offers|\\(([1-9]|10)\\)|^(Combo|Formation|OSkill|Post|Sk|Skill)1|^Label1[1-4]";
  EXPECT_EQ(watch.Changed(elsewhere),
            "Combo2(0): U0; Formation2: 4-4-2; Label15: 52; Label16: 80; Label17: 64; Label18: 90; OSkill2: "
            "75%; Post2(0): GK; Sk2(0): 90; Skill2: 70");
  EXPECT_TRUE(watch.Of("Combo2(9)").ends_with(" | Sub / MFC 33 / Sub, MFC, 33; U9"));
  User::Pick(window, "Combo2(10)", 11);
  EXPECT_EQ(watch.Changed(),
            "Combo2(10): Sub; Formation2: 4-5-1; Label15: 54; Label17: 57; Post2(10): MFC; Sk2(10): 33; "
            "Skill2: 68; focus on Combo2(10)");
  User::Pick(window, "Combo1(1)", 2);
  EXPECT_EQ(watch.Changed(),
            "Combo1(1) is described as Rovers, player 2, selected more than once; Combo1(1): Rovers2; "
            "Combo1(2) is described as Rovers, player 3, selected more than once; Post1(1): DFC; Twice1(1) "
            "is enabled; Twice1(2) is enabled; focus on Combo1(1)");
  User::Click(window, "Command1");  // One of them plays twice.
  User::Pick(window, "Combo1(1)", 1);
  EXPECT_EQ(watch.Changed(),
            "Combo1(1) is described as Rovers, player 2; Combo1(1): Rovers1; Combo1(2) is described as "
            "Rovers, player 3; Post1(1): DFL; Twice1(1) is hidden; Twice1(2) is hidden");
  User::Click(window, "Command1");
  EXPECT_EQ(watch.Changed(), "window is closed");
  EXPECT_EQ(opened, 1);
}

TEST_F(SetupWindowsTest, ATeamThatIsTooSmallKeepsTheSelectionFromGoingOn) {
  AddTeams({"Rovers"});
  ASSERT_TRUE(SaveTeam(folder_.Folder, {"United", "75", {{"Ann", "80", "GK"}}}).Ok());
  Selection selection(
      folder_.Folder, desktop_, [](const MatchSetup&) {}, MakeSetup());
  SelectionWindow window(selection, nullptr);
  window.show();
  Watch watch(window);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !desktop_.Messages.empty(); }));
  EXPECT_EQ(watch.Changed("^(Combo|Post|Sk)"),
            "Command1 is disabled; Formation1: 4-4-2; Label11: 80; Label12: 80; Label13: 80; Label14: 80; "
            "OSkill1: 75%; OSkill2: 75%");
  User::Click(window, "Command2");
  EXPECT_EQ(watch.Changed(), "window is closed");
}

}  // namespace
}  // namespace kickwell
