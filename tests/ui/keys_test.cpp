// Keys that the desktop's theme would give another meaning. On a display these tests also run as GNOME, XFCE
// and KDE; see tests/CMakeLists.txt.
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QtTest/QTest>

#include "championship/championship_play.h"
#include "setup/settings.h"
#include "support/screen_test.h"
#include "ui/windows/championship_play_window.h"
#include "ui/windows/leg_editor_window.h"
#include "ui/windows/match_window.h"
#include "ui/windows/settings_window.h"
#include "ui/windows/team_editor_window.h"
#include "user.h"

namespace kickwell {
namespace {

class KeysTest : public WindowTest {
 protected:
  static void Show(QWidget& window) {
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  static void Type(const QWidget& window, const char* keys) { QTest::keyClicks(window.focusWidget(), keys); }
};

TEST_F(KeysTest, EnterGoesOnFromEveryControlAndOnlyBlanksOpenAndTick) {
  AddTeams({"Albion", "Borough"});
  Write("stadiums.sim", "1\nNeutral\nBowl\nOss\n500\n");
  int goneOn = 0;
  Settings settings(folder_.Folder, desktop_, [&goneOn](const MatchSetup&) { ++goneOn; });
  SettingsWindow window(settings, nullptr);
  Show(window);
  for (const char* control : {"Combo1", "Check1"}) {
    window.findChild<QWidget*>(control)->setFocus();
    settings.Closed = false;
    window.show();
    User::Press(window, Qt::Key_Return);
  }
  EXPECT_EQ(goneOn, 2);
  EXPECT_FALSE(settings.Check1);
  window.show();
  User::Press(window, Qt::Key_Space);
  EXPECT_TRUE(settings.Check1);
  window.findChild<QWidget*>("Combo1")->setFocus();
  User::Press(window, Qt::Key_Down, Qt::AltModifier);
  EXPECT_NE(QApplication::activePopupWidget(), nullptr);
}

TEST_F(KeysTest, APlayersLineAndSideAreTypedAndEnterAddsHim) {
  ASSERT_TRUE(SaveTeam(folder_.Folder, {"Rovers", "75", {}}).Ok());
  TeamEditor editor(folder_.Folder, desktop_, "N/A");
  TeamEditorWindow window(editor, nullptr);
  Show(window);
  EXPECT_EQ(window.findChild<QWidget*>("Text4")->accessibleName(), "Add Players, Skill (1 - 99)");
  window.findChild<QWidget*>("Text2")->setFocus();
  // A skill of 0 is refused and typed over; the line takes the side behind it.
  for (const char* keys : {"Ann\t", "0\r", "71\t", "mr\r", "Bea"}) Type(window, keys);
  EXPECT_EQ(User::TextOf(window, "Label5"), "MFR");
  EXPECT_EQ(editor.Text2, "Bea");
  desktop_.Taken();
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
  QApplication::sendEvent(window.focusWidget(), &held);
  EXPECT_EQ(desktop_.Taken(), Texts{});  // A key that is held down presses once.
}

TEST_F(KeysTest, TeamsAreFoundByTypingOneAfterTheOther) {
  AddTeams({"Albion", "Dale", "Kestrel", "Tully"});
  LegEditor editor(folder_.Folder, desktop_, random_);
  LegEditorWindow window(editor, nullptr);
  Show(window);
  window.findChild<QWidget*>("LeagueAvailable")->setFocus();
  for (const char* keys : {"kes\r", "tul\r"}) Type(window, keys);
  EXPECT_EQ(User::LinesOf(window, "LeagueSelected"), (QStringList{"Kestrel", "Tully"}));
  const auto* const teams = window.findChild<QListWidget*>("LeagueAvailable");
  const QPoint first = teams->visualItemRect(teams->item(0)).center();
  QTest::mouseClick(teams->viewport(), Qt::LeftButton, {}, first);
  QTest::mouseDClick(teams->viewport(), Qt::LeftButton, {}, first);
  EXPECT_EQ(User::LinesOf(window, "LeagueAvailable"), QStringList{"Dale"});
}

TEST_F(KeysTest, TheFixtureListPlaysTheFramedMatchAndSelectsWithoutHoles) {
  std::string file = "Top\n2\nA\nB\n12\n";
  for (int match = 1; match <= 12; ++match) file += (match < 5 ? "P" : "NP") + std::string("\nA\nB\n");
  Write("Leagues/Top.leg", file);
  std::vector<int> played;
  ChampionshipPlay play(
      ChampionshipKind::League, folder_.Folder, desktop_, [](auto&) {},
      [&played](const MatchSetup& setup) { played.push_back(setup.MatchNumber); });
  ChampionshipPlayWindow window(play, ChampionshipKind::League, nullptr);
  Show(window);
  auto* const fixtures = window.findChild<QListWidget*>("Fixtures");
  const auto range = [&] {
    EXPECT_EQ(fixtures->selectedItems().size(), play.To.Picked - play.From.Picked + 1);  // No holes.
    return User::TextOf(window, "From") + " to " + User::TextOf(window, "To");
  };
  fixtures->setFocus();
  EXPECT_EQ(fixtures->item(4)->data(Qt::AccessibleTextRole), "Match 5: A v B, Next");
  EXPECT_EQ(User::TextOf(window, "RangeText"), "Matches 1 to 2 have been played. The next one is match 5.");
  User::Press(window, Qt::Key_Return);
  EXPECT_EQ(played, std::vector{5});
  const auto choose = [&](int from, int to) {
    User::Pick(window, "From", from - 1);
    User::Pick(window, "To", to - 1);
    fixtures->setFocus();
    EXPECT_EQ(range(), QString("%1 to %2").arg(from).arg(to));
  };
  const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    User::Press(window, key, modifiers);
    return range();
  };
  choose(11, 11);
  EXPECT_EQ(press(Qt::Key_Down), "5 to 5");
  choose(10, 11);
  EXPECT_EQ(press(Qt::Key_Down, Qt::ShiftModifier), "10 to 12");
  User::Press(window, Qt::Key_Return);
  EXPECT_EQ(played, (std::vector{5, 10, 11, 12}));
  EXPECT_EQ(press(Qt::Key_Space), "12 to 12");
  const QPoint eighth = fixtures->visualItemRect(fixtures->item(7)).center();
  QTest::mouseClick(fixtures->viewport(), Qt::LeftButton, Qt::ControlModifier, eighth);
  EXPECT_EQ(range(), "8 to 12");
  QTest::mouseClick(fixtures->viewport(), Qt::LeftButton, {}, eighth);
  EXPECT_EQ(range(), "8 to 8");
  choose(1, 2);
  fixtures->resize(300, 60);
  fixtures->scrollToBottom();  // The range is out of sight.
  const QPoint twelfth = fixtures->visualItemRect(fixtures->item(11)).center();
  QTest::mouseClick(fixtures->viewport(), Qt::LeftButton, Qt::ShiftModifier, twelfth);
  EXPECT_EQ(range(), "1 to 12");
  fixtures->resize(300, 400);
  QTest::mouseClick(fixtures->viewport(), Qt::LeftButton, {}, eighth);
  QTest::mouseDClick(fixtures->viewport(), Qt::LeftButton, {}, eighth);
  EXPECT_EQ(played.back(), 8);
  Write("Leagues/Top.leg", "Top\n2\nA\nB\n3\nP\nA\nB\nNP\nA\nB\nNP\nA\nB\n");
  play.Load("Top.leg");  // Its range is 1 to 2 again, which nobody has chosen.
  User::Press(window, Qt::Key_Return);
  EXPECT_EQ(played.back(), 2);
  EXPECT_EQ(desktop_.Taken(), Texts{});
}

TEST_F(KeysTest, EnterPlaysAMatchToItsEndAndLeavesItOnlyWhenTheResultWasSeen) {
  MatchSetup setup = MakeFullSetup();
  setup.ExtraTime = setup.PenaltyShootOut = true;
  Match match(folder_.Folder, desktop_, random_, recording_, setup);
  constexpr int ResultPause = 300;
  MatchWindow window(match, {1, 1, ResultPause}, nullptr);
  Show(window);
  constexpr int Periods = 4;
  for (int period = 0; period < Periods; ++period) {
    User::Press(window, Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return match.Session().Controls.halftimeEnabled; }));
    window.findChild<QWidget*>("Option1(0)")->setFocus();  // To read the commentary in the break.
    User::Press(window, Qt::Key_Space);
  }
  User::Press(window, Qt::Key_Return);
  const auto goal = [&window] { return window.findChild<QWidget*>("Picture1")->grab().toImage(); };
  const QImage onTheSpot = goal();
  User::Press(window, Qt::Key_Return);
  EXPECT_TRUE(QTest::qWaitFor([&] { return goal() != onTheSpot; }));  // The ball has left the spot.
  while (!match.Session().IsOver()) User::Press(window, Qt::Key_Return);
  window.findChild<QWidget*>("ComSave")->setFocus();
  EXPECT_TRUE(window.findChild<QPushButton*>("ComSave")->isDefault());
  window.findChild<QWidget*>("List1(1)")->setFocus();
  for (int more = 0; more < 3; ++more) User::Press(window, Qt::Key_Return);
  EXPECT_FALSE(match.Closed());
  EXPECT_TRUE(QTest::qWaitFor([&] { return window.findChild<QPushButton*>("Command1")->isDefault(); }));
  desktop_.Taken();
  User::Press(window, Qt::Key_Return);
  EXPECT_TRUE(match.Closed());
  EXPECT_EQ(desktop_.Taken(), Texts{"?: Do you really want to exit?"});
}

}  // namespace
}  // namespace kickwell
