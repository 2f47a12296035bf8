// The play settings, the rankings and the chart.
#include "championship/championship_play.h"
#include "championship/knock_charts.h"
#include "championship/leg_results.h"
#include "championship/standings_table.h"
#include "championship/top_scorers.h"
#include "engine/report.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

constexpr ChampionshipKind League = ChampionshipKind::League, KnockOut = ChampionshipKind::KnockOut;

class ChampionshipTest : public ScreenTest {
 protected:
  ChampionshipPlay Open(ChampionshipKind kind) {
    return {kind, folder_.Folder, desktop_, [this](const std::string& name) { current_ = name; },
            [this](const MatchSetup& setup) {
              handedOver_.push_back(std::to_string(setup.MatchNumber) + " " + setup.Team1Name + "-" +
                                    setup.Team2Name);
              setup_ = setup;
              WhilePlayed();
            }};
  }

  /// Continues with a range of matches.
  static void Play(ChampionshipPlay& play, int from, int to) {
    play.From_Click(from - 1);
    play.To_Click(to - 1);
    play.Command1_Click();
  }

  std::string current_ = "N/A";
  Texts handedOver_;
  MatchSetup setup_;
  std::function<void()> WhilePlayed = [] {};
};

TEST_F(ChampionshipTest, OffersTheFixturesAndPlaysARange) {
  Write("Leagues/Top.leg", "Top\n2\nA\nB\n3\nNP\nA\nB\nx\nB\nA\nNP\nA\nB\n");
  Write("Leagues/One.leg", "One\n2\nA\nB\n1\nNP\nB\nA\n");
  ChampionshipPlay play = Open(League);
  EXPECT_EQ(Joined(play.Championships.Entries), "One.leg|Top.leg");
  EXPECT_EQ(current_ + play.From.Text() + play.To.Text(), "One11");
  play.Championships_Click(1);
  EXPECT_EQ(current_ + play.From.Text() + play.To.Text(), "Top12");
  EXPECT_EQ(Joined(play.FixtureList.Entries), "Match 1: A v B|Match 2: B v A|Match 3: A v B");
  play.SimulationType_Click(1);
  Play(play, 1, 3);
  EXPECT_EQ(Joined(handedOver_), "1 A-B|3 A-B");
  EXPECT_EQ(setup_.ChampionshipName + std::string(ToText(setup_.Mode)), "TopLeague");
  EXPECT_EQ(setup_.SimulationType, SimulationKind::FullSimulation);
  Play(play, 3, 1);
  Play(play, 3, 3);
  EXPECT_EQ(desktop_.Told(),
            "i: Match 2 has been played already|i: Please select the match numbers properly");
  EXPECT_EQ(handedOver_.back() + (play.Closed ? " closed" : ""), "3 A-B");
}

TEST_F(ChampionshipTest, ARangeGoesOnIntoTheNextRound) {
  Write("Teams/C", "1\n");
  const std::string head = "3\nCup\n4\nA\nB\nC\nD\n";
  Write("Tournies/Cup.trn",
        head + "NP\nA\nC\nWinner 1\nNP\nB\nD\nWinner 2\nNP\nWinner 1\nWinner 2\nWinner 3\n");
  ChampionshipPlay play = Open(KnockOut);
  Play(play, 1, 3);  // Both left before their end: nothing recorded.
  EXPECT_EQ(desktop_.Told(), "i: Match 3 can't be played before match 1 has been played");
  WhilePlayed = [&] {
    Write("Tournies/Cup.trn", head + "P\nA\nC\nC (By Toss)\nP\nB\nD\nD\nNP\nC (By Toss)\nD\nWinner 3\n");
    play.Load("Cup.trn");
  };
  Play(play, 1, 3);
  EXPECT_EQ(desktop_.Told(), "i: Match 2 has been played already");
  EXPECT_EQ(setup_.Mode, MatchMode::KnockOut);
  WhilePlayed = [] {};
  Write("Teams/C (By Toss)", "1\n");  // A team of that very name: else the toss is no part of it.
  Play(play, 3, 3);
  EXPECT_EQ(Joined(handedOver_), "1 A-C|2 B-D|1 A-C|3 C-D|3 C (By Toss)-D");
  Write("Tournies/Cup.trn", head + "NP\nA\nC\nWinner 1\n");
  WhilePlayed = [&] { play.Load("Cup.trn"); };
  Play(play, 3, 3);
  Play(play, 1, 3);  // What the file has lost is passed over.
  EXPECT_EQ(desktop_.Told(), "");
}

