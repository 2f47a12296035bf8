// A full simulation: its minutes draw by draw, its periods, and how the match ends.
#include "engine/simulation.h"

#include <memory>
#include <set>

#include "engine/commentary.h"
#include "engine/match.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

using enum MatchPeriod;

class ClockTest : public ScreenTest {
 protected:
  /// Opens a match in which side 2 scores in that second, counted from 1, or nobody.
  void Open(bool extraTime, bool shootOut, int second = 0) {
    random_.Goals = second > 0 ? std::string(static_cast<std::size_t>(second - 1), '.') + "2" : "";
    match_ = std::make_unique<Match>(folder_.Folder, desktop_, random_, recording_,
                                     MakeFullSetup(extraTime, shootOut));
    desktop_.Taken();
  }

  const MatchSession& Session() const { return match_->Session(); }

  /// Presses the period button, twice, and plays so many minutes.
  void Play(int minutes) {
    match_->halftime_Click();
    match_->halftime_Click();  // Dark: nothing, not even a whistle.
    for (int i = 0; i < minutes; ++i) match_->Timer1_Timer(screen_);
  }

  std::unique_ptr<Match> match_;
};

TEST_F(ClockTest, ALevelMatchGoesThroughAllPeriods) {
  Open(true, true);
  for (const int minutes : {45, 45, 15, 15}) {
    EXPECT_FALSE(Session().Controls.Timer1Enabled);
    EXPECT_EQ(Session().BallX, CentreSpotX);
    Play(minutes);
  }
  EXPECT_EQ(Session().Controls.Label3, "120:00");
  EXPECT_EQ(Session().Side1.Team, "United");  // After three changes of ends.
  match_->halftime_Click();
  EXPECT_EQ(Session().Summary.Entries, Texts{"PENALTY SHOOT OUT!"});
  EXPECT_EQ(
      Session().Commentary.Entries,
      (Texts{"Here's the kick off", "The match is between Rovers and United",
             "Here comes the half time whistle", "Play for the 2nd half gets underway",
             "Referee blows the full time whistle", "The match goes into extra time",
             "Referee starts the extra time", "Extra Time 1st half comes to an end",
             "Extra time 2nd half gets underway", "The match remains undecided after Extra Time 2nd half",
             "The match goes into penalty shoot out", "Players getting ready for the shoot out"}));
  EXPECT_EQ(desktop_.Taken(), Texts(9, "* whistle"));
}

TEST_F(ClockTest, AMatchEndsWhenItIsDecidedOrWithAGoldenGoalInItsSecond) {
  const Texts tied = {"", "Result:", "The match was tied at 0-0"};
  const std::tuple<bool, int, MatchPeriod, Texts> endings[] = {
      {false, 0, SecondHalf, tied},
      {true, 0, ExtraTimeSecondHalf, tied},
      {true, 90 * 60, SecondHalf, {"90:00 >> R5 (Rovers)", "", "Result:", "Rovers beats United 1-0"}},
      {true,
       100 * 60,
       ExtraTimeFirstHalf,
       {"100:00 >> U5 (United)", "GOLDEN GOAL!", "", "Result:", "United beats Rovers 1-0"}},
      {true,
       120 * 60,
       ExtraTimeSecondHalf,
       {"120:00 >> R5 (Rovers)", "GOLDEN GOAL!", "", "Result:", "Rovers beats United 1-0"}},
  };
  for (const auto& [extraTime, goalSecond, period, summary] : endings) {
    Open(extraTime, false, goalSecond);
    for (const int minutes : {45, 45, 15, 15, 1}) Play(minutes);
    const MatchSession& s = Session();
    EXPECT_EQ(s.Period, period);
    EXPECT_EQ(s.Summary.Entries, summary);
    EXPECT_FALSE(s.Controls.halftimeEnabled || s.Controls.Timer1Enabled);
    EXPECT_EQ(s.Controls.Label3, "");
    EXPECT_EQ(s.BallSide, 0);
  }
  const Texts& told = Session().Commentary.Entries;
  EXPECT_EQ((Texts{told.end() - 3, told.end()}),
            (Texts{"Referee blows the final whistle", "The match ends with a Golden Goal",
                   "With that, Rovers wins the match"}));
}

