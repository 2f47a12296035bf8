// Penalty shoot-outs, kick by kick, and what they announce and record.
#include "engine/shoot_out.h"

#include <algorithm>

#include "support/screen_test.h"

namespace kickwell {
namespace {

class ShootOutTest : public ScreenTest {
 protected:
  ShootOutTest() { s.Controls.kickEnabled = true; }

  void Goal(int draw, int taker, int phrase) { draws_.Expect({{45, draw}, {6, taker}, {5, phrase}}); }
  void Miss(int draw, int wide, int taker, int phrase) {
    draws_.Expect({{45, draw}, {2, wide}, {6, taker}, {5, phrase}});
  }

  /// Takes the kicks, the goals of which are marked "x", and expects the last one, and no other, to decide.
  void Take(const std::string& kicks) {
    for (int kick = 0; kick < Count(kicks); ++kick) {
      SCOPED_TRACE(kick);
      EXPECT_TRUE(s.Controls.kickEnabled);
      EXPECT_EQ(std::ranges::count_if(s.Controls.penalty, &KickMarker::Visible),
                kick < 10 ? 10 : kick - kick % 2 + 2);  // Sudden death shows its markers pair by pair.
      At(kicks, kick) == 'x' ? Goal(44, 0, 0) : Miss(0, 0, 0, 0);
      if (kick + 1 == KickCount) draws_.Expect(2, 0);  // The toss.
      shootOut_.kick_Click();
      EXPECT_EQ(s.Controls.nextshotEnabled, kick + 1 < Count(kicks));
      shootOut_.nextshot_Click();
    }
    EXPECT_FALSE(s.Controls.kickEnabled);
  }

  MatchSession s = MakeSession(MatchMode::KnockOut, 1, 1);
  MatchDraws draws_;
  Announcement announcement_{s, draws_, recording_};
  ShootOut shootOut_{s, draws_, desktop_, announcement_};
};

TEST_F(ShootOutTest, AKickShowsWhatItIs) {
  MatchControls& controls = s.Controls;
  Miss(25, 1, 5, 4);
  shootOut_.nextshot_Click();  // Dark until the first kick.
  shootOut_.kick_Click();
  shootOut_.kick_Click();  // Dark until the next taker comes.
  EXPECT_EQ(controls.Shape2, (SpotPoint{480, 0}));
  EXPECT_EQ(controls.penalty[0].Colour, Lamp::Red);
  shootOut_.nextshot_Click();
  EXPECT_EQ(controls.Shape2, PenaltySpot);
  Goal(26, 2, 0);
  shootOut_.kick_Click();
  EXPECT_EQ(controls.Label3, "GOAL!");
  EXPECT_EQ(controls.Shape2, (SpotPoint{1200, 0}));
  EXPECT_EQ(controls.penalty[1].Colour, Lamp::Green);
  EXPECT_EQ(desktop_.Taken(), (Texts{"* boo", "* goal"}));
  EXPECT_EQ(s.Summary.Entries, Texts{"U3 (United)"});
  EXPECT_EQ(s.Commentary.Entries,
            (Texts{"R6 steps up for Rovers", "He shoots and...", "What a brilliant save there by the keeper",
                   "U3 steps up for United", "He shoots and...", "It's gone straight into the top corner"}));
}

TEST_F(ShootOutTest, EndsAsSoonAsItIsDecidedOrWithAToss) {
  const std::tuple<std::string, std::string, std::string> cases[] = {
      {"x.x.x.", "Rovers", "Rovers beats United 3-0 in PSO"},
      {"x.x...x", "Rovers", "Rovers beats United 3-0 in PSO"},
      {"xxxxx.x.", "Rovers", "Rovers beats United 4-2 in PSO"},
      {"xxxxx...x", "Rovers", "Rovers beats United 4-2 in PSO"},
      {"xxxxxxxxx.", "Rovers", "Rovers beats United 5-4 in PSO"},
      {"xxxxxxxxxx.x", "United", "United beats Rovers 6-5 in PSO"},  // Never between the kicks of a pair.
      {std::string(KickCount, 'x'), "Rovers (By Toss)", "PSO was tied at 10-10"},
  };
  const MatchSession start = s;
  for (const auto& [kicks, result, line] : cases) {
    SCOPED_TRACE(kicks);
    s = start;
    recording_.Calls.clear();
    Take(kicks);
    const Texts& summary = s.Summary.Entries;
    EXPECT_EQ((Texts{summary.end() - 4, summary.end()}),
              (Texts{"", "Result:", "The match was tied at 1-1", line}));
    EXPECT_EQ(s.Commentary.Text(), result.ends_with("(By Toss)")
                                       ? "The match still remains undecided after the PSO"
                                       : "That's it, " + result + " wins the match in a PSO");
    EXPECT_EQ(recording_.Calls, Texts{"shoot-out " + result});
  }
}

}  // namespace
}  // namespace kickwell
