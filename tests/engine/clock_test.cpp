// Periods and their ends.
#include "engine/clock.h"

#include <gtest/gtest.h>

#include "engine/match.h"
#include "support/fakes.h"
#include "support/matches.h"
#include "support/scripted_random.h"

namespace kickwell {
namespace {

using Texts = std::vector<std::string>;

class ClockTest : public testing::Test {
 protected:
  explicit ClockTest(bool extraTime = true, bool shootOut = true)
      : match({}, desktop, random, recording, MakeFullSetup(extraTime, shootOut)) {}

  const MatchSession& S() const { return match.Session(); }

  /// Presses the period button and plays so many minutes; gives the commentary lines of that time.
  Texts PlayPeriod(int minutes) {
    const std::size_t before = S().Commentary.Entries.size();
    match.halftime_Click();
    EXPECT_FALSE(S().Controls.halftimeEnabled);
    match.halftime_Click();  // Dark: nothing, not even a whistle.
    for (int i = 0; i < minutes; ++i) match.Timer1_Timer(screen);
    return {S().Commentary.Entries.begin() + static_cast<std::ptrdiff_t>(before),
            S().Commentary.Entries.end()};
  }

  std::string Button() const {
    return std::string(ToText(S().Period)) + (S().Controls.halftimeEnabled ? "" : " (off)") +
           (S().Controls.Timer1Enabled ? " running" : "");
  }

