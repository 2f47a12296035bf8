// Full simulations: a minute draw by draw, the periods and their ends, and samples against the draw rules.
#include "engine/simulation.h"

#include <cmath>
#include <memory>

#include "engine/match.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

class SimulationTest : public ScreenTest {
 protected:
  /// Plays the first minute of a match with goal number 3 and these draws; gives its commentary.
  std::string Play(const std::string& minute, bool leave = false) {
    ScriptedRandom random("100:50 100:3 " + minute);
    Match match({}, desktop_, random, recording_, MakeFullSetup());
    match.halftime_Click();
    desktop_.Taken();
    screen_.WhilePaused = [&] {
      paused_ = Shown(match.Session()) + ", " + Figures(match.Session());
      match.Timer1_Timer(screen_);  // A tick that falls due now is dropped.
      if (leave) match.Command1_Click();
    };
    match.Timer1_Timer(screen_);
    session_ = match.Session();
    const Texts& lines = session_.Commentary.Entries;
    return Joined({lines.begin() + 2, lines.end()});  // Without those of the kick-off.
  }

  /// Plays a minute without goals whose possession draws are all the same.
  std::string PlayQuiet(int possession, const std::string& rest) {
    return Play("4:3 " + Times(60, "10:" + std::to_string(possession) + " 4000:7x2") + rest);
  }

  MatchSession session_;
  std::string paused_;
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
  EXPECT_EQ(Joined(session_.Summary.Entries) + ", " + Joined(recording_.Calls),
            "00:02 >> R6 (Rovers), scorer R6 of Rovers");
  EXPECT_EQ(Shown(session_) + ", " + Figures(session_),  // No longer "GOAL!".
            "01:00, 2 at 960 740, Rovers 1 1 0 1 1 69%, United 0 1 1 0 0 31%");
  EXPECT_EQ(paused_, "GOAL! (green), 1 at 5090 390, Rovers 1 1 0 0 0 0%, United 0 0 0 0 0 0%");
  EXPECT_EQ(desktop_.Told(), "* goal");
}

TEST_F(SimulationTest, SideTwosGoalIsCelebratedAtItsOwnSpotAndLeavingThereMakesNotOneDrawMore) {
  const std::string rest = Times(59, "10:8 4000:7x2") + "5091:4079 741:0 70:34 3:0";
  EXPECT_EQ(Play("4:1 10:0 4000:9 4000:3 3:2 7:0 " + rest),
            "Great shot from a distance by U7|And its a GOAL!!|It's celebration time");
  EXPECT_EQ(paused_, "GOAL! (green), 2 at 0 390, Rovers 0 0 0 0 0 0%, United 1 1 0 0 0 0%");
  Play("4:0 10:0 4000:3 4000:9 2:0 7:0", true);
  EXPECT_EQ(session_.ClockText, "00:01");
}

