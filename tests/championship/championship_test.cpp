// The play of a championship, its rankings, results and chart; and how screens report what can't be read.
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

constexpr ChampionshipKind League = ChampionshipKind::League, KnockOut = ChampionshipKind::KnockOut;
const ChampionshipId Top = {League, "Top"};
const ChampionshipId Cup = {KnockOut, "Cup"};

class StatisticsTest : public ScreenTest {
 protected:
  Ranking Table() { return StandingsTable(folder_.Folder, desktop_, "Top"); }

  KnockCharts Chart() { return {folder_.Folder, desktop_, "Cup"}; }
  ChampionshipPlay Play(ChampionshipKind kind = League) {
    return {kind, folder_.Folder, desktop_, [](auto&) {}, {}};
  }
};

TEST_F(StatisticsTest, TheTableOfUpToAHundredTeamsIsOrderedByPointsThenDifferenceThenGoals) {
  EXPECT_EQ(Table().Label1, "Kickwell Current League Standings");
  std::string league = "Top\n120\nLast\nLevel\nScorers\nLeaders\nEqual\nDefenders\n";
  for (int team = 7; team <= 120; ++team) league += "Team " + std::to_string(team) + "\n";
  Write("Leagues/Top.leg", league);
  const std::vector<StandingsRow> standings = {
      {"Last", 3, 0, 0, 3, 1, 9, 0},    {"Level", 3, 1, 0, 2, 4, 2, 3}, {"Scorers", 3, 1, 0, 2, 5, 3, 3},
      {"Leaders", 3, 2, 0, 1, 2, 9, 6}, {"Equal", 3, 1, 0, 2, 4, 2, 3}, {"Defenders", 3, 1, 0, 2, 3, 0, 3}};
  ASSERT_TRUE(ChangeFiles(folder_.Folder, {ChangedStandings(Top, standings)}).Ok());
  const Ranking table = Table();
  EXPECT_EQ(table.Rows.front(), (Texts{"1", "Leaders", "3", "2", "0", "1", "2", "9", "6"}));
  Texts teams;
  for (const Texts& row : table.Rows) teams.push_back(row[1]);
  EXPECT_EQ((Texts{teams.begin(), teams.begin() + 6}),
            (Texts{"Leaders", "Defenders", "Scorers", "Level", "Equal", "Team 7"}));
  EXPECT_EQ(table.Rows.back(), (Texts{"100", "Team 101", "0", "0", "0", "0", "0", "0", "0"}));
}

