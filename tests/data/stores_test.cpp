// What the stores write, byte for byte, and what they take from damaged files.
#include <gtest/gtest.h>

#include "data/championship_store.h"
#include "data/knock_out.h"
#include "data/stadium_store.h"
#include "data/team_store.h"
#include "support/folders.h"

namespace kickwell {
namespace {

using Names = std::vector<std::string>;

const ChampionshipId Top{ChampionshipKind::League, "Top"}, Cup{ChampionshipKind::KnockOut, "Cup"};

class StoresTest : public testing::Test {
 protected:
  void ExpectFile(const std::string& file, const std::string& text) const {
    EXPECT_EQ(at_.Bytes(file), AsWritten(text)) << file;
  }
  Championship Read(const ChampionshipId& id) const { return ReadChampionship(folder_, id).Value.value(); }

  TestFolder at_;
  const ProgramFolder& folder_ = at_.Folder;
};

TEST_F(StoresTest, ATeamIsReadAsItWasSaved) {
  const Team team{"Rovers", "78", {{"J. Smith", "80", "GK"}, {"O'Dell", "75", "FDC"}}};
  ASSERT_TRUE(SaveTeam(folder_, team).Ok());
  ExpectFile("Teams/Rovers", "78\nJ. Smith\n80\nGK\nO'Dell\n75\nFDC\n");
  EXPECT_EQ(LoadTeam(folder_, "Rovers").Value, team);
  EXPECT_EQ(ListTeams(folder_), Names{"Rovers"});
  EXPECT_TRUE(TeamExists(folder_, "Rovers"));
}

TEST_F(StoresTest, ATeamOfAnyNameIsReadSavedAndDeletedButNoneIsMade) {
  at_.Write("Teams/F.C.", "50\nA\n60\nGK\nB\n61");  // The last player is cut short.
  at_.Write("settings.cfg", "");
  const Team team = LoadTeam(folder_, "F.C.").Value.value();
  EXPECT_EQ(team.Players, (std::vector<Player>{{"A", "60", "GK"}}));
  EXPECT_TRUE(SaveTeam(folder_, team).Ok());
  ExpectFile("Teams/F.C.", "50\nA\n60\nGK\nB\n61\n");
  at_.Write("Teams/F.C.", "50\nA\n60\nGK\n\n \n\n\n");  // Blank lines are no player.
  EXPECT_EQ(LoadTeam(folder_, "F.C.").Value, (Team{"F.C.", "50", {{"A", "60", "GK"}}}));
  EXPECT_FALSE(SaveTeam(folder_, {"CON", "1", {}}).Ok());
  EXPECT_TRUE(DeleteTeam(folder_, "F.C.").Ok());
  EXPECT_TRUE(at_.Files.All().empty());
  EXPECT_TRUE(DeleteTeam(folder_, "F.C.").Ok());  // Neither file is there any more.
}

TEST_F(StoresTest, StadiumsAreReadAsTheyWereSaved) {
  EXPECT_FALSE(StadiumListExists(folder_));
  const std::vector<Stadium> stadiums = {{"Rovers", "The Mill", "Leat", "4000"},
                                         {"Neutral", "Bowl", "Oss", "60000"}};
  ASSERT_TRUE(SaveStadiums(folder_, stadiums).Ok());
  ExpectFile("stadiums.sim", "2\nRovers\nThe Mill\nLeat\n4000\nNeutral\nBowl\nOss\n60000\n");
  EXPECT_EQ(LoadStadiums(folder_).Value, stadiums);
}

TEST_F(StoresTest, AWrongCountOfStadiumsGivesTheCompleteOnes) {
  const std::pair<const char*, std::size_t> counts[] = {
      {"0", 0}, {" 1\t\u00A0", 1}, {"2", 2}, {"3", 2}, {"99999999999999999999", 2}, {"many", 2}, {"-1", 2}};
  for (const auto& [count, expected] : counts) {
    at_.Write("stadiums.sim", std::string(count) + "\nA\nB\nC\n1\nD\nE\nF\n2\nG\nH");
    EXPECT_EQ(LoadStadiums(folder_).Value.size(), expected) << count;
  }
  at_.Write("stadiums.sim", "");
  EXPECT_TRUE(LoadStadiums(folder_).Value.empty());
  EXPECT_TRUE(StadiumListExists(folder_));
}

TEST_F(StoresTest, AChampionshipIsReadAsItWasSaved) {
  const Championship cup{Cup, {"A", "B"}, {{"NP", "A", "B", "Winner 1"}}};
  ASSERT_TRUE(WriteChampionship(folder_, cup).Ok());
  ExpectFile("Tournies/Cup.trn", "1\nCup\n2\nA\nB\nNP\nA\nB\nWinner 1\n");
  EXPECT_EQ(Read(Cup), cup);
  const Championship league{Top, {"A", "B"}, {{"P", "A", "B", ""}, {"NP", "B", "A", ""}}};
  ASSERT_TRUE(WriteChampionship(folder_, league).Ok());
  ExpectFile("Leagues/Top.leg", "Top\n2\nA\nB\n2\nP\nA\nB\nNP\nB\nA\n");
  EXPECT_EQ(Read(Top), league);
  EXPECT_EQ(ListChampionships(folder_, ChampionshipKind::League), Names{"Top.leg"});
  EXPECT_EQ(IdOfMainFile(ChampionshipKind::League, "Top.leg"), Top);
}

TEST_F(StoresTest, ADamagedChampionshipGivesItsCompleteTeamsAndFixtures) {
  struct Damage {
    const char* Text;
    std::size_t Teams, Fixtures;
  };
  const Damage leagues[] = {
      {"", 0, 0},
      {"L\n1000000000\nA\nB\n2", 3, 0},
      {"L\n2\nA\nB\n1000000000\nNP\nA\nB\nNP\nA", 2, 1},
      {"L\n2\nA\nB\nmany\nNP\nA\nB", 2, 0},
      {"L\n-2\nA", 0, 0},
      {"L\n4\n2\n1\nNP\nA\n1\nP\nB\nA", 4, 1},  // Team lines may look like anything.
  };
  for (const auto& [text, teams, fixtures] : leagues) {
    at_.Write("Leagues/Top.leg", text);
    EXPECT_EQ(Read(Top).Teams.size(), teams) << text;
    EXPECT_EQ(Read(Top).Fixtures.size(), fixtures) << text;
  }
  at_.Write("Tournies/Cup.trn", "99\nCup\n2\nA\nB\nNP\nA\nB\nWinner 1\nNP\nA");
  EXPECT_EQ(Read(Cup).Fixtures.size(), 1U);
  EXPECT_EQ(ChangedChampionship(Read(Cup)).Bytes,
            AsWritten("1\nCup\n2\nA\nB\nNP\nA\nB\nWinner 1\nNP\nA\n"));  // The rest is kept.
}

TEST_F(StoresTest, StandingsHaveARowForEveryTeam) {
  const std::vector<StandingsRow> zeros = {{"A"}, {"B"}};
  EXPECT_EQ(ReadStandings(folder_, Top, {"A", "B"}).Value, zeros);
  at_.Write("Leagues/Top.rec",
            "A\n1x\n 1\n0\n0\n2\n1\n3\nB\n1");  // A figure is no number; B's row is cut short.
  const std::vector<StandingsRow> complete = {{"A", 0, 1, 0, 0, 2, 1, 3}, {"B"}, {"B"}};
  EXPECT_EQ(ReadStandings(folder_, Top, {"A", "B", "B"}).Value, complete);  // As often as it is listed.
}

TEST_F(StoresTest, ANewTeamsStandingsStandBehindTheCompleteRows) {
  at_.Write("Leagues/Top.rec", "A\n1\n1\n0\n0\n2\n1\n3\nB\n1");
  EXPECT_TRUE(AppendStandings(folder_, Top, "C").Ok());
  ExpectFile("Leagues/Top.rec", "A\n1\n1\n0\n0\n2\n1\n3\nC\n0\n0\n0\n0\n0\n0\n0\n");
}

TEST_F(StoresTest, ScorersAreTheCompleteOnesAndTheRestIsKept) {
  EXPECT_TRUE(ReadScorers(folder_, Top).Value.empty());
  at_.Write("Leagues/Top.sco", "Ann\nA\nno\nBo\nB");
  EXPECT_EQ(ReadScorers(folder_, Top).Value, (std::vector<ScorerRow>{{"Ann", "A", 0}}));
  for (const char* scorer : {"Ann", "Cy"}) EXPECT_TRUE(AddGoals(folder_, Top, {scorer, "A", 1}).Ok());
  ExpectFile("Leagues/Top.sco", "Ann\nA\n1\nCy\nA\n1\nBo\nB\n");
}

TEST_F(StoresTest, ResultsStandBehindEachOtherWithAnEmptyLineBetween) {
  const std::array<std::string, 5> block = {"1", "2", "3", "4", "5"};
  const std::pair<const char*, const char*> logs[] = {
      {"", "1\n2\n3\n4\n5\n"},
      {"a\n\nb", "a\n\nb\n\n1\n2\n3\n4\n5\n"},
  };
  for (const auto& [before, after] : logs) {
    at_.Write("Leagues/Top.lrs", before);
    EXPECT_EQ(ChangedResults(folder_, Top, block).Value.Bytes, AsWritten(after));
  }
}

TEST_F(StoresTest, ReplacingAndDeletingTakesTheCompanionsAlong) {
  for (const char* file : {"Leagues/Top.leg", "Leagues/Top.rec", "Leagues/Top.sco", "Leagues/Top.lrs",
                           "Leagues/B.leg", "Leagues/B.rec", "Tournies/Cup.trn", "Tournies/Cup.sco"}) {
    at_.Write(file, "x");
  }
  EXPECT_TRUE(ReplaceChampionship(folder_, {Top, {}, {}}).Ok());
  ExpectFile("Leagues/Top.leg", "Top\n0\n0\n");
  EXPECT_TRUE(DeleteChampionship(folder_, {ChampionshipKind::League, "B"}).Ok());
  EXPECT_TRUE(DeleteChampionship(folder_, Cup).Ok());
  EXPECT_EQ(at_.Files.All().size(), 1U);
}

TEST_F(StoresTest, SavingFinishesAnEarlierChangeFirst) {
  at_.Write("~kickwell-7-1.tmp", "finished");
  at_.Write(std::string(JournalName), "Kickwell journal 1\n~kickwell-7-1.tmp\nLeagues/Top.rec\nEnd\n");
  EXPECT_TRUE(WriteChampionship(folder_, {Cup, {}, {}}).Ok());
  EXPECT_EQ(at_.Bytes("Leagues/Top.rec"), "finished");
}

TEST_F(StoresTest, NothingIsAddedToAFileThatCannotBeRead) {
  for (const char* file : {"Leagues/Top.rec", "Leagues/Top.sco", "Leagues/Top.lrs"}) {
    at_.Write(file, "x");
    at_.Files.Unreadable.insert(at_ / file);
  }
  EXPECT_EQ(AddGoals(folder_, Top, {"Ann", "A", 1}).Failure,
            "The file /kickwell/Leagues/Top.sco can't be read: Permission denied.");
  EXPECT_FALSE(AppendStandings(folder_, Top, "C").Ok());
  EXPECT_FALSE(ChangedResults(folder_, Top, {}).Ok());
}

TEST_F(StoresTest, NoNameLeadsOutOfTheFolder) {
  for (const std::string& name :
       {std::string("../../x"), std::string("/x"), std::string(".."), std::string("."),
        std::string("a/../../x"), std::string("a\0/x", 4), std::string(10000, '/'), std::string()}) {
    EXPECT_FALSE(SaveTeam(folder_, {name, "1", {}}).Ok());
    EXPECT_FALSE(DeleteTeam(folder_, name).Ok());
    EXPECT_EQ(LoadTeam(folder_, name).Value, std::nullopt);
    EXPECT_FALSE(TeamExists(folder_, name));
    for (const ChampionshipKind kind : {ChampionshipKind::League, ChampionshipKind::KnockOut}) {
      const ChampionshipId id{kind, name};
      (void)WriteChampionship(folder_, {id, {}, {}});
      (void)DeleteChampionship(folder_, id);
      (void)ReadChampionship(folder_, id);
      (void)ReadBracket(folder_, id);
      (void)ReadStandings(folder_, id, {});
      (void)AppendStandings(folder_, id, name);
      (void)ReadResults(folder_, id);
      (void)AddGoals(folder_, id, {name, name, 1});
    }
  }
  const std::string root = folder_.Root.string() + "/";
  EXPECT_GT(at_.Files.Touched.size(), 3U);
  for (const std::filesystem::path& path : at_.Files.Touched) {
    const std::string place = (path.lexically_normal() / "").string();
    EXPECT_TRUE(place.starts_with(root)) << path;
  }
}

TEST(KnockOut, KnowsPlaceholders) {
  EXPECT_EQ(PlaceholderNumber("Winner 12"), 12);
  for (const char* text :
       {"Winner", "Winner ", "Winner 0", "Winner -1", "Winner 01", "Winner 1 ", "winner 1"}) {
    EXPECT_EQ(PlaceholderNumber(text), 0) << text;
  }
}

}  // namespace
}  // namespace kickwell
