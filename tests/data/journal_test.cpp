#include "data/journal.h"

#include <gtest/gtest.h>

#include "data/text_file.h"
#include "support/folders.h"

namespace kickwell {
namespace {

const std::string Journal(JournalName);
const std::string Temporary = "~kickwell-7-1.tmp";  ///< Of a process that has ended.

TEST(JournalTest, FinishesWhatItLists) {
  TestFolder folder;
  folder.Write("Leagues/Top.rec", "old");
  folder.Write("Leagues/Top.sco", "old");
  folder.Write(Temporary, "new");
  folder.Write(Journal, "Kickwell journal 1\n" + Temporary + "\nLeagues/Top.rec\n" +
                            "~kickwell-7-2.tmp\nLeagues/Top.leg\n"  // This renaming was made before.
                            "-\nLeagues/Top.sco\nEnd\n");
  EXPECT_FALSE(ChangeFiles(folder.Folder, {{"Leagues/Top.rec", "later"}}).Ok());
  EXPECT_TRUE(FinishChanges(folder.Folder).Ok());
  EXPECT_EQ(folder.Bytes("Leagues/Top.rec"), "new");
  EXPECT_FALSE(folder.Exists("Leagues/Top.sco"));
  EXPECT_FALSE(folder.Exists(Journal));
  EXPECT_TRUE(ChangeFiles(folder.Folder, {{"Leagues/Top.rec", "later"}}).Ok());
  EXPECT_EQ(folder.Bytes("Leagues/Top.rec"), "later");
}

TEST(JournalTest, IsIgnoredAndRenamedWhenItIsDamaged) {
  const std::string begin = "Kickwell journal 1\n", end = "End\n", line = Temporary + "\n";
  const std::string damaged[] = {
      begin + line + "Leagues/Top.rec\n",  // Cut short.
      begin + line + "Leagues/Top.rec\nEnd\nmore\n",
      line + "Leagues/Top.rec\n" + end,
      begin + "-\nstadiums.sim\n" + end,                 // No file of a championship.
      begin + "Teams/Top.rec\nLeagues/Top.rec\n" + end,  // No temporary file.
  };
  const char* const files[] = {"Leagues/Top.rec", "Teams/Top.rec", "stadiums.sim"};
  for (const std::string& text : damaged) {
    SCOPED_TRACE(text);
    TestFolder folder;
    for (const char* file : files) folder.Write(file, "old");
    folder.Write(Temporary, "new");
    folder.Write("unfinished.bad", "an earlier one");
    folder.Write(Journal, text);
    EXPECT_EQ(
        FinishChanges(folder.Folder).Failure,
        "The file /kickwell/unfinished.journal is damaged. It was ignored and renamed to unfinished-2.bad.");
    EXPECT_EQ(folder.Bytes("unfinished-2.bad"), text);
    for (const char* file : files) EXPECT_EQ(folder.Bytes(file), "old");
    EXPECT_TRUE(FinishChanges(folder.Folder).Ok());
  }
}

TEST(JournalTest, ChangesOnlyFilesOfChampionships) {
  TestFolder folder;
  for (const char* file :
       {"stadiums.sim", "Teams/A", "Leagues/../A.rec", "Leagues/A", "/A.rec", "Leagues/A\nB.rec"}) {
    EXPECT_FALSE(ChangeFiles(folder.Folder, {{"Leagues/Top.rec", "new"}, {file, "new"}}).Ok()) << file;
  }
  EXPECT_TRUE(folder.Files.All().empty());
}

TEST(JournalTest, NeitherDeletesNorReplacesAFolder) {
  TestFolder folder;
  const std::vector<ChangedFile> changes = {{"Leagues/Top.rec", "new"}, {"Leagues/Top.sco", {}}};
  folder.Write("Leagues/Top.sco/in the way", "");
  EXPECT_EQ(ChangeFiles(folder.Folder, changes).Failure,
            "The file /kickwell/Leagues/Top.sco can't be deleted: It is not a file.");
  folder.Write(Journal + "/in the way", "");
  EXPECT_FALSE(FinishChanges(folder.Folder).Ok());
  folder.Remove("Leagues");
  EXPECT_FALSE(ChangeFiles(folder.Folder, changes).Ok());
  EXPECT_EQ(folder.Files.All().size(), 1U);
}

TEST(JournalTest, AStartDeletesTemporaryFilesThatNobodyNeeds) {
  TestFolder folder;
  const std::string own = TemporaryName(folder.Files, 1), mine = "my.tmp", alike = "~kickwell-mine.tmp";
  for (const std::string& file : {Temporary, own, mine, alike}) folder.Write(file, "x");
  folder.Write("Leagues/Top.rec/in the way", "");
  folder.Write(Journal, "Kickwell journal 1\n" + Temporary + "\nLeagues/Top.rec\nEnd\n");
  EXPECT_FALSE(CleanUp(folder.Folder).Ok());
  EXPECT_TRUE(folder.Exists(Temporary));  // The journal needs it.
  folder.Remove("Leagues");
  folder.Remove(Journal);
  EXPECT_TRUE(CleanUp(folder.Folder).Ok());
  EXPECT_FALSE(folder.Exists(Temporary));
  for (const std::string& file : {own, mine, alike}) EXPECT_TRUE(folder.Exists(file)) << file;
}

}  // namespace
}  // namespace kickwell