TEST_F(SimulationTest, ShotsAndFoulsDependOnTheSideWithTheBall) {
  struct Case {
    int Possession;
    const char *Draws, *Lines, *Figures;
  };
  const Case cases[] = {
      {4, "5091:4080 741:0 6:2 3:1 8:0 70:36 3:2",
       "A shot flies towards the target...|Thundered towards the net by R3|And its a goal kick signalled",
       "Rovers 0 1 0 0 0 0%, United 0 0 0 0 0 0%"},
      {5, "5091:5090 741:0 6:0 3:2 5:4 70:36 3:2",
       "Here's the shot and...|The keeper comes up with a fine save|A nice kick taken by the keeper",
       "Rovers 0 1 0 0 0 0%, United 0 0 0 0 0 0%"},
      {0, "5091:2000 741:0 70:35 7:6 9:1 3:1 6:0 3:2",
       "U7 has been spotted by the referee|The referee awards a freekick|R1 to take it|"
       "The freekick nicely taken there",
       "Rovers 0 0 0 0 0 0%, United 0 0 0 0 1 0%"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(PlayQuiet(c.Possession, c.Draws), c.Lines);
    EXPECT_EQ(Figures(session_), c.Figures);
  }
  // Side 1 does not shoot at the left end, nor side 2 at the right.
  for (const auto& [possession, x] : {std::pair(1, 100), {2, 961}, {3, 5090}, {6, 5090}, {7, 5090}})
    EXPECT_EQ(PlayQuiet(possession, "5091:" + std::to_string(x) + " 741:0 70:36 3:2"), "") << possession;
}

TEST_F(SimulationTest, TheTeamsChangeEndsWithAllThatIsTheirs) {
  MatchSession s;
  s.Side1 = {"Rovers", 2, 2100, 0, {"R1"}, 3, 4, 5, 6, 60};
  s.Side2 = {"United", 1, 4000, 0, {"U1"}, 7, 8, 9, 10, 40};
  s.BallSide = 1;
  Simulation(s, random_, desktop_, recording_).SwapData();
  EXPECT_EQ(Figures(s), "United 1 7 8 9 10 40%, Rovers 2 3 4 5 6 60%");
  EXPECT_EQ(s.Side1.Outfield[0] + " " + std::to_string(s.Side1.GoalRange), "U1 4000");
  EXPECT_EQ(Shown(s), "00:00, 1 at 2520 390");  // Which label is lit does not change.
}

class ClockTest : public ScreenTest {
 protected:
  /// Opens a match in which a side scores in a second.
  void Open(bool extraTime, bool shootOut, std::size_t second = 0, const char* side = "") {
    match_ = std::make_unique<Match>(ProgramFolder{}, desktop_, random_, recording_,
                                     MakeFullSetup(extraTime, shootOut));
    desktop_.Taken();
    random_.Minutes = 0;
    random_.Goals = second == 0 ? "" : std::string(second - 1, '.') + side;
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
  Open(true, true);
  match_->Timer1_Timer(screen_);  // Not started: no play.
  Texts states{State()};
  Play(44);
  desktop_.Yes = false;
  desktop_.WhileAsked = [this] { match_->Timer1_Timer(screen_); };  // Dropped under a question or dialog.
  match_->Command1_Click();
  match_->ComSave_Click();
  states.push_back(State());
  match_->Timer1_Timer(screen_);
  for (const int minutes : {45, 15, 15}) {
    states.push_back(State());
    Play(minutes);
  }
  states.push_back(State());
  match_->halftime_Click();
  EXPECT_EQ(Joined(states) + "|" + State(),
            "&Normal Time 1st Half, 00:00, 0 at 2520 390, Rovers-United|"
            "&Normal Time 1st Half (off), running, 44:00, 1 at 2000 0, Rovers-United|"
            "&Normal Time 2nd Half, 45:00, 0 at 2520 390, Rovers-United|"
            "&Extra Time 1st Half, 90:00, 0 at 2520 390, United-Rovers|"
            "&Extra Time 2nd Half, 105:00, 0 at 2520 390, Rovers-United|"
            "&Penalty Shoot Out, 120:00, 0 at 2520 390, United-Rovers|"
            "&Penalty Shoot Out, , 0 at 2520 390, United-Rovers");  // The teams stay.
  EXPECT_TRUE(S().Controls.kickEnabled && S().Controls.PensVisible && !S().Controls.nextshotEnabled);
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
  const std::string tied = "|Result:|The match was tied at 0-0", golden = "|GOLDEN GOAL!||Result:|";
  struct Case {
    std::size_t Second;  ///< Side 2 scores in that second.
    int Minutes;         ///< So many are played.
    bool ExtraTime, ShootOut;
    std::string Period, Summary;
  };
  const Case cases[] = {
      {0, 90, false, true, "&Normal Time 2nd", tied},
      {0, 120, true, false, "&Extra Time 2nd", tied},
      {5400, 90, true, true, "&Normal Time 2nd", "90:00 >> R5 (Rovers)||Result:|Rovers beats United 1-0"},
      // Golden goals: not a second more is played, but the minute's other draws are made.
      {5401, 91, true, true, "&Extra Time 1st", "90:01 >> U5 (United)" + golden + "United beats Rovers 1-0"},
      {6300, 105, true, true, "&Extra Time 1st",
       "105:00 >> U5 (United)" + golden + "United beats Rovers 1-0"},
      {7200, 120, true, false, "&Extra Time 2nd",
       "120:00 >> R5 (Rovers)" + golden + "Rovers beats United 1-0"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Summary);
    Open(c.ExtraTime, c.ShootOut, c.Second, "2");
    for (const int minutes : {45, 45, 15, 15, 1}) Play(minutes);
    EXPECT_EQ(Joined(S().Summary.Entries), c.Summary);
    EXPECT_TRUE(c.Second == 0 || c.Summary.starts_with(S().ClockText)) << S().ClockText;
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

/// Seeded, as the program draws; a tenth under the sanitizers, which look for other faults.
#if defined(__SANITIZE_ADDRESS__) || defined(__clang__)
constexpr int Matches = 2000;
#else
constexpr int Matches = 20000;
#endif

TEST_F(SimulationTest, ManyMatchesFollowTheDrawRules) {
  SeededRandom random(20260202);
  double sums[2][6] = {};  // Goals of instant results; figures of first halves, shots without goals.
  for (int i = 0; i < Matches; ++i) {
    Match quick({}, desktop_, random, recording_, MakeSetup());
    quick.instant_Click();
    Match match({}, desktop_, random, recording_, MakeFullSetup());
    match.halftime_Click();
    for (int minute = 0; minute < 45; ++minute) match.Timer1_Timer(screen_);
    for (const int n : {0, 1}) {
      const Side& instant = n == 0 ? quick.Session().Side1 : quick.Session().Side2;
      const Side& s = n == 0 ? match.Session().Side1 : match.Session().Side2;
      const int figures[] = {instant.Goals, s.Goals, s.Shots - s.Goals, s.Corners, s.Fouls, s.Bookings};
      for (int k = 0; k < 6; ++k) sums[n][k] += figures[k];
    }
  }
  const double goal = 1 / 4000.0 * (1 - 1 / 4000.0);  // One draw is the goal number, and the other is not.
  for (const int n : {0, 1}) {
    const double shot = 0.5 * (n == 0 ? 1011 : 961) / 5091;
    const double chances[] = {goal, goal, shot, shot / 3, 0.5 / 70, 0.5 / 210};
    for (int k = 0; k < 6; ++k) {  // Within four standard errors of the mean of so many tries.
      const double mean = (k == 0 ? 89 * 60 : k == 1 ? 45 * 60 : 45) * chances[k];
      EXPECT_NEAR(sums[n][k] / Matches, mean, 4 * std::sqrt(mean * (1 - chances[k]) / Matches)) << k;
    }
  }
}

}  // namespace
}  // namespace kickwell
