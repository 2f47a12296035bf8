// What windows do beyond showing their logic: menus, focus, keys, the timer and the pause.
#include <QElapsedTimer>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>
#include <QtTest/QTest>

#include "support/screen_test.h"
#include "ui/match_window.h"
#include "ui/opening_window.h"
#include "ui/ranking_window.h"
#include "ui/selection_window.h"
#include "ui/widgets.h"
#include "user.h"

namespace kickwell {
namespace {

using WindowsTest = ScreenTest;

TEST_F(WindowsTest, TheMenuOffersWhatThereIsAndFollowsTheMode) {
  std::string opened;
  OpeningScreens screens;
  screens.Settings = [&] { opened += "S"; };
  screens.LegSettings = [&] { opened += "L"; };
  screens.KnockSettings = [&] { opened += "K"; };
  Opening menu(desktop_, screens);
  OpeningWindow window(menu);
  window.show();
  const QAction* const statistics = window.menuBar()->actions()[2];
  const auto state = [&] {
    Texts texts{(User::TextOf(window, "mode") + " " + User::TextOf(window, "league")).toStdString()};
    if (!statistics->isEnabled()) texts.emplace_back("off");
    for (const QAction* const item : statistics->menu()->actions()) {  // None is wired here.
      if (item->isVisible())
        texts.push_back(item->text().toStdString() + (item->isEnabled() ? "" : " (off)"));
    }
    return Joined(texts);
  };
  EXPECT_EQ(
      state(),
      "Friendly N/A|off|&Top Scorers (off)|&League Table (off)|&Match Results (off)|&Knock Out Table (off)");
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  menu.ChampionshipName = "Cup";
  User::Choose(window, Qt::Key_P, Qt::Key_L);
  EXPECT_EQ(state(), "League N/A|&Top Scorers (off)|&League Table (off)|&Match Results (off)");
  menu.ChampionshipName = "Cup";
  User::Choose(window, Qt::Key_P, Qt::Key_K);
  EXPECT_EQ(state(), "KnockOut N/A|&Top Scorers (off)|&Match Results (off)|&Knock Out Table (off)");
  User::Choose(window, Qt::Key_P, Qt::Key_S);
  EXPECT_EQ(opened + " " + state().substr(0, 16), "LKS Friendly N/A|off");
  User::Choose(window, Qt::Key_H, Qt::Key_C);
  User::Choose(window, Qt::Key_H, Qt::Key_H);
  EXPECT_EQ(desktop_.Told(),
            "i: Read the file 'Help.htm' in your Kickwell folder for help.|"
            "i: Read the file 'History.txt' in your Kickwell folder for history.");
  window.close();
  EXPECT_TRUE(menu.Closed);
}

TEST_F(WindowsTest, ASmallSquadCanOnlyBeCancelled) {
  Team small = MakeTeam("Rovers", "R");
  small.Players.pop_back();
  ASSERT_TRUE(SaveTeam(folder_.Folder, small).Ok());
  AddTeams(folder_, {"United"});
  Selection selection(folder_.Folder, desktop_, {}, MakeSetup());
  SelectionWindow window(selection, nullptr);
  window.show();
  ASSERT_TRUE(QTest::qWaitFor([&window] { return User::TextOf(window, "OSkill2") == "75%"; }));
  EXPECT_FALSE(window.findChild<QPushButton*>("Command1")->isEnabled());
  selection.Command1_Click();  // Dark for all.
  EXPECT_EQ(desktop_.Told(), "!: Rovers don't have enough players to play.");
  EXPECT_EQ(User::TextOf(window, "Sk1(0)") + User::TextOf(window, "OSkill1"), "075%");
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(WindowsTest, TheGoalsMakeRoomForTheShootOutAndTheFrameAsksAsTheExitButtonDoes) {
  // Nobody scores in 89 minutes; then three kicks each, side 1's all in; then the facts.
  ScriptedRandom random("100:50 100:3 4000:7x10680 " + Times(3, "2:1 6:0 2:0 7:0") +
                        "70:40 4:3 3:2 4:1 1:0 5:4 5:2 5:0 5:3");
  Match match(folder_.Folder, desktop_, random, recording_, MakeSetup(MatchMode::Friendly, false, true));
  MatchWindow window(match, {}, nullptr);
  window.show();
  const auto left = [&window] { return window.findChild<QLabel*>("Inn1")->mapTo(&window, QPoint()).x(); };
  const int before = left();
  EXPECT_FALSE(window.findChild<QLabel*>("Pen1")->isVisible());
  User::Click(window, "instant");
  QTest::qWait(20);
  EXPECT_TRUE(window.findChild<QLabel*>("Pen1")->isVisible());
  EXPECT_EQ(before - left(), Twips(&window, 360));
  EXPECT_EQ(window.findChild<QListWidget*>("List1(1)")->currentRow(), 7);  // The newest line is in view.
  QString shown;
  for (const char* label : {"Pen1", "Shots1", "Corner1", "Book1", "Foul1", "PosMet(0)", "Pen2", "Shots2",
                            "Corner2", "Book2", "Foul2", "PosMet(1)"})
    shown += User::TextOf(window, label) + " ";
  EXPECT_EQ(shown.toStdString(), "(3) 0 4 2 3 40% (0) 3 2 0 1 60% ");
  desktop_.Yes = false;
  window.close();
  EXPECT_TRUE(window.isVisible());
  desktop_.Yes = true;
  window.close();
  EXPECT_FALSE(window.isVisible());
}

TEST_F(WindowsTest, TheGoalPauseLeavesTheMatchInTheUsersHands) {
  Match match(folder_.Folder, desktop_, random_, recording_, MakeFullSetup());
  MatchWindow window(match, {1, 30000}, nullptr);
  random_.Goals = "2";
  QTimer::singleShot(0, &window, [&] { User::Click(window, "halftime"); });
  QTimer::singleShot(200, &window, [&] {
    EXPECT_EQ(User::TextOf(window, "Label3") + User::TextOf(window, "Inn2"), "GOAL!1");
    EXPECT_EQ(window.findChild<QWidget*>("PosMet(1)")->palette().color(QPalette::Window), QColor(0, 255, 0));
    User::Click(window, "Option1(0)");
    EXPECT_TRUE(window.findChild<QListWidget*>("List1(0)")->isVisible());
    EXPECT_EQ(window.findChild<QPushButton*>("ComSave")->text(), "Save Commentary");
    desktop_.SaveName = (folder_ / "page").string();
    User::Click(window, "ComSave");
    User::Click(window, "Command1");
  });
  QElapsedTimer time;
  time.start();
  window.exec();
  EXPECT_LT(time.elapsed(), 20000);  // The pause does not hold it.
  EXPECT_TRUE(Exists("page.htm"));
  EXPECT_EQ(desktop_.Told(), "* loaded|* whistle|* goal|?: Do you really want to exit?");
}

TEST_F(WindowsTest, EnterGoesThroughAllPeriodsAndTheShootOut) {
  Match match(folder_.Folder, desktop_, random_, recording_, MakeFullSetup(true, true));
  MatchWindow window(match, {1, 1}, nullptr);
  window.show();
  auto* const halftime = window.findChild<QPushButton*>("halftime");
  for (const char* caption : {"&Normal Time 1st Half", "&Normal Time 2nd Half", "&Extra Time 1st Half",
                              "&Extra Time 2nd Half", "&Penalty Shoot Out"}) {
    ASSERT_TRUE(QTest::qWaitFor([halftime] { return halftime->isEnabled(); }));
    EXPECT_EQ(halftime->text(), caption);
    User::Press(window, Qt::Key_Return);
  }
  EXPECT_TRUE(halftime->isHidden() && window.findChild<QWidget*>("Picture2")->isHidden());
  EXPECT_FALSE(window.findChild<QWidget*>("nextshot")->isEnabled());
  EXPECT_EQ(User::TextOf(window, "Label4") + User::TextOf(window, "Label7"), "UnitedRovers");
  for (int kick = 0; kick < 6; ++kick) {
    EXPECT_TRUE(window.findChild<QWidget*>(ArrayName("penalty", kick))->isVisible());
    User::Press(window, Qt::Key_Return);  // The ball...
    EXPECT_EQ(User::TextOf(window, "Label3"), "MISS!");
    User::Press(window, Qt::Key_Return);  // ... and the next player.
  }
  EXPECT_FALSE(window.findChild<QWidget*>("penalty(10)")->isVisible());
}

TEST_F(WindowsTest, ARankingIsTurnedByKeyboardAndItsBarFollows) {
  Ranking table;
  for (int i = 1; i <= 16; ++i)
    table.Rows.push_back({std::to_string(i), "Team", "", "", "", "", "100", "", ""});
  table.Pages.Open(16);
  const std::unique_ptr<RankingWindow> window(MakeTableWindow(table, nullptr));
  window->show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  const auto* const figure = window->findChild<QLabel*>("GF(1)");
  EXPECT_GE(figure->contentsRect().width(), figure->fontMetrics().horizontalAdvance("100"));  // Never cut.
  const auto row = [&window](int r) { return window->findChild<QWidget*>(ArrayName("Marker", r)); };
  const auto barIsOn = [&](int r) { return window->findChild<QWidget*>("Bar")->y() == row(r)->y(); };
  QTest::qWait(20);
  EXPECT_TRUE(barIsOn(1));
  QTest::keyClick(window.get(), Qt::Key_Down);
  EXPECT_TRUE(barIsOn(2));
  QTest::mouseMove(row(9));
  QTest::qWait(20);
  EXPECT_TRUE(barIsOn(9));
  User::Press(*window, Qt::Key_Return);  // "Next" has the focus.
  EXPECT_EQ(User::TextOf(*window, "Pos(1)") + User::TextOf(*window, "Pos(2)"), "16");
  EXPECT_TRUE(row(1)->isVisible() && !row(2)->isVisible() && barIsOn(1));
  User::Press(*window, Qt::Key_Space);  // The focus is on "Back" now, not on "Close".
  EXPECT_EQ(User::TextOf(*window, "Pos(1)"), "1");
  EXPECT_TRUE(window->isVisible());
}

}  // namespace
}  // namespace kickwell
