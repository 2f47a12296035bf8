// The play settings, the rankings and the chart.
#include "championship/championship_play.h"
#include "championship/knock_charts.h"
#include "championship/leg_results.h"
#include "championship/standings_table.h"
#include "championship/top_scorers.h"
#include "engine/pages.h"
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

  /// Continues with a range of matches; gives the messages.
  std::string Play(ChampionshipPlay& play, int from, int to) {
    play.From_Click(from - 1);
    play.To_Click(to - 1);
    play.Command1_Click();
    return desktop_.Told();
  }

  /// The texts in the slots of the chart of a knock-out file.
  std::string Chart(const std::string& text) const {
    Write("Tournies/Cup.trn", text);
    const KnockCharts chart(folder_.Folder, "Cup");
    Texts slots;
    for (int slot = 0; slot < chart.VisibleSlots; ++slot) slots.push_back(chart.Text(slot));
    return Joined(slots);
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
  EXPECT_EQ(Play(play, 1, 3), "i: Match 2 has been played already");
  EXPECT_EQ(setup_.ChampionshipName + std::string(ToText(setup_.Mode)), "TopLeague");
  EXPECT_EQ(setup_.SimulationType, SimulationKind::FullSimulation);
  EXPECT_EQ(Play(play, 3, 1), "i: Please select the match numbers properly");
  EXPECT_EQ(Play(play, 3, 3), "");
  EXPECT_EQ(Joined(handedOver_), "1 A-B|3 A-B|3 A-B");
}

