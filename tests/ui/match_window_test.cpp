// The match's window, by what its user does.
#include "ui/windows/match_window.h"

#include <QtTest/QTest>

#include "support/screen_test.h"
#include "support/watch.h"
#include "ui/widgets/appearance.h"
#include "user.h"

namespace kickwell {
namespace {

constexpr MatchTimings OnlyByTheTest{.Tick = 1000000, .GoalPause = 1};
const char* const Keyboard = "^(Enter|focus) ";  ///< Where the keys go is of no interest here.

class MatchWindowTest : public WindowTest {
 protected:
  void Play(int minutes) {
    for (int minute = 0; minute < minutes; ++minute) QMetaObject::invokeMethod(&timer_, "timeout");
  }

  Match match_{folder_.Folder, desktop_, random_, recording_, MakeFullSetup(true, true)};
  MatchWindow window_{match_, OnlyByTheTest, nullptr};
  QTimer& timer_ = *window_.findChild<QTimer*>("Timer1");
};

TEST_F(MatchWindowTest, ShowsAGoalAndTheChangeOfEnds) {
  random_.Goals = "1";
  Watch watch(window_);
  User::Click(window_, "halftime");
  Play(1);
  EXPECT_EQ(
      watch.Changed(Keyboard),
      "Inn1: 1; Label3: 01:00; List1(0) is described as; List1(0) offers 00:01 >> R5 (Rovers); List1(0): "
      "00:01 >> R5 (Rovers); Picture2 is described as Rovers 1, United 0, 01:00, ball with Rovers in "
      "midfield, The players are celebrating; PosMet(0) is called Rovers, has the ball, possession; "
      "PosMet(0) stands on #00ff00 in #000000; Shots1: 1; halftime is disabled");
  Play(44);
  User::Click(window_, "halftime");
  EXPECT_EQ(watch.Changed(Keyboard),
            "Book1 is called United, bookings; Book2 is called Rovers, bookings; Corner1 is called United, "
            "corners; Corner2 is called Rovers, corners; Foul1 is called United, fouls; Foul2 is called "
            "Rovers, fouls; Inn1 is called United, goals; Inn1: 0; Inn2 is called Rovers, goals; Inn2: 1; "
            "Label3: 45:00; Picture2 is described as United 0, Rovers 1, 45:00, Play for the 2nd half gets "
            "underway; PosMet(0) is called United, possession; PosMet(0) stands on #efefef in #000000; "
            "PosMet(1) is called Rovers, possession; Shots1 is called United, shots; Shots1: 0; Shots2 is "
            "called Rovers, shots; Shots2: 1; halftime: &Normal Time 2nd Half; stripes are #cf6c00 #2f7fe0 "
            "#cf6c00 #cf6c00 #2f7fe0 #2f7fe0; t1: United; t2: Rovers");
}

TEST_F(MatchWindowTest, ShowsTheListOfTheViewAndLeavesTheClockAlone) {
  User::Click(window_, "halftime");
  Watch watch(window_);
  QTest::qWait(20);
  User::Click(window_, "Option1(0)");
  EXPECT_EQ(watch.Changed(),
            "ComSave: Save Commentary; List1(0) is hidden; List1(1) is enabled; Option1(0) is enabled, "
            "checked; Option1(1) is enabled");
  User::Click(window_, "Option1(1)");
  EXPECT_EQ(watch.Changed(),
            "ComSave: Save Summary; List1(0) is enabled; List1(1) is hidden; Option1(0) is enabled; "
            "Option1(1) is enabled, checked");
  EXPECT_LT(timer_.remainingTime(), OnlyByTheTest.Tick - 10);  // Clicks do not make a minute last longer.
}

TEST_F(MatchWindowTest, StaysOpenUntilTheUserSaysYes) {
  Watch watch(window_);
  desktop_.Yes = false;
  window_.close();
  EXPECT_EQ(watch.Changed(), "");
  desktop_.Yes = true;
  window_.close();
  EXPECT_EQ(watch.Changed(), "window is closed");
}

TEST_F(MatchWindowTest, FollowsTheShootOutKickByKick) {
  for (const int minutes : {45, 45, 15, 15}) {
    User::Click(window_, "halftime");
    Play(minutes);
  }
  const char* const marks = "^(Enter|focus) |told as .* To come|^penalty.* is enabled$";
  Watch watch(window_);
  User::Click(window_, "halftime");
  EXPECT_EQ(watch.Changed(marks),
            "Label3:; Label4 is enabled, bold; Label7 is enabled; Label8 is enabled, bold; Pen1 is enabled, "
            "bold; Pen2 is enabled, bold; Picture1 is enabled; Picture1 is described as United 0, Rovers 0, "
            "United to kick, Players getting ready for the shoot out; Picture2 is hidden; halftime is "
            "hidden; kick is enabled; nextshot is disabled; penalty(0) is "
            "told as United, kick 1: Next");
  User::Click(window_, "kick");
  EXPECT_EQ(watch.Changed(Keyboard),
            "Label2 is told as Lamp: red; Label2 stands on #ff0000 in #000000; Label3: MISS!; Picture1 is "
            "described as United 0, Rovers 0, MISS!, It's gone straight over the bar; kick is disabled; "
            "nextshot is enabled; penalty(0) is told as United, kick 1: Miss");
  User::Click(window_, "nextshot");
  EXPECT_EQ(watch.Changed(Keyboard),
            "Label2 is told as Lamp: dark; Label2 stands on #000000 in #00ff00; Label3:; Label4 is enabled; "
            "Label7 is enabled, bold; Picture1 is described as United 0, Rovers 0, Rovers to kick, It's gone "
            "straight over the bar; kick is enabled; nextshot is disabled; penalty(1) is told as Rovers, "
            "kick 1: Next");
  const auto picture = [&](const char* mark) { return window_.findChild<QWidget*>(mark)->grab().toImage(); };
  EXPECT_NE(picture("penalty(1)"), picture("penalty(3)"));  // A ring marks the next kick.
}

TEST_F(MatchWindowTest, TheGoalsMakeRoomForTheInstantShootOutAndTheFactsStandInTheirPlaces) {
  MatchDraws draws;
  draws.Expect(100, 50);  // The crowd, in percent.
  draws.DrawGoalNumber();
  draws.NoGoals(89 * SecondsPerMinute);
  for (int pair = 0; pair < 3; ++pair) {
    draws.InstantKick(true);
    draws.InstantKick(false);
  }
  draws.Expect({{70, 40}, {4, 3}, {3, 2}, {4, 1}, {1, 0}, {5, 4}, {5, 2}, {5, 0}, {5, 3}});  // The facts.
  MatchSetup setup = MakeSetup();
  setup.PenaltyShootOut = true;
  Match match(folder_.Folder, desktop_, draws, recording_, setup);
  MatchWindow window(match, {}, nullptr);
  window.show();
  const auto left = [&window] { return window.findChild<QLabel*>("Inn1")->mapTo(&window, QPoint()).x(); };
  const int before = left();
  Watch watch(window);
  User::Click(window, "instant");
  EXPECT_EQ(
      watch.Changed("^(Enter|focus|Label[23]|List1)"),
      "Book1: 2; Corner1: 4; Corner2: 2; Foul1: 3; Foul2: 1; Over is enabled; Pen1 is enabled, bold; Pen1: "
      "(3); Pen2 is enabled, bold; Picture2 is described as Rovers 0, United 0, That's it, Rovers wins the "
      "match in a PSO; PosMet(0): 40%; PosMet(1): 60%; Shots2: 3; instant is disabled");
  EXPECT_EQ(before - left(), Twips(&window, 360));
}

}  // namespace
}  // namespace kickwell
