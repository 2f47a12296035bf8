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
  void Open(bool extraTime, bool shootOut) {
    match_ = std::make_unique<Match>(folder_.Folder, desktop_, random_, recording_,
                                     MakeFullSetup(extraTime, shootOut));
    desktop_.Taken();
    random_.Minutes = 0;
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
    EXPECT_TRUE(s.Controls.halftimeEnabled);
    EXPECT_FALSE(s.Controls.Timer1Enabled);
    EXPECT_EQ(s.BallSide, 0);
    EXPECT_EQ(s.BallX, CentreSpotX);
    EXPECT_EQ(s.Side1.Team, side1);
  }

  /// Plays all periods that there are. Side 2 scores in that second, or nobody.
  void PlayToTheEnd(bool extraTime, bool shootOut, int second = 0) {
    random_.ScoreIn(second, 2);
    Open(extraTime, shootOut);
    for (const int minutes : {45, 45, 15, 15, 1}) Play(minutes);
  }

  void ExpectEnd(MatchPeriod period, int minutes, const Texts& summary) const {
    SCOPED_TRACE(summary[0]);
    const MatchSession& s = Session();
    EXPECT_EQ(s.Period, period);
    EXPECT_EQ(random_.Minutes, minutes);
    EXPECT_EQ(s.Summary.Entries, summary);
    EXPECT_FALSE(s.Controls.halftimeEnabled || s.Controls.Timer1Enabled);
    EXPECT_EQ(s.Controls.Label3, "");
    EXPECT_EQ(s.Controls.Label2, Lamp::Black);
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
  EXPECT_EQ(Session().Side1.Team, "United");  // The teams stay where they are.
  EXPECT_EQ(Session().Controls.Label3, "");
  EXPECT_FALSE(Session().Controls.halftimeVisible);
  EXPECT_TRUE(Session().Controls.kickEnabled);
  EXPECT_FALSE(Session().Controls.nextshotEnabled);
  EXPECT_TRUE(Session().Controls.PensVisible);
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

TEST_F(ClockTest, APeriodBeingPlayedRunsAndItsTicksAreDroppedUnderAQuestion) {
  Open(false, false);
  Play(44);
  desktop_.Yes = false;
  desktop_.WhileAsked = [this] { match_->Timer1_Timer(screen_); };
  match_->Command1_Click();
  match_->ComSave_Click();
  EXPECT_EQ(desktop_.Taken(), (Texts{"* whistle", "?: Do you really want to exit?"}));
  EXPECT_EQ(Session().Controls.Label3, "44:00");
  EXPECT_TRUE(Session().Controls.Timer1Enabled);
  EXPECT_FALSE(Session().Controls.halftimeEnabled);
  EXPECT_FALSE(match_->Closed());
}

TEST_F(ClockTest, AMatchEndsWhenItIsDecided) {
  const Texts tied = {"", "Result:", "The match was tied at 0-0"};
  const Texts won = {"90:00 >> R5 (Rovers)", "", "Result:", "Rovers beats United 1-0"};
  PlayToTheEnd(false, false);
  ExpectEnd(SecondHalf, 90, tied);
  PlayToTheEnd(true, false);
  ExpectEnd(ExtraTimeSecondHalf, 120, tied);
  for (const bool extraTime : {false, true}) {
    PlayToTheEnd(extraTime, extraTime, 90 * SecondsPerMinute);
    ExpectEnd(SecondHalf, 90, won);
  }
}

TEST_F(ClockTest, AGoldenGoalEndsTheMatchInItsSecond) {
  const Texts end = {"GOLDEN GOAL!", "", "Result:"};
  PlayToTheEnd(true, true, 90 * SecondsPerMinute + 1);
  ExpectEnd(ExtraTimeFirstHalf, 91,
            {"90:01 >> U5 (United)", end[0], end[1], end[2], "United beats Rovers 1-0"});
  PlayToTheEnd(true, true, 105 * SecondsPerMinute);
  ExpectEnd(ExtraTimeFirstHalf, 105,
            {"105:00 >> U5 (United)", end[0], end[1], end[2], "United beats Rovers 1-0"});
  PlayToTheEnd(true, false, 120 * SecondsPerMinute);
  ExpectEnd(ExtraTimeSecondHalf, 120,
            {"120:00 >> R5 (Rovers)", end[0], end[1], end[2], "Rovers beats United 1-0"});
  const Texts& lines = Session().Commentary.Entries;
  EXPECT_EQ((Texts{lines.end() - 3, lines.end()}),
            (Texts{"Referee blows the final whistle", "The match ends with a Golden Goal",
                   "With that, Rovers wins the match"}));
}

TEST_F(ClockTest, AGoalInTheLastSecondOfAHalfStaysOnTheDisplayUntilPlayGoesOn) {
  random_.ScoreIn(45 * SecondsPerMinute, 1);
  Open(true, true);
  Play(45);
  ExpectBreak("&Normal Time 2nd Half", "GOAL!", "Rovers");
  EXPECT_EQ(Session().Controls.Label2, Lamp::Green);
  Play(0);
  EXPECT_EQ(Session().Controls.Label3, "45:00");
}

TEST_F(ClockTest, LeavingInTheGoalPauseOfAGoldenGoalEndsNothingElse) {
  random_.ScoreIn(90 * SecondsPerMinute + 1, 1);
  Open(true, true);
  screen_.WhilePaused = [this] { match_->Command1_Click(); };
  for (const int minutes : {45, 45, 1}) Play(minutes);
  EXPECT_TRUE(match_->Closed());
  EXPECT_EQ(Session().Summary.Entries, Texts{"90:01 >> R5 (Rovers)"});
  EXPECT_EQ(Session().Commentary.Text(), "The players are celebrating");
  EXPECT_EQ(random_.Minutes, 90);  // Not one draw more.
}

}  // namespace
}  // namespace kickwell
