#include "engine/file_recording.h"

#include "engine/announcement.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

/// Records matches of the championship "Cup" between Rovers and United, most of them as match 1.
class FileRecordingTest : public ScreenTest {
 protected:
  void Play(MatchMode mode, int rovers, int united) {
    MatchSession s = MakeSession(mode, rovers, united);
    Announcement(s, random_, file_).ShowResult();
  }

  void Score(MatchMode mode, const std::string& player, const std::string& team) {
    MatchSession s = MakeSession(mode);
    s.LastScorer = player;
    s.LastScoringTeam = team;
    file_.StoreScorer(s);
  }

  void ExpectFile(const std::string& file, const std::string& text) const {
    EXPECT_EQ(Bytes(file), AsWritten(text));
  }

  const std::string crowd_ = "Venue: The Mill, Leat\nTotal Attendence: 500 (50%)\n";
  Texts selectedAgain_;
  FileRecording file_{folder_.Folder, desktop_,
                      [this](const std::string& file) { selectedAgain_.push_back(file); }};
};

TEST_F(FileRecordingTest, GoalsOfChampionshipsAddUpByThePlayersName) {
  Score(MatchMode::Friendly, "Ann", "Rovers");
  EXPECT_TRUE(folder_.Files.All().empty());
  Score(MatchMode::League, "Ann", "Rovers");
  Score(MatchMode::League, "Bo", "United");
  Score(MatchMode::League, "Ann", "United");  // A namesake: one tally, the first team stays.
  ExpectFile("Leagues/Cup.sco", "Ann\nRovers\n2\nBo\nUnited\n1\n");
  Write("Tournies/Cup.sco", "Cy\nRovers\n2147483647\nCy\nUnited\nno\nDi\nUnited");
  Score(MatchMode::KnockOut, "Cy", "Rovers");  // Every tally of that name; the largest stays.
  Score(MatchMode::KnockOut, "Ed", "Rovers");  // Before what is cut short.
  ExpectFile("Tournies/Cup.sco", "Cy\nRovers\n2147483647\nCy\nUnited\n1\nEd\nRovers\n1\nDi\nUnited\n");
}

TEST_F(FileRecordingTest, ALeagueMatchUpdatesStandingsResultsAndItsFixture) {
  const std::string teams = "Cup\n3\nAlbion\nRovers\nUnited\n3\n";
  const std::string other = "NP\nRovers\nAlbion\nNP\nRovers (By Toss)\nUnited\n";  // A league has no tosses.
  Write("Leagues/Cup.leg", teams + other + "NP\nRovers\nUnited\n");
  Write("Leagues/Cup.lrs", "");
  Play(MatchMode::League, 3, 1);
  ExpectFile("Leagues/Cup.leg", teams + other + "P\nRovers\nUnited\n");
  Play(MatchMode::League, 2, 2);
  ExpectFile("Leagues/Cup.lrs", "Match 1:\nRovers 3 vs United 1\n" + crowd_ + "Winner: Rovers\n\n" +
                                    "Match 1:\nRovers 2 vs United 2\n" + crowd_ + "Winner: Match Tied\n");
  Play(MatchMode::League, 0, 1);
  ExpectFile("Leagues/Cup.rec",
             "Albion\n0\n0\n0\n0\n0\n0\n0\nRovers\n3\n1\n1\n1\n5\n4\n4\nUnited\n3\n1\n1\n1\n4\n5\n4\n");
  EXPECT_EQ(selectedAgain_, Texts(3, "Cup.leg"));
}

TEST_F(FileRecordingTest, AKnockOutWinnerGoesWhereHisMatchIsWaitedFor) {
  const std::string teams = "4\nCup\n4\nRovers\nUnited\nAlbion\nCity\n";
  Write("Tournies/Cup.trn",
        teams + "NP\nRovers (By Toss)\nUnited\nWinner 1\n" +  // Through by toss, without a team so called.
            "NP\nAlbion\nWinner 4\nWinner 2\nNP\nWinner 1\nCity\nWinner 3\nNP\nWinner 11\nCity\nWinner 4\n");
  MatchSession s = MakeSession(MatchMode::KnockOut, 1, 1);
  s.Side1.Penalties = 9;
  s.Side2.Penalties = 10;
  s.DecidedByShootOut = true;
  s.ResultText = "United (By Toss)";
  file_.StoreResult(s);  // A knock-out has no standings.
  file_.StoreLeagueResult(s);
  ExpectFile("Tournies/Cup.lrs",
             "Match 1:\nRovers 1(9) vs United 1(10)\n" + crowd_ + "Winner: United (By Toss)\n");
  s.Setup.MatchNumber = 4;
  s.Setup.Team1Name = "Nobody";
  file_.StoreLeagueResult(s);
  ExpectFile("Tournies/Cup.trn", teams + "P\nRovers (By Toss)\nUnited\nUnited (By Toss)\n" +
                                     "NP\nAlbion\nUnited (By Toss)\nWinner 2\n" +
                                     "NP\nUnited (By Toss)\nCity\nWinner 3\nNP\nWinner 11\nCity\nWinner 4\n");
  EXPECT_FALSE(Exists("Tournies/Cup.rec"));
  for (const char* file : {"Tournies/Cup.trn", "Tournies/Cup.lrs"}) Remove(file);
  file_.StoreLeagueResult(s);  // Without a main file, too.
  EXPECT_TRUE(Exists("Tournies/Cup.lrs"));
}

TEST_F(FileRecordingTest, NothingIsRecordedOverAFileThatCannotBeReadAndTheUserIsToldOnce) {
  for (const char* file : {"Leagues/Cup.leg", "Leagues/Cup.rec", "Leagues/Cup.lrs"}) Write(file, "Cup\n");
  const auto before = folder_.Files.All();
  MakeUnreadable("Leagues/Cup.rec");
  for (const char* scorer : {"Ann", "Bo"}) Score(MatchMode::League, scorer, "Rovers");
  Play(MatchMode::League, 2, 0);
  EXPECT_EQ(folder_.Files.All(), before);
  EXPECT_EQ(desktop_.Taken(),
            Texts{"!: Match 1 of the league Cup was not recorded and is still to be played. The file "
                  "/kickwell/Leagues/Cup.rec can't be read: Permission denied."});
  folder_.Files.Unreadable.clear();
  Play(MatchMode::League, 2, 0);
  EXPECT_FALSE(Exists("Leagues/Cup.sco"));  // The next match has none of its goals.
}

}  // namespace
}  // namespace kickwell
