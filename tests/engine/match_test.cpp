// How a match opens, its instant result, its shoot-out kick by kick, and its pages.
#include "engine/match.h"

#include <algorithm>

#include "engine/goal.h"
#include "engine/pages.h"
#include "engine/shoot_out.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

class MatchTest : public ScreenTest {
 protected:
  /// The session of a match that was played at once.
  MatchSession Play(MatchMode mode, Random& random) {
    Match match(folder_.Folder, desktop_, random, recording_, MakeSetup(mode));
    match.instant_Click();
    match.instant_Click();  // Played once only.
    return match.Session();
  }

  MatchDraws draws_;
};

TEST_F(MatchTest, StrengthNarrowsTheRangeOfTheGoalDraw) {
  for (const auto& [strength, range] : {std::pair(99, 2100), {80, 4000}, {1, 11900}, {0, 12000}, {100, 2100}})
    EXPECT_EQ(GoalRangeOf(strength), range);
}

TEST_F(MatchTest, ALeagueMatchIsPlayedAtTheFirstStadiumOfTheHomeTeamOrAtTheLastOneDrawn) {
  const std::string bowl = "Neutral\nBowl\nOss\n60000\n", mill = "Rovers\nThe Mill\nLeat\n100\n";
  constexpr Draw Rainy{5, 2}, TooSmallCrowd{85, 49}, Crowd{85, 57};
  Write("stadiums.sim", "3\n" + bowl + mill + "Rovers\nOld Mill\nLeat\n300\n");
  draws_.Expect({{3, 2}, Rainy, TooSmallCrowd, Crowd});  // One is drawn for the stadium before it.
  draws_.DrawGoalNumber();
  const MatchSession home =
      Match(folder_.Folder, desktop_, draws_, recording_, MakeSetup(MatchMode::League)).Session();
  EXPECT_EQ(home.Venue, "The Mill, Leat");
  EXPECT_EQ(home.Attendance, 56);  // 0.57 x 100 lies just below 57.
  EXPECT_FALSE(home.ExtraTime || home.PenaltyShootOut);
  Write("stadiums.sim", "2\n" + bowl + "United\nPark\nLey\n300\n");
  draws_.Expect({{2, 0}, {2, 1}, Rainy, Crowd});
  draws_.DrawGoalNumber();
  const Match away(folder_.Folder, desktop_, draws_, recording_, MakeSetup(MatchMode::KnockOut));
  EXPECT_EQ(away.Session().Venue, "Park, Ley");
}

TEST_F(MatchTest, AnInstantMatchIsPlayedToItsLastSecondOrToAGoldenGoal) {
  random_.Goals = "1" + std::string(89 * 60 - 2, '.') + "1";
  const MatchSession s = Play(MatchMode::KnockOut, random_);
  EXPECT_EQ(s.Summary.Entries, (Texts{"01:00 >> R5 (Rovers)", "89:59 >> R5 (Rovers)", "",
                                      "Result:", "Rovers beats United 2-0"}));
  EXPECT_EQ(s.Side1.Shots, 2);
  random_.Goals = std::string(89 * 60 + 60, '.') + "22";
  EXPECT_EQ(Play(MatchMode::KnockOut, random_).Summary.Entries,
            (Texts{"92:00 >> U5 (United)", "GOLDEN GOAL!", "", "Result:", "United beats Rovers 1-0"}));
  EXPECT_EQ(recording_.Calls, (Texts{"scorer R5 of Rovers", "scorer R5 of Rovers", "result Rovers",
                                     "scorer U5 of United", "result United"}));
}

TEST_F(MatchTest, ThirtyInstantKicksWithoutAWinnerAreFollowedByAToss) {
  draws_.DrawGoalNumber();
  draws_.Expect(4000, MatchDraws::GoalNumber, 2 * (89 + 29) * 60);  // Equal draws never score.
  for (int kick = 0; kick < 30; ++kick) draws_.InstantKick(true);
  draws_.Expect({{2, 1}, {70, 64}, {4, 3}, {3, 0}, {4, 0}, {0, 0}, {5, 0, 4}});  // The toss; the facts.
  const MatchSession s = Play(MatchMode::KnockOut, draws_);
  EXPECT_EQ(s.Summary.Entries.front(), "PENALTY SHOOT OUT!");
  EXPECT_EQ(s.Summary.Text(), "PSO was tied at 15-15");
  EXPECT_EQ(recording_.Calls, Texts{"shoot-out United (By Toss)"});
}

