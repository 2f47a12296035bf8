#include "data/journal.h"

#include <gtest/gtest.h>

#include "data/file_names.h"
#include "support/folders.h"

namespace kickwell {
namespace {

constexpr const char* Journal = "unfinished.journal";

TEST(Journal, FinishesWhatItTellsOf) {
  const TestFolder folder;
  WriteBytes(folder / "Leagues/Top.rec", "old");
  WriteBytes(folder / "Leagues/Top.sco", "old");
  WriteBytes(folder / "~kickwell-4999999-1.tmp", "new");
  WriteBytes(folder / Journal,
             "Kickwell journal 1\n~kickwell-4999999-1.tmp\nLeagues/Top.rec\n~kickwell-4999999-2.tmp\n"
             "Leagues/Top.leg\n-\nLeagues/Top.sco\nEnd\n");  // The second step has been made.
  EXPECT_FALSE(ChangeFiles(folder.Folder, {{"Leagues/Top.rec", "later"}}).Ok());
  EXPECT_TRUE(FinishChanges(folder.Folder).Ok());
  EXPECT_EQ(ReadBytes(folder / "Leagues/Top.rec"), "new");
  EXPECT_FALSE(std::filesystem::exists(folder / "Leagues/Top.sco"));
  EXPECT_FALSE(std::filesystem::exists(folder / Journal));
  EXPECT_TRUE(ChangeFiles(folder.Folder, {{"Leagues/Top.rec", "later"}}).Ok());
  EXPECT_EQ(ReadBytes(folder / "Leagues/Top.rec"), "later");
}

TEST(Journal, IsSetAsideWhenItMakesNoSense) {
  const std::string begin = "Kickwell journal 1\n", temporary = "~kickwell-4999999-1.tmp\n", end = "End\n";
  const std::string senseless[] = {
      "",
      std::string(100, '\0'),
      begin,
      begin + temporary + "Leagues/Top.rec\n",  // Cut short.
      begin + temporary + "Leagues/Top.rec\nEnd",
      begin + temporary + "Leagues/Top.rec\nEnd\nmore\n",
      temporary + "Leagues/Top.rec\n" + end,
      begin + temporary + "Teams/Top.rec\n" + end,  // No file of a championship.
      begin + temporary + "Leagues/Top.txt\n" + end,
      begin + temporary + "Leagues/../Top.rec\n" + end,
      begin + temporary + "Leagues/a/../../Top.rec\n" + end,
      begin + temporary + "/Leagues/Top.rec\n" + end,
      begin + temporary + "../Leagues/Top.rec\n" + end,
      begin + "-\nstadiums.sim\n" + end,
      begin + "Teams/Top.rec\nLeagues/Top.rec\n" + end,  // No temporary file.
      begin + "../~kickwell-4999999-1.tmp\nLeagues/Top.rec\n" + end,
      begin + "~kickwell-x-1.tmp\nLeagues/Top.rec\n" + end,
  };
  const char* const files[] = {"Leagues/Top.rec", "Top.rec", "Teams/Top.rec", "Leagues/Top.txt",
                               "stadiums.sim"};
  for (const std::string& text : senseless) {
    const TestFolder folder;
    for (const char* file : files) WriteBytes(folder / file, "old");
    WriteBytes(folder / "~kickwell-4999999-1.tmp", "new");
    WriteBytes(folder / Journal, text);
    EXPECT_FALSE(FinishChanges(folder.Folder).Ok()) << text;
    EXPECT_EQ(ReadBytes(folder / "unfinished.bad"), text);
    for (const char* file : files) EXPECT_EQ(ReadBytes(folder / file), "old") << text;
    EXPECT_TRUE(FinishChanges(folder.Folder).Ok());
  }
}

TEST(Journal, ChangesOnlyFilesOfChampionships) {
  const TestFolder folder;
  for (const char* file :
       {"stadiums.sim", "Teams/A", "Leagues/../A.rec", "Leagues/A", "/A.rec", "Leagues/A\nB.rec"}) {
    EXPECT_FALSE(ChangeFiles(folder.Folder, {{"Leagues/Top.rec", "new"}, {file, "new"}}).Ok()) << file;
  }
  EXPECT_TRUE(std::filesystem::is_empty(folder.Folder.Root));
  std::filesystem::create_directories(folder / "Leagues/Top.sco");  // No file that could be deleted.
  EXPECT_FALSE(ChangeFiles(folder.Folder, {{"Leagues/Top.rec", "new"}, {"Leagues/Top.sco", {}}}).Ok());
  EXPECT_EQ(ListFiles(folder.Folder.Leagues()), std::vector<std::string>{});
}

TEST(Journal, AFolderInItsPlaceIsSetAsideToo) {
  const TestFolder folder;
  WriteBytes(folder / "unfinished.bad", "earlier");
  std::filesystem::create_directory(folder / Journal);
  EXPECT_FALSE(FinishChanges(folder.Folder).Ok());
  EXPECT_TRUE(std::filesystem::is_directory(folder / "unfinished-2.bad"));
  EXPECT_TRUE(ChangeFiles(folder.Folder, {{"Leagues/Top.rec", "new"}}).Ok());
}

TEST(Journal, LeftoversOfDeadProcessesGoWhenNoJournalNeedsThem) {
  const TestFolder folder;
  const std::string own = TemporaryName(1);
  for (const std::string& file : {std::string("~kickwell-4999999-0.tmp"), own, std::string("my.tmp"),
                                  std::string("~kickwell-mine.tmp")}) {
    WriteBytes(folder / file, "x");
  }
  std::filesystem::create_directories(folder / "Leagues/Top.rec/in the way");
  WriteBytes(folder / Journal, "Kickwell journal 1\n~kickwell-4999999-0.tmp\nLeagues/Top.rec\nEnd\n");
  EXPECT_FALSE(CleanUp(folder.Folder).Ok());
  EXPECT_TRUE(std::filesystem::exists(folder / "~kickwell-4999999-0.tmp"));
  std::filesystem::remove(folder / Journal);
  EXPECT_TRUE(CleanUp(folder.Folder).Ok());
  EXPECT_EQ(ListFiles(folder.Folder.Root), (std::vector<std::string>{"my.tmp", own, "~kickwell-mine.tmp"}));
}

}  // namespace
}  // namespace kickwell