  QuietRandom random;
  FakeDesktop desktop;
  FakeRecording recording;
  FakeScreen screen;
  Match match;
};

class ClockWithoutExtraTimeTest : public ClockTest {
 protected:
  ClockWithoutExtraTimeTest() : ClockTest(false, true) {}
};

class ClockWithoutShootOutTest : public ClockTest {
 protected:
  ClockWithoutShootOutTest() : ClockTest(true, false) {}
};

TEST_F(ClockTest, ALevelMatchGoesThroughAllPeriods) {
  match.Timer1_Timer(screen);  // Not started: no play.
  EXPECT_EQ(Button(), "&Normal Time 1st Half");
  EXPECT_EQ(PlayPeriod(44), (Texts{"Here's the kick off", "The match is between Rovers and United"}));
  EXPECT_EQ(Button(), "&Normal Time 1st Half (off) running");
  match.Timer1_Timer(screen);
  EXPECT_EQ(S().Commentary.Entries.back(), "Here comes the half time whistle");
  EXPECT_EQ(S().Commentary.Picked, 2);
  EXPECT_EQ(Button(), "&Normal Time 2nd Half");
  EXPECT_EQ(S().Controls.Label3, "45:00");
  EXPECT_EQ(S().BallX, 2520);
  EXPECT_EQ(S().BallSide, 0);

  EXPECT_EQ(PlayPeriod(45), (Texts{"Play for the 2nd half gets underway",
                                   "Referee blows the full time whistle", "The match goes into extra time"}));
  EXPECT_EQ(S().Side1.Team, "United");
  EXPECT_EQ(Button(), "&Extra Time 1st Half");

  match.halftime_Click();
  EXPECT_EQ(S().Commentary.Picked, 5);  // The line that starts extra time is added, not picked.
  for (int i = 0; i < 15; ++i) match.Timer1_Timer(screen);
  EXPECT_EQ(S().Side1.Team, "Rovers");
  EXPECT_EQ(Button(), "&Extra Time 2nd Half");
  EXPECT_EQ(S().ClockText, "105:00");
  EXPECT_EQ(PlayPeriod(15), (Texts{"Extra time 2nd half gets underway",
                                   "The match remains undecided after Extra Time 2nd half",
                                   "The match goes into penalty shoot out"}));
  EXPECT_EQ(S().Side1.Team, "United");
  EXPECT_EQ(Button(), "&Penalty Shoot Out");
  EXPECT_EQ(S().Summary.Entries, Texts{"PENALTY SHOOT OUT!"});

  EXPECT_EQ(desktop.Taken(), Texts(8, "* whistle"));
  match.halftime_Click();
  EXPECT_EQ(desktop.Taken(), Texts{"* whistle"});
  EXPECT_EQ(S().Commentary.Entries.back(), "Players getting ready for the shoot out");
  EXPECT_EQ(S().Side1.Team, "United");  // The teams stay where they are.
  const MatchControls& c = S().Controls;
  EXPECT_TRUE(c.ShootOutVisible && c.PensVisible && c.kickEnabled);
  EXPECT_FALSE(c.nextshotEnabled || c.halftimeVisible || c.Timer1Enabled);
  EXPECT_EQ(c.Label3, "");
}

TEST_F(ClockWithoutShootOutTest, ALevelMatchEndsTiedAfterExtraTime) {
  for (const int minutes : {45, 45, 15, 15}) PlayPeriod(minutes);
  EXPECT_EQ(S().Summary.Entries, (Texts{"", "Result:", "The match was tied at 0-0"}));
  EXPECT_EQ(Button(), "&Extra Time 2nd Half (off)");
  EXPECT_EQ(S().BallX + S().BallSide, 2520);
}

TEST_F(ClockWithoutExtraTimeTest, ALevelMatchEndsTied) {
  PlayPeriod(45);
  EXPECT_EQ(PlayPeriod(46),
            (Texts{"Play for the 2nd half gets underway", "Referee blows the full time whistle"}));
  EXPECT_EQ(S().Summary.Entries, (Texts{"", "Result:", "The match was tied at 0-0"}));
  EXPECT_EQ(Button(), "&Normal Time 2nd Half (off)");
  EXPECT_EQ(S().Controls.Label3, "");
  EXPECT_EQ(S().BallX + S().BallSide, 2520);
}

TEST_F(ClockTest, AGoalInTheLastSecondOfNormalTimeCounts) {
  PlayPeriod(45);
  PlayPeriod(44);
  random.ScoringSide = 1;
  random.ScoringSecond = 59;
  match.Timer1_Timer(screen);
  EXPECT_EQ(S().Summary.Entries, (Texts{"90:00 >> U5 (United)", "", "Result:", "United beats Rovers 1-0"}));
  EXPECT_EQ(S().Commentary.Entries.back(), "With that, United wins the match");
  EXPECT_EQ(Button(), "&Normal Time 2nd Half (off)");
}

TEST_F(ClockTest, LeavingInTheGoalPauseOfAGoldenGoalEndsNothingElse) {
  for (const int minutes : {45, 45, 3}) PlayPeriod(minutes);
  const int lines = S().Commentary.Count();
  random.ScoringSide = 1;
  screen.WhilePaused = [this] { match.Command1_Click(); };
  match.Timer1_Timer(screen);
  EXPECT_TRUE(match.Closed());
  EXPECT_EQ(S().Summary.Entries, Texts{"93:01 >> R5 (Rovers)"});
  EXPECT_EQ(S().Commentary.Count(), lines + 3);
  EXPECT_EQ(recording.Calls.size(), 1U);
}

TEST_F(ClockTest, AGoalInTheLastSecondStaysOnTheDisplayUntilPlayGoesOn) {
  PlayPeriod(44);
  random.ScoringSide = 2;
  random.ScoringSecond = 59;
  match.Timer1_Timer(screen);
  EXPECT_EQ(S().Controls.Label3, "GOAL!");
  EXPECT_EQ(S().Summary.Picked, 0);
  match.halftime_Click();
  EXPECT_EQ(S().Controls.Label3, "45:00");
}

TEST_F(ClockTest, AGoldenGoalEndsTheMatchAtOnceAndOnce) {
  for (const int minute : {95, 105, 118, 120}) {
    SCOPED_TRACE(minute);
    QuietRandom draws;
    Match played({}, desktop, draws, recording, MakeFullSetup(true, true));
    for (const int minutes : {45, 45, 15, 15}) {
      played.halftime_Click();
      for (int i = 0; i < minutes && !played.Session().Summary.Count(); ++i) {
        if (played.Session().Minute == minute - 1) {
          draws.ScoringSide = 2;
          draws.ScoringSecond = minute % 5 == 0 ? 59 : 30;  // 105:00 and 120:00 to the second.
        }
        played.Timer1_Timer(screen);
      }
    }
    const MatchSession& s = played.Session();
    const std::string winner = minute <= 105 ? "United" : "Rovers";  // On side 2 by now.
    const std::string clock = ClockText(minute % 5 == 0 ? minute : minute - 1, minute % 5 == 0 ? 0 : 31);
    EXPECT_EQ(
        s.Summary.Entries,
        (Texts{clock + " >> " + (winner == "United" ? "U5" : "R5") + " (" + winner + ")", "GOLDEN GOAL!", "",
               "Result:", winner + " beats " + (winner == "United" ? "Rovers" : "United") + " 1-0"}));
    const Texts& lines = s.Commentary.Entries;
    EXPECT_EQ(Texts(lines.end() - 3, lines.end()),
              (Texts{"Referee blows the final whistle", "The match ends with a Golden Goal",
                     "With that, " + winner + " wins the match"}));
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "Extra Time 1st half comes to an end"),
              minute > 105 ? 1 : 0);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "The match goes into penalty shoot out"), 0);
    EXPECT_FALSE(s.Controls.halftimeEnabled || s.Controls.Timer1Enabled);
    EXPECT_EQ(s.BallX, 2520);
    EXPECT_EQ(s.ClockText, clock);       // Not a second more is played,
    EXPECT_EQ(draws.BallDraws, minute);  // but the minute's other draws are made.
  }
}

TEST_F(ClockTest, TicksAreDroppedUnderAQuestionOrDialogAndNoLeavesTheClockAsItWas) {
  PlayPeriod(1);
  desktop.Yes = false;
  desktop.WhileAsked = [this] { match.Timer1_Timer(screen); };
  match.Command1_Click();
  match.ComSave_Click();
  EXPECT_EQ(S().ClockText, "01:00");
  EXPECT_TRUE(S().Controls.Timer1Enabled);
  match.Timer1_Timer(screen);
  EXPECT_EQ(S().ClockText, "02:00");
}

}  // namespace
}  // namespace kickwell
