// What the stores take from damaged files, and which files they leave alone or take along.
#include <gtest/gtest.h>

#include "data/championship_store.h"
#include "data/stadium_store.h"
#include "data/team_store.h"
#include "support/folders.h"

namespace kickwell {
namespace {

using namespace std::string_literals;

const ChampionshipId Top{ChampionshipKind::League, "Top"}, Cup{ChampionshipKind::KnockOut, "Cup"};

class StoresTest : public testing::Test {
 protected:
  Championship Read(const ChampionshipId& id) const { return ReadChampionship(folder_, id).Value.value(); }

  TestFolder at_;
  const ProgramFolder& folder_ = at_.Folder;
};

TEST_F(StoresTest, ATeamOfAnyNameIsReadSavedAndDeletedButNoneIsMade) {
  at_.Write("Teams/F.C.", "50\nA\n60\nGK\nB\n61");  // The last player is cut short.
  at_.Write("settings.cfg", "");
  const Team team = LoadTeam(folder_, "F.C.").Value.value();
  EXPECT_EQ(team.Players, (std::vector<Player>{{"A", "60", "GK"}}));
  EXPECT_TRUE(SaveTeam(folder_, team).Ok());
  EXPECT_EQ(at_.Bytes("Teams/F.C."), AsWritten("50\nA\n60\nGK\nB\n61\n"));
  at_.Write("Teams/F.C.", "50\nA\n60\nGK\n\n \n\n\n\n\n\n");  // Blank lines are no players.
  EXPECT_EQ(LoadTeam(folder_, "F.C.").Value, (Team{"F.C.", "50", {{"A", "60", "GK"}}}));
  EXPECT_TRUE(CreateTeam(folder_, "F.C.", "05").Ok());  // In its place.
  EXPECT_EQ(at_.Bytes("Teams/F.C."), AsWritten("05\n"));
  EXPECT_FALSE(CreateTeam(folder_, "CON", "1").Ok());
  EXPECT_TRUE(DeleteTeam(folder_, "F.C.").Ok());
  EXPECT_TRUE(at_.Files.All().empty());
}

TEST_F(StoresTest, AWrongCountOfStadiumsGivesTheCompleteOnes) {
  const std::pair<const char*, std::size_t> counts[] = {
      {"0", 0}, {" 1\t\u00A0", 1}, {"2", 2}, {"3", 2}, {"99999999999999999999", 2}, {"many", 2}, {"-1", 2}};
  for (const auto& [count, expected] : counts) {
    at_.Write("stadiums.sim", std::string(count) + "\nA\nB\nC\n1\nD\nE\nF\n2\nG\nH");
    EXPECT_EQ(LoadStadiums(folder_).Value.size(), expected) << count;
  }
  EXPECT_TRUE(SaveStadiums(folder_, {}).Ok());
  EXPECT_EQ(at_.Bytes("stadiums.sim"), AsWritten("0\nG\nH\n"));  // The rest is kept.
}

TEST_F(StoresTest, ADamagedChampionshipGivesItsCompleteTeamsAndFixtures) {
  const std::tuple<const char*, std::size_t, std::size_t> leagues[] = {
      {"L\n1000000000\nA\nB\n2", 3, 0},
      {"L\n2\nA\nB\n1000000000\nNP\nA\nB\nNP\nA", 2, 1},
      {"L\n2\nA\nB\nmany\nNP\nA\nB", 2, 0},
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

TEST_F(StoresTest, StandingsHaveARowForEveryTeamAndANewTeamsStandBehindAllRows) {
  at_.Write("Leagues/Top.rec",
            "A\n1x\n 1\n0\n0\n2\n1\n3\nB\n1");  // A figure is no number; B's row is cut short.
  const std::vector<StandingsRow> complete = {{"A", 0, 1, 0, 0, 2, 1, 3}, {"B", 1}, {"B"}};
  EXPECT_EQ(ReadStandings(folder_, Top, {"A", "B", "B"}).Value, complete);  // As often as it is listed.
  EXPECT_EQ(ReadStandings(folder_, Top, {"A"}).Value.size(), 1U);
  at_.Files.Unreadable = {at_ / "Leagues/Top.rec"};
  EXPECT_FALSE(AppendStandings(folder_, Top, "C").Ok());
  at_.Files.Unreadable.clear();
  EXPECT_TRUE(AppendStandings(folder_, Top, "C").Ok());
  EXPECT_EQ(at_.Bytes("Leagues/Top.rec"),
            AsWritten("A\n1x\n 1\n0\n0\n2\n1\n3\nB\n1\n0\n0\n0\n0\n0\n0\nC\n0\n0\n0\n0\n0\n0\n0\n"));
}

TEST_F(StoresTest, NoNameLeadsOutOfTheFolder) {
  for (const std::string& name : {"../../x"s, "/x"s, ".."s, "a/../../x"s, "a\0/x"s, ""s}) {
    const ChampionshipId id{ChampionshipKind::League, name};
    EXPECT_FALSE(SaveTeam(folder_, {name, "1", {}}).Ok());
    EXPECT_FALSE(DeleteTeam(folder_, name).Ok());
    EXPECT_FALSE(LoadTeam(folder_, name).Value || TeamExists(folder_, name));
    EXPECT_FALSE(ReadChampionship(folder_, id).Value || ChampionshipExists(folder_, id));
    (void)WriteChampionship(folder_, {id, {}, {}});
    (void)AddGoals(folder_, id, {name, name, 1});
  }
  EXPECT_GT(at_.Files.Touched.size(), 3U);
  for (const std::filesystem::path& path : at_.Files.Touched) {
    const std::string place = (path.lexically_normal() / "").string();
    EXPECT_TRUE(place.starts_with(folder_.Root.string() + "/")) << path;
  }
}

}  // namespace
}  // namespace kickwell
