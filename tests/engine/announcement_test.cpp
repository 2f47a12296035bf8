#include "engine/announcement.h"

#include <gtest/gtest.h>

#include "support/fakes.h"
#include "support/matches.h"
#include "support/scripted_random.h"

namespace kickwell {
namespace {

using Texts = std::vector<std::string>;

constexpr MatchMode Friendly = MatchMode::Friendly, League = MatchMode::League,
                    KnockOut = MatchMode::KnockOut;

class AnnouncementTest : public testing::Test {
 protected:
  /// Announces a match of Rovers and United, and its shoot-out where there was one.
  void Announce(MatchMode mode, int goals1, int goals2, bool shootOut = false, int pens1 = 0, int pens2 = 0,
                const std::vector<Draw>& toss = {}) {
    SCOPED_TRACE(testing::Message() << goals1 << "-" << goals2 << " " << pens1 << "-" << pens2);
    s_ = MatchSession();
    s_.Setup = MakeSetup(mode);
    s_.Side1.Team = "Rovers";
    s_.Side2.Team = "United";
    s_.Side1.Goals = s_.Side1FinalGoals = goals1;
    s_.Side2.Goals = s_.Side2FinalGoals = goals2;
    s_.Side1Penalties = pens1;
    s_.Side2Penalties = pens2;
    s_.Controls.Label3 = "GOAL!";
    s_.Controls.Label2 = Lamp::Green;
    recording_.Calls.clear();
    ScriptedRandom random(toss);
    Announcement announcement(s_, random, recording_);
    announcement.ShowResult();
    if (shootOut) announcement.PenResult();
    EXPECT_EQ(s_.Controls.Label3, "");
    EXPECT_EQ(s_.Controls.Label2, Lamp::Black);
  }

  /// The summary's last line, the commentary, the result text and what was recorded.
  Texts Told() const {
    Texts told{s_.Summary.Entries.back()};
    told.insert(told.end(), s_.Commentary.Entries.begin(), s_.Commentary.Entries.end());
    told.push_back(s_.ResultText);
    told.insert(told.end(), recording_.Calls.begin(), recording_.Calls.end());
    return told;
  }

  MatchSession s_;
  FakeRecording recording_;
};

TEST_F(AnnouncementTest, TellsTheResultOfPlayAndRecordsIt) {
  Announce(Friendly, 2, 1);
  EXPECT_EQ(Told(), (Texts{"Rovers beats United 2-1", "With that, Rovers wins the match", "Rovers"}));
  EXPECT_EQ(s_.Summary.Entries, (Texts{"", "Result:", "Rovers beats United 2-1"}));
  Announce(League, 0, 3);
  EXPECT_EQ(Told(), (Texts{"United beats Rovers 3-0", "With that, United wins the match", "United",
                           "standings United", "result United"}));
  EXPECT_EQ(s_.WinnerName + s_.LoserName, "UnitedRovers");
  EXPECT_EQ(s_.WinnerGoals * 10 + s_.LoserGoals, 30);
  Announce(League, 2, 2);
  EXPECT_EQ(Told(),
            (Texts{"The match was tied at 2-2", "Match Tied", "standings Match Tied", "result Match Tied"}));
  EXPECT_EQ(s_.WinnerName + s_.LoserName, "RoversUnited");
  EXPECT_EQ(s_.WinnerGoals, 2);
  Announce(KnockOut, 4, 2);
  EXPECT_EQ(Told().back(), "result Rovers");
  Announce(KnockOut, 1, 1);  // Waits for the shoot-out.
  EXPECT_EQ(Told(), (Texts{"The match was tied at 1-1", "Match Tied"}));
}

TEST_F(AnnouncementTest, TellsTheShootOutAndSettlesALevelOneByToss) {
  const std::string undecided = "The match still remains undecided after the PSO";
  Announce(KnockOut, 1, 1, true, 5, 4);
  EXPECT_EQ(Told(), (Texts{"Rovers beats United 5-4 in PSO", "That's it, Rovers wins the match in a PSO",
                           "Rovers", "shoot-out Rovers"}));
  EXPECT_EQ(s_.Summary.Entries[2], "The match was tied at 1-1");
  Announce(KnockOut, 0, 0, true, 3, 4);
  EXPECT_EQ(Told(), (Texts{"United beats Rovers 4-3 in PSO", "That's it, United wins the match in a PSO",
                           "United", "shoot-out United"}));
  EXPECT_EQ(s_.WinnerName, "Rovers");  // As the level result left it.
  Announce(KnockOut, 0, 0, true, 10, 10, {{2, 0}});
  EXPECT_EQ(Told(),
            (Texts{"PSO was tied at 10-10", undecided, "Rovers (By Toss)", "shoot-out Rovers (By Toss)"}));
  Announce(Friendly, 0, 0, true, 9, 9, {{2, 1}});
  EXPECT_EQ(Told(), (Texts{"PSO was tied at 9-9", undecided, "United (By Toss)"}));
}

}  // namespace
}  // namespace kickwell