TEST_F(ChampionshipTest, ARangeGoesOnIntoTheNextRound) {
  Write("Teams/C", "1\n");
  const std::string head = "3\nCup\n4\nA\nB\nC\nD\n", first = "NP\nA\nC\nWinner 1\n";
  Write("Tournies/Cup.trn", head + first + "NP\nB\nD\nWinner 2\nNP\nWinner 1\nWinner 2\nWinner 3\n");
  ChampionshipPlay play = Open(KnockOut);
  // Both left before their end: nothing recorded.
  EXPECT_EQ(Play(play, 1, 3), "i: Match 3 can't be played before match 1 has been played");
  WhilePlayed = [&] {
    Write("Tournies/Cup.trn", head + "P\nA\nC\nC (By Toss)\nP\nB\nD\nD\nNP\nC (By Toss)\nD\nWinner 3\n");
    play.Load("Cup.trn");
  };
  EXPECT_EQ(Play(play, 1, 3), "i: Match 2 has been played already");
  EXPECT_EQ(setup_.Mode, MatchMode::KnockOut);
  Write("Teams/C (By Toss)", "1\n");  // A team of that very name: else the toss is no part of it.
  Write("Tournies/Cup.trn", head + first);
  WhilePlayed = [&] { play.Load("Cup.trn"); };
  EXPECT_EQ(Play(play, 3, 3), "");
  EXPECT_EQ(Play(play, 1, 3), "");  // What the file has lost is passed over.
  EXPECT_EQ(Joined(handedOver_), "1 A-C|2 B-D|1 A-C|3 C-D|3 C (By Toss)-D|1 A-C");
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

/// The heading and the rows, their columns between blanks.
std::string Text(const Ranking& ranking) {
  std::string text = ranking.Label1;
  for (const Texts& row : ranking.Rows) {
    text += "|";
    for (const std::string& column : row) text += (&column == row.data() ? "" : " ") + column;
  }
  return text;
}

TEST_F(ChampionshipTest, TheTableSortsByPointsDifferenceAndGoalsAndKeepsTies) {
  EXPECT_EQ(Text(StandingsTable(folder_.Folder, "N/A")), "Kickwell Current League Standings");
  std::string teams = "A\nB\nC\nD\nE\nF\nG\n";
  Write("Leagues/Top.leg", "Top\n7\n" + teams);
  EXPECT_TRUE(Text(StandingsTable(folder_.Folder, "Top"))
                  .starts_with("Top Standings|1 A 0 0 0 0 0 0 0|2 B 0 0 0 0 0 0 0|"));
  const std::vector<StandingsRow> standings = {{"A", 3, 0, 0, 3, 1, 9, 0}, {"B", 3, 1, 0, 2, 4, 2, 3},
                                               {"C", 3, 1, 0, 2, 5, 3, 3}, {"D", 3, 2, 0, 1, 2, 9, 6},
                                               {"E", 3, 1, 0, 2, 4, 2, 3}, {"F", 3, 1, 0, 2, 3, 0, 3},
                                               {"G", 3, 0, 0, 3, 0, 9, 0}};
  ASSERT_TRUE(ChangeFiles(folder_.Folder, {ChangedStandings("Top", standings)}).Ok());
  EXPECT_EQ(Text(StandingsTable(folder_.Folder, "Top")),
            "Top Standings|1 D 3 2 0 1 2 9 6|2 F 3 1 0 2 3 0 3|3 C 3 1 0 2 5 3 3|4 B 3 1 0 2 4 2 3|"
            "5 E 3 1 0 2 4 2 3|6 A 3 0 0 3 1 9 0|7 G 3 0 0 3 0 9 0");
  for (int i = 0; i < 113; ++i) teams += "X" + std::to_string(i) + "\n";
  Write("Leagues/Top.leg", "Top\n120\n" + teams);  // Level rows keep their order, however many there are.
  EXPECT_TRUE(Text(StandingsTable(folder_.Folder, "Top")).ends_with("|100 X94 0 0 0 0 0 0 0"));
}

TEST_F(ChampionshipTest, TopScorersStandByGoalsInTheOrderOfTheirFirstOnes) {
  Write("Tournies/Cup.sco", "Ann\nA\n1\nBo\nB\n3\nCy\nA\n3\nDi\nB\nmany\nEd\nC\n12\nFay\nA");
  EXPECT_EQ(Text(TopScorers(folder_.Folder, KnockOut, "Cup")),
            "Cup Goal Scorers|1 Ed C 12|2 Bo B 3|3 Cy A 3|4 Ann A 1|5 Di B 0");
}

TEST(Paging, ShowsFifteenRowsAtATime) {
  Paging paging;
  std::string pages;
  for (const int count : {0, 1, 15, 16, 31}) {
    paging.Open(count);
    for (int page = 0; page < 3; ++page, paging.Next()) {
      paging.Hover(paging.RowCount() + 1);  // No entry there.
      pages += std::to_string(paging.Highlight + paging.Offset()) + "+" + std::to_string(paging.RowCount()) +
               (paging.BackEnabled() ? "<" : "") + (paging.NextEnabled() ? "> " : " ");
      paging.Hover(paging.RowCount());  // Turning the page puts the bar on top.
      if (!paging.NextEnabled()) break;
    }
  }
  EXPECT_EQ(pages, "1+0 1+1 1+15 1+15> 16+1< 1+15> 16+15<> 31+1< ");
  paging.Back();
  EXPECT_EQ(paging.Offset(), 15);
}

TEST_F(ChampionshipTest, ResultsAreShownAndSavedAsAPage) {
  LegResults(folder_.Folder, desktop_, League, "Top").Command2_Click();  // Dark: no log yet.
  EXPECT_EQ(desktop_.ProposedName, "");
  Write("Leagues/Top.lrs", "Match 1:\nA 1 vs <B> 0\n\nMatch 2:\n");
  LegResults results(folder_.Folder, desktop_, League, "Top");
  results.Command2_Click();  // Cancelled.
  desktop_.SaveName = (folder_ / desktop_.ProposedName).string();
  results.Command2_Click();
  EXPECT_EQ(ReadLines(folder_ / "Top Results.htm"),
            ResultsPage("Top Results", {{"Match 1:", "A 1 vs <B> 0", "", "Match 2:"}}));
}

TEST_F(ChampionshipTest, TheChartFollowsTheBracketOfEverySize) {
  const std::string slots = "a|b|a|c|d|c|a|e|f|e|g|h|g|e|a|i|j|i|k|l|k|i|m|n|m|o|p|o|m|i|a";
  for (const std::size_t teams : {2U, 4U, 8U, 16U}) {
    std::string file = "0\nCup\n" + std::to_string(teams) + "\n";  // The count of fixtures is not asked.
    std::string waiting = std::string("abcdefghijklmnop").substr(0, teams);
    for (const char team : waiting) file += team + std::string("\n");
    for (std::size_t at = 0; at < 2 * teams - 2; at += 2) {  // The home team always wins.
      const std::string home = waiting.substr(at, 1) + "\n";
      file += "P\n" + home + waiting[at + 1] + "\n" + home;
      waiting += waiting[at];
    }
    EXPECT_EQ(Chart(file), slots.substr(0, 4 * teams - 3));
    for (const auto [home, away, winner] : ChartMatches(static_cast<int>(teams))) {
      const auto place = [](int slot) { return ChartSlots()[static_cast<std::size_t>(slot)]; };
      EXPECT_EQ(place(winner).Left, place(home).Left + 1680);  // Between and right of the two.
      EXPECT_TRUE(place(home).Top < place(winner).Top && place(winner).Top < place(away).Top) << winner;
    }
  }
}

TEST_F(ChampionshipTest, TheChartShowsWhatADamagedFileHolds) {
  EXPECT_EQ(KnockCharts(folder_.Folder, "Cup").Label1, "Knock Out Table");
  EXPECT_EQ(Chart("3\nCup\n3\nA\nB\nC\nNP\nA\nB\nWinner 1\n"), "");
  EXPECT_EQ(Chart("0\nCup\n4\nA\nB\nC\nD\nNP\nA\nC\nWinner 1\nNP\nB"), "A|C|Winner 1||||");
  EXPECT_EQ(Chart("9\nCup\n2\nA\nB\nNP\nA\nB\nB (By Toss)\nNP\nC\nD\nWinner 2\n"), "A|B|B (By Toss)");
  EXPECT_EQ(KnockCharts(folder_.Folder, "Cup").Label1, "Cup Table");
}

}  // namespace
}  // namespace kickwell