TEST_F(ClockTest, TheDisplayWaitsForAQuestionAndShowsAGoalInTheLastSecondUntilPlayGoesOn) {
  Open(true, true, 45 * 60);
  Play(44);
  desktop_.Yes = false;
  desktop_.WhileAsked = [this] { match_->Timer1_Timer(screen_); };
  match_->Command1_Click();
  match_->ComSave_Click();
  EXPECT_EQ(Session().Controls.Label3, "44:00");
  match_->Timer1_Timer(screen_);
  EXPECT_EQ(Session().Controls.Label3, "GOAL!");
  Play(0);
  EXPECT_EQ(Session().Controls.Label3, "45:00");
}

TEST_F(ClockTest, LeavingInTheGoalPauseOfAGoldenGoalEndsNothingElse) {
  Open(true, true, 90 * 60 + 1);
  screen_.WhilePaused = [this] {
    match_->Timer1_Timer(screen_);  // Dropped.
    match_->Command1_Click();
  };
  for (const int minutes : {45, 45, 1}) Play(minutes);
  EXPECT_TRUE(match_->Closed());
  EXPECT_EQ(Session().Summary.Entries, Texts{"90:01 >> U5 (United)"});
  EXPECT_EQ(Session().Commentary.Text(), "It's celebration time");
  EXPECT_EQ(Session().BallX, 0);  // Not one draw more.
  EXPECT_EQ(recording_.Calls, (Texts{"scorer U5 of United", "left"}));
}

constexpr int Side1Ball = 0, Side2Ball = 2;  ///< Draws of who has the ball.
constexpr Draw NoComments{4, 3}, NoFoul{70, 36}, SamePossession{3, 2};

class SimulationTest : public ScreenTest {
 protected:
  SimulationTest() {
    s.GoalNumber = MatchDraws::GoalNumber;
    s.Side1.GoalRange = s.Side2.GoalRange = 4000;
  }

  void QuietSecond(int possession) {
    draws_.Expect(10, possession);
    draws_.NoGoals();
  }

  /// Ends a minute with the ball at `x` and these draws, and plays it.
  void PlayTo(int x, std::initializer_list<Draw> draws) {
    draws_.Expect({{5091, x}, {741, 0}});
    draws_.Expect(draws);
    Simulation(s, draws_, desktop_, recording_).MainFunction(screen_);
  }

  /// Plays a minute of which only the end is worth mentioning.
  void PlayQuietly(int possession, int x, std::initializer_list<Draw> draws) {
    draws_.Expect({NoComments});
    for (int second = 0; second < SecondsPerMinute; ++second) QuietSecond(possession);
    PlayTo(x, draws);
  }

  MatchSession s = MakeSession(MatchMode::Friendly);
  MatchDraws draws_;
};

TEST_F(SimulationTest, ACommentaryMinuteRemarksOnTheSideWithTheBallAndDrawsPossessionFrom30On) {
  constexpr Draw Comments{4, 0}, Remark{30, 0}, NoRemark{30, 29}, OtherPossession{3, 1};
  draws_.Expect({Comments});
  QuietSecond(Side2Ball);
  draws_.Expect({Remark, {6, 3}, {Count(GeneralPhrases), 19}});
  for (int second = 1; second < SecondsPerMinute; ++second) {
    QuietSecond(Side2Ball);
    draws_.Expect({NoRemark});
  }
  PlayTo(2000, {NoFoul, OtherPossession, {70, 29}, {70, 30}});
  EXPECT_EQ(std::pair(s.Side1.PossessionPercent, s.Side2.PossessionPercent), std::pair(30, 70));
  EXPECT_EQ(s.Commentary.Entries, (Texts{"We're into minute 1 here...", "And the scoreline is 0-0",
                                         "The pass to U4 goes through nicely"}));
}

TEST_F(SimulationTest, AChangeOfEndsTakesTheTeamsAndTheirFiguresAlongAndNothingElse) {
  s.Side1 = {"Rovers", 1, 2100, 11, {"R1"}, 2, 3, 4, 5, 40, 12, 13};
  s.Side2 = {"United", 6, 4000, 14, {"U1"}, 7, 8, 9, 10, 60, 15, 16};
  Simulation(s, draws_, desktop_, recording_).SwapData();
  EXPECT_EQ(s.Side1, (Side{"United", 6, 4000, 11, {"U1"}, 7, 8, 9, 10, 60, 12, 13}));
  EXPECT_EQ(s.Side2, (Side{"Rovers", 1, 2100, 14, {"R1"}, 2, 3, 4, 5, 40, 15, 16}));
}

