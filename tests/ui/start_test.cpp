#include <gtest/gtest.h>

#include "data/file_names.h"
#include "support/fakes.h"
#include "support/folders.h"
#include "support/scripted_random.h"
#include "ui/app.h"

namespace kickwell {
namespace {

TEST(Start, FinishesWhatACrashInterruptedAndTellsOfAJournalWithoutSense) {
  const TestFolder folder;
  FakeDesktop desktop;
  QuietRandom random;
  WriteBytes(folder / "Leagues/Top.rec", "old");
  WriteBytes(folder / "~kickwell-4999999-1.tmp", "new");
  WriteBytes(folder / "~kickwell-4999999-0.tmp", "left over");
  WriteBytes(folder / "unfinished.journal",
             "Kickwell journal 1\n~kickwell-4999999-1.tmp\nLeagues/Top.rec\nEnd\n");
  App(folder.Folder, desktop, random).Start();
  EXPECT_EQ(ReadBytes(folder / "Leagues/Top.rec"), "new");
  EXPECT_EQ(ListFiles(folder.Folder.Root), std::vector<std::string>{});
  EXPECT_TRUE(desktop.Taken().empty());

  WriteBytes(folder / "unfinished.journal", "Leagues/Top.rec");
  App(folder.Folder, desktop, random).Start();
  EXPECT_EQ(ListFiles(folder.Folder.Root), std::vector<std::string>{"unfinished.bad"});
  EXPECT_EQ(desktop.Taken().size(), 1U);
}

}  // namespace
}  // namespace kickwell
