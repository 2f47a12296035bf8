// Instant results: every second of play, the result and the match facts.
#include "engine/instant.h"

#include "engine/match.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

class InstantTest : public ScreenTest {
 protected:
  static constexpr int NormalTime = 89 * SecondsPerMinute, ExtraTime = 29 * SecondsPerMinute;

  void Kick(bool scored) { draws_.Expect(2, scored ? 1 : 0); }

  /// Draws the facts after the match and plays it with the draws laid ready.
  MatchSession Play(const MatchSetup& setup) {
    draws_.Expect(70, 29);  // Possession below 30 is drawn again.
    draws_.Expect(70, 64);
    draws_.Expect(4, 3);  // Fouls and bookings of side 1...
    draws_.Expect(3, 2);
    draws_.Expect(4, 0);  // ...and of side 2.
    draws_.Expect(0, 0);
    draws_.Expect(5, 4);  // Corners.
    draws_.Expect(5, 1);
    draws_.Expect(5, 2);  // Shots beside the goals.
    draws_.Expect(5, 0);
    Match match(folder_.Folder, desktop_, draws_, recording_, setup);
    match.instant_Click();
    match.instant_Click();  // Played once only: no draws are left.
    return match.Session();
  }

  MatchDraws draws_;
};

TEST_F(InstantTest, AFriendlyIsPlayedFromTheFirstMinuteToTheLastSecondAndGetsItsFacts) {
  draws_.OpenFriendly();
  draws_.RoversScore(1);
  draws_.NoGoals(64);
  draws_.UnitedScore(2);
  draws_.GoalDraws(MatchDraws::GoalNumber, MatchDraws::GoalNumber);  // Equal draws never score.
  draws_.NoGoals(NormalTime - 68);
  draws_.UnitedScore(0);
  const MatchSession s = Play(MakeSetup());
  EXPECT_EQ(s.Summary.Entries, (Texts{"01:00 >> R6 (Rovers)", "02:05 >> U7 (United)", "89:59 >> U5 (United)",
                                      "", "Result:", "United beats Rovers 2-1"}));
  EXPECT_EQ(recording_.Calls, (Texts{"scorer R6 of Rovers", "scorer U7 of United", "scorer U5 of United"}));
  EXPECT_EQ(FactsOf(s.Side1),
            (Facts{.Goals = 1, .Shots = 3, .Corners = 4, .Bookings = 2, .Fouls = 3, .Possession = 64}));
  EXPECT_EQ(FactsOf(s.Side2), (Facts{.Goals = 2, .Shots = 2, .Corners = 1, .Possession = 36}));
}

TEST_F(InstantTest, ALevelLeagueMatchIsRecordedAsItIs) {
  draws_.OpenWithoutStadiums();
  draws_.RoversScore(1);
  draws_.UnitedScore(1);
  draws_.NoGoals(NormalTime - 2);
  const MatchSession s = Play(MakeSetup(MatchMode::League, true, true));
  EXPECT_EQ(s.Summary.Text(), "The match was tied at 1-1");
  EXPECT_EQ(recording_.Calls, (Texts{"scorer R6 of Rovers", "scorer U6 of United",
                                     "standings Rovers 1-0 United", "result Match Tied"}));
}

TEST_F(InstantTest, AKnockOutMatchEndsWithItsGoldenGoal) {
  draws_.OpenWithoutStadiums();
  draws_.NoGoals(NormalTime + SecondsPerMinute);
  draws_.UnitedScore(1);
  const MatchSession s = Play(MakeSetup(MatchMode::KnockOut));
  EXPECT_EQ(s.Summary.Entries,
            (Texts{"92:00 >> U6 (United)", "GOLDEN GOAL!", "", "Result:", "United beats Rovers 1-0"}));
  EXPECT_EQ(recording_.Calls, (Texts{"scorer U6 of United", "result United"}));
}

TEST_F(InstantTest, ThirtyKicksWithoutAWinnerAreFollowedByAToss) {
  draws_.OpenWithoutStadiums();
  draws_.NoGoals(NormalTime + ExtraTime);
  for (int pair = 0; pair < 15; ++pair) {
    Kick(true);
    draws_.PickRoversOutfield(0);
    Kick(true);
    draws_.PickUnitedOutfield(0);
  }
  draws_.Expect(2, 1);
  const MatchSession s = Play(MakeSetup(MatchMode::KnockOut));
  EXPECT_EQ(s.Summary.Entries.front(), "PENALTY SHOOT OUT!");
  EXPECT_EQ(s.Summary.Entries[2], "U1 (United)");
  EXPECT_EQ(s.Summary.Text(), "PSO was tied at 15-15");
  EXPECT_EQ(recording_.Calls, Texts{"shoot-out United (By Toss)"});
}

}  // namespace
}  // namespace kickwell
