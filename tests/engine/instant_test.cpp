#include "engine/instant.h"

#include <gtest/gtest.h>

#include "support/fakes.h"
#include "support/matches.h"
#include "support/scripted_random.h"

namespace kickwell {
namespace {

constexpr int Seconds = 89 * 60;  ///< Of normal time.
constexpr int Range = 4000;

/// Seconds in which nobody scores.
Draw Quiet(int seconds) {
  return {Range, 7, 2 * seconds};
}

using Texts = std::vector<std::string>;

class InstantTest : public testing::Test {
 protected:
  /// Plays `setup` with goal number 3 and the script's draws, then nine draws of match facts.
  const MatchSession& Play(const MatchSetup& setup, const std::vector<Draw>& script) {
    ScriptedRandom random(script);
    for (const Draw& fact : {Draw{70, 29}, Draw{70, 64}, Draw{4, 3}, Draw{3, 2}, Draw{4, 0}, Draw{0, 0},
                             Draw{5, 4}, Draw{5, 1}, Draw{5, 2}, Draw{5, 0}}) {
      random.Then(fact);
    }
    session_ = MatchSession();
    session_.Setup = setup;
    session_.Side1 = {setup.Team1Name, 0, Range, setup.Team1Outfield};
    session_.Side2 = {setup.Team2Name, 0, Range, setup.Team2Outfield};
    session_.GoalNumber = 3;
    session_.ExtraTime = setup.ExtraTime;
    session_.PenaltyShootOut = setup.PenaltyShootOut;
    recording_.Calls.clear();
    Announcement announcement(session_, random, recording_);
    Instant instant(session_, random, announcement, recording_);
    instant.instant_Click();
    EXPECT_FALSE(session_.Controls.instantEnabled);
    instant.instant_Click();  // Played once only: the script has no draws left.
    return session_;
  }

  MatchSession session_;
  FakeRecording recording_;
};

TEST_F(InstantTest, GoalsAreDrawnSecondBySecondAndCredited) {
  const MatchSession& s = Play(MakeSetup(), {{Range, 3, 1},
                                             {Range, 9},
                                             {2, 1},     // 01:00, side 1.
                                             Quiet(64),  // To 02:04.
                                             {Range, 9},
                                             {Range, 3},
                                             {3, 2},         // 02:05, side 2.
                                             {Range, 3, 2},  // Equal draws never score.
                                             Quiet(Seconds - 68),
                                             {Range, 8},
                                             {Range, 3},
                                             {3, 0}});  // 89:59, side 2.
  EXPECT_EQ(s.Summary.Entries, (Texts{"01:00 >> R6 (Rovers)", "02:05 >> U7 (United)", "89:59 >> U5 (United)",
                                      "", "Result:", "United beats Rovers 2-1"}));
  EXPECT_EQ(s.Summary.Picked, 5);
  EXPECT_EQ(recording_.Calls, (Texts{"scorer R6 of Rovers", "scorer U7 of United", "scorer U5 of United"}));
  EXPECT_EQ(s.LastScorer + "/" + s.LastScoringTeam, "U5/United");
  EXPECT_FALSE(s.Controls.PensVisible);
}

TEST_F(InstantTest, FactsAreDrawnAfterTheAnnouncement) {
  const MatchSession& s = Play(MakeSetup(), {Quiet(Seconds - 1), {Range, 3}, {Range, 9}, {2, 0}});
  EXPECT_EQ(s.Side1.PossessionPercent, 64);
  EXPECT_EQ(s.Side2.PossessionPercent, 36);
  EXPECT_EQ(s.Side1.Fouls * 10 + s.Side1.Bookings, 32);
  EXPECT_EQ(s.Side2.Fouls * 10 + s.Side2.Bookings, 0);
  EXPECT_EQ(s.Side1.Corners * 10 + s.Side2.Corners, 41);
  EXPECT_EQ(s.Side1.Shots * 10 + s.Side2.Shots, 30);  // 2 and the goal; 0.
}

TEST_F(InstantTest, AGoldenGoalEndsExtraTimeAtOnce) {
  MatchSetup setup = MakeSetup();
  setup.ExtraTime = setup.PenaltyShootOut = true;
  const MatchSession& s = Play(setup, {Quiet(Seconds + 60), {Range, 9}, {Range, 3}, {3, 1}});
  EXPECT_EQ(s.Summary.Entries,
            (Texts{"92:00 >> U6 (United)", "GOLDEN GOAL!", "", "Result:", "United beats Rovers 1-0"}));
}

TEST_F(InstantTest, ALevelMatchWithoutDecidersIsTied) {
  MatchSetup setup = MakeSetup();
  EXPECT_EQ(Play(setup, {Quiet(Seconds)}).Summary.Entries,
            (Texts{"", "Result:", "The match was tied at 0-0"}));
  setup.ExtraTime = true;
  EXPECT_EQ(Play(setup, {Quiet(Seconds + 29 * 60)}).Summary.Entries.size(), 3U);
}

TEST_F(InstantTest, ShootOutsEndWhenTheyAreDecided) {
  const std::pair<std::string, const char*> cases[] = {
      {"x.x.x.", "Rovers beats United 3-0 in PSO"},       {".x.x.x", "United beats Rovers 3-0 in PSO"},
      {"x.x...x", "Rovers beats United 3-0 in PSO"},      {"xxxxx.x.", "Rovers beats United 4-2 in PSO"},
      {"xxxxx...x", "Rovers beats United 4-2 in PSO"},    {"xxxxxxxxx.", "Rovers beats United 5-4 in PSO"},
      {"xxxxxxxxxx.x", "United beats Rovers 6-5 in PSO"},  // Never between the kicks of a pair.
      {std::string(30, 'x'), "PSO was tied at 15-15"},
  };
  MatchSetup setup = MakeSetup(MatchMode::KnockOut);
  setup.PenaltyShootOut = true;  // Straight after normal time.
  for (const auto& [outcomes, line] : cases) {
    SCOPED_TRACE(outcomes);
    std::vector<Draw> script{Quiet(Seconds)};
    Texts expected{"PENALTY SHOOT OUT!"};
    for (std::size_t k = 0; k < outcomes.size(); ++k) {
      const int taker = static_cast<int>(k) % 6;
      const bool side1 = k % 2 == 0;
      script.push_back({2, outcomes[k] == 'x' ? 1 : 0});
      script.push_back({side1 ? 6 : 7, taker});  // Drawn for a miss too, which leaves no line.
      if (outcomes[k] == 'x') {
        expected.push_back((side1 ? "R" : "U") + std::to_string(taker + 1) +
                           (side1 ? " (Rovers)" : " (United)"));
      }
    }
    const bool toss = outcomes.size() == 30;
    if (toss) script.push_back({2, 1});
    expected.insert(expected.end(), {"", "Result:", "The match was tied at 0-0", line});
    const MatchSession& s = Play(setup, script);
    EXPECT_EQ(s.Summary.Entries, expected);
    EXPECT_TRUE(s.Controls.PensVisible);
    EXPECT_EQ(s.Side1FinalGoals + s.Side2FinalGoals, 0);
    EXPECT_EQ(recording_.Calls,
              Texts{"shoot-out " + (toss ? "United (By Toss)" : std::string(line).substr(0, 6))});
  }
}

}  // namespace
}  // namespace kickwell
