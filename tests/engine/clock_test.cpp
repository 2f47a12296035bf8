// The periods of a full simulation, their ends, and how the match ends.
#include "engine/clock.h"

#include <memory>

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
  match_->Timer1_Timer(screen_);  // Not started: no play.
  for (const int minutes : {45, 45, 15, 15}) {
    EXPECT_FALSE(Session().Controls.Timer1Enabled);
    EXPECT_EQ(Session().BallX, CentreSpotX);
    Play(minutes);
  }
  EXPECT_EQ(Session().BallX, CentreSpotX);
  EXPECT_EQ(Session().Controls.Label3, "120:00");
  EXPECT_EQ(Session().Side1.Team, "United");  // After three changes of ends.
  match_->halftime_Click();
  EXPECT_TRUE(Session().Controls.kickEnabled);
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
  struct Ending {
    bool ExtraTime;
    int GoalSecond;
    MatchPeriod Period;
    Texts Summary;
  };
  const Texts tied = {"", "Result:", "The match was tied at 0-0"};
  const Ending endings[] = {
      {false, 0, SecondHalf, tied},
      {true, 0, ExtraTimeSecondHalf, tied},
      {true, 90 * 60, SecondHalf, {"90:00 >> R5 (Rovers)", "", "Result:", "Rovers beats United 1-0"}},
      {true,
       100 * 60,
       ExtraTimeFirstHalf,
       {"100:00 >> U5 (United)", "GOLDEN GOAL!", "", "Result:", "United beats Rovers 1-0"}},
  };
  for (const Ending& ending : endings) {
    SCOPED_TRACE(ending.Summary.front());
    Open(ending.ExtraTime, false, ending.GoalSecond);
    for (const int minutes : {45, 45, 15, 15, 1}) Play(minutes);
    const MatchSession& s = Session();
    EXPECT_EQ(s.Period, ending.Period);
    EXPECT_EQ(s.Summary.Entries, ending.Summary);
    EXPECT_FALSE(s.Controls.halftimeEnabled || s.Controls.Timer1Enabled);
    EXPECT_EQ(s.Controls.Label3, "");
    EXPECT_EQ(s.BallSide, 0);
  }
  const Texts& told = Session().Commentary.Entries;
  EXPECT_EQ((Texts{told.end() - 3, told.end()}),
            (Texts{"Referee blows the final whistle", "The match ends with a Golden Goal",
                   "With that, United wins the match"}));
}

TEST_F(ClockTest, TicksAreDroppedUnderAQuestion) {
  Open(false, false);
  Play(44);
  desktop_.Yes = false;
  desktop_.WhileAsked = [this] { match_->Timer1_Timer(screen_); };
  match_->Command1_Click();
  match_->ComSave_Click();
  EXPECT_EQ(Session().Controls.Label3, "44:00");
}

TEST_F(ClockTest, AGoalInTheLastSecondOfAHalfStaysOnTheDisplayUntilPlayGoesOn) {
  Open(true, true, 45 * 60);
  Play(45);
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

}  // namespace
}  // namespace kickwell
