// The windows of the statistics, by what their user does.
#include <QtTest/QTest>

#include "support/screen_test.h"
#include "support/watch.h"
#include "ui/text.h"
#include "ui/windows/knock_charts_window.h"
#include "ui/windows/leg_results_window.h"
#include "ui/windows/ranking_window.h"
#include "user.h"

namespace kickwell {
namespace {

using StatisticsWindowsTest = WindowTest;

TEST_F(StatisticsWindowsTest, ARankingIsTurnedByKeyboardAndItsBarFollows) {
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
  QTest::mouseMove(row(9));
  expectBarOn(9);
  Watch watch(window);
  User::Press(window, Qt::Key_Return);  // "Next" has the focus.
  expectBarOn(1);
  EXPECT_EQ(watch.Changed("\\([2-9]|\\(1.\\)"),
            "Marker(1) is told as Rank 16, Team Team 16, Played 11, Won 12, Tied 13, Lost 14, Goals for 100, "
            "Goals against 16, Points 17; Marker(1) tips Team 16; Pos(1): 16; Team(1): Team 16; nextpage is "
            "disabled; prevpage is enabled");
  EXPECT_FALSE(row(2)->isVisible());
  EXPECT_EQ(User::TextOf(window, "GA(2)"), "");
  User::Press(window, Qt::Key_Space);  // The focus is on "Back" now, not on "Close".
  EXPECT_EQ(watch.Changed("\\([2-9]|\\(1.\\)"),
            "Marker(1) is told as Rank 1, Team Team 1, Played 11, Won 12, Tied 13, Lost 14, Goals for 100, "
            "Goals against 16, Points 17; Marker(1) tips Team 1; Pos(1): 1; Team(1): Team 1; nextpage is "
            "enabled; prevpage is disabled");
  User::Click(window, "Command1");
  EXPECT_EQ(watch.Changed(), "window is closed");
}

TEST_F(StatisticsWindowsTest, TheTopScorersStandInTheirColumns) {
  Ranking scorers;
  scorers.Label1 = "Top <Scorers>";
  scorers.Add({"Ann", "Albion", "7"});
  RankingWindow window(scorers, TopScorersScreen(), nullptr);
  window.show();
  const Watch watch(window);
  EXPECT_EQ(watch.Of("Label1") + watch.Of("Rank(1)") + watch.Of("Player(1)"),
            "is enabled, bold; Top <Scorers>is enabled; is called Rank; 1is enabled; is called Player; Ann");
  EXPECT_EQ(watch.Of("Team(1)") + watch.Of("Goals(1)") + watch.Of("Marker(1)"),
            "is enabled; is called Team; Albionis enabled; is called Goals; 7is enabled; is told as Rank 1, "
            "Player Ann, Team Albion, Goals 7; tips Ann, Albion");
  window.close();
  EXPECT_TRUE(scorers.Closed);
}

TEST_F(StatisticsWindowsTest, ResultsOpenAtTheNewest) {
  std::string log;
  for (int line = 1; line <= 100; ++line) log += std::to_string(line) + "\n";
  Write("Leagues/Top.lrs", log);
  LegResults results(folder_.Folder, desktop_, {ChampionshipKind::League, "Top"});
  LegResultsWindow window(results, nullptr);
  window.show();
  Watch watch(window);
  EXPECT_EQ(watch.Of("Label1"), "is enabled, bold; Top Results");
  EXPECT_TRUE(watch.Of("List1").ends_with("stands at its end"));
  QTest::keyClick(window.findChild<QListWidget*>("List1"), Qt::Key_Up);
  EXPECT_EQ(watch.Changed(), "List1: 99");
  desktop_.SaveName = (folder_ / "page").string();
  User::Click(window, "Command2");
  EXPECT_TRUE(Exists("page.htm"));
  User::Click(window, "Command1");
  EXPECT_EQ(watch.Changed(), "window is closed");
}

TEST_F(StatisticsWindowsTest, TheChartShowsWhoIsStillIn) {
  Write("Tournies/Cup.trn",
        "3\nCup\n4\nA\nB\nC\nD\nP\nA\nB\nB\nP\nC\nD\nD (By Toss)\nNP\nB\nD (By Toss)\nWinner 3\n");
  KnockCharts charts(folder_.Folder, desktop_, "Cup");
  KnockChartsWindow window(charts, nullptr);
  window.show();
  Watch watch(window);
  std::string chart = watch.Of("Label1");
  for (int slot = 0; slot < 8; ++slot) chart += "\n" + watch.Of(ArrayName("team", slot));
  EXPECT_EQ(chart,
            "is enabled, bold; Cup Table\nis enabled; is called Match 1, home; A\nis enabled; is called "
            "Match 1, away; B\nis enabled, bold; is called Match 3, home; B\nis enabled; is called Match 2, "
            "home; C\nis enabled; is called Match 2, away; D\nis enabled, bold; is called Match 3, away; D "
            "(By Toss)\nis enabled; is called Winner; Winner 3\nis hidden");
  User::Click(window, "Command3");
  EXPECT_EQ(watch.Changed(), "window is closed");
}

}  // namespace
}  // namespace kickwell
