// How a match opens, and its pages.
#include "engine/match.h"

#include "engine/goal.h"
#include "engine/pages.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

class MatchTest : public ScreenTest {
 protected:
  /// The session of a match that opens with the draws laid ready.
  MatchSession Open(const MatchSetup& setup) {
    return Match(folder_.Folder, desktop_, draws_, recording_, setup).Session();
  }

  void Crowd(int limit, int percent) { draws_.Expect(limit, percent); }

  MatchDraws draws_;
};

TEST_F(MatchTest, AFriendlyOpensFromItsSetUp) {
  draws_.OpenFriendly();
  const MatchSession s = Open(MakeSetup(MatchMode::Friendly, false, true));
  EXPECT_EQ(s.Venue, "The Mill, Leat");
  EXPECT_EQ(s.GoalNumber, MatchDraws::GoalNumber);
  EXPECT_FALSE(s.ExtraTime);
  EXPECT_TRUE(s.PenaltyShootOut);
}

TEST_F(MatchTest, StrengthNarrowsTheRangeOfTheGoalDraw) {
  for (const auto& [strength, range] : {std::pair(99, 2100), {80, 4000}, {1, 11900}, {0, 12000}, {100, 2100}})
    EXPECT_EQ(GoalRangeOf(strength), range);
}

TEST_F(MatchTest, TheWeatherLimitsTheCrowdWhichIsDrawnUntilItIsHalfFull) {
  MatchSetup setup = MakeSetup();
  setup.Capacity = 100;
  const std::pair<std::string_view, int> limits[] = {
      {"Clear Skies", 100}, {"Overcast", 95}, {"Rainy", 85}, {"Warm & Humid", 90}, {"Windy", 80}};
  for (int i = 0; i < 5; ++i) {
    setup.Weather = At(Weathers, i);
    EXPECT_EQ(setup.Weather.Text, limits[i].first);
    Crowd(limits[i].second, 49);
    Crowd(limits[i].second, 57);
    draws_.OpenWithoutStadiums();
    EXPECT_EQ(Open(setup).Attendance, 56);  // 0.57 x 100 lies just below 57.
  }
}

TEST_F(MatchTest, ALeagueMatchIsPlayedAtTheFirstStadiumOfTheHomeTeam) {
  ASSERT_TRUE(SaveStadiums(folder_.Folder, {{"Neutral", "Bowl", "Oss", "60000"},
                                            {"Rovers", "The Mill", "Leat", "4000"},
                                            {"Rovers", "Old Mill", "Leat", "300"}})
                  .Ok());
  draws_.Expect(3, 2);  // For the stadium before it.
  draws_.Expect(5, 2);  // Rainy.
  Crowd(85, 60);
  draws_.OpenWithoutStadiums();
  const MatchSession s = Open(MakeSetup(MatchMode::League, true));
  EXPECT_EQ(s.Venue, "The Mill, Leat");
  EXPECT_EQ(s.Attendance, 2400);
  EXPECT_FALSE(s.ExtraTime || s.PenaltyShootOut);
}

TEST_F(MatchTest, ATeamWithoutAStadiumPlaysAtTheLastOneDrawn) {
  ASSERT_TRUE(
      SaveStadiums(folder_.Folder, {{"Neutral", "Bowl", "Oss", "600"}, {"United", "Park", "Ley", "300"}})
          .Ok());
  draws_.Expect(2, 0);
  draws_.Expect(2, 1);
  draws_.Expect(5, 3);  // Warm & Humid.
  Crowd(90, 50);
  draws_.OpenWithoutStadiums();
  const MatchSession s = Open(MakeSetup(MatchMode::KnockOut));
  EXPECT_EQ(s.Venue, "Park, Ley");
  EXPECT_TRUE(s.ExtraTime && s.PenaltyShootOut);
}

TEST_F(MatchTest, NobodyComesWithoutStadiums) {
  draws_.OpenWithoutStadiums();
  EXPECT_EQ(Open(MakeSetup(MatchMode::League)).Attendance, 0);
  ASSERT_TRUE(SaveStadiums(folder_.Folder, {}).Ok());
  draws_.Expect(5, 4);  // An empty list leaves the weather to be drawn.
  Crowd(80, 50);
  draws_.OpenWithoutStadiums();
  EXPECT_EQ(Open(MakeSetup(MatchMode::League)).Attendance, 0);
}

TEST_F(MatchTest, PagesAreWrittenToTheLetter) {
  MatchSession s;
  s.Side1 = {.Team = "Rovers", .Goals = 1, .Corners = 3, .Fouls = 1, .PossessionPercent = 64};
  s.Side2 = {.Team = "<b>United", .Shots = 4, .Bookings = 2, .PossessionPercent = 36};
  s.Venue = "The Mill, Leat";
  s.Attendance = 40632;
  s.AttendancePercent = 83;
  s.Summary.Entries = {"23:41 >> Smith (Rovers)", "", "Result:", "Rovers beats <b>United 1-0"};
  s.Commentary.Entries = {"Here's the kick off", "It's <i>'s ball & more"};
  const std::tuple<Lines, std::string, const char*> pages[] = {
      {SummaryPage(s), "Match Summary",
       "<b><u>Match Summary: </u></b><br><br>\n<b>Rovers v/s &lt;b>United</b><br>\n"
       "Venue: The Mill, Leat<br>\nTotal Attendence: 40632 (83%)<br><br>\n<b>Goals Scorers: </b><br><br>\n"
       "23:41 >> Smith (Rovers)<br>\n<br>\nResult:<br>\nRovers beats &lt;b>United 1-0<br>\n"
       "<br><b>Match Facts:</b> [Rovers / &lt;b>United]<br><br>\nFouls: 1 / 0<br>\nBookings: 0 / 2<br>\n"
       "Corners: 3 / 0<br>\nShots: 0 / 4<br>\nPossesion: 64% / 36%<br>\n"},
      {CommentaryPage(s), "Match Commentary",
       "<b><u>Match Commentary: Rovers v/s &lt;b>United</u></b><br><br>\n"
       "Here's the kick off<br>\nIt's &lt;i>'s ball & more<br>\n"},
      {ResultsPage("<Top> Results", {{"A 1 vs <B> 0", "", "Match 2:"}}), "Results",
       "<b><u>&lt;Top> Results:</u></b><br><br>\nA 1 vs &lt;B> 0<br>\n<br>\nMatch 2:<br>\n"},
  };
  for (const auto& [page, title, body] : pages) {
    EXPECT_TRUE(WritePage(folder_.Files, folder_ / "page.htm", page).Ok());
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
  folder_.Files.Unreadable.insert(folder_ / "page.htm");
  match.ComSave_Click();
  EXPECT_EQ(desktop_.Taken(), Texts{"!: The file /kickwell/page.htm can't be saved: Permission denied."});
  for (const char* name : {"page.htm", "page.HTML"}) EXPECT_EQ(PageFile(name), name);
  for (const char* name : {"/a.b/F.C 1.2", "htm"}) EXPECT_EQ(PageFile(name), std::string(name) + ".htm");
}

}  // namespace
}  // namespace kickwell
