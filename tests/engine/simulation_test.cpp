// A minute of play, draw by draw.
#include "engine/simulation.h"

#include "engine/match.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

class SimulationTest : public ScreenTest {
 protected:
  /// Plays the first minute of a match with goal number 3 and these draws; gives its commentary.
  std::string Play(const std::string& minute) {
    ScriptedRandom random("100:50 100:3 " + minute);
    Match match({}, desktop_, random, recording_, MakeFullSetup());
    match.halftime_Click();
    desktop_.Taken();
    screen_.WhilePaused = [&] {
      paused_ = Shown(match.Session()) + ", " + Figures(match.Session());
      match.Timer1_Timer(screen_);  // A tick that falls due now is dropped.
      if (leave_) match.Command1_Click();
    };
    match.Timer1_Timer(screen_);
    session_ = match.Session();
    const Texts& lines = session_.Commentary.Entries;
    return Joined({lines.begin() + 2, lines.end()});  // Without those of the kick-off.
  }

  MatchSession session_;
  std::string paused_;
  bool leave_ = false;
};

TEST_F(SimulationTest, AMinuteWithEverythingInIt) {
  EXPECT_EQ(
      Play("4:0 10:2 4000:9 4000:8 30:0 7:3 23:19 "               // A commentary minute: a remark on side 2,
           "10:6 4000:3 4000:9 2:1 7:6 30:1 " +                   // a goal of side 1,
           Times(58, "10:9 4000:3x2 30:29") +                     // and equal draws, which never score.
           "5091:960 741:740 7:0 3:0 6:5 70:35 6:5 9:4 3:2 7:6 "  // Side 2's shot; side 1's foul.
           "3:1 70:12 70:29 70:69"),                              // The possession figure.
      "We're into minute 1 here...|And the scoreline is 0-0|The pass to U4 goes through nicely|"
      "Here's the accurate shot from R6|And its a GOAL!!|The players are celebrating|"
      "Here comes the shot...|A slight touch by the keeper on its way out|"
      "A corner kick awarded by the referee|U1 to take it|He crosses it nicely|"
      "A tackle by R6 from behind|Surely the referee is going to book him|Here's the yellow card for R6|"
      "The referee awards a freekick|U7 to take it|The freekick nicely taken there");
  EXPECT_EQ(Joined(session_.Summary.Entries), "00:02 >> R6 (Rovers)");
  EXPECT_EQ(Joined(recording_.Calls), "scorer R6 of Rovers");
  EXPECT_EQ(Figures(session_), "Rovers 1 1 0 1 1 69%, United 0 1 1 0 0 31%");
  EXPECT_EQ(Shown(session_), "01:00, 2 at 960 740");  // No longer "GOAL!".
  EXPECT_EQ(paused_, "GOAL! (green), 1 at 5090 390, Rovers 1 1 0 0 0 0%, United 0 0 0 0 0 0%");
  EXPECT_EQ(desktop_.Told(), "* goal");
}

TEST_F(SimulationTest, SideTwosGoalIsCelebratedAtItsOwnSpot) {
  const std::string rest = Times(59, "10:8 4000:7x2") + "5091:4079 741:0 70:34 3:0";
  EXPECT_EQ(Play("4:1 10:0 4000:9 4000:3 3:2 7:0 " + rest),
            "Great shot from a distance by U7|And its a GOAL!!|It's celebration time");
  EXPECT_EQ(paused_, "GOAL! (green), 2 at 0 390, Rovers 0 0 0 0 0 0%, United 1 1 0 0 0 0%");
}

TEST_F(SimulationTest, AMatchThatIsLeftInAGoalPauseMakesNotOneDrawMore) {
  leave_ = true;
  Play("4:0 10:0 4000:3 4000:9 2:0 7:0");
  EXPECT_EQ(session_.ClockText, "00:01");
}

TEST_F(SimulationTest, ShotsAndFoulsDependOnTheSideWithTheBall) {
  const std::string nothing = "Rovers 0 0 0 0 0 0%, United 0 0 0 0 0 0%";
  const std::string shot1 = "Rovers 0 1 0 0 0 0%, United 0 0 0 0 0 0%";
  struct Case {
    int Possession;
    const char *Draws, *Lines;
    std::string Figures;
  };
  const Case cases[] = {
      {4, "5091:4080 741:0 6:2 3:1 8:0 70:36 3:2",
       "A shot flies towards the target...|Thundered towards the net by R3|And its a goal kick signalled",
       shot1},
      {5, "5091:5090 741:0 6:0 3:2 5:4 70:36 3:2",
       "Here's the shot and...|The keeper comes up with a fine save|A nice kick taken by the keeper", shot1},
      {9, "5091:960 741:0 7:1 3:1 8:7 70:36 3:0",
       "A shot flies towards the target...|A powerful shot wide of target|And its a goal kick signalled",
       "Rovers 0 0 0 0 0 0%, United 0 1 0 0 0 0%"},
      {0, "5091:2000 741:0 70:35 7:6 9:1 3:1 6:0 3:2",
       "U7 has been spotted by the referee|The referee awards a freekick|R1 to take it|"
       "The freekick nicely taken there",
       "Rovers 0 0 0 0 0 0%, United 0 0 0 0 1 0%"},
      {8, "5091:4079 741:0 70:36 3:2", "", nothing},
      {1, "5091:100 741:0 70:34 3:2", "", nothing},  // Side 1 does not shoot at this end,
      {2, "5091:961 741:0 70:36 3:2", "", nothing},
      {3, "5091:5090 741:0 70:36 3:2", "", nothing},  // nor side 2 at the other.
      {6, "5091:5090 741:0 70:36 3:2", "", nothing},
      {7, "5091:5090 741:0 70:36 3:2", "", nothing},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.Possession << " " << c.Draws);
    const std::string second = "10:" + std::to_string(c.Possession) + " 4000:7x2";
    EXPECT_EQ(Play("4:3 " + Times(60, second) + c.Draws), c.Lines);
    EXPECT_EQ(Figures(session_), c.Figures);
  }
}

TEST_F(SimulationTest, TheTeamsChangeEndsWithAllThatIsTheirs) {
  MatchSession s;
  s.Side1 = {"Rovers", 2, 2100, {"R1"}, 3, 4, 5, 6, 60};
  s.Side2 = {"United", 1, 4000, {"U1"}, 7, 8, 9, 10, 40};
  s.BallSide = 1;
  ScriptedRandom random("");
  Simulation(s, random, desktop_, recording_).SwapData();
  EXPECT_EQ(Figures(s), "United 1 7 8 9 10 40%, Rovers 2 3 4 5 6 60%");
  EXPECT_EQ(s.Side1.Outfield[0] + " " + std::to_string(s.Side1.GoalRange), "U1 4000");
  EXPECT_EQ(Shown(s), "00:00, 1 at 2520 390");  // Which label is lit does not change.
}

}  // namespace
}  // namespace kickwell
