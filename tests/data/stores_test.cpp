// What the stores write, byte for byte, and what they take from damaged files.
#include <gtest/gtest.h>

#include "data/championship_store.h"
#include "data/file_names.h"
#include "data/stadium_store.h"
#include "data/team_store.h"
#include "support/folders.h"

namespace kickwell {
namespace {

constexpr ChampionshipKind League = ChampionshipKind::League, KnockOut = ChampionshipKind::KnockOut;

class StoresTest : public testing::Test {
 protected:
  void Write(const std::string& file, const std::string& text) const { WriteBytes(at_ / file, text); }
  void ExpectFile(const std::string& file, const std::string& text) const {
    EXPECT_EQ(ReadBytes(at_ / file), AsWritten(text)) << file;
  }

  TestFolder at_;
  const ProgramFolder& folder_ = at_.Folder;
};

TEST_F(StoresTest, Squads) {
  const Team team{"Rovers", "78", {{"J. Smith", "80", "GK"}, {"O'Dell", "75", "FDC"}}};
  ASSERT_TRUE(SaveTeam(folder_, team).Ok());
  ExpectFile("Teams/Rovers", "78\nJ. Smith\n80\nGK\nO'Dell\n75\nFDC\n");
  EXPECT_EQ(LoadTeam(folder_, "Rovers"), team);
  EXPECT_EQ(ListTeams(folder_), std::vector<std::string>{"Rovers"});  // No temporary file among them.
  Write("Teams/Cut", "50\nA\n60\nGK\nB\n61");
  EXPECT_EQ(LoadTeam(folder_, "Cut"), (Team{"Cut", "50", {{"A", "60", "GK"}}}));
  Write("Teams/F.C.", "");  // Made by hand where such a name can be.
  EXPECT_EQ(LoadTeam(folder_, "F.C."), (Team{"F.C.", "", {}}));
  EXPECT_EQ(LoadTeam(folder_, "Missing"), std::nullopt);
  EXPECT_FALSE(SaveTeam(folder_, {"CON", "1", {}}).Ok());
  Write("settings.cfg", "");
  EXPECT_TRUE(DeleteTeam(folder_, "Cut").Ok());
  EXPECT_FALSE(std::filesystem::exists(at_ / "settings.cfg"));
  EXPECT_TRUE(DeleteTeam(folder_, "F.C.").Ok());  // Without settings, too.
}

TEST_F(StoresTest, Stadiums) {
  EXPECT_FALSE(StadiumListExists(folder_));
  const std::vector<Stadium> stadiums = {{"Rovers", "The Mill", "Leat", "4000"},
                                         {"Neutral", "Bowl", "Oss", "60000"}};
  ASSERT_TRUE(SaveStadiums(folder_, stadiums).Ok());
  ExpectFile("stadiums.sim", "2\nRovers\nThe Mill\nLeat\n4000\nNeutral\nBowl\nOss\n60000\n");
  EXPECT_EQ(LoadStadiums(folder_), stadiums);
  const std::pair<const char*, std::size_t> counts[] = {
      {"0", 0}, {"1", 1}, {"2", 2}, {"3", 2}, {"99999999999999999999", 2}, {"many", 2}, {"-1", 2}};
  for (const auto& [count, expected] : counts) {
    Write("stadiums.sim", std::string(count) + "\nA\nB\nC\n1\nD\nE\nF\n2\nG\nH");
    EXPECT_EQ(LoadStadiums(folder_).size(), expected) << count;
  }
  Write("stadiums.sim", "");
  EXPECT_TRUE(LoadStadiums(folder_).empty() && StadiumListExists(folder_));
}

TEST_F(StoresTest, MainFiles) {
  const Championship cup{KnockOut, "Cup", {"A", "B"}, {{"NP", "A", "B", "Winner 1"}}};
  ASSERT_TRUE(WriteChampionship(folder_, cup).Ok());
  ExpectFile("Tournies/Cup.trn", "1\nCup\n2\nA\nB\nNP\nA\nB\nWinner 1\n");
  EXPECT_EQ(ReadChampionship(folder_, KnockOut, "Cup.trn"), cup);
  const Championship league{League, "Top", {"A", "B"}, {{"P", "A", "B", ""}, {"NP", "B", "A", ""}}};
  ASSERT_TRUE(WriteChampionship(folder_, league).Ok());
  ExpectFile("Leagues/Top.leg", "Top\n2\nA\nB\n2\nP\nA\nB\nNP\nB\nA\n");
  EXPECT_EQ(ReadChampionship(folder_, League, "Top.leg"), league);
  EXPECT_EQ(ListChampionships(folder_, League), std::vector<std::string>{"Top.leg"});
  EXPECT_EQ(ReadChampionship(folder_, League, "Gone.leg"), std::nullopt);

  const std::tuple<const char*, std::size_t, std::size_t> damaged[] = {
      {"", 0, 0},
      {"L\n1000000000\nA\nB\n2", 3, 0},
      {"L\n2\nA\nB\n1000000000\nNP\nA\nB\nNP\nA", 2, 1},
      {"L\n2\nA\nB\nmany\nNP\nA\nB", 2, 0},
      {"L\n-2\nA", 0, 0},
      {"L\n4\n2\n1\nNP\nA\n1\nP\nB\nA", 4, 1}};  // Team lines may look like anything.
  for (const auto& [text, teams, fixtures] : damaged) {
    Write("Leagues/L.leg", text);
    const Championship read = ReadChampionship(folder_, League, "L.leg").value();
    EXPECT_TRUE(read.Teams.size() == teams && read.Fixtures.size() == fixtures) << text;
  }
  Write("Tournies/K.trn", "99\nK\n2\nA\nB\nNP\nA\nB\nWinner 1\nNP\nA");
  EXPECT_EQ(ReadChampionship(folder_, KnockOut, "K.trn")->Fixtures.size(), 1U);
}

TEST_F(StoresTest, Companions) {
  EXPECT_EQ(ReadStandings(folder_, "Top", {"A", "B"}), (std::vector<StandingsRow>{{"A"}, {"B"}}));
  Write("Leagues/Top.rec", "A\nx\n1\n0\n0\n2\n1\n3\nB\n1");  // No number; a row cut short.
  EXPECT_EQ(ReadStandings(folder_, "Top", {"A", "B"}),
            (std::vector<StandingsRow>{{"A", 0, 1, 0, 0, 2, 1, 3}, {"B"}}));
  EXPECT_TRUE(ReadScorers(folder_, League, "Top").empty());
  Write("Leagues/Top.sco", "Ann\nA\nno\nBo\nB");
  EXPECT_EQ(ReadScorers(folder_, League, "Top"), (std::vector<ScorerRow>{{"Ann", "A", 0}}));

  for (const char* file : {"Leagues/A.leg", "Leagues/A.rec", "Leagues/A.sco", "Leagues/A.lrs",
                           "Leagues/B.leg", "Leagues/B.rec", "Tournies/A.trn", "Tournies/A.sco"}) {
    Write(file, "x");
  }
  EXPECT_TRUE(ReplaceChampionship(folder_, {League, "A", {}, {}}).Ok());
  ExpectFile("Leagues/A.leg", "A\n0\n0\n");
  EXPECT_TRUE(DeleteChampionship(folder_, League, "B").Ok());
  EXPECT_TRUE(DeleteChampionship(folder_, KnockOut, "A").Ok());
  EXPECT_EQ(ListFiles(folder_.Leagues()), (std::vector<std::string>{"A.leg", "Top.rec", "Top.sco"}));
  EXPECT_TRUE(ListFiles(folder_.Tournies()).empty());
}

TEST(ChampionshipStore, KnowsPlaceholders) {
  EXPECT_EQ(PlaceholderNumber("Winner 12"), 12);
  for (const char* text :
       {"Winner", "Winner ", "Winner 0", "Winner -1", "Winner 01", "Winner 1 ", "winner 1"}) {
    EXPECT_EQ(PlaceholderNumber(text), 0) << text;
  }
}

}  // namespace
}  // namespace kickwell
