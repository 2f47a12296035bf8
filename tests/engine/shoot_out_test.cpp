// Instant results and shoot-outs, and what the end of a match announces and records.
#include "engine/shoot_out.h"

#include "engine/match.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

using enum MatchMode;

/// Seconds in which nobody scores.
std::string Quiet(int seconds) {
  return "4000:7x" + std::to_string(2 * seconds) + " ";
}

constexpr int NormalTime = 89 * 60, ExtraTime = 29 * 60;  ///< Of an instant result, in seconds.

using Instant = ScreenTest;

TEST_F(Instant, PlaysEverySecondAndAnnouncesAndRecordsTheResult) {
  struct Case {
    MatchSetup Setup;
    std::string Draws, Summary, Recorded;
  };
  const Case cases[] = {
      {MakeSetup(Friendly),
       "4000:3 4000:9 2:1 " + Quiet(64) + "4000:9 4000:3 3:2 4000:3x2 " + Quiet(NormalTime - 68) +
           "4000:8 4000:3 3:0",  // Equal draws never score.
       "01:00 >> R6 (Rovers)|02:05 >> U7 (United)|89:59 >> U5 (United)||Result:|United beats Rovers 2-1",
       "scorer R6 of Rovers|scorer U7 of United|scorer U5 of United"},
      {MakeSetup(League), Quiet(NormalTime - 1) + "4000:3 4000:9 2:0",
       "89:59 >> R5 (Rovers)||Result:|Rovers beats United 1-0",
       "scorer R5 of Rovers|standings Rovers 1-0 United|result Rovers"},
      {MakeSetup(League, true, true), "4000:3 4000:9 2:1 4000:9 4000:3 3:1 " + Quiet(NormalTime - 2),
       "01:00 >> R6 (Rovers)|01:01 >> U6 (United)||Result:|The match was tied at 1-1",
       "scorer R6 of Rovers|scorer U6 of United|standings Rovers 1-0 United|result Match Tied"},
      {MakeSetup(KnockOut), Quiet(NormalTime + 60) + "4000:9 4000:3 3:1",
       "92:00 >> U6 (United)|GOLDEN GOAL!||Result:|United beats Rovers 1-0",
       "scorer U6 of United|result United"},
      {MakeSetup(Friendly, false, true), Quiet(NormalTime) + Times(3, "2:1 6:5 2:0 7:0"),
       "PENALTY SHOOT OUT!|R6 (Rovers)|R6 (Rovers)|R6 (Rovers)||Result:|The match was tied at 0-0|"
       "Rovers beats United 3-0 in PSO",
       ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.Summary);
    const std::string opening = c.Setup.Mode == Friendly ? "100:50 100:3 " : "100:3 ";
    ScriptedRandom random(opening + c.Draws + " 70:29 70:64 4:3 3:2 4:0 0:0 5:4 5:1 5:2 5:0");
    Match match({}, desktop_, random, recording_, c.Setup);
    match.instant_Click();
    match.instant_Click();  // Played once only: the script has no draws left.
    const MatchSession& s = match.Session();
    EXPECT_EQ(Joined(s.Summary.Entries), c.Summary);
    EXPECT_EQ(Joined(std::exchange(recording_.Calls, {})), c.Recorded);
    EXPECT_TRUE(&c != cases || Figures(s) == "Rovers 1 3 4 2 3 64%, United 2 2 1 0 0 36%") << Figures(s);
  }
}

class ShootOutTest : public ScreenTest {
 protected:
  ShootOutTest() {
    s.Setup = MakeSetup(KnockOut);
    s.Side1 = {s.Setup.Team1Name, 1, 4000, 0, s.Setup.Team1Outfield};
    s.Side2 = {s.Setup.Team2Name, 1, 4000, 0, s.Setup.Team2Outfield};
    s.Controls.kickEnabled = true;
  }

  /// The draws of kicks, "x" for each goal.
  static std::string Draws(const std::string& kicks, const char* goal, const char* miss, const char* phrase) {
    std::string draws;
    for (const char& kick : kicks) {
      draws += kick == 'x' ? goal : miss;
      draws += (&kick - kicks.data()) % 2 == 0 ? " 6:0 " : " 7:0 ";
      draws += phrase;
    }
    return draws;
  }

  /// Takes the kicks one by one; `toss` is the draw where that leaves them level.
  void TakeKicks(const std::string& kicks, const char* toss) {
    ScriptedRandom random(Draws(kicks, "45:44", "45:0 2:0", "5:1 ") + toss);
    Announcement announcement(s, random, recording_);
    ShootOut shootOut(s, random, desktop_, announcement);
    for (std::size_t k = 0; k < kicks.size(); ++k) {
      EXPECT_TRUE(s.Controls.kickEnabled && s.Controls.penalty[k].Visible) << k;
      const std::size_t next = k < 10 ? 10 : k - k % 2 + 2;  // Sudden death shows its markers pair by pair.
      EXPECT_TRUE(next == KickCount || !s.Controls.penalty[next].Visible) << k;
      shootOut.kick_Click();
      EXPECT_EQ(s.Controls.nextshotEnabled, k + 1 < kicks.size()) << k;
      shootOut.nextshot_Click();
    }
    EXPECT_FALSE(s.Controls.kickEnabled);
  }