TEST_F(ChampionshipTest, DamagedFilesAreListedAndLoadedAsFarAsTheyGo) {
  Open(League).Command1_Click();  // There is none.
  Write("Leagues/a.leg", "a\n2\nA\nB\n5\nNP\nA\nB\nNP\nA");
  Write("Leagues/b.leg", "Other\n2\nA\nB\n1\nNP\nA\nB\n");
  Write("Leagues/c.leg", "c\n0\n0\n");
  ChampionshipPlay play = Open(League);
  EXPECT_EQ(play.FixtureList.Count(), 1);
  play.Championships_Click(1);
  EXPECT_EQ(play.Championships.Text() + current_, "a.lega");  // What is loaded stays on view.
  play.Championships_Click(2);
  play.Command1_Click();
  EXPECT_EQ(desktop_.Told(),
            "i: Please make all the settings properly|"
            "i: b.leg holds the championship Other. Rename the file to play it.|"
            "i: Please make all the settings properly");
  std::filesystem::remove(folder_ / "Leagues/a.leg");
  play.Championships_Click(0);
  EXPECT_EQ(play.Championships.Text(), "c.leg");
}

/// The rows of a ranking, their columns between blanks.
std::string Rows(const Ranking& ranking) {
  Texts rows;
  for (const Texts& row : ranking.Rows) {
    rows.emplace_back();
    for (const std::string& text : row) rows.back() += (rows.back().empty() ? "" : " ") + text;
  }
  return Joined(rows);
}

TEST_F(ChampionshipTest, TheTableSortsByPointsDifferenceAndGoalsAndKeepsTies) {
  Championship league{League, "Top", {"A", "B", "C", "D", "E", "F", "G"}, {}};
  ASSERT_TRUE(WriteChampionship(folder_.Folder, league).Ok());
  EXPECT_TRUE(
      Rows(StandingsTable(folder_.Folder, "Top")).starts_with("1 A 0 0 0 0 0 0 0|2 B 0 0 0 0 0 0 0|"));
  const std::vector<StandingsRow> standings = {{"A", 3, 0, 0, 3, 1, 9, 0}, {"B", 3, 1, 0, 2, 4, 2, 3},
                                               {"C", 3, 1, 0, 2, 5, 3, 3}, {"D", 3, 2, 0, 1, 2, 9, 6},
                                               {"E", 3, 1, 0, 2, 4, 2, 3}, {"F", 3, 1, 0, 2, 3, 0, 3},
                                               {"G", 3, 0, 0, 3, 0, 9, 0}};
  ASSERT_TRUE(ChangeFiles(folder_.Folder, {ChangedStandings("Top", standings)}).Ok());
  const Ranking table = StandingsTable(folder_.Folder, "Top");
  EXPECT_EQ(table.Label1 + ": " + Rows(table),
            "Top Standings: 1 D 3 2 0 1 2 9 6|2 F 3 1 0 2 3 0 3|3 C 3 1 0 2 5 3 3|4 B 3 1 0 2 4 2 3|5 E 3 1 "
            "0 2 4 2 3|"
            "6 A 3 0 0 3 1 9 0|7 G 3 0 0 3 0 9 0");
  const Ranking none = StandingsTable(folder_.Folder, "N/A");
  EXPECT_EQ(none.Label1 + Rows(none), "Kickwell Current League Standings");
  for (int i = 0; i < 113; ++i) league.Teams.push_back("X" + std::to_string(i));
  ASSERT_TRUE(WriteChampionship(folder_.Folder, league).Ok());
  const Texts last = StandingsTable(folder_.Folder, "Top").Rows.back();
  EXPECT_EQ(last[0] + last[1], "100X94");  // Level rows keep their order, however many there are.
}

TEST(Paging, ShowsFifteenRowsAtATime) {
  const std::pair<int, const char*> cases[] = {
      {0, "0+0 "}, {1, "0+1 "}, {15, "0+15 "}, {16, "0+15 15+1 "}, {31, "0+15 15+15 30+1 "}};
  for (const auto& [count, pages] : cases) {
    Paging paging;
    paging.Open(count);
    std::string shown;
    bool more = true;
    for (paging.Back(); more; paging.Next()) {
      paging.Hover(paging.RowCount() + 1);  // No entry there.
      paging.Hover(0);
      EXPECT_EQ(paging.Highlight, 1);  // Turning the page puts the bar on top, too.
      paging.Hover(paging.RowCount());
      EXPECT_EQ(paging.BackEnabled(), !shown.empty());
      shown += std::to_string(paging.Offset()) + "+" + std::to_string(paging.RowCount()) + " ";
      more = paging.NextEnabled();
    }
    EXPECT_EQ(shown, pages);
  }
}

