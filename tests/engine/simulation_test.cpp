// A minute of play, draw by draw.
#include "engine/simulation.h"

#include <gtest/gtest.h>

#include "engine/match.h"
#include "support/fakes.h"
#include "support/matches.h"
#include "support/scripted_random.h"

namespace kickwell {
namespace {

using Texts = std::vector<std::string>;

class SimulationTest : public testing::Test {
 protected:
  /// Plays one minute of a match with goal number 3 after `prepare`.
  const MatchSession& Play(const std::vector<Draw>& minute) {
    std::vector<Draw> script{{100, 50}, {100, 3}};
    script.insert(script.end(), minute.begin(), minute.end());
    ScriptedRandom random(script);
    Match match({}, desktop_, random, recording_, MakeFullSetup());
    match.halftime_Click();
    screen_.WhilePaused = [&] {
      paused_ = match.Session();
      match.Timer1_Timer(screen_);  // A tick that falls due now is dropped.
      if (leave_) match.Command1_Click();
    };
    match.Timer1_Timer(screen_);
    session_ = match.Session();
    session_.Commentary.Entries.erase(session_.Commentary.Entries.begin(),
                                      session_.Commentary.Entries.begin() + 2);
    return session_;
  }

  /// Seconds without a goal in which the side that `possession` draws has the ball.
  static void AddSeconds(std::vector<Draw>& minute, int count, int possession) {
    for (int i = 0; i < count; ++i) minute.insert(minute.end(), {{10, possession}, {4000, 7, 2}});
  }

