// The play of a full simulation, a minute draw by draw.
#include "engine/simulation.h"

#include "engine/match.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

class SimulationTest : public ScreenTest {
 protected:
  static constexpr int Side1Ball = 0, Side2Ball = 2;  ///< Draws of who has the ball.

  /// Opens a match and begins its first minute.
  void Begin(bool commented = false) {
    draws_.OpenFriendly();
    draws_.Expect(4, commented ? 0 : 3);
  }
  void QuietSeconds(int seconds, int possession) {
    for (int i = 0; i < seconds; ++i) {
      draws_.Expect(10, possession);
      draws_.NoGoals();
    }
  }
  void BallAt(int x, int y = 0) {
    draws_.Expect(5091, x);
    draws_.Expect(741, y);
  }
  void NoFoul() { draws_.Expect(70, 36); }
  void NoPossessionFigure() { draws_.Expect(3, 2); }
  void EndQuietly() {
    NoFoul();
    NoPossessionFigure();
  }

  /// A first minute of sixty quiet seconds, after which the ball comes to `x`.
  void QuietMinute(int possession, int x) {
    Begin();
    QuietSeconds(60, possession);
    BallAt(x);
  }
  void Shot(int outcome, int phrases, int phrase) {
    draws_.Expect(3, outcome);
    draws_.Expect(phrases, phrase);
    EndQuietly();
  }

  /// Plays the first minute with the draws laid ready.
  void Play() {
    Match match(folder_.Folder, desktop_, draws_, recording_, MakeFullSetup());
    match.halftime_Click();
    desktop_.Taken();
    screen_.WhilePaused = [&] {
      paused_ = match.Session();
      match.Timer1_Timer(screen_);  // A tick that falls due now is dropped.
    };
    match.Timer1_Timer(screen_);
    s_ = match.Session();
    const Texts& lines = s_.Commentary.Entries;
    commentary_ = {lines.begin() + 2, lines.end()};  // Without the two of the kick-off.
  }

  MatchDraws draws_;
  MatchSession s_, paused_;
  Texts commentary_;
};

TEST_F(SimulationTest, ACommentaryMinuteRemarksOnTheSideWithTheBall) {
  Begin(true);
  QuietSeconds(1, Side2Ball);
  draws_.Expect(30, 0);  // A remark...
  draws_.PickUnitedOutfield(3);
  draws_.Expect(23, 19);
  for (int second = 1; second < SecondsPerMinute; ++second) {
    QuietSeconds(1, Side2Ball);
    draws_.Expect(30, 29);  // ...and none.
  }
  BallAt(2000);
  EndQuietly();
  Play();
  EXPECT_EQ(commentary_, (Texts{"We're into minute 1 here...", "And the scoreline is 0-0",
                                "The pass to U4 goes through nicely"}));
}

TEST_F(SimulationTest, AGoalOfSide1IsCelebratedAndRecorded) {
  Begin();
  draws_.Expect(10, Side2Ball);
  draws_.RoversScore(1);
  draws_.Expect(7, 6);
  QuietSeconds(59, Side2Ball);
  BallAt(2000, 740);
  EndQuietly();
  Play();
  EXPECT_EQ(paused_.Controls.Label3, "GOAL!");
  EXPECT_EQ(paused_.Controls.Label2, Lamp::Green);
  EXPECT_EQ(paused_.BallSide, 1);
  EXPECT_EQ(std::pair(paused_.BallX, paused_.BallY), std::pair(5090, 390));
  EXPECT_EQ(FactsOf(paused_.Side1), (Facts{.Goals = 1, .Shots = 1}));
  EXPECT_EQ(commentary_,
            (Texts{"Here's the accurate shot from R6", "And its a GOAL!!", "The players are celebrating"}));
  EXPECT_EQ(s_.Summary.Entries, Texts{"00:01 >> R6 (Rovers)"});
  EXPECT_EQ(recording_.Calls, Texts{"scorer R6 of Rovers"});
  EXPECT_EQ(desktop_.Told(), "* goal");
  EXPECT_EQ(s_.Controls.Label3, "01:00");  // No longer "GOAL!".
  EXPECT_EQ(std::pair(s_.BallX, s_.BallY), std::pair(2000, 740));
}

TEST_F(SimulationTest, AGoalOfSide2IsCelebratedAtItsOwnSpotAndEqualDrawsScoreNone) {
  Begin();
  draws_.Expect(10, Side1Ball);
  draws_.UnitedScore(2);
  draws_.Expect(7, 0);
  draws_.Expect(10, Side1Ball);
  draws_.GoalDraws(MatchDraws::GoalNumber, MatchDraws::GoalNumber);
  QuietSeconds(58, Side1Ball);
  BallAt(2000);
  EndQuietly();
  Play();
  EXPECT_EQ(paused_.BallSide, 2);
  EXPECT_EQ(std::pair(paused_.BallX, paused_.BallY), std::pair(0, 390));
  EXPECT_EQ(FactsOf(s_.Side2), (Facts{.Goals = 1, .Shots = 1}));
  EXPECT_EQ(commentary_,
            (Texts{"Great shot from a distance by U7", "And its a GOAL!!", "It's celebration time"}));
}

TEST_F(SimulationTest, EachPossessionDrawGivesOneSideTheBall) {
  const std::array sides = {1, 1, 2, 2, 1, 1, 2, 2, 1, 2};
  for (int draw = 0; draw < Count(sides); ++draw) {
    QuietMinute(draw, 2000);
    EndQuietly();
    Play();
    EXPECT_EQ(s_.BallSide, At(sides, draw)) << draw;
  }
}

