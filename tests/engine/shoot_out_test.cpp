// The shoot-out, kick by kick.
#include "engine/shoot_out.h"

#include <gtest/gtest.h>

#include "support/fakes.h"
#include "support/matches.h"
#include "support/scripted_random.h"

namespace kickwell {
namespace {

using Texts = std::vector<std::string>;

class ShootOutTest : public testing::Test {
 protected:
  ShootOutTest() {
    const MatchSetup setup = MakeFullSetup(true, true);
    session_.Setup = setup;
    session_.Side1 = {setup.Team1Name, 1, 4000, setup.Team1Outfield};
    session_.Side2 = {setup.Team2Name, 1, 4000, setup.Team2Outfield};
    session_.Controls.kickEnabled = true;
  }

  MatchSession session_;
  FakeDesktop desktop_;
  FakeRecording recording_;
};

TEST_F(ShootOutTest, AMissAndAGoalShowWhatTheyAre) {
  ScriptedRandom random{{45, 25}, {2, 1},  {6, 5}, {5, 4}, {45, 26}, {7, 2},
                        {5, 0},   {45, 0}, {2, 0}, {6, 0}, {5, 0}};
  Announcement announcement(session_, random, recording_);
  ShootOut shootOut(session_, random, desktop_, announcement);
  MatchControls& c = session_.Controls;
  shootOut.nextshot_Click();  // Dark until the first kick.
  shootOut.kick_Click();
  shootOut.kick_Click();  // One kick at a time.
  EXPECT_EQ(session_.Commentary.Entries, (Texts{"R6 steps up for Rovers", "He shoots and...",
                                                "What a brilliant save there by the keeper"}));
  EXPECT_EQ(c.Label3, "MISS!");
  EXPECT_EQ(c.Label2, Lamp::Red);
  EXPECT_EQ(c.penalty[0].Colour, Lamp::Red);
  EXPECT_EQ(c.Shape2, (SpotPoint{480, 0}));
  EXPECT_TRUE(session_.Summary.Entries.empty());
  EXPECT_TRUE(!c.kickEnabled && c.nextshotEnabled);

  shootOut.nextshot_Click();
  EXPECT_TRUE(c.kickEnabled && !c.nextshotEnabled);
  EXPECT_EQ(c.Shape2, (SpotPoint{1250, 1400}));
  EXPECT_EQ(c.Label2, Lamp::Black);
  EXPECT_EQ(c.Label3, "");

  shootOut.kick_Click();
  EXPECT_EQ(session_.Summary.Entries, Texts{"U3 (United)"});
  EXPECT_EQ(session_.Commentary.Entries.back(), "It's gone straight into the top corner");
  EXPECT_EQ(c.Label3, "GOAL!");
  EXPECT_EQ(c.Label2, Lamp::Green);
  EXPECT_EQ(c.penalty[1].Colour, Lamp::Green);
  EXPECT_EQ(c.Shape2, (SpotPoint{1200, 0}));
  EXPECT_EQ(session_.Side2Penalties, 1);
  EXPECT_EQ(session_.PenaltyTaker, 2);

  shootOut.nextshot_Click();
  shootOut.kick_Click();
  EXPECT_EQ(c.Shape2, (SpotPoint{1040, 0}));
  EXPECT_EQ(desktop_.Taken(), (Texts{"* boo", "* goal", "* boo"}));
}

TEST_F(ShootOutTest, EndsWhereItIsDecided) {
  const std::string level(20, 'x');
  const std::pair<std::string, const char*> cases[] = {
      {"x.x.x.", "Rovers beats United 3-0 in PSO"},
      {".x.x.x", "United beats Rovers 3-0 in PSO"},
      {"x.x...x", "Rovers beats United 3-0 in PSO"},
      {"xxxxx.x.", "Rovers beats United 4-2 in PSO"},
      {"xxxxx...x", "Rovers beats United 4-2 in PSO"},
      {"xxxxxxxxx.", "Rovers beats United 5-4 in PSO"},
      {"xxxxxxxxxx.x", "United beats Rovers 6-5 in PSO"},
      {level.substr(0, 18) + "x.", "Rovers beats United 10-9 in PSO"},
      {level, "PSO was tied at 10-10"},
  };
  const MatchSession start = session_;
  for (const auto& [outcomes, line] : cases) {
    SCOPED_TRACE(outcomes);
    session_ = start;
    std::vector<Draw> script;
    for (std::size_t k = 0; k < outcomes.size(); ++k) {
      const int pool = k % 2 == 0 ? 6 : 7;
      if (outcomes[k] == 'x') {
        script.insert(script.end(), {{45, 44}, {pool, 0}, {5, 1}});
      } else {
        script.insert(script.end(), {{45, 0}, {2, 0}, {pool, 0}, {5, 1}});
      }
    }
    if (outcomes == level) script.push_back({2, 0});  // The toss.
    ScriptedRandom random(script);
    Announcement announcement(session_, random, recording_);
    ShootOut shootOut(session_, random, desktop_, announcement);
    const auto& markers = session_.Controls.penalty;
    for (std::size_t k = 0; k < outcomes.size(); ++k) {
      EXPECT_TRUE(session_.Controls.kickEnabled) << k;
      EXPECT_TRUE(markers[k].Visible) << k;
      const std::size_t shown = k < 10 ? 10 : k - k % 2 + 2;  // Sudden death shows its markers pair by pair.
      EXPECT_TRUE(shown == KickCount || !markers[shown].Visible) << k;
      shootOut.kick_Click();
      EXPECT_EQ(session_.Controls.nextshotEnabled, k + 1 < outcomes.size()) << k;
      shootOut.nextshot_Click();
    }
    EXPECT_EQ(session_.Summary.Entries.back(), line);
    EXPECT_EQ(session_.Summary.Entries.end()[-2], "The match was tied at 1-1");
    EXPECT_FALSE(session_.Controls.kickEnabled);
    EXPECT_EQ(session_.ResultText, outcomes == level ? "Rovers (By Toss)" : std::string(line).substr(0, 6));
  }
}

}  // namespace
}  // namespace kickwell