  /// Has them taken by an instant result; gives the last line of its summary and its commentary.
  std::string TakeAtOnce(const std::string& kicks, const char* toss) {
    ScriptedRandom random("100:3 " + Quiet(NormalTime + ExtraTime) + Draws(kicks, "2:1", "2:0", "") + toss +
                          " 70:30 4:0 0:0 4:0 0:0 5:0x4");
    Match match({}, desktop_, random, recording_, s.Setup);
    match.instant_Click();
    return match.Session().Summary.Text() + "|" + Joined(match.Session().Commentary.Entries);
  }

  MatchSession s;
};

TEST_F(ShootOutTest, AMissAndAGoalShowWhatTheyAre) {
  ScriptedRandom random("45:25 2:1 6:5 5:4 45:26 7:2 5:0 45:0 2:0 6:0 5:0");
  Announcement announcement(s, random, recording_);
  ShootOut shootOut(s, random, desktop_, announcement);
  const MatchControls& c = s.Controls;
  Texts shown;
  // Dark until the first kick; then one kick at a time.
  for (const char* action : {"next", "kick", "kick", "next", "kick", "next", "kick"}) {
    *action == 'k' ? shootOut.kick_Click() : shootOut.nextshot_Click();
    shown.push_back(Shown(s) + ", " + std::to_string(c.Shape2.Left) + " " + std::to_string(c.Shape2.Top) +
                    (c.kickEnabled ? ", kick" : "") + (c.nextshotEnabled ? ", next" : ""));
  }
  const std::string ready = ", 0 at 0 0, 1250 1400, kick|", wide = "MISS! (red), 0 at 0 0, 480 0, next|";
  EXPECT_EQ(Joined(shown), "00:00" + ready + wide + wide + ready + "GOAL! (green), 0 at 0 0, 1200 0, next|" +
                               ready + "MISS! (red), 0 at 0 0, 1040 0, next");
  EXPECT_TRUE(c.penalty[0].Colour == Lamp::Red && c.penalty[1].Colour == Lamp::Green);
  EXPECT_EQ(Joined(s.Summary.Entries), "U3 (United)");
  EXPECT_EQ(Joined(s.Commentary.Entries),
            "R6 steps up for Rovers|He shoots and...|What a brilliant save there by the keeper|"
            "U3 steps up for United|He shoots and...|It's gone straight into the top corner|"
            "R1 steps up for Rovers|He shoots and...|It's gone straight over the bar");
  EXPECT_EQ(desktop_.Told(), "* boo|* goal|* boo");
}

TEST_F(ShootOutTest, EndsWhereItIsDecidedKickByKickAndAtOnce) {
  const std::pair<std::string, std::string> decided[] = {
      {"x.x.x.", "Rovers beats United 3-0"},       {".x.x.x", "United beats Rovers 3-0"},
      {"x.x...x", "Rovers beats United 3-0"},      {"xxxxx.x.", "Rovers beats United 4-2"},
      {"xxxxx...x", "Rovers beats United 4-2"},    {"xxxxxxxxx.", "Rovers beats United 5-4"},
      {"xxxxxxxxxx.x", "United beats Rovers 6-5"},  // Never between the kicks of a pair.
  };
  const MatchSession start = s;
  for (const auto& [kicks, line] : decided) {
    SCOPED_TRACE(kicks);
    const std::string winner = line.substr(0, 6);
    s = start;
    TakeKicks(kicks, "");
    EXPECT_TRUE(
        Joined(s.Summary.Entries).ends_with("||Result:|The match was tied at 1-1|" + line + " in PSO"));
    EXPECT_EQ(TakeAtOnce(kicks, ""), line + " in PSO|That's it, " + winner + " wins the match in a PSO");
    EXPECT_EQ(Joined(std::exchange(recording_.Calls, {})), "shoot-out " + winner + "|shoot-out " + winner);
  }
  s = start;
  TakeKicks(std::string(20, 'x'), "2:0");
  EXPECT_EQ(s.Summary.Text(), "PSO was tied at 10-10");
  EXPECT_EQ(TakeAtOnce(std::string(30, 'x'), "2:1"),
            "PSO was tied at 15-15|The match still remains undecided after the PSO");
  EXPECT_EQ(Joined(recording_.Calls), "shoot-out Rovers (By Toss)|shoot-out United (By Toss)");
}

}  // namespace
}  // namespace kickwell