TEST_F(StatisticsTest, TopScorersStandByGoalsInTheOrderOfTheirFirstOnes) {
  std::string file = "Ann\nA\nmany\nBo\nB\n3\nCy\nA\n12\nDi\nA\n3\n";
  for (int player = 5; player <= 15; ++player) file += "Ed\nB\n0\n";
  Write("Tournies/Cup.sco", file + "Flo\nB");
  Ranking scorers = TopScorers(folder_.Folder, desktop_, Cup);
  EXPECT_FALSE(scorers.Pages.NextEnabled());  // Fifteen fill one page.
  scorers.Rows.resize(4);
  EXPECT_EQ(
      scorers.Rows,
      (std::vector<Texts>{
          {"1", "Cy", "A", "12"}, {"2", "Bo", "B", "3"}, {"3", "Di", "A", "3"}, {"4", "Ann", "A", "0"}}));
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
  ChampionshipPlay play = Play(KnockOut);
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

class ChampionshipPlayTest : public ScreenTest {
 protected:
  ChampionshipPlay Open(ChampionshipKind kind) {
    return {kind, folder_.Folder, desktop_, [this](const std::string& name) { current_ = name; },
            [this](const MatchSetup& setup) {
              setup_ = setup;
              handedOver_.push_back(FixtureText(setup.MatchNumber, {setup.Team1Name, setup.Team2Name}));
              WhilePlayed();
            }};
  }

  /// Continues with the matches of a range; gives those that were handed over.
  Texts Play(ChampionshipPlay& play, int from, int to) {
    play.From_Click(from - 1);
    play.To_Click(to - 1);
    play.Command1_Click();
    return std::exchange(handedOver_, {});
  }

  std::string current_ = "N/A";
  MatchSetup setup_;  ///< Of the last match handed over.
  Texts handedOver_;
  std::function<void()> WhilePlayed = [] {};
};

TEST_F(ChampionshipPlayTest, OffersAndPlaysTheFixturesOfALeague) {
  Write("Leagues/Short.leg", "Short\n2\nA\nB\n1\nNP\nB\nA\n");
  Write("Leagues/Top.leg", "Top\n2\nA\nB\n3\nNP\nA\nB\nx\nB\nA\nNP\nA\nB\n");
  ChampionshipPlay play = Open(League);
  EXPECT_EQ(play.To.Text(), "1");
  play.Championships_Click(1);
  EXPECT_EQ(play.To.Text(), "2");
  play.SimulationType_Click(1);
  EXPECT_EQ(Play(play, 1, 3), (Texts{"Match 1: A v B", "Match 3: A v B"}));
  EXPECT_EQ(setup_.SimulationType, SimulationKind::FullSimulation);
  EXPECT_EQ(Play(play, 3, 1), Texts{});
  EXPECT_EQ(desktop_.Taken(),
            (Texts{"i: Match 2 has been played already", "i: Please select the match numbers properly"}));
}

TEST_F(ChampionshipPlayTest, ARangeGoesOnIntoTheNextRound) {
  Write("Teams/C", "1\n");
  const std::string cup = "3\nCup\n4\nA\nB\nC\nD\n", first = "NP\nA\nC\nWinner 1\n";
  Write("Tournies/Cup.trn", cup + first + "NP\nB\nD\nWinner 2\nNP\nA\nWinner 2\nWinner 3\n");
  ChampionshipPlay play = Open(KnockOut);
  EXPECT_EQ(Play(play, 2, 3), Texts{"Match 2: B v D"});  // Which was not recorded.
  EXPECT_EQ(desktop_.Taken(), Texts{"i: Match 3 can't be played before match 2 has been played"});

  WhilePlayed = [&] {
    Write("Tournies/Cup.trn", cup + "P\nA\nC\nC (By Toss)\nP\nB\nD\nD\nNP\nC (By Toss)\nD\nWinner 3\n");
    play.Load("Cup.trn");
  };
  EXPECT_EQ(Play(play, 1, 3), (Texts{"Match 1: A v C", "Match 3: C v D"}));
  EXPECT_EQ(desktop_.Taken(), Texts{"i: Match 2 has been played already"});
  Write("Teams/C (By Toss)", "1\n");  // Here the toss is part of a team's name.
  EXPECT_EQ(Play(play, 3, 3), Texts{"Match 3: C (By Toss) v D"});

  WhilePlayed = [&] {
    Write("Tournies/Cup.trn", cup + first);
    play.Load("Cup.trn");
  };
  Play(play, 3, 3);
  EXPECT_EQ(Play(play, 1, 3), Texts{"Match 1: A v C"});  // What the file has lost is passed over.
}

TEST_F(ChampionshipPlayTest, WhatIsRecordedInPartIsNotPlayedAgain) {
  Write("Leagues/Top.leg", "Top\n2\nA\nB\n2\nNP\nA\nB\nNP\nB\nA\n");
  ChampionshipPlay play = Open(League);
  WhilePlayed = [this] {
    Remove("Leagues/Top.leg");
    Write("Leagues/Top.leg/in the way", "");
    Write("~kickwell-7-1.tmp", "Top\n2\nA\nB\n2\nP\nA\nB\nNP\nB\nA\n");
    Write("unfinished.journal", "Kickwell journal 1\n~kickwell-7-1.tmp\nLeagues/Top.leg\nEnd\n");
  };
  EXPECT_EQ(Play(play, 1, 2), Texts{"Match 1: A v B"});
  EXPECT_EQ(desktop_.Taken(), Texts{"!: The file /kickwell/Leagues/Top.leg can't be saved: Is a directory."});
  Remove("Leagues/Top.leg");
  EXPECT_EQ(Play(play, 1, 2), Texts{"Match 2: B v A"});
  EXPECT_EQ(desktop_.Taken(), Texts{"i: Match 1 has been played already"});
}

TEST_F(ChampionshipPlayTest, OnlyAChampionshipUnderItsOwnNameIsPlayed) {
  Open(League).Command1_Click();  // There is none.
  Write("Leagues/Another.leg", "Other\n2\nA\nB\n1\nNP\nA\nB\n");
  Write("Leagues/Cut.leg", "Cut\n2\nA\nB\n5\nNP\nA\nB\nNP\nA");
  Write("Leagues/Empty.leg", "Empty\n0\n0\n");
  ChampionshipPlay play = Open(League);
  EXPECT_EQ(play.Championships.Text(), "Cut.leg");  // The first that can be played.
  play.Championships_Click(0);
  EXPECT_EQ(play.Championships.Text(), "Cut.leg");
  EXPECT_EQ(current_, "Cut");
  play.Championships_Click(2);
  play.Command1_Click();
  const std::string refusal = "i: Another.leg holds the championship Other. Rename the file to play it.";
  EXPECT_EQ(desktop_.Taken(), (Texts{"i: Please make all the settings properly", refusal, refusal,
                                     "i: Please make all the settings properly"}));
}

}  // namespace
}  // namespace kickwell
