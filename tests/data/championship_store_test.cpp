#include "data/championship_store.h"

#include <gtest/gtest.h>

#include "data/file_names.h"
#include "support/folders.h"

namespace kickwell {
namespace {

constexpr ChampionshipKind League = ChampionshipKind::League, KnockOut = ChampionshipKind::KnockOut;

const Championship Cup{
    KnockOut,
    "Cup",
    {"A", "B", "C", "D"},
    {{"NP", "A", "C", "Winner 1"}, {"NP", "B", "D", "Winner 2"}, {"NP", "Winner 1", "Winner 2", "Winner 3"}}};

TEST(ChampionshipStore, WritesAndReadsMainFiles) {
  const TestFolder folder;
  ASSERT_TRUE(WriteChampionship(folder.Folder, Cup).Ok());
  EXPECT_EQ(ReadBytes(folder / "Tournies/Cup.trn"),
            AsWritten("3\nCup\n4\nA\nB\nC\nD\nNP\nA\nC\nWinner 1\nNP\nB\nD\nWinner 2\nNP\nWinner 1\nWinner "
                      "2\nWinner 3\n"));
  EXPECT_EQ(ReadChampionship(folder.Folder, KnockOut, "Cup.trn"), Cup);
  const Championship league{League, "Top", {"A", "B"}, {{"P", "A", "B", ""}, {"NP", "B", "A", ""}}};
  ASSERT_TRUE(WriteChampionship(folder.Folder, league).Ok());
  EXPECT_EQ(ReadBytes(folder / "Leagues/Top.leg"), AsWritten("Top\n2\nA\nB\n2\nP\nA\nB\nNP\nB\nA\n"));
  EXPECT_EQ(ReadChampionship(folder.Folder, League, "Top.leg"), league);
  EXPECT_EQ(ListChampionships(folder.Folder, League), std::vector<std::string>{"Top.leg"});
  EXPECT_EQ(ReadChampionship(folder.Folder, League, "Gone.leg"), std::nullopt);
  EXPECT_EQ(ReadChampionship(folder.Folder, League, "../Tournies/Cup.trn"), std::nullopt);
  EXPECT_FALSE(WriteChampionship(folder.Folder, {League, "../up", {}, {}}).Ok());
}

TEST(ChampionshipStore, TakesWhatADamagedMainFileHolds) {
  const TestFolder folder;
  struct Case {
    const char* Text;
    std::size_t Teams, Fixtures;
  };
  const Case leagues[] = {{"", 0, 0},
                          {"L\n1000000000\nA\nB\n2", 3, 0},
                          {"L\n2\nA\nB\n1000000000\nNP\nA\nB\nNP\nA", 2, 1},
                          {"L\n2\nA\nB\nmany\nNP\nA\nB", 2, 0},
                          {"L\n-2\nA", 0, 0},
                          {"L\n4\n2\n1\nNP\nA\n1\nP\nB\nA", 4, 1}};  // Team lines may look like anything.
  for (const Case& c : leagues) {
    WriteBytes(folder / "Leagues/L.leg", c.Text);
    const Championship read = ReadChampionship(folder.Folder, League, "L.leg").value();
    EXPECT_EQ(read.Teams.size(), c.Teams) << c.Text;
    EXPECT_EQ(read.Fixtures.size(), c.Fixtures) << c.Text;
  }
  WriteBytes(folder / "Tournies/K.trn", "99\nK\n2\nA\nB\nNP\nA\nB\nWinner 1\nNP\nA");
  EXPECT_EQ(ReadChampionship(folder.Folder, KnockOut, "K.trn")->Fixtures.size(), 1U);
}

TEST(ChampionshipStore, KeepsStandingsScorersAndResults) {
  const TestFolder folder;
  const Championship league{League, "Top", {"A", "B"}, {}};
  EXPECT_EQ(ReadStandings(folder.Folder, "Top", league.Teams), (std::vector<StandingsRow>{{"A"}, {"B"}}));
  const std::vector<StandingsRow> standings = {{"A", 3, 1, 1, 1, 5, 4, 4}, {"B", 3, 0, 2, 1, 1, 9, 2}};
  ASSERT_TRUE(ChangeFiles(folder.Folder, {ChangedStandings("Top", standings)}).Ok());
  EXPECT_EQ(ReadBytes(folder / "Leagues/Top.rec"),
            AsWritten("A\n3\n1\n1\n1\n5\n4\n4\nB\n3\n0\n2\n1\n1\n9\n2\n"));
  EXPECT_EQ(ReadStandings(folder.Folder, "Top", league.Teams), standings);
  WriteBytes(folder / "Leagues/Top.rec", "A\nx\n1\n0\n0\n2\n1\n3\nB\n1");  // No number; a row cut short.
  EXPECT_EQ(ReadStandings(folder.Folder, "Top", league.Teams),
            (std::vector<StandingsRow>{{"A", 0, 1, 0, 0, 2, 1, 3}, {"B"}}));

  EXPECT_TRUE(ReadScorers(folder.Folder, League, "Top").empty());
  WriteBytes(folder / "Leagues/Top.sco", "Ann\nA\nno\nBo\nB");
  EXPECT_EQ(ReadScorers(folder.Folder, League, "Top"), (std::vector<ScorerRow>{{"Ann", "A", 0}}));
}

TEST(ChampionshipStore, DeletesTheFilesOfOneChampionship) {
  const TestFolder folder;
  for (const char* file : {"Leagues/A.leg", "Leagues/A.rec", "Leagues/A.sco", "Leagues/A.lrs",
                           "Leagues/B.leg", "Leagues/B.rec", "Tournies/A.trn", "Tournies/A.sco"}) {
    WriteBytes(folder / file, "x");
  }
  EXPECT_TRUE(ReplaceChampionship(folder.Folder, {League, "A", {}, {}}).Ok());
  EXPECT_EQ(ReadBytes(folder / "Leagues/A.leg"), AsWritten("A\n0\n0\n"));
  EXPECT_EQ(ListFiles(folder.Folder.Leagues()), (std::vector<std::string>{"A.leg", "B.leg", "B.rec"}));
  EXPECT_TRUE(DeleteChampionship(folder.Folder, League, "B").Ok());
  EXPECT_TRUE(DeleteChampionship(folder.Folder, KnockOut, "A").Ok());
  EXPECT_EQ(ListFiles(folder.Folder.Leagues()), std::vector<std::string>{"A.leg"});
  EXPECT_TRUE(ListFiles(folder.Folder.Tournies()).empty());
}

TEST(ChampionshipStore, KnowsPlaceholdersAndTosses) {
  EXPECT_EQ(PlaceholderNumber("Winner 12"), 12);
  for (const char* text :
       {"Winner", "Winner ", "Winner 0", "Winner -1", "Winner 01", "Winner 1 ", "winner 1"}) {
    EXPECT_EQ(PlaceholderNumber(text), 0) << text;
  }
  EXPECT_EQ(WithoutToss("Rovers (By Toss)"), "Rovers");
  EXPECT_EQ(WithoutToss("Rovers"), "Rovers");
}

}  // namespace
}  // namespace kickwell
