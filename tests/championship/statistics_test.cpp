// The rankings, the results and the chart; and how screens report what can't be read.
#include "championship/championship_play.h"
#include "championship/knock_charts.h"
#include "championship/leg_editor.h"
#include "championship/leg_results.h"
#include "championship/standings_table.h"
#include "championship/top_scorers.h"
#include "data/championship_store.h"
#include "engine/pages.h"
#include "setup/settings.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

const ChampionshipId Top = {ChampionshipKind::League, "Top"};
const ChampionshipId Cup = {ChampionshipKind::KnockOut, "Cup"};

class StatisticsTest : public ScreenTest {
 protected:
  Ranking Table() { return StandingsTable(folder_.Folder, desktop_, "Top"); }

  KnockCharts Chart() { return {folder_.Folder, desktop_, "Cup"}; }
  ChampionshipPlay Play(ChampionshipKind kind = ChampionshipKind::League) {
    return {kind, folder_.Folder, desktop_, [](auto&) {}, {}};
  }
};

TEST_F(StatisticsTest, TheTableIsOrderedByPointsThenDifferenceThenGoals) {
  Write("Leagues/Top.leg", "Top\n6\nLast\nLevel\nScorers\nLeaders\nEqual\nDefenders\n");
  const std::vector<StandingsRow> standings = {
      {"Last", 3, 0, 0, 3, 1, 9, 0},    {"Level", 3, 1, 0, 2, 4, 2, 3}, {"Scorers", 3, 1, 0, 2, 5, 3, 3},
      {"Leaders", 3, 2, 0, 1, 2, 9, 6}, {"Equal", 3, 1, 0, 2, 4, 2, 3}, {"Defenders", 3, 1, 0, 2, 3, 0, 3}};
  ASSERT_TRUE(ChangeFiles(folder_.Folder, {ChangedStandings(Top, standings)}).Ok());
  const Ranking table = Table();
  EXPECT_EQ(table.Rows.front(), (Texts{"1", "Leaders", "3", "2", "0", "1", "2", "9", "6"}));
  Texts teams;
  for (const Texts& row : table.Rows) teams.push_back(row[1]);
  EXPECT_EQ(teams, (Texts{"Leaders", "Defenders", "Scorers", "Level", "Equal", "Last"}));
}

TEST_F(StatisticsTest, TheTableOfANewLeagueHasUpToAHundredTeamsWithoutPoints) {
  EXPECT_EQ(Table().Label1, "Kickwell Current League Standings");
  std::string league = "Top\n120\n";
  for (int team = 1; team <= 120; ++team) league += "Team " + std::to_string(team) + "\n";
  Write("Leagues/Top.leg", league);
  const Ranking table = Table();
  EXPECT_EQ(table.Rows.size(), 100U);
  EXPECT_EQ(table.Rows.back(), (Texts{"100", "Team 100", "0", "0", "0", "0", "0", "0", "0"}));
}

TEST_F(StatisticsTest, TopScorersStandByGoalsInTheOrderOfTheirFirstOnes) {
  std::string file = "Ann\nA\nmany\nBo\nB\n3\nCy\nA\n12\n";
  for (int i = 1; i <= 20; ++i) file += "Player " + std::to_string(i) + "\nB\n3\n";
  Write("Tournies/Cup.sco", file + "Di\nB");
  const Ranking scorers = TopScorers(folder_.Folder, desktop_, Cup);
  EXPECT_EQ(scorers.Rows[0], (Texts{"1", "Cy", "A", "12"}));
  EXPECT_EQ(scorers.Rows[1], (Texts{"2", "Bo", "B", "3"}));
  EXPECT_EQ(scorers.Rows[21], (Texts{"22", "Player 20", "B", "3"}));
  EXPECT_EQ(scorers.Rows.back(), (Texts{"23", "Ann", "A", "0"}));
}

