#include "engine/announcement.h"

#include <gtest/gtest.h>

#include "support/fakes.h"
#include "support/matches.h"
#include "support/scripted_random.h"

namespace kickwell {
namespace {

using Texts = std::vector<std::string>;

/// A match of Rovers and United that ended with these goals.
MatchSession Ended(MatchMode mode, int goals1, int goals2) {
  MatchSession session;
  session.Setup = MakeSetup(mode);
  session.Side1.Team = "Rovers";
  session.Side2.Team = "United";
  session.Side1.Goals = session.Side1FinalGoals = goals1;
  session.Side2.Goals = session.Side2FinalGoals = goals2;
  session.Controls.Label3 = "GOAL!";
  session.Controls.Label2 = Lamp::Green;
  return session;
}

TEST(Announcement, TellsTheResultOfPlayAndRecordsIt) {
  struct Case {
    MatchMode Mode;
    int Goals1, Goals2;
    const char *Summary, *Commentary, *Winner, *Result;
    Texts Recorded;
  };
  const Case cases[] = {
      {MatchMode::Friendly,
       2,
       1,
       "Rovers beats United 2-1",
       "With that, Rovers wins the match",
       "Rovers",
       "Rovers",
       {}},
      {MatchMode::League,
       0,
       3,
       "United beats Rovers 3-0",
       "With that, United wins the match",
       "United",
       "United",
       {"standings United", "result United"}},
      {MatchMode::League,
       0,
       0,
       "The match was tied at 0-0",
       nullptr,
       "Rovers",
       "Match Tied",
       {"standings Match Tied", "result Match Tied"}},
      {MatchMode::KnockOut,
       4,
       2,
       "Rovers beats United 4-2",
       "With that, Rovers wins the match",
       "Rovers",
       "Rovers",
       {"result Rovers"}},
      {MatchMode::KnockOut, 1, 1, "The match was tied at 1-1", nullptr, "Rovers", "Match Tied", {}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Summary);
    MatchSession s = Ended(c.Mode, c.Goals1, c.Goals2);
    ScriptedRandom random{};
    FakeRecording recording;
    Announcement(s, random, recording).ShowResult();
    EXPECT_EQ(s.Summary.Entries, (Texts{"", "Result:", c.Summary}));
    EXPECT_EQ(s.Commentary.Entries, c.Commentary != nullptr ? Texts{c.Commentary} : Texts{});
    EXPECT_EQ(s.SummaryLine, c.Summary);
    EXPECT_EQ(s.WinnerName, c.Winner);
    EXPECT_EQ(s.LoserName, s.WinnerName == "Rovers" ? "United" : "Rovers");
    EXPECT_EQ(s.WinnerGoals, std::max(c.Goals1, c.Goals2));
    EXPECT_EQ(s.LoserGoals, c.Goals1 == c.Goals2 ? 0 : std::min(c.Goals1, c.Goals2));
    EXPECT_EQ(s.ResultText, c.Result);
    EXPECT_EQ(recording.Calls, c.Recorded);
    EXPECT_EQ(s.Controls.Label3, "");
    EXPECT_EQ(s.Controls.Label2, Lamp::Black);
  }
}

TEST(Announcement, TellsTheShootOutAndSettlesALevelOneByToss) {
  struct Case {
    MatchMode Mode;
    int Penalties1, Penalties2;
    std::vector<Draw> Toss;
    const char *Summary, *Commentary, *Result;
    Texts Recorded;
  };
  const Case cases[] = {
      {MatchMode::KnockOut,
       5,
       4,
       {},
       "Rovers beats United 5-4 in PSO",
       "That's it, Rovers wins the match in a PSO",
       "Rovers",
       {"shoot-out Rovers"}},
      {MatchMode::KnockOut,
       3,
       4,
       {},
       "United beats Rovers 4-3 in PSO",
       "That's it, United wins the match in a PSO",
       "United",
       {"shoot-out United"}},
      {MatchMode::KnockOut,
       10,
       10,
       {{2, 0}},
       "PSO was tied at 10-10",
       "The match still remains undecided after the PSO",
       "Rovers (By Toss)",
       {"shoot-out Rovers (By Toss)"}},
      {MatchMode::Friendly,
       9,
       9,
       {{2, 1}},
       "PSO was tied at 9-9",
       "The match still remains undecided after the PSO",
       "United (By Toss)",
       {}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Summary);
    MatchSession s = Ended(c.Mode, 1, 1);
    s.Side1Penalties = c.Penalties1;
    s.Side2Penalties = c.Penalties2;
    ScriptedRandom random(c.Toss);
    FakeRecording recording;
    Announcement announcement(s, random, recording);
    announcement.ShowResult();
    announcement.PenResult();
    EXPECT_EQ(s.Summary.Entries, (Texts{"", "Result:", "The match was tied at 1-1", c.Summary}));
    EXPECT_EQ(s.Commentary.Entries, Texts{c.Commentary});
    EXPECT_EQ(s.ResultText, c.Result);
    EXPECT_EQ(s.WinnerName, "Rovers");  // As the level result left it.
    EXPECT_EQ(recording.Calls, c.Recorded);
  }
}

}  // namespace
}  // namespace kickwell
