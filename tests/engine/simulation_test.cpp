// The play of a full simulation, a minute draw by draw.
#include "engine/simulation.h"

#include "engine/commentary.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

class SimulationTest : public ScreenTest {
 protected:
  static constexpr int Side1Ball = 0, Side2Ball = 2;  ///< Draws of who has the ball.

  SimulationTest() {
    s.GoalNumber = MatchDraws::GoalNumber;
    s.Side1.GoalRange = s.Side2.GoalRange = 4000;
  }

  void QuietSeconds(int seconds, int possession) {
    for (int i = 0; i < seconds; ++i) {
      draws_.Expect(10, possession);
      draws_.NoGoals();
    }
  }
  void QuietMinute(int possession) {
    draws_.Expect(4, 3);  // Without commentary.
    QuietSeconds(SecondsPerMinute, possession);
  }
  /// A minute with a goal in its first second, told with that phrase.
  void GoalMinute(int possession, int side, int phrase) {
    draws_.Expect({{4, 3}, {10, possession}});
    draws_.Goal(side, 1);
    draws_.Expect(7, phrase);
    QuietSeconds(SecondsPerMinute - 1, possession);
  }
  void BallAt(int x, int y = 0) { draws_.Expect({{5091, x}, {741, y}}); }
  void EndQuietly() { draws_.Expect({{70, 36}, {3, 2}}); }  ///< No foul, and the possession figures stay.

  /// Plays a minute with the draws laid ready.
  void Play() { Simulation(s, draws_, desktop_, recording_).MainFunction(screen_); }

  /// Plays a minute after which the ball comes to a place and nothing happens.
  void PlayTo(int x, int y = 0) {
    BallAt(x, y);
    EndQuietly();
    Play();
  }

  /// Plays a quiet minute that ends with a shot of the first player.
  void PlayShot(int possession, int x, int outcome, int phrases, int phrase) {
    s.Commentary.Entries.clear();
    QuietMinute(possession);
    BallAt(x);
    draws_.PickOutfield(0);
    draws_.Expect({{3, outcome}, {phrases, phrase}});
    EndQuietly();
    Play();
  }

  /// Plays a quiet minute that ends with a foul of the last player of side 1; the first of side 2 takes the
  /// free kick.
  void PlayFoul(int phrase, int booking) {
    QuietMinute(Side2Ball);
    BallAt(2000);
    draws_.Expect({{70, 35}, {6, 5}, {9, phrase}, {3, booking}, {6, 0}, {3, 2}});
    Play();
  }

  MatchSession s = MakeSession(MatchMode::Friendly);
  MatchDraws draws_;
};

TEST_F(SimulationTest, ACommentaryMinuteRemarksOnTheSideWithTheBall) {
  draws_.Expect(4, 0);
  QuietSeconds(1, Side2Ball);
  draws_.Expect({{30, 0}, {6, 3}, {23, 19}});  // A remark...
  for (int second = 1; second < SecondsPerMinute; ++second) {
    QuietSeconds(1, Side2Ball);
    draws_.Expect(30, 29);  // ...and none.
  }
  PlayTo(2000);
  EXPECT_EQ(s.Commentary.Entries, (Texts{"We're into minute 1 here...", "And the scoreline is 0-0",
                                         "The pass to U4 goes through nicely"}));
}

TEST_F(SimulationTest, AGoalIsCelebratedAndRecorded) {
  GoalMinute(Side2Ball, 1, 6);
  screen_.WhilePaused = [this] {
    EXPECT_EQ(s.Controls.Label3, "GOAL!");
    EXPECT_EQ(s.Controls.Label2, Lamp::Green);
    EXPECT_EQ(s.BallSide, 1);
    EXPECT_EQ(std::pair(s.BallX, s.BallY), std::pair(5090, 390));
    EXPECT_EQ(std::pair(s.Side1.Goals, s.Side1.Shots), std::pair(1, 1));
  };
  PlayTo(2000, 740);
  EXPECT_EQ(s.Commentary.Entries,
            (Texts{"Here's the accurate shot from R6", "And its a GOAL!!", "The players are celebrating"}));
  EXPECT_EQ(s.Summary.Entries, Texts{"00:01 >> R6 (Rovers)"});
  EXPECT_EQ(recording_.Calls, Texts{"scorer R6 of Rovers"});
  EXPECT_EQ(desktop_.Taken(), Texts{"* goal"});
  EXPECT_EQ(s.Controls.Label3, "01:00");  // No longer "GOAL!".
  EXPECT_EQ(std::pair(s.BallX, s.BallY), std::pair(2000, 740));
}

