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
    if (second > 0) random_.Goals = std::string(static_cast<std::size_t>(second - 1), '.') + "2";
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

  /// Expects a break with this caption on the button and this team on side 1.
  void ExpectBreak(const char* button, const char* clock, const char* side1) const {
    SCOPED_TRACE(clock);
    const MatchSession& s = Session();
    EXPECT_EQ(ToText(s.Period), button);
    EXPECT_EQ(s.Controls.Label3, clock);
    EXPECT_TRUE(s.Controls.halftimeEnabled && !s.Controls.Timer1Enabled);
    EXPECT_EQ(s.BallSide, 0);
    EXPECT_EQ(s.BallX, CentreSpotX);
    EXPECT_EQ(s.Side1.Team, side1);
  }

  /// Plays all periods that there are. Side 2 scores in that second, or nobody.
  void ExpectEnd(bool extraTime, bool shootOut, int second, MatchPeriod period, const Texts& summary) {
    SCOPED_TRACE(summary[0]);
    Open(extraTime, shootOut, second);
    for (const int minutes : {45, 45, 15, 15, 1}) Play(minutes);
    const MatchSession& s = Session();
    EXPECT_EQ(s.Period, period);
    EXPECT_EQ(s.Summary.Entries, summary);
    EXPECT_FALSE(s.Controls.halftimeEnabled || s.Controls.Timer1Enabled);
    EXPECT_EQ(s.Controls.Label3, "");
    EXPECT_EQ(s.BallSide, 0);
  }

  std::unique_ptr<Match> match_;
};

TEST_F(ClockTest, ALevelMatchGoesThroughAllPeriods) {
  Open(true, true);
  match_->Timer1_Timer(screen_);  // Not started: no play.
  ExpectBreak("&Normal Time 1st Half", "00:00", "Rovers");
  Play(45);
  ExpectBreak("&Normal Time 2nd Half", "45:00", "Rovers");
  Play(45);
  ExpectBreak("&Extra Time 1st Half", "90:00", "United");
  Play(15);
  ExpectBreak("&Extra Time 2nd Half", "105:00", "Rovers");
  Play(15);
  ExpectBreak("&Penalty Shoot Out", "120:00", "United");
  match_->halftime_Click();
  const MatchSession& s = Session();
  EXPECT_EQ(s.Side1.Team, "United");  // The teams stay where they are.
  EXPECT_EQ(s.Controls.Label3, "");
  EXPECT_TRUE(s.Controls.ShootOutVisible && s.Controls.PensVisible && s.Controls.kickEnabled);
  EXPECT_FALSE(s.Controls.halftimeVisible || s.Controls.nextshotEnabled);
  EXPECT_EQ(s.Summary.Entries, Texts{"PENALTY SHOOT OUT!"});
  EXPECT_EQ(
      s.Commentary.Entries,
      (Texts{"Here's the kick off", "The match is between Rovers and United",
             "Here comes the half time whistle", "Play for the 2nd half gets underway",
             "Referee blows the full time whistle", "The match goes into extra time",
             "Referee starts the extra time", "Extra Time 1st half comes to an end",
             "Extra time 2nd half gets underway", "The match remains undecided after Extra Time 2nd half",
             "The match goes into penalty shoot out", "Players getting ready for the shoot out"}));
  EXPECT_EQ(desktop_.Taken(), Texts(9, "* whistle"));
}

TEST_F(ClockTest, AMatchEndsWhenItIsDecided) {
  const Texts tied = {"", "Result:", "The match was tied at 0-0"};
  const Texts won = {"90:00 >> R5 (Rovers)", "", "Result:", "Rovers beats United 1-0"};
  constexpr int LastSecond = 90 * SecondsPerMinute;
  ExpectEnd(false, false, 0, SecondHalf, tied);
  ExpectEnd(true, false, 0, ExtraTimeSecondHalf, tied);
  ExpectEnd(false, false, LastSecond, SecondHalf, won);
  ExpectEnd(true, true, LastSecond, SecondHalf, won);
}

TEST_F(ClockTest, AGoldenGoalEndsTheMatchInItsSecond) {
  ExpectEnd(true, true, 90 * SecondsPerMinute + 1, ExtraTimeFirstHalf,
            {"90:01 >> U5 (United)", "GOLDEN GOAL!", "", "Result:", "United beats Rovers 1-0"});
  ExpectEnd(true, true, 105 * SecondsPerMinute, ExtraTimeFirstHalf,
            {"105:00 >> U5 (United)", "GOLDEN GOAL!", "", "Result:", "United beats Rovers 1-0"});
  ExpectEnd(true, false, 120 * SecondsPerMinute, ExtraTimeSecondHalf,
            {"120:00 >> R5 (Rovers)", "GOLDEN GOAL!", "", "Result:", "Rovers beats United 1-0"});
  const Texts& told = Session().Commentary.Entries;
  EXPECT_EQ((Texts{told.end() - 3, told.end()}),
            (Texts{"Referee blows the final whistle", "The match ends with a Golden Goal",
                   "With that, Rovers wins the match"}));
}

TEST_F(ClockTest, TicksAreDroppedUnderAQuestion) {
  Open(false, false);
  Play(44);
  desktop_.Yes = false;
  desktop_.WhileAsked = [this] { match_->Timer1_Timer(screen_); };
  match_->Command1_Click();
  match_->ComSave_Click();
  EXPECT_EQ(desktop_.Taken(), (Texts{"* whistle", "?: Do you really want to exit?"}));
  EXPECT_EQ(Session().Controls.Label3, "44:00");
  EXPECT_TRUE(Session().Controls.Timer1Enabled);
  EXPECT_FALSE(match_->Closed());
}

TEST_F(ClockTest, AGoalInTheLastSecondOfAHalfStaysOnTheDisplayUntilPlayGoesOn) {
  Open(true, true, 45 * SecondsPerMinute);
  Play(45);
  ExpectBreak("&Normal Time 2nd Half", "GOAL!", "Rovers");
  EXPECT_EQ(Session().Controls.Label2, Lamp::Green);
  Play(0);
  EXPECT_EQ(Session().Controls.Label3, "45:00");
}

TEST_F(ClockTest, LeavingInTheGoalPauseOfAGoldenGoalEndsNothingElse) {
  Open(true, true, 90 * SecondsPerMinute + 1);
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