TEST_F(MatchTest, PagesAreWrittenToTheLetter) {
  MatchSession s;
  s.Side1 = {.Team = "Rovers", .Goals = 1, .Corners = 3, .Fouls = 1, .PossessionPercent = 64};
  s.Side2 = {.Team = "<b>United", .Shots = 4, .Bookings = 2, .PossessionPercent = 36};
  s.Venue = "The <Mill>, Leat";
  s.Attendance = 40632;
  s.AttendancePercent = 83;
  s.Summary.Entries = {"23:41 >> Smith (Rovers)", "", "Result:", "Rovers beats <b>United 1-0"};
  s.Commentary.Entries = {"Here's the kick off", "It's <i>'s ball & more"};
  const std::tuple<Lines, std::string, const char*> pages[] = {
      {SummaryPage(s), "Match Summary",
       "<b><u>Match Summary: </u></b><br><br>\n<b>Rovers v/s &lt;b>United</b><br>\n"
       "Venue: The &lt;Mill>, Leat<br>\nTotal Attendence: 40632 (83%)<br><br>\n"
       "<b>Goals Scorers: </b><br><br>\n23:41 >> Smith (Rovers)<br>\n<br>\nResult:<br>\nRovers beats "
       "&lt;b>United 1-0<br>\n"
       "<br><b>Match Facts:</b> [Rovers / &lt;b>United]<br><br>\nFouls: 1 / 0<br>\nBookings: 0 / 2<br>\n"
       "Corners: 3 / 0<br>\nShots: 0 / 4<br>\nPossesion: 64% / 36%<br>\n"},
      {CommentaryPage(s), "Match Commentary",
       "<b><u>Match Commentary: Rovers v/s &lt;b>United</u></b><br><br>\n"
       "Here's the kick off<br>\nIt's &lt;i>'s ball & more<br>\n"},
      {ResultsPage("<Top> Results", {{"A 1 vs <B> 0", "", "Match 2:"}}), "Results",
       "<b><u>&lt;Top> Results:</u></b><br><br>\nA 1 vs &lt;B> 0<br>\n<br>\nMatch 2:<br>\n"},
  };
  for (const auto& [page, title, body] : pages) {
    EXPECT_TRUE(WritePage(folder_.Folder, folder_ / "page.htm", page).Ok());
    EXPECT_EQ(Bytes("page.htm"),
              AsWritten("<html><head>\n<title>Kickwell " + title +
                        "</title>\n</head><body bgcolor=#ECE9D8>\n"
                        "<font face=verdana size=2 color=#CC0000>\n" +
                        body +
                        "<br><br>-------------------------------------------------\n"
                        "<br>This file is automatically generated by Kickwell 4.0\n"
                        "<br>Visit <a href=http://www.kickwell.example>http://www.kickwell.example</a> "
                        "to get your free copy\n</font></body></html>\n"));
  }
}

TEST_F(MatchTest, SavingAsksForANameAndTellsAFailure) {
  Match match(folder_.Folder, desktop_, random_, recording_, MakeSetup());
  match.ComSave_Click();  // Cancelled.
  match.Option1_Click(0);
  desktop_.SaveName = (folder_ / "page").string();
  match.ComSave_Click();
  EXPECT_EQ(desktop_.ProposedName, "Rovers_United_Commentary");
  EXPECT_EQ(Bytes("page.htm"), Encode(CommentaryPage(match.Session())));
  folder_.Files.FailAt = folder_.Files.Operations + 1;
  folder_.Files.Failure = std::make_error_code(std::errc::cross_device_link);
  match.ComSave_Click();
  EXPECT_EQ(
      desktop_.Taken(),
      Texts{
          "!: The file /kickwell/page.htm can't be saved: Its folder is on another disk than the program."});
  for (const char* guide : {"HELP", "Help/../Help.htm", "Help/page"}) {
    desktop_.SaveName = (folder_ / guide).string();
    match.ComSave_Click();
    EXPECT_TRUE(desktop_.Taken().at(0).ends_with("can't be saved: It belongs to the guide.")) << guide;
  }
  for (const char* name : {"page.htm", "page.HTML"}) EXPECT_EQ(PageFile(name), name);
  for (const char* name : {"/a.b/F.C 1.2", "htm"}) EXPECT_EQ(PageFile(name), std::string(name) + ".htm");
}

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
  shootOut_.nextshot_Click();
  EXPECT_EQ(controls.Shape2, PenaltySpot);
  Goal(26, 2, 0);
  shootOut_.kick_Click();
  EXPECT_EQ(controls.Shape2, (SpotPoint{1200, 0}));
  EXPECT_EQ(controls.penalty[1].Colour, Lamp::Green);
  EXPECT_EQ(controls.Label3, "GOAL!");
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