TEST_F(SimulationTest, Side2CelebratesAtItsOwnSpotWithItsOwnWords) {
  GoalMinute(Side1Ball, 2, 0);
  screen_.WhilePaused = [this] { EXPECT_EQ(std::pair(s.BallSide, s.BallX), std::pair(2, 0)); };
  PlayTo(2000);
  EXPECT_EQ(s.Commentary.Entries,
            (Texts{"Great shot from a distance by U6", "And its a GOAL!!", "It's celebration time"}));
}

TEST_F(SimulationTest, EachPossessionDrawGivesOneSideTheBall) {
  const std::array sides = {1, 1, 2, 2, 1, 1, 2, 2, 1, 2};
  for (int draw = 0; draw < Count(sides); ++draw) {
    QuietMinute(draw);
    PlayTo(2000);
    EXPECT_EQ(s.BallSide, At(sides, draw)) << draw;
  }
}

TEST_F(SimulationTest, AShotBecomesACornerGoesWideOrIsSaved) {
  PlayShot(Side2Ball, 960, 0, Count(CornerPhrases), 5);
  EXPECT_EQ(s.Commentary.Entries,
            (Texts{"Here comes the shot...", "A slight touch by the keeper on its way out",
                   "A corner kick awarded by the referee", "U1 to take it", "He crosses it nicely"}));
  PlayShot(Side1Ball, 4080, 1, Count(WidePhrases), 0);
  EXPECT_EQ(s.Commentary.Entries,
            (Texts{"A shot flies towards the target...", "Thundered towards the net by R1",
                   "And its a goal kick signalled"}));
  PlayShot(Side1Ball, 5090, 2, Count(SavePhrases), 4);
  EXPECT_EQ(s.Commentary.Entries, (Texts{"Here's the shot and...", "The keeper comes up with a fine save",
                                         "A nice kick taken by the keeper"}));
  EXPECT_EQ(std::pair(s.Side1.Shots, s.Side1.Corners), std::pair(2, 0));
  EXPECT_EQ(std::pair(s.Side2.Shots, s.Side2.Corners), std::pair(1, 1));
}

TEST_F(SimulationTest, NobodyShootsFromOutsideHisZone) {
  for (const auto& [possession, x] : {std::pair(Side1Ball, 4079), {Side2Ball, 961}}) {
    QuietMinute(possession);
    PlayTo(x);
    EXPECT_EQ(s.Side1.Shots + s.Side2.Shots, 0) << x;
  }
}

TEST_F(SimulationTest, TheSideWithoutTheBallFoulsAndItsPlayerMayBeBooked) {
  PlayFoul(4, 2);
  EXPECT_EQ(s.Commentary.Entries,
            (Texts{"A tackle by R6 from behind", "Surely the referee is going to book him",
                   "Here's the yellow card for R6", "The referee awards a freekick", "U1 to take it",
                   "The freekick nicely taken there"}));
  PlayFoul(0, 1);
  EXPECT_EQ(std::pair(s.Side1.Fouls, s.Side1.Bookings), std::pair(2, 1));
}

TEST_F(SimulationTest, APossessionFigureBelow30IsDrawnAgain) {
  QuietMinute(Side1Ball);
  BallAt(2000);
  draws_.Expect({{70, 36}, {3, 1}, {70, 29}, {70, 30}});
  Play();
  EXPECT_EQ(std::pair(s.Side1.PossessionPercent, s.Side2.PossessionPercent), std::pair(30, 70));
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
