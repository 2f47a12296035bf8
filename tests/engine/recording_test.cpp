#include "engine/recording.h"

#include <gtest/gtest.h>

#include "support/fakes.h"
#include "support/folders.h"
#include "support/matches.h"

namespace kickwell {
namespace {

class RecordingTest : public testing::Test {
 protected:
  /// A match of the championship "Cup" between Rovers (side 1 at its end) and United.
  static MatchSession Ended(MatchMode mode, int goals1, int goals2, const char* result) {
    MatchSession s;
    s.Setup = MakeSetup(mode);
    s.Setup.ChampionshipName = "Cup";
    s.Setup.MatchNumber = 1;
    s.Side1.Team = s.WinnerName = "Rovers";
    s.Side2.Team = s.LoserName = "United";
    s.Side1.Goals = s.Side1FinalGoals = s.WinnerGoals = goals1;
    s.Side2.Goals = s.Side2FinalGoals = s.LoserGoals = goals2;
    if (goals2 > goals1) {
      std::swap(s.WinnerName, s.LoserName);
      std::swap(s.WinnerGoals, s.LoserGoals);
    }
    s.ResultText = result;
    s.Venue = "The Mill, Leat";
    s.Attendance = 500;
    s.AttendancePercent = 50;
    return s;
  }

  void Score(MatchMode mode, const char* player, const char* team) {
    MatchSession s = Ended(mode, 1, 0, "");
    s.LastScorer = player;
    s.LastScoringTeam = team;
    recording_.StoreScorer(s);
  }

