// Instant results: every second of play, the result and the match facts.
#include "engine/instant.h"

#include "engine/match.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

class InstantTest : public ScreenTest {
 protected:
  static constexpr int NormalTime = 89 * SecondsPerMinute, ExtraTime = 29 * SecondsPerMinute;

  /// Draws the facts after the match and plays it with the draws laid ready.
  MatchSession Play(MatchMode mode) {
    draws_.Expect({{70, 29}, {70, 64}});              // Possession below 30 is drawn again.
    draws_.Expect({{4, 3}, {3, 2}, {4, 0}, {0, 0}});  // Fouls and bookings of side 1, then of side 2.
    draws_.Expect({{5, 4}, {5, 1}, {5, 2}, {5, 0}});  // Corners, then shots beside the goals.
    Match match(folder_.Folder, desktop_, draws_, recording_, MakeSetup(mode));
    match.instant_Click();
    match.instant_Click();  // Played once only: no draws are left.
    return match.Session();
  }

  MatchDraws draws_;
};

TEST_F(InstantTest, AFriendlyIsPlayedFromTheFirstMinuteToTheLastSecondAndGetsItsFacts) {
  draws_.OpenFriendly();
  draws_.Goal(1, 1);
  draws_.NoGoals(64);
  draws_.Goal(2, 1);
  draws_.Expect(4000, MatchDraws::GoalNumber, 2);  // Equal draws never score.
  draws_.NoGoals(NormalTime - 68);
  draws_.Goal(2, 0);
  const MatchSession s = Play(MatchMode::Friendly);
  EXPECT_EQ(s.Summary.Entries, (Texts{"01:00 >> R6 (Rovers)", "02:05 >> U6 (United)", "89:59 >> U5 (United)",
                                      "", "Result:", "United beats Rovers 2-1"}));
  EXPECT_EQ(recording_.Calls, (Texts{"scorer R6 of Rovers", "scorer U6 of United", "scorer U5 of United"}));
  const Side &side1 = s.Side1, &side2 = s.Side2;
  EXPECT_EQ(std::pair(side1.PossessionPercent, side2.PossessionPercent), std::pair(64, 36));
  EXPECT_EQ(std::pair(side1.Fouls, side2.Fouls), std::pair(3, 0));
  EXPECT_EQ(std::pair(side1.Bookings, side2.Bookings), std::pair(2, 0));
  EXPECT_EQ(std::pair(side1.Corners, side2.Corners), std::pair(4, 1));
  EXPECT_EQ(std::pair(side1.Shots, side2.Shots), std::pair(3, 2));
}

TEST_F(InstantTest, AKnockOutMatchEndsWithItsGoldenGoal) {
  draws_.DrawGoalNumber();
  draws_.NoGoals(NormalTime + SecondsPerMinute);
  draws_.Goal(2, 1);
  const MatchSession s = Play(MatchMode::KnockOut);
  EXPECT_EQ(s.Summary.Entries,
            (Texts{"92:00 >> U6 (United)", "GOLDEN GOAL!", "", "Result:", "United beats Rovers 1-0"}));
  EXPECT_EQ(recording_.Calls, (Texts{"scorer U6 of United", "result United"}));
}

TEST_F(InstantTest, ThirtyKicksWithoutAWinnerAreFollowedByAToss) {
  draws_.DrawGoalNumber();
  draws_.NoGoals(NormalTime + ExtraTime);
  for (int kick = 0; kick < 30; ++kick) draws_.InstantKick(true);
  draws_.Expect(2, 1);
  const MatchSession s = Play(MatchMode::KnockOut);
  EXPECT_EQ(s.Summary.Entries.front(), "PENALTY SHOOT OUT!");
  EXPECT_EQ(s.Summary.Entries[2], "U1 (United)");
  EXPECT_EQ(s.Summary.Text(), "PSO was tied at 15-15");
  EXPECT_EQ(recording_.Calls, Texts{"shoot-out United (By Toss)"});
}

}  // namespace
}  // namespace kickwell
