#include "engine/file_recording.h"

#include "engine/announcement.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

class RecordingTest : public ScreenTest {
 protected:
  /// A match of the championship "Cup" between Rovers (side 1 at its end) and United.
  static MatchSession Ended(MatchMode mode, int goals1, int goals2) {
    MatchSession s;
    s.Setup = MakeSetup(mode);
    s.Setup.ChampionshipName = "Cup";
    s.Setup.MatchNumber = 1;
    s.Side1.Team = "Rovers";
    s.Side2.Team = "United";
    s.Side1.Goals = s.Side1.FinalGoals = goals1;
    s.Side2.Goals = s.Side2.FinalGoals = goals2;
    s.Venue = "The Mill, Leat";
    s.Attendance = 500;
    s.AttendancePercent = 50;
    return s;
  }

  /// The bytes of the scorers' file after a goal.
  std::string Scored(MatchMode mode, const char* player, const char* team) {
    MatchSession s = Ended(mode, 1, 0);
    s.LastScorer = player;
    s.LastScoringTeam = team;
    file_.StoreScorer(s);
    return Bytes(mode == MatchMode::League ? "Leagues/Cup.sco" : "Tournies/Cup.sco");
  }

  const std::string crowd_ = "\nVenue: The Mill, Leat\nTotal Attendence: 500 (50%)\nWinner: ";
  Texts selected_;
  FileRecording file_{folder_.Folder, desktop_,
                      [this](const std::string& file) { selected_.push_back(file); }};
};

TEST_F(RecordingTest, GoalsAddUpByPlayersNameAndFriendliesAreNotRecorded) {
  Scored(MatchMode::Friendly, "Ann", "Rovers");
  file_.StoreResult(Ended(MatchMode::Friendly, 1, 0));
  file_.StoreLeagueResult(Ended(MatchMode::Friendly, 1, 0));
  EXPECT_TRUE(std::filesystem::is_empty(folder_.Folder.Root));
  EXPECT_EQ(Scored(MatchMode::League, "Ann", "Rovers"), AsWritten("Ann\nRovers\n1\n"));
  Scored(MatchMode::League, "Bo", "United");
  EXPECT_EQ(Scored(MatchMode::League, "Ann", "United"),  // A namesake: one tally, the first team stays.
            AsWritten("Ann\nRovers\n2\nBo\nUnited\n1\n"));
  Write("Tournies/Cup.sco", "Ann\nRovers\n2147483647\n");  // The largest figure stays.
  EXPECT_EQ(Scored(MatchMode::KnockOut, "Ann", "Rovers"), AsWritten("Ann\nRovers\n2147483647\n"));
  std::filesystem::remove(folder_ / "Tournies/Cup.sco");
  EXPECT_EQ(Scored(MatchMode::KnockOut, "Cy", "Rovers"), AsWritten("Cy\nRovers\n1\n"));
}

TEST_F(RecordingTest, LeagueMatchesUpdateStandingsResultsAndMarks) {
  const std::string head = "Cup\n3\nAlbion\nRovers\nUnited\n3\nNP\nRovers\nAlbion\n",
                    tail = "Rovers\nUnited\nNP\nAlbion\nUnited\n", noMatch = "Albion\n0\n0\n0\n0\n0\n0\n0\n";
  Write("Leagues/Cup.leg", head + "NP\n" + tail);
  const auto play = [this](int goals1, int goals2) {
    MatchSession s = Ended(MatchMode::League, goals1, goals2);
    Announcement(s, random_, file_).ShowResult();
    return Bytes("Leagues/Cup.rec");
  };
  EXPECT_EQ(play(3, 1), AsWritten(noMatch + "Rovers\n1\n1\n0\n0\n3\n1\n3\nUnited\n1\n0\n0\n1\n1\n3\n0\n"));
  EXPECT_EQ(Bytes("Leagues/Cup.leg"), AsWritten(head + "P\n" + tail));
  const std::string first = "Match 1:\nRovers 3 vs United 1" + crowd_ + "Rovers\n";
  EXPECT_EQ(Bytes("Leagues/Cup.lrs"), AsWritten(first));
  play(2, 2);
  EXPECT_EQ(play(0, 1), AsWritten(noMatch + "Rovers\n3\n1\n1\n1\n5\n4\n4\nUnited\n3\n1\n1\n1\n4\n5\n4\n"));
  EXPECT_EQ(Bytes("Leagues/Cup.lrs"),
            AsWritten(first + "\nMatch 1:\nRovers 2 vs United 2" + crowd_ +
                      "Match Tied\n\nMatch 1:\nRovers 0 vs United 1" + crowd_ + "United\n"));
  EXPECT_EQ(Joined(selected_), "Cup.leg|Cup.leg|Cup.leg");
}

TEST_F(RecordingTest, AKnockOutWinnerMovesOnToWhereHisNumberWaitsAndAShootOutIsTold) {
  const std::string head = "3\nCup\n4\nRovers\nUnited\nX\nY\n";
  Write("Tournies/Cup.trn", head +
                                "NP\nRovers (By Toss)\nUnited\nWinner 1\nNP\nX\nWinner 4\nWinner 2\n"
                                "NP\nWinner 1\nY\nWinner 3\n");
  MatchSession s = Ended(MatchMode::KnockOut, 1, 1);
  s.Setup.MatchNumber = 4;
  s.ResultText = "United (By Toss)";
  s.DecidedByShootOut = true;
  s.Side1.Penalties = s.Side2.Penalties = 10;
  file_.StoreResult(s);  // There is no table.
  file_.StoreLeagueResult(s);
  s.Setup.MatchNumber = 1;
  s.ResultText = "United";
  s.Side1.Penalties = 9;
  file_.StoreLeagueResult(s);
  EXPECT_EQ(Bytes("Tournies/Cup.trn"),
            AsWritten(head + "P\nRovers (By Toss)\nUnited\nUnited\nNP\nX\nUnited (By Toss)\nWinner 2\n"
                             "NP\nUnited\nY\nWinner 3\n"));
  EXPECT_EQ(Bytes("Tournies/Cup.lrs"), AsWritten("Match 4:\nRovers 1(10) vs United 1(10)" + crowd_ +
                                                 "United (By Toss)\n\n"
                                                 "Match 1:\nRovers 1(9) vs United 1(10)" +
                                                 crowd_ + "United\n"));
  EXPECT_FALSE(Exists("Tournies/Cup.rec"));
  EXPECT_EQ(Joined(selected_), "Cup.trn|Cup.trn");
}

}  // namespace
}  // namespace kickwell