  TestFolder folder_;
  FakeDesktop desktop_;
  std::vector<std::string> selected_;
  FileRecording recording_{folder_.Folder, desktop_,
                           [this](const std::string& file) { selected_.push_back(file); }};
};

TEST_F(RecordingTest, FriendliesAreNotRecorded) {
  Score(MatchMode::Friendly, "Ann", "Rovers");
  recording_.StoreResult(Ended(MatchMode::Friendly, 1, 0, "Rovers"));
  recording_.StoreLeagueResult(Ended(MatchMode::Friendly, 1, 0, "Rovers"));
  EXPECT_TRUE(std::filesystem::is_empty(folder_.Folder.Root));
}

TEST_F(RecordingTest, GoalsAddUpByPlayersName) {
  Score(MatchMode::League, "Ann", "Rovers");
  EXPECT_EQ(ReadBytes(folder_ / "Leagues/Cup.sco"), AsWritten("Ann\nRovers\n1\n"));
  Score(MatchMode::League, "Bo", "United");
  Score(MatchMode::League, "Ann", "United");  // A namesake: one tally, the first team stays.
  EXPECT_EQ(ReadBytes(folder_ / "Leagues/Cup.sco"), AsWritten("Ann\nRovers\n2\nBo\nUnited\n1\n"));
  WriteBytes(folder_ / "Tournies/Cup.sco", "Ann\nRovers\n2147483647\n");  // The largest figure stays.
  Score(MatchMode::KnockOut, "Ann", "Rovers");
  EXPECT_EQ(ReadBytes(folder_ / "Tournies/Cup.sco"), AsWritten("Ann\nRovers\n2147483647\n"));
  std::filesystem::remove(folder_ / "Tournies/Cup.sco");
  Score(MatchMode::KnockOut, "Cy", "Rovers");
  EXPECT_EQ(ReadBytes(folder_ / "Tournies/Cup.sco"), AsWritten("Cy\nRovers\n1\n"));
}

TEST_F(RecordingTest, LeagueMatchesUpdateStandingsResultsAndMarks) {
  WriteBytes(
      folder_ / "Leagues/Cup.leg",
      "Cup\n3\nAlbion\nRovers\nUnited\n3\nNP\nRovers\nAlbion\nNP\nRovers\nUnited\nNP\nAlbion\nUnited\n");
  const auto play = [this](int goals1, int goals2, const char* result) {
    const MatchSession s = Ended(MatchMode::League, goals1, goals2, result);
    recording_.StoreResult(s);
    recording_.StoreLeagueResult(s);
  };
  play(3, 1, "Rovers");
  EXPECT_EQ(
      ReadBytes(folder_ / "Leagues/Cup.rec"),
      AsWritten("Albion\n0\n0\n0\n0\n0\n0\n0\nRovers\n1\n1\n0\n0\n3\n1\n3\nUnited\n1\n0\n0\n1\n1\n3\n0\n"));
  EXPECT_EQ(
      ReadBytes(folder_ / "Leagues/Cup.leg"),
      AsWritten(
          "Cup\n3\nAlbion\nRovers\nUnited\n3\nNP\nRovers\nAlbion\nP\nRovers\nUnited\nNP\nAlbion\nUnited\n"));
  EXPECT_EQ(ReadBytes(folder_ / "Leagues/Cup.lrs"),
            AsWritten("Match 1:\nRovers 3 vs United 1\nVenue: The Mill, Leat\nTotal Attendence: 500 (50%)\n"
                      "Winner: Rovers\n"));
  play(2, 2, "Match Tied");
  play(0, 1, "United");
  EXPECT_EQ(
      ReadBytes(folder_ / "Leagues/Cup.rec"),
      AsWritten("Albion\n0\n0\n0\n0\n0\n0\n0\nRovers\n3\n1\n1\n1\n5\n4\n4\nUnited\n3\n1\n1\n1\n4\n5\n4\n"));
  const Lines log = ReadResults(folder_.Folder, ChampionshipKind::League, "Cup");
  ASSERT_EQ(log.size(), 17U);
  EXPECT_EQ(log[5] + log[7] + log[10] + log[13],
            "Rovers 2 vs United 2Winner: Match TiedRovers 0 vs United 1");
  EXPECT_EQ(selected_, std::vector<std::string>(3, "Cup.leg"));
}

TEST_F(RecordingTest, AKnockOutWinnerMovesOnAndAShootOutIsTold) {
  WriteBytes(folder_ / "Tournies/Cup.trn",
             "3\nCup\n4\nRovers\nUnited\nX\nY\nNP\nRovers (By Toss)\nUnited\nWinner 1\nNP\nX\nY\nWinner "
             "2\nNP\nWinner 1\n"
             "Winner 2\nWinner 3\n");
  MatchSession s = Ended(MatchMode::KnockOut, 1, 1, "United (By Toss)");
  s.DecidedByShootOut = true;
  s.Side1Penalties = s.Side2Penalties = 10;
  recording_.StoreLeagueResult(s);
  EXPECT_EQ(ReadBytes(folder_ / "Tournies/Cup.trn"),
            AsWritten("3\nCup\n4\nRovers\nUnited\nX\nY\nP\nRovers (By Toss)\nUnited\nUnited (By "
                      "Toss)\nNP\nX\nY\nWinner 2\n"
                      "NP\nUnited (By Toss)\nWinner 2\nWinner 3\n"));
  EXPECT_EQ(
      ReadBytes(folder_ / "Tournies/Cup.lrs"),
      AsWritten("Match 1:\nRovers 1(10) vs United 1(10)\nVenue: The Mill, Leat\nTotal Attendence: 500 (50%)\n"
                "Winner: United (By Toss)\n"));
  EXPECT_FALSE(std::filesystem::exists(folder_ / "Tournies/Cup.rec"));
  EXPECT_EQ(selected_, std::vector<std::string>{"Cup.trn"});
}

TEST_F(RecordingTest, AShootOutWinnerOnSideTwoGoesWhereHisNumberWaits) {
  const std::string before = "2\nCup\n2\nX\nY\nNP\nRovers\nUnited\nWinner 1\nNP\nX\nWinner 4\nWinner 2\n";
  WriteBytes(folder_ / "Tournies/Cup.trn", before);
  MatchSession s = Ended(MatchMode::KnockOut, 1, 1, "United");
  s.Setup.MatchNumber = 4;
  s.DecidedByShootOut = true;
  s.Side1Penalties = 4;
  s.Side2Penalties = 5;
  recording_.StoreLeagueResult(s);
  EXPECT_EQ(ReadBytes(folder_ / "Tournies/Cup.trn"),
            AsWritten("2\nCup\n2\nX\nY\nP\nRovers\nUnited\nUnited\nNP\nX\nUnited\nWinner 2\n"));
  EXPECT_EQ(
      ReadBytes(folder_ / "Tournies/Cup.lrs"),
      AsWritten("Match 4:\nRovers 1(4) vs United 1(5)\nVenue: The Mill, Leat\nTotal Attendence: 500 (50%)\n"
                "Winner: United\n"));
}

TEST_F(RecordingTest, AFileThatCannotBeSavedIsTold) {
  std::filesystem::create_directories(folder_ / "Leagues/Cup.sco");
  Score(MatchMode::League, "Ann", "Rovers");
  ASSERT_EQ(desktop_.Messages.size(), 1U);
  EXPECT_TRUE(desktop_.Messages[0].starts_with("!: The file "));
}

}  // namespace
}  // namespace kickwell