TEST_F(ChampionshipTest, TopScorersStandByGoalsInTheOrderOfTheirFirstOnes) {
  Write("Tournies/Cup.sco", "Ann\nA\n1\nBo\nB\n3\nCy\nA\n3\nDi\nB\nmany\nEd\nC\n12\nFay\nA");
  const Ranking list = TopScorers(folder_.Folder, KnockOut, "Cup");
  EXPECT_EQ(list.Label1 + ": " + Rows(list),
            "Cup Goal Scorers: 1 Ed C 12|2 Bo B 3|3 Cy A 3|4 Ann A 1|5 Di B 0");
}

TEST_F(ChampionshipTest, ResultsAreShownAndSavedAsAPage) {
  LegResults none(folder_.Folder, desktop_, League, "Top");
  none.Command2_Click();  // Dark: no log yet.
  EXPECT_EQ(none.Label1 + desktop_.ProposedName, "Top Results");
  Write("Leagues/Top.lrs", "Match 1:\nA 1 vs <B> 0\n\nMatch 2:\n");
  LegResults results(folder_.Folder, desktop_, League, "Top");
  results.Command2_Click();  // Cancelled.
  EXPECT_EQ(desktop_.ProposedName, "Top Results");
  desktop_.SaveName = (folder_ / "Top Results").string();
  results.Command2_Click();
  EXPECT_EQ(ReadLines(folder_ / "Top Results.htm"),
            ResultsPage("Top Results", {{"Match 1:", "A 1 vs <B> 0", "", "Match 2:"}}));
}

TEST_F(ChampionshipTest, TheChartFollowsTheBracketOfEverySize) {
  const std::string slots = "abacdcaefeghgeaijiklkimnmopomia";  // The home team always wins.
  for (const std::size_t teams : {2U, 4U, 8U, 16U}) {
    Championship cup{KnockOut, "Cup", {}, {}};
    for (std::size_t i = 0; i < teams; ++i) cup.Teams.emplace_back(1, static_cast<char>('a' + i));
    Texts waiting = cup.Teams;
    for (std::size_t at = 0; at < 2 * teams - 2; at += 2) {
      cup.Fixtures.push_back({Played, waiting[at], waiting[at + 1], waiting[at]});
      waiting.push_back(waiting[at]);
    }
    ASSERT_TRUE(WriteChampionship(folder_.Folder, cup).Ok());
    const KnockCharts chart(folder_.Folder, "Cup");
    std::string shown;
    for (int slot = 0; slot < chart.VisibleSlots; ++slot) shown += chart.Text(slot);
    EXPECT_EQ(chart.Label1 + " " + shown, "Cup Table " + slots.substr(0, 2 * teams - 1));
    for (const auto [home, away, winner] : chart.Matches) {  // A winner stands between and right of the two.
      const auto place = [](int slot) { return ChartSlots()[static_cast<std::size_t>(slot)]; };
      EXPECT_EQ(place(winner).Left, place(home).Left + 1680);
      EXPECT_TRUE(place(home).Top < place(winner).Top && place(winner).Top < place(away).Top) << winner;
    }
  }
}

TEST_F(ChampionshipTest, TheChartShowsWhatADamagedFileHolds) {
  const std::pair<const char*, const char*> files[] = {
      {"3\nCup\n3\nA\nB\nC\nNP\nA\nB\nWinner 1\n", ""},
      {"0\nCup\n4\nA\nB\nC\nD\nNP\nA\nC\nWinner 1\nNP\nB\nD\nWinner 2\nNP\nWinner 1\nWinner 2\nWinner 3\n",
       "A C Winner 1 B D Winner 2 Winner 3 "},  // The count of fixtures is not asked.
      {"9\nCup\n2\nA\nB\nNP\nA\nB\nB (By Toss)\nNP\nC\nD\nWinner 2\n", "A B B (By Toss) "},
  };
  EXPECT_EQ(KnockCharts(folder_.Folder, "Cup").Label1, "Knock Out Table");
  for (const auto& [text, slots] : files) {
    Write("Tournies/Cup.trn", text);
    const KnockCharts chart(folder_.Folder, "Cup");
    std::string shown;
    for (int slot = 0; slot < chart.VisibleSlots; ++slot) shown += chart.Text(slot) + " ";
    EXPECT_EQ(shown, slots);
  }
}

}  // namespace
}  // namespace kickwell
