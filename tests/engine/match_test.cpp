#include "engine/match.h"

#include <gtest/gtest.h>

#include <set>

#include "support/fakes.h"
#include "support/folders.h"
#include "support/matches.h"
#include "support/scripted_random.h"

namespace kickwell {
namespace {

class MatchTest : public testing::Test {
 protected:
  TestFolder folder_;
  FakeDesktop desktop_;
  FakeRecording recording_;
};

TEST_F(MatchTest, OpensAFriendlyFromItsSetUp) {
  MatchSetup setup = MakeSetup();
  setup.Team1Strength = 99;
  setup.Team2Strength = 1;
  setup.Weather = WeatherCondition::Windy;
  setup.Capacity = 100;
  setup.PenaltyShootOut = true;
  // The crowd is drawn until it is half full, and 0.57 x 100 lies just below 57.
  ScriptedRandom random{{80, 49}, {80, 57}, {100, 42}};
  const Match match(folder_.Folder, desktop_, random, recording_, setup);
  const MatchSession& s = match.Session();
  EXPECT_EQ(s.Side1.GoalRange, 2100);
  EXPECT_EQ(s.Side2.GoalRange, 11900);
  EXPECT_EQ(s.Side1.Team + s.Side2.Team, "RoversUnited");
  EXPECT_EQ(AttendanceText(s), "Total Attendence: 56 (57%)");
  EXPECT_EQ(s.GoalNumber, 42);
  EXPECT_EQ(s.BallX, 2520);
  EXPECT_EQ(s.BallY, 390);
  EXPECT_FALSE(s.ExtraTime);
  EXPECT_TRUE(s.PenaltyShootOut);
  EXPECT_TRUE(s.Controls.instantVisible);
  EXPECT_FALSE(s.Controls.halftimeVisible);
  EXPECT_FALSE(s.Controls.Option1Enabled);
}

TEST_F(MatchTest, AFullSimulationOffersThePeriodButtonAndBothViews) {
  MatchSetup setup = MakeSetup();
  setup.SimulationType = SimulationKind::FullSimulation;
  ScriptedRandom random{{100, 50}, {100, 0}};
  Match match(folder_.Folder, desktop_, random, recording_, setup);
  EXPECT_TRUE(desktop_.SoundsLoaded);
  EXPECT_FALSE(match.Session().Controls.instantVisible);
  EXPECT_TRUE(match.Session().Controls.halftimeVisible);
  EXPECT_TRUE(match.Session().Controls.Option1Enabled);
  EXPECT_EQ(match.ComSaveCaption(), "Save Summary");
  match.Option1_Click(0);
  EXPECT_EQ(match.ComSaveCaption(), "Save Commentary");
}

TEST_F(MatchTest, AChampionshipMatchIsPlayedAtHomeElseAtADrawnStadium) {
  const Stadium neutral{"Neutral", "Bowl", "Oss", "60000"};
  const Stadium home{"Rovers", "The Mill", "Leat", "4000"};
  const Stadium second{"Rovers", "Old Mill", "Leat", "300"};
  MatchSetup setup = MakeSetup(MatchMode::League);
  setup.ExtraTime = true;
  {
    // A draw for each stadium before the home team's own; the first of two own ones counts.
    ASSERT_TRUE(SaveStadiums(folder_.Folder, {neutral, home, second}).Ok());
    ScriptedRandom random{{3, 2}, {5, 2}, {85, 60}, {100, 1}};
    const Match match(folder_.Folder, desktop_, random, recording_, setup);
    EXPECT_EQ(match.Session().Venue, "The Mill, Leat");
    EXPECT_EQ(AttendanceText(match.Session()), "Total Attendence: 2400 (60%)");
    EXPECT_FALSE(match.Session().ExtraTime);
  }
  {
    setup.Mode = MatchMode::KnockOut;
    setup.Team1Name = "Nomads";
    ScriptedRandom random{{3, 0}, {3, 1}, {3, 2}, {5, 3}, {90, 50}, {100, 1}};
    const Match match(folder_.Folder, desktop_, random, recording_, setup);
    EXPECT_EQ(match.Session().Venue, "Old Mill, Leat");
    EXPECT_EQ(match.Session().Attendance, 150);
    EXPECT_TRUE(match.Session().ExtraTime && match.Session().PenaltyShootOut);
  }
  {
    ASSERT_TRUE(SaveStadiums(folder_.Folder, {}).Ok());
    ScriptedRandom random{{5, 4}, {80, 50}, {100, 1}};
    const Match match(folder_.Folder, desktop_, random, recording_, setup);
    EXPECT_EQ(match.Session().Venue, "");
    EXPECT_EQ(AttendanceText(match.Session()), "Total Attendence: 0 (50%)");
  }
  {
    std::filesystem::remove(folder_ / "stadiums.sim");
    ScriptedRandom random{{100, 1}};
    const Match match(folder_.Folder, desktop_, random, recording_, setup);
    EXPECT_EQ(AttendanceText(match.Session()), "Total Attendence: 0 (0%)");
  }
}

TEST_F(MatchTest, TheCrowdLiesBetweenHalfAndTheWeathersLimit) {
  const std::pair<WeatherCondition, int> limits[] = {{WeatherCondition::ClearSkies, 100},
                                                     {WeatherCondition::Overcast, 95},
                                                     {WeatherCondition::WarmAndHumid, 90},
                                                     {WeatherCondition::Rainy, 85},
                                                     {WeatherCondition::Windy, 80}};
  SeededRandom random(1);
  for (const auto& [weather, limit] : limits) {
    MatchSetup setup = MakeSetup();
    setup.Weather = weather;
    std::set<int> seen;
    for (int i = 0; i < 2000; ++i) {
      seen.insert(Match(folder_.Folder, desktop_, random, recording_, setup).Session().AttendancePercent);
    }
    EXPECT_EQ(*seen.begin(), 50);
    EXPECT_EQ(*seen.rbegin(), limit - 1);
    EXPECT_EQ(seen.size(), static_cast<std::size_t>(limit - 50));
  }
}

TEST_F(MatchTest, ExitAsksAndNoChangesNothing) {
  SeededRandom random(1);
  Match match(folder_.Folder, desktop_, random, recording_, MakeSetup());
  desktop_.Yes = false;
  match.Command1_Click();
  EXPECT_FALSE(match.Closed());
  desktop_.Yes = true;
  match.Command1_Click();
  EXPECT_TRUE(match.Closed());
  EXPECT_EQ(desktop_.Taken(), std::vector<std::string>(2, "?: Do you really want to exit?"));
}

}  // namespace
}  // namespace kickwell
