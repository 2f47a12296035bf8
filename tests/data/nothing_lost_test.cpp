// Nothing that users keep is lost: whatever changes files is stopped, cut off from power and made to fail at
// each of its operations; and what the journal does that makes this so.
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>

#include "data/championship_store.h"
#include "data/journal.h"
#include "data/text_file.h"
#include "engine/announcement.h"
#include "engine/file_recording.h"
#include "support/fakes.h"
#include "support/folders.h"
#include "support/matches.h"

namespace kickwell {
namespace {

using Files = std::map<std::filesystem::path, std::string>;

const std::string Journal(JournalName);
const std::string Temporary = "~kickwell-7-1.tmp";  ///< Of a process that has ended.

/// A program folder with two clubs, a league and a knock-out in the middle of play.
struct Season : TestFolder {
  Season() {
    for (const char* name : {"Rovers", "United"}) Write(std::string("Teams/") + name, AsWritten("75\n"));
    Write("Leagues/Cup.leg", AsWritten("Cup\n2\nRovers\nUnited\n1\nNP\nRovers\nUnited\n"));
    Write("Leagues/Cup.rec", AsWritten("Rovers\n0\n0\n0\n0\n0\n0\n0\nUnited\n0\n0\n0\n0\n0\n0\n0\n"));
    Write("Leagues/Cup.sco", AsWritten("Ann\nRovers\n1\n"));
    Write("Leagues/Cup.lrs", AsWritten("1\n2\n3\n4\n5\n"));
    Write("Tournies/Cup.trn", AsWritten("1\nCup\n2\nRovers\nUnited\nNP\nRovers\nUnited\nWinner 1\n"));
    Write("Tournies/Cup.lrs", AsWritten("1\n2\n3\n4\n5\n"));
  }
};

const ChampionshipId League{ChampionshipKind::League, "Cup"}, KnockOut{ChampionshipKind::KnockOut, "Cup"};

enum class Ending { Recorded, Left };

/// A match of the season in which Ann and Bo score. Fails with what the user is told.
FileResult Play(const ProgramFolder& folder, MatchMode mode, Ending ending) {
  MatchSession session = MakeSession(mode, 2, 0);
  session.LastScoringTeam = "Rovers";
  FakeDesktop desktop;
  FileRecording recording(folder, desktop, [](const std::string&) {});
  for (const char* scorer : {"Ann", "Bo"}) {
    session.LastScorer = scorer;
    recording.StoreScorer(session);
  }
  QuietRandom random;
  if (ending == Ending::Recorded) Announcement(session, random, recording).ShowResult();
  if (ending == Ending::Left) recording.MatchLeft();
  EXPECT_LE(desktop.Messages.size(), 1U);
  return {desktop.Messages.empty() ? "" : desktop.Messages.front()};
}

/// Everything that changes what users keep.
struct Change {
  const char* Name;
  std::function<FileResult(const ProgramFolder& folder)> Make;
};
const Change LeagueMatch{
    "league match", [](const auto& folder) { return Play(folder, MatchMode::League, Ending::Recorded); }};
const Change ReplacedLeague{"replaced league", [](const auto& folder) {
                              return ReplaceChampionship(folder, {League, {"Rovers"}, {}});
                            }};
const Change Changes[] = {
    LeagueMatch,
    ReplacedLeague,
    {"cup match", [](const auto& folder) { return Play(folder, MatchMode::KnockOut, Ending::Recorded); }},
    {"team", [](const auto& folder) { return CreateTeam(folder, "Rovers", "50"); }},
    {"deleted cup", [](const auto& folder) { return DeleteChampionship(folder, KnockOut); }},
};

Files After(const Change& change) {
  Season season;
  EXPECT_TRUE(change.Make(season.Folder).Ok()) << change.Name;
  return season.Files.All();
}

/// The season in which the change was stopped at an operation; none when the change was over before.
std::unique_ptr<Season> StoppedAt(int operation, const Change& change) {
  auto season = std::make_unique<Season>();
  season->Files.StopAt = operation;
  try {
    EXPECT_TRUE(change.Make(season->Folder).Ok()) << change.Name;
  } catch (const MemoryFiles::Stopped&) {
    return season;
  }
  return nullptr;
}

void Start(Season& season) {
  season.Files.Restart();
  EXPECT_TRUE(CleanUp(season.Folder).Ok());
}

const Files Before = Season().Files.All();

/// Which of `count` changes of folders survive a power cut: none, all, each alone, and all but one.
std::vector<std::set<std::size_t>> Survivors(std::size_t count) {
  std::set<std::size_t> all;
  for (std::size_t i = 0; i < count; ++i) all.insert(i);
  std::vector<std::set<std::size_t>> survivors = {{}, all};
  for (std::size_t i = 0; i < count; ++i) {
    survivors.push_back({i});
    survivors.push_back(all);
    survivors.back().erase(i);
  }
  return survivors;
}

/// What the next start makes of every power cut in the middle of the change.
std::vector<Files> AfterPowerCuts(const Change& change) {
  std::vector<Files> ends;
  for (int operation = 1; const auto stopped = StoppedAt(operation, change); ++operation) {
    for (const auto& survivors : Survivors(stopped->Files.Unflushed())) {
      const auto season = StoppedAt(operation, change);
      season->Files.CutPower(survivors);
      Start(*season);
      ends.push_back(season->Files.All());
    }
  }
  return ends;
}

TEST(NothingLost, APowerCutLeavesTheFilesBeforeOrAfterTheChange) {
  for (const Change& change : Changes) {
    const std::vector<Files> ends = AfterPowerCuts(change);
    const auto unchanged = std::ranges::count(ends, Before),
               changed = std::ranges::count(ends, After(change));
    EXPECT_TRUE(unchanged > 0 && changed > 0) << change.Name;
    EXPECT_EQ(unchanged + changed, std::ssize(ends)) << change.Name;
  }
}

TEST(NothingLost, AStartThatStopsOrFailsCanBeRepeated) {
  for (const Change& change : {LeagueMatch, ReplacedLeague}) {
    const Files after = After(change);
    int journals = 0;
    for (int operation = 1; const auto stopped = StoppedAt(operation, change); ++operation) {
      const bool recorded = stopped->Exists(Journal);
      if (!recorded && !stopped->Exists(std::string(SetAsideName))) continue;
      journals += recorded ? 1 : 0;
      Start(*stopped);
      for (int again = 1; again <= stopped->Files.Operations; ++again) {
        for (const int failures : {0, 1, 2}) {  // With none, this start stops.
          const auto season = StoppedAt(operation, change);
          season->Files.Restart();
          (failures == 0 ? season->Files.StopAt : season->Files.FailAt) = again;
          season->Files.FailCount = failures;
          try {
            (void)CleanUp(season->Folder);
          } catch (const MemoryFiles::Stopped&) {
          }
          Start(*season);
          EXPECT_EQ(season->Files.All(), recorded ? after : Before)
              << change.Name << " " << operation << ", start " << again;
        }
      }
    }
    EXPECT_GT(journals, 4) << change.Name;
  }
}

TEST(NothingLost, AFailingDiskIsToldAndTheChangeCanBeMadeAgain) {
  constexpr int ForEver = 1000000;
  const auto isTemporary = [](const auto& file) { return IsTemporaryName(file.first.filename().string()); };
  for (const Change& change : Changes) {
    const Files after = After(change);
    Season counting;
    EXPECT_TRUE(change.Make(counting.Folder).Ok());
    EXPECT_LE(counting.Files.Flushes, 12);  // Goals wait for no disk.
    const int operations = counting.Files.Operations;
    counting.Files.CutPower({});  // What was saved survives it.
    EXPECT_EQ(counting.Files.All(), after) << change.Name;
    for (int failAt = 1; failAt <= operations; ++failAt) {
      for (const int failures : {1, 2, 3, ForEver}) {
        SCOPED_TRACE(std::string(change.Name) + ", operation " + std::to_string(failAt));
        Season season;
        season.Files.FailAt = failAt;
        season.Files.FailCount = failures;
        const FileResult result = change.Make(season.Folder);
        const bool unfinished = season.Exists(Journal);
        EXPECT_TRUE(failures > 1 || unfinished || result.Ok() ||
                    std::ranges::none_of(season.Files.All(), isTemporary));
        Start(season);
        EXPECT_TRUE(season.Files.All() == after || (season.Files.All() == Before && !unfinished));
        EXPECT_TRUE(!result.Ok() || season.Files.All() == after);
        EXPECT_TRUE(season.Files.All() == after || change.Make(season.Folder).Ok());
        EXPECT_EQ(season.Files.All(), after);
      }
    }
  }
}

TEST(NothingLost, AMatchThatIsLeftLeavesNothing) {
  for (const MatchMode mode : {MatchMode::League, MatchMode::KnockOut}) {  // With goals before, and without.
    const Change leftMatch{"left match",
                           [mode](const auto& folder) { return Play(folder, mode, Ending::Left); }};
    EXPECT_EQ(After(leftMatch), Before);
    for (const Files& end : AfterPowerCuts(leftMatch)) EXPECT_EQ(end, Before);
    for (int failAt = 1; StoppedAt(failAt, leftMatch); ++failAt) {
      for (const int failures : {1, 2, 3}) {
        Season season;
        season.Files.FailAt = failAt;
        season.Files.FailCount = failures;
        (void)leftMatch.Make(season.Folder);
        season.Files.FailAt = 0;
        EXPECT_TRUE(LeagueMatch.Make(season.Folder).Ok());  // Without a start in between.
        Start(season);
        EXPECT_EQ(season.Files.All(), After(LeagueMatch)) << "failing at operation " << failAt;
      }
    }
  }
}

TEST(NothingLost, AnEndedChangeIsNotMadeAgain) {
  const auto play = [](Season& season) {
    EXPECT_TRUE(ReplacedLeague.Make(season.Folder).Ok());  // Deletes the scorers;
    EXPECT_TRUE(LeagueMatch.Make(season.Folder).Ok());     // those of the next match must stay.
  };
  Season played;
  play(played);
  for (const auto& survivors : Survivors(played.Files.Unflushed())) {
    Season season;
    play(season);
    season.Files.CutPower(survivors);
    Start(season);
    EXPECT_EQ(season.Files.All(), played.Files.All());
  }
}

TEST(NothingLost, NothingBuildsOnAnUnfinishedChange) {
  Season season;
  season.Write(Temporary, AsWritten("new\n"));
  season.Write("Leagues/Cup.rec/in the way", "");
  season.Write(Journal, "Kickwell journal 1\n" + Temporary + "\nLeagues/Cup.rec\nEnd\n");
  const Files before = season.Files.All();
  EXPECT_FALSE(ReadChampionship(season.Folder, League).Value);
  for (const Change& change : {LeagueMatch, ReplacedLeague}) {
    EXPECT_FALSE(change.Make(season.Folder).Ok()) << change.Name;
  }
  EXPECT_FALSE(AppendStandings(season.Folder, League, "City").Ok());
  EXPECT_EQ(season.Files.All(), before);
  season.Remove("Leagues/Cup.rec");
  EXPECT_TRUE(WriteChampionship(season.Folder, {KnockOut, {}, {}}).Ok());  // Finishes that change first.
  EXPECT_EQ(season.Bytes("Leagues/Cup.rec"), AsWritten("new\n"));
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

TEST(JournalTest, ChangesOnlyFilesOfChampionshipsAndNoFolder) {
  TestFolder folder;
  for (const char* file : {"Teams/A.rec", "Leagues/../A.rec", "Leagues/A", "Leagues/A\nB.rec"})
    EXPECT_FALSE(ChangeFiles(folder.Folder, {{"Leagues/Top.rec", "new"}, {file, "new"}}).Ok()) << file;
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
