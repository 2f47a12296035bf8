#include <gtest/gtest.h>

#include "data/stadium_store.h"
#include "data/team_store.h"
#include "support/folders.h"

namespace kickwell {
namespace {

TEST(TeamStore, WritesAndReadsSquads) {
  const TestFolder folder;
  ASSERT_TRUE(CreateTeam(folder.Folder, "Rovers", "77").Ok());
  EXPECT_EQ(ReadBytes(folder / "Teams/Rovers"), AsWritten("77\n"));
  EXPECT_EQ(LoadTeam(folder.Folder, "Rovers"), (Team{"Rovers", "77", {}}));

  const Team team{"Rovers", "78", {{"J. Smith", "80", "GK"}, {"O'Dell", "75", "FDC"}}};
  ASSERT_TRUE(SaveTeam(folder.Folder, team).Ok());
  EXPECT_EQ(ReadBytes(folder / "Teams/Rovers"), AsWritten("78\nJ. Smith\n80\nGK\nO'Dell\n75\nFDC\n"));
  EXPECT_EQ(LoadTeam(folder.Folder, "Rovers"), team);
  EXPECT_EQ(ListTeams(folder.Folder), std::vector<std::string>{"Rovers"});  // No temporary file among them.
}

TEST(TeamStore, TakesWhatADamagedFileHolds) {
  const TestFolder folder;
  WriteBytes(folder / "Teams/Cut", "50\nA\n60\nGK\nB\n61");
  EXPECT_EQ(LoadTeam(folder.Folder, "Cut"), (Team{"Cut", "50", {{"A", "60", "GK"}}}));
  WriteBytes(folder / "Teams/Empty", "");
  EXPECT_EQ(LoadTeam(folder.Folder, "Empty"), (Team{"Empty", "", {}}));
  EXPECT_EQ(LoadTeam(folder.Folder, "Missing"), std::nullopt);
}

TEST(TeamStore, NeverLeavesItsFolder) {
  const TestFolder folder;
  WriteBytes(folder / "stadiums.sim", "0\n");
  WriteBytes(folder / "Teams/F.C.", "50\n");
  EXPECT_EQ(LoadTeam(folder.Folder, "../stadiums.sim"), std::nullopt);
  EXPECT_TRUE(LoadTeam(folder.Folder, "F.C.").has_value());  // Made by hand where such a name can be.
  EXPECT_EQ(CreateTeam(folder.Folder, "../stadiums.sim", "1").Failure,
            "../stadiums.sim can't be used as a file name.");
  EXPECT_FALSE(SaveTeam(folder.Folder, {"CON", "1", {}}).Ok());
  EXPECT_FALSE(DeleteTeam(folder.Folder, "../stadiums.sim").Ok());
  EXPECT_EQ(ReadBytes(folder / "stadiums.sim"), "0\n");
}

TEST(TeamStore, DeletingATeamDeletesTheSettingsToo) {
  const TestFolder folder;
  WriteBytes(folder / "Teams/A", "1\n");
  WriteBytes(folder / "Teams/B", "1\n");
  WriteBytes(folder / "settings.cfg", "");
  EXPECT_TRUE(DeleteTeam(folder.Folder, "A").Ok());
  EXPECT_FALSE(std::filesystem::exists(folder / "settings.cfg"));
  EXPECT_TRUE(DeleteTeam(folder.Folder, "B").Ok());
  EXPECT_TRUE(ListTeams(folder.Folder).empty());
  EXPECT_TRUE(ListTeams({folder / "missing"}).empty());
}

TEST(StadiumStore, WritesAndReadsTheList) {
  const TestFolder folder;
  EXPECT_FALSE(StadiumListExists(folder.Folder));
  EXPECT_TRUE(LoadStadiums(folder.Folder).empty());
  const std::vector<Stadium> stadiums = {{"Rovers", "The Mill", "Leat", "4000"},
                                         {"Neutral", "Bowl", "Oss", "60000"}};
  ASSERT_TRUE(SaveStadiums(folder.Folder, stadiums).Ok());
  EXPECT_EQ(ReadBytes(folder / "stadiums.sim"),
            AsWritten("2\nRovers\nThe Mill\nLeat\n4000\nNeutral\nBowl\nOss\n60000\n"));
  EXPECT_EQ(LoadStadiums(folder.Folder), stadiums);
}

TEST(StadiumStore, TakesTheCompleteRecordsOfADamagedList) {
  const TestFolder folder;
  const std::string records = "A\nB\nC\n1\nD\nE\nF\n2\nG\nH";
  const std::pair<const char*, std::size_t> counts[] = {
      {"0", 0},    {"1", 1}, {"2", 2}, {"3", 2}, {"1000000000", 2}, {"99999999999999999999", 2},
      {"many", 2}, {"-1", 2}};
  for (const auto& [count, expected] : counts) {
    WriteBytes(folder / "stadiums.sim", std::string(count) + "\n" + records);
    EXPECT_EQ(LoadStadiums(folder.Folder).size(), expected) << count;
  }
  WriteBytes(folder / "stadiums.sim", "");
  EXPECT_TRUE(LoadStadiums(folder.Folder).empty());
  EXPECT_TRUE(StadiumListExists(folder.Folder));
}

}  // namespace
}  // namespace kickwell