TEST_F(StatisticsTest, ResultsAreSavedAsAPage) {
  LegResults(folder_.Folder, desktop_, Top).Command2_Click();  // Disabled without results.
  EXPECT_EQ(desktop_.ProposedName, "");
  Write("Leagues/Top.lrs", "Match 1:\n\nMatch 2:\n");
  desktop_.SaveName = (folder_ / "page").string();
  LegResults(folder_.Folder, desktop_, Top).Command2_Click();
  EXPECT_EQ(desktop_.ProposedName, "Top Results");
  EXPECT_EQ(Bytes("page.htm"), Encode(ResultsPage("Top Results", {{"Match 1:", "", "Match 2:"}})));
}

TEST(Chart, FollowsTheTreeOfSixteen) {
  EXPECT_EQ(ChartMatches(16).size(), 15U);
  for (const auto [home, away, winner] : ChartMatches(16)) {
    const ChartSlot above = At(ChartSlots(), home), below = At(ChartSlots(), away);
    const ChartSlot next = At(ChartSlots(), winner);
    EXPECT_EQ(next.Left, above.Left + 1680);  // One column on, between the two.
    EXPECT_TRUE(above.Top < next.Top && next.Top < below.Top) << "slot " << winner;
  }
}

TEST_F(StatisticsTest, TheChartShowsTheFixturesThatTheFileHolds) {
  const std::string teams = "0\nCup\n4\nA\nB\nC\nD\n", first = "P\nA\nC\nC (By Toss)\n";
  Write("Tournies/Cup.trn", teams + first + "NP\nB\nD\nWinner 2\nNP\nC (By");
  const KnockCharts chart = Chart();
  EXPECT_EQ(chart.Label1, "Cup Table");
  EXPECT_EQ(chart.Text(5) + chart.Text(6), "Winner 2");
  Write("Tournies/Cup.trn", "0\nCup\n2\nA\nC\n" + first + first);  // One fixture too many.
  EXPECT_EQ(Chart().VisibleSlots, 3);
  Write("Tournies/Cup.trn", "0\nCup\n6\nA\nB\nC\nD\nE\nF\n" + first);
  EXPECT_EQ(Chart().VisibleSlots, 0);
}

TEST_F(StatisticsTest, AFileThatCannotBeReadIsReportedOnceAndLeavesTheScreenAsItIs) {
  Write("Leagues/Top.leg", "Top\n2\nA\nB\n");
  for (const char* file : {"Tournies/A.trn", "Tournies/B.trn"}) Write(file, "0\nA\n0\n");
  ChampionshipPlay play = Play(ChampionshipKind::KnockOut);
  LegEditor editor(folder_.Folder, desktop_, random_);
  editor.Load_Click(editor.KnockOut, 0);
  const std::pair<const char*, std::function<void()>> screens[] = {
      {"Leagues/Top.rec", [&] { EXPECT_TRUE(Table().Rows.empty()); }},
      {"Leagues/Top.leg", [&] { EXPECT_TRUE(Table().Rows.empty()); }},  // Neither of its files can be read.
      {"Leagues/Top.sco", [&] { EXPECT_TRUE(TopScorers(folder_.Folder, desktop_, Top).Rows.empty()); }},
      {"Leagues/Top.lrs", [&] { EXPECT_FALSE(LegResults(folder_.Folder, desktop_, Top).Command2Enabled()); }},
      {"Tournies/Cup.trn", [&] { EXPECT_EQ(Chart().VisibleSlots, 0); }},
      {"Tournies/B.trn", [&] { play.Championships_Click(1); }},
      {"Tournies/B.trn", [&] { editor.Load_Click(editor.KnockOut, 1); }},
      {"Leagues/Top.leg", [&] { EXPECT_EQ(Play().Championships.Text(), ""); }},
      {"stadiums.sim", [&] { EXPECT_EQ(Settings(folder_.Folder, desktop_, {}).Combo3.Count(), 0); }},
      {"unfinished.journal", [&] { EXPECT_EQ(Play().Championships.Text(), ""); }}};
  for (const auto& [file, open] : screens) {
    const Texts message = {MakeUnreadable(file)};
    open();
    EXPECT_EQ(desktop_.Taken(), message) << file;
  }
  EXPECT_EQ(play.Championships.Text(), "A.trn");
  EXPECT_EQ(editor.KnockOut.Load.Text(), "A.trn");
}

}  // namespace
}  // namespace kickwell
