// Periods and their ends.
#include "engine/clock.h"

#include <memory>

#include "engine/match.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

class ClockTest : public ScreenTest {
 protected:
  /// Opens a match in which a side scores in a second; in none when that is 0.
  void Open(bool extraTime, bool shootOut, int second, const char* side) {
    match_ = std::make_unique<Match>(ProgramFolder{}, desktop_, random_, recording_,
                                     MakeFullSetup(extraTime, shootOut));
    desktop_.Taken();
    random_.Minutes = 0;
    random_.Goals = second == 0 ? "" : std::string(static_cast<std::size_t>(second - 1), '.') + side;
  }

  const MatchSession& S() const { return match_->Session(); }

  /// Presses the period button, twice, and plays so many minutes.
  void Play(int minutes) {
    match_->halftime_Click();
    match_->halftime_Click();  // Dark: nothing, not even a whistle.
    for (int i = 0; i < minutes; ++i) match_->Timer1_Timer(screen_);
  }

  /// The period button, the display and the ball, and the teams by end.
  std::string State() const {
    return std::string(ToText(S().Period)) + (S().Controls.halftimeEnabled ? ", " : " (off), ") +
           (S().Controls.Timer1Enabled ? "running, " : "") + Shown(S()) + ", " + S().Side1.Team + "-" +
           S().Side2.Team;
  }

  std::unique_ptr<Match> match_;
};

TEST_F(ClockTest, ALevelMatchGoesThroughAllPeriods) {
  Open(true, true, 0, "");
  match_->Timer1_Timer(screen_);  // Not started: no play.
  EXPECT_EQ(State(), "&Normal Time 1st Half, 00:00, 0 at 2520 390, Rovers-United");
  Play(44);
  desktop_.Yes = false;
  desktop_.WhileAsked = [this] { match_->Timer1_Timer(screen_); };  // Dropped under a question or dialog.
  match_->Command1_Click();
  match_->ComSave_Click();
  EXPECT_EQ(State(), "&Normal Time 1st Half (off), running, 44:00, 1 at 2000 0, Rovers-United");
  match_->Timer1_Timer(screen_);
  EXPECT_EQ(State(), "&Normal Time 2nd Half, 45:00, 0 at 2520 390, Rovers-United");
  Play(45);
  EXPECT_EQ(State(), "&Extra Time 1st Half, 90:00, 0 at 2520 390, United-Rovers");
  Play(15);
  EXPECT_EQ(State(), "&Extra Time 2nd Half, 105:00, 0 at 2520 390, Rovers-United");
  Play(0);
  EXPECT_EQ(S().Commentary.Picked, 7);  // Lines that start extra time are added, not picked.
  Play(15);
  EXPECT_EQ(State(), "&Penalty Shoot Out, 120:00, 0 at 2520 390, United-Rovers");
  match_->halftime_Click();
  EXPECT_EQ(State(), "&Penalty Shoot Out, , 0 at 2520 390, United-Rovers");  // The teams stay.
  const MatchControls& c = S().Controls;
  EXPECT_TRUE(c.kickEnabled && c.ShootOutVisible && c.PensVisible);
  EXPECT_FALSE(c.nextshotEnabled || c.halftimeVisible);
  EXPECT_EQ(Joined(S().Summary.Entries), "PENALTY SHOOT OUT!");
  EXPECT_EQ(Joined(S().Commentary.Entries),
            "Here's the kick off|The match is between Rovers and United|Here comes the half time whistle|"
            "Play for the 2nd half gets underway|Referee blows the full time whistle|"
            "The match goes into extra time|Referee starts the extra time|"
            "Extra Time 1st half comes to an end|Extra time 2nd half gets underway|"
            "The match remains undecided after Extra Time 2nd half|The match goes into penalty shoot out|"
            "Players getting ready for the shoot out");
  EXPECT_EQ(desktop_.Told(), "* whistle|?: Do you really want to exit?|" + Joined(Texts(8, "* whistle")));
}

TEST_F(ClockTest, AMatchEndsWhenItIsDecided) {
  const std::string result = "||Result:|", golden = "|GOLDEN GOAL!" + result;
  struct Case {
    bool ExtraTime, ShootOut;
    int Second, Minutes;  ///< Side 2 scores in that second; so many minutes are played.
    std::string Period, Summary;
  };
  const Case cases[] = {
      {false, true, 0, 90, "&Normal Time 2nd", "90:00" + result + "The match was tied at 0-0"},
      {true, false, 0, 120, "&Extra Time 2nd", "120:00" + result + "The match was tied at 0-0"},
      {true, true, 5400, 90, "&Normal Time 2nd",
       "90:00|90:00 >> R5 (Rovers)" + result + "Rovers beats United 1-0"},
      // Golden goals: not a second more is played, but the minute's other draws are made.
      {true, true, 5401, 91, "&Extra Time 1st",
       "90:01|90:01 >> U5 (United)" + golden + "United beats Rovers 1-0"},
      {true, true, 6300, 105, "&Extra Time 1st",
       "105:00|105:00 >> U5 (United)" + golden + "United beats Rovers 1-0"},
      {true, false, 7200, 120, "&Extra Time 2nd",
       "120:00|120:00 >> R5 (Rovers)" + golden + "Rovers beats United 1-0"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Summary);
    Open(c.ExtraTime, c.ShootOut, c.Second, "2");
    for (const int minutes : {45, 45, 15, 15, 1}) Play(minutes);
    EXPECT_EQ(S().ClockText + "|" + Joined(S().Summary.Entries), c.Summary);
    const std::string ends = c.Period == "&Extra Time 1st" ? "Rovers-United" : "United-Rovers";
    EXPECT_EQ(State(), c.Period + " Half (off), , 0 at 2520 390, " + ends);
    EXPECT_EQ(random_.Minutes, c.Minutes);
  }
  EXPECT_TRUE(Joined(S().Commentary.Entries)
                  .ends_with("|Referee blows the final whistle|The match ends with a Golden Goal|"
                             "With that, Rovers wins the match"));
}

TEST_F(ClockTest, AGoalInTheLastSecondOfAHalfStaysOnTheDisplayUntilPlayGoesOn) {
  Open(true, true, 2700, "1");
  Play(45);
  EXPECT_EQ(State(), "&Normal Time 2nd Half, GOAL! (green), 0 at 2520 390, Rovers-United");
  Play(0);
  EXPECT_EQ(S().Controls.Label3, "45:00");
}

TEST_F(ClockTest, LeavingInTheGoalPauseOfAGoldenGoalEndsNothingElse) {
  Open(true, true, 5401, "1");
  screen_.WhilePaused = [this] { match_->Command1_Click(); };
  for (const int minutes : {45, 45, 1}) Play(minutes);
  EXPECT_TRUE(match_->Closed());
  EXPECT_EQ(Joined(S().Summary.Entries), "90:01 >> R5 (Rovers)");
  EXPECT_EQ(S().Commentary.Entries.back(), "The players are celebrating");
  EXPECT_EQ(random_.Minutes, 90);  // Not one draw more.
}

}  // namespace
}  // namespace kickwell