  FakeDesktop desktop_;
  FakeRecording recording_;
  FakeScreen screen_;
  MatchSession session_, paused_;
  bool leave_ = false;
};

TEST_F(SimulationTest, AMinuteWithEverythingInIt) {
  std::vector<Draw> minute = {
      {4, 0},                                                    // A commentary minute.
      {10, 2}, {4000, 9}, {4000, 8}, {30, 0}, {7, 3}, {23, 19},  // A remark on side 2.
      {10, 6}, {4000, 3}, {4000, 9}, {2, 1},  {7, 6}, {30, 1}};  // A goal of side 1.
  for (int i = 0; i < 58; ++i)
    minute.insert(minute.end(), {{10, 9}, {4000, 3, 2}, {30, 29}});  // Equal: no goal.
  minute.insert(minute.end(), {{5091, 960},
                               {741, 740},  // The ball in side 2's zone:
                               {7, 0},
                               {3, 0},
                               {6, 5},  // a shot to a corner.
                               {70, 35},
                               {6, 5},
                               {9, 4},
                               {3, 2},
                               {7, 6},  // A foul of side 1, booked.
                               {3, 1},
                               {70, 12},
                               {70, 29},
                               {70, 69}});  // The possession figure.
  const MatchSession& s = Play(minute);
  EXPECT_EQ(s.Commentary.Entries,
            (Texts{"We're into minute 1 here...", "And the scoreline is 0-0",
                   "The pass to U4 goes through nicely", "Here's the accurate shot from R6",
                   "And its a GOAL!!", "The players are celebrating", "Here comes the shot...",
                   "A slight touch by the keeper on its way out", "A corner kick awarded by the referee",
                   "U1 to take it", "He crosses it nicely", "A tackle by R6 from behind",
                   "Surely the referee is going to book him", "Here's the yellow card for R6",
                   "The referee awards a freekick", "U7 to take it", "The freekick nicely taken there"}));
  EXPECT_EQ(s.Summary.Entries, Texts{"00:02 >> R6 (Rovers)"});
  EXPECT_EQ(recording_.Calls, Texts{"scorer R6 of Rovers"});
  EXPECT_EQ(s.Side1.Goals * 1000 + s.Side1.Shots * 100 + s.Side1.Fouls * 10 + s.Side1.Bookings, 1111);
  EXPECT_EQ(s.Side2.Goals * 1000 + s.Side2.Shots * 100 + s.Side2.Corners * 10 + s.Side2.Fouls, 110);
  EXPECT_EQ(s.Side1.PossessionPercent * 100 + s.Side2.PossessionPercent, 6931);
  EXPECT_EQ(s.ClockText, "01:00");
  EXPECT_EQ(s.Controls.Label3, "01:00");  // No longer "GOAL!".
  EXPECT_EQ(s.Controls.Label2, Lamp::Black);
  EXPECT_EQ(s.BallSide, 2);
  EXPECT_EQ(s.BallX * 1000 + s.BallY, 960740);

  EXPECT_EQ(screen_.Pauses, 1);
  EXPECT_EQ(paused_.Controls.Label3, "GOAL!");
  EXPECT_EQ(paused_.Controls.Label2, Lamp::Green);
  EXPECT_EQ(paused_.BallSide, 1);
  EXPECT_EQ(paused_.BallX * 1000 + paused_.BallY, 5090390);
  EXPECT_EQ(paused_.Side1.Shots, 1);
  EXPECT_EQ(desktop_.Taken(), (Texts{"* whistle", "* goal"}));
}

TEST_F(SimulationTest, SideTwosGoalIsCelebratedAtItsOwnSpot) {
  std::vector<Draw> minute = {{4, 1}, {10, 0}, {4000, 9}, {4000, 3}, {3, 2}, {7, 0}};
  AddSeconds(minute, 59, 8);
  minute.insert(minute.end(), {{5091, 4079}, {741, 0}, {70, 34}, {3, 0}});
  const MatchSession& s = Play(minute);
  EXPECT_EQ(s.Commentary.Entries,
            (Texts{"Great shot from a distance by U7", "And its a GOAL!!", "It's celebration time"}));
  EXPECT_EQ(paused_.BallX * 1000 + paused_.BallY, 390);
  EXPECT_EQ(paused_.BallSide, 2);
  EXPECT_EQ(s.BallSide, 1);
}

TEST_F(SimulationTest, ShotsAndFoulsDependOnTheSideWithTheBall) {
  const Draw noFoul{70, 36};
  const Draw foul{70, 35};
  struct Case {
    int Possession, BallX;
    std::vector<Draw> After;
    Texts Lines;
  };
  const Case cases[] = {
      {4,
       4080,
       {{6, 2}, {3, 1}, {8, 0}, noFoul},
       {"A shot flies towards the target...", "Thundered towards the net by R3",
        "And its a goal kick signalled"}},
      {5,
       5090,
       {{6, 0}, {3, 2}, {5, 4}, noFoul},
       {"Here's the shot and...", "The keeper comes up with a fine save", "A nice kick taken by the keeper"}},
      {1, 4079, {noFoul}, {}},
      {1, 100, {noFoul}, {}},  // Side 1 does not shoot at this end, nor side 2 at the other.
      {3, 5090, {noFoul}, {}},
      {7, 961, {noFoul}, {}},
      {9,
       960,
       {{7, 1}, {3, 1}, {8, 7}, noFoul},
       {"A shot flies towards the target...", "A powerful shot wide of target",
        "And its a goal kick signalled"}},
      {0,
       2000,
       {foul, {7, 6}, {9, 1}, {3, 1}, {6, 0}},
       {"U7 has been spotted by the referee", "The referee awards a freekick", "R1 to take it",
        "The freekick nicely taken there"}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.Possession << " " << c.BallX);
    std::vector<Draw> minute{{4, 3}};
    AddSeconds(minute, 60, c.Possession);
    minute.insert(minute.end(), {{5091, c.BallX}, {741, 0}});
    minute.insert(minute.end(), c.After.begin(), c.After.end());
    minute.push_back({3, 2});
    const MatchSession& s = Play(minute);
    EXPECT_EQ(s.Commentary.Entries, c.Lines);
    EXPECT_EQ(s.Side1.Shots + s.Side2.Shots, c.After.size() == 4 ? 1 : 0);
    EXPECT_EQ(s.Side1.Fouls * 10 + s.Side2.Fouls, c.After.size() == 5 ? 1 : 0);
    EXPECT_EQ(s.Side1.Bookings + s.Side2.Bookings + s.Side1.Corners + s.Side2.Corners, 0);
    EXPECT_EQ(s.Side1.PossessionPercent, 0);
  }
}

TEST_F(SimulationTest, NothingHappensAfterTheMatchIsLeftInAGoalPause) {
  leave_ = true;
  const MatchSession& s =
      Play({{4, 0}, {10, 0}, {4000, 3}, {4000, 9}, {2, 0}, {7, 0}});  // Not one draw more.
  EXPECT_TRUE(s.Left);
  EXPECT_EQ(s.ClockText, "00:01");
  EXPECT_EQ(desktop_.Taken(), (Texts{"* whistle", "* goal", "?: Do you really want to exit?"}));
}

TEST_F(SimulationTest, TheTeamsChangeEndsWithAllThatIsTheirs) {
  MatchSession s;
  s.Setup = MakeFullSetup();
  s.Side1 = {"Rovers", 2, 2100, {"R1"}, 3, 4, 5, 6, 60};
  s.Side2 = {"United", 1, 4000, {"U1"}, 7, 8, 9, 10, 40};
  s.BallSide = 1;
  s.BallX = 1;
  ScriptedRandom random{};
  Simulation(s, random, desktop_, recording_).SwapData();
  EXPECT_EQ(s.Side1.Team + s.Side1.Outfield[0], "UnitedU1");
  EXPECT_EQ(s.Side1.Goals * 10 + s.Side2.Goals, 12);
  EXPECT_EQ(s.Side2.GoalRange, 2100);
  EXPECT_EQ(s.Side1.Shots * 1000 + s.Side1.Corners * 100 + s.Side1.Bookings * 10 + s.Side1.Fouls, 7900);
  EXPECT_EQ(s.Side2.PossessionPercent, 60);
  EXPECT_EQ(s.BallSide, 1);  // Which label is lit does not change.
  EXPECT_EQ(s.BallX, 2520);
  EXPECT_EQ(s.Setup.Team1Attackers, (Texts{"R5", "R6"}));
}

}  // namespace
}  // namespace kickwell