TEST_F(SimulationTest, AShotOfSide2MayBecomeItsCorner) {
  QuietMinute(Side2Ball, 960);
  draws_.PickUnitedOutfield(0);
  Shot(0, 6, 5);
  Play();
  EXPECT_EQ(commentary_,
            (Texts{"Here comes the shot...", "A slight touch by the keeper on its way out",
                   "A corner kick awarded by the referee", "U1 to take it", "He crosses it nicely"}));
  EXPECT_EQ(FactsOf(s_.Side1), Facts{});
  EXPECT_EQ(FactsOf(s_.Side2), (Facts{.Shots = 1, .Corners = 1}));
}

TEST_F(SimulationTest, AShotOfSide1MayGoWideOrBeSaved) {
  QuietMinute(Side1Ball, 4080);
  draws_.PickRoversOutfield(2);
  Shot(1, 8, 0);
  Play();
  EXPECT_EQ(commentary_, (Texts{"A shot flies towards the target...", "Thundered towards the net by R3",
                                "And its a goal kick signalled"}));
  EXPECT_EQ(FactsOf(s_.Side1), Facts{.Shots = 1});
  QuietMinute(Side1Ball, 5090);
  draws_.PickRoversOutfield(0);
  Shot(2, 5, 4);
  Play();
  EXPECT_EQ(commentary_, (Texts{"Here's the shot and...", "The keeper comes up with a fine save",
                                "A nice kick taken by the keeper"}));
}

TEST_F(SimulationTest, NobodyShootsFromOutsideHisZone) {
  for (const auto& [possession, x] :
       {std::pair(Side1Ball, 100), {Side1Ball, 4079}, {Side2Ball, 961}, {Side2Ball, 5090}}) {
    QuietMinute(possession, x);
    EndQuietly();
    Play();
    EXPECT_EQ(commentary_, Texts{}) << x;
  }
}

TEST_F(SimulationTest, TheSideWithoutTheBallFoulsAndItsPlayerMayBeBooked) {
  QuietMinute(Side2Ball, 2000);
  draws_.Expect(70, 35);  // A foul.
  draws_.PickRoversOutfield(5);
  draws_.Expect(9, 4);
  draws_.Expect(3, 2);  // A booking.
  draws_.PickUnitedOutfield(6);
  NoPossessionFigure();
  Play();
  EXPECT_EQ(commentary_, (Texts{"A tackle by R6 from behind", "Surely the referee is going to book him",
                                "Here's the yellow card for R6", "The referee awards a freekick",
                                "U7 to take it", "The freekick nicely taken there"}));
  EXPECT_EQ(FactsOf(s_.Side1), (Facts{.Bookings = 1, .Fouls = 1}));
  EXPECT_EQ(FactsOf(s_.Side2), Facts{});
}

TEST_F(SimulationTest, APossessionFigureBelow30IsDrawnAgain) {
  QuietMinute(Side1Ball, 2000);
  draws_.Expect(70, 35);  // A foul, here of side 2 and without a booking.
  draws_.PickUnitedOutfield(6);
  draws_.Expect(9, 1);
  draws_.Expect(3, 1);
  draws_.PickRoversOutfield(0);
  draws_.Expect(3, 1);  // The figures change.
  draws_.Expect(70, 29);
  draws_.Expect(70, 30);
  Play();
  EXPECT_EQ(FactsOf(s_.Side1), Facts{.Possession = 30});
  EXPECT_EQ(FactsOf(s_.Side2), (Facts{.Fouls = 1, .Possession = 70}));
}

TEST_F(SimulationTest, TheTeamsChangeEndsWithAllThatIsTheirs) {
  MatchSession s;
  s.Side1 = {.Team = "Rovers", .Goals = 2, .GoalRange = 2100, .Outfield = {"R1"}, .Shots = 3};
  s.Side2 = {.Team = "United", .Goals = 1, .GoalRange = 4000, .Outfield = {"U1"}, .Shots = 7};
  s.Side1.PossessionPercent = 60;
  s.BallSide = 1;
  Simulation(s, random_, desktop_, recording_).SwapData();
  EXPECT_EQ(s.Side1.Team, "United");
  EXPECT_EQ(s.Side1.GoalRange, 4000);
  EXPECT_EQ(s.Side1.Outfield, Texts{"U1"});
  EXPECT_EQ(FactsOf(s.Side1), (Facts{.Goals = 1, .Shots = 7}));
  EXPECT_EQ(FactsOf(s.Side2), (Facts{.Goals = 2, .Shots = 3, .Possession = 60}));
  EXPECT_EQ(std::pair(s.BallX, s.BallY), std::pair(CentreSpotX, CentreSpotY));
  EXPECT_EQ(s.BallSide, 1);  // Which label is lit does not change.
}

TEST(SeededRandomTest, DrawsEveryNumberBelowItsRangeAndNoOther) {
  SeededRandom random(1);
  std::array<int, 5> drawn{};
  for (int i = 0; i < 200; ++i) ++At(drawn, random.Int(Count(drawn)));
  for (const int times : drawn) EXPECT_GT(times, 0);
  EXPECT_EQ(random.Int(0), 0);
}

}  // namespace
}  // namespace kickwell