TEST_F(SimulationTest, AGoalIsCelebratedAndRecorded) {
  std::vector<std::tuple<int, int, int>> balls;  // The side with the ball in the pause, and its place.
  screen_.WhilePaused = [&] {
    EXPECT_EQ(s.Controls.Label3, "GOAL!");
    EXPECT_EQ(s.Controls.Label2, Lamp::Green);
    balls.emplace_back(s.BallSide, s.BallX, s.BallY);
  };
  s.GoalNumber = 50;
  random_.Goals = "1" + std::string(59, '.') + "2";
  for (int minute = 0; minute < 2; ++minute)
    Simulation(s, random_, desktop_, recording_).MainFunction(screen_);
  EXPECT_EQ(balls, (std::vector{std::tuple(1, 5090, 390), std::tuple(2, 0, 390)}));
  EXPECT_EQ(std::pair(s.BallX, s.BallY), std::pair(2000, 0));
  EXPECT_EQ(s.Commentary.Entries,
            (Texts{"Great shot from a distance by R5", "And its a GOAL!!", "The players are celebrating",
                   "Great shot from a distance by U5", "And its a GOAL!!", "It's celebration time"}));
  EXPECT_EQ(s.Summary.Entries, (Texts{"00:01 >> R5 (Rovers)", "01:01 >> U5 (United)"}));
  EXPECT_EQ(recording_.Calls, (Texts{"scorer R5 of Rovers", "scorer U5 of United"}));
  EXPECT_EQ(desktop_.Taken(), Texts(2, "* goal"));
  EXPECT_EQ(std::pair(s.Side1.Goals, s.Side1.Shots), std::pair(1, 1));
  EXPECT_EQ(s.Controls.Label3, "02:00");  // No longer "GOAL!".
}

TEST_F(SimulationTest, AShotFromTheZoneBecomesACornerGoesWideOrIsSaved) {
  constexpr Draw FirstPlayer{6, 0}, Corner{3, 0}, WideShot{3, 1}, Save{3, 2};
  PlayQuietly(Side1Ball, 4079, {NoFoul, SamePossession});
  PlayQuietly(Side2Ball, 961, {NoFoul, SamePossession});
  PlayQuietly(Side2Ball, 960, {FirstPlayer, Corner, {Count(CornerPhrases), 5}, NoFoul, SamePossession});
  PlayQuietly(Side1Ball, 4080, {FirstPlayer, WideShot, {Count(WidePhrases), 0}, NoFoul, SamePossession});
  PlayQuietly(Side1Ball, 5090, {FirstPlayer, Save, {Count(SavePhrases), 4}, NoFoul, SamePossession});
  EXPECT_EQ(s.Commentary.Entries,
            (Texts{"Here comes the shot...", "A slight touch by the keeper on its way out",
                   "A corner kick awarded by the referee", "U1 to take it", "He crosses it nicely",
                   "A shot flies towards the target...", "Thundered towards the net by R1",
                   "And its a goal kick signalled", "Here's the shot and...",
                   "The keeper comes up with a fine save", "A nice kick taken by the keeper"}));
  EXPECT_EQ(std::pair(s.Side1.Shots, s.Side1.Corners), std::pair(2, 0));
  EXPECT_EQ(std::pair(s.Side2.Shots, s.Side2.Corners), std::pair(1, 1));
}

TEST_F(SimulationTest, TheSideWithoutTheBallFoulsAndItsPlayerMayBeBooked) {
  constexpr Draw Foul{70, 35}, LastPlayer{6, 5}, FirstPlayer{6, 0}, NoBooking{3, 1}, Booking{3, 2};
  constexpr Draw Tackle{Count(FoulPhrases), 4};
  PlayQuietly(Side2Ball, 2000, {Foul, LastPlayer, Tackle, NoBooking, FirstPlayer, SamePossession});
  s.Commentary.Entries.clear();
  PlayQuietly(Side2Ball, 2000, {Foul, LastPlayer, Tackle, Booking, FirstPlayer, SamePossession});
  EXPECT_EQ(s.Commentary.Entries,
            (Texts{"A tackle by R6 from behind", "Surely the referee is going to book him",
                   "Here's the yellow card for R6", "The referee awards a freekick", "U1 to take it",
                   "The freekick nicely taken there"}));
  EXPECT_EQ(std::pair(s.Side1.Fouls, s.Side1.Bookings), std::pair(2, 1));
}

TEST(SeededRandomTest, DrawsEveryNumberBelowItsRangeAndNoOther) {
  SeededRandom random(1);
  std::set<int> drawn;
  for (int i = 0; i < 200; ++i) drawn.insert(random.Int(3));
  EXPECT_EQ(drawn, (std::set{0, 1, 2}));
  EXPECT_EQ(random.Int(0), 0);
}

}  // namespace
}  // namespace kickwell
