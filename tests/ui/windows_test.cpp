#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QListWidget>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>
#include <QtTest/QTest>

#include "support/fakes.h"
#include "support/folders.h"
#include "support/matches.h"
#include "support/scripted_random.h"
#include "ui/match_window.h"
#include "ui/opening_window.h"
#include "ui/ranking_window.h"
#include "ui/selection_window.h"
#include "ui/settings_window.h"
#include "ui/widgets.h"
#include "user.h"

namespace kickwell {
namespace {

class WindowsTest : public testing::Test {
 protected:
  TestFolder folder_;
  FakeDesktop desktop_;
  FakeRecording recording_;
};

TEST_F(WindowsTest, TheMenuOffersWhatThereIs) {
  OpeningScreens screens;
  bool opened = false;
  screens.Settings = [&opened] { opened = true; };
  Opening menu(desktop_, screens);
  OpeningWindow window(menu);
  window.show();
  QStringList items;
  for (const QAction* const top : window.menuBar()->actions()) {
    items.append(top->text() + (top->isEnabled() ? "" : " (off)"));
    for (const QAction* const item : top->menu()->actions()) {
      if (!item->isSeparator()) items.append("- " + item->text());
    }
  }
  EXPECT_EQ(items, QStringList({"&Play", "- &Single Match", "- &Knock Out", "- &League", "- E&xit",
                                "&Editors", "- &Team Editor", "- &Stadium Editor", "- &Championship Editor",
                                "&Statistics (off)", "- &Top Scorers", "- &League Table", "- &Match Results",
                                "- &Knock Out Table", "&Help", "- &Contents", "- &History"}));
  EXPECT_FALSE(window.findChild<QAction*>("LegLoad")->isEnabled());  // Not wired.
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  User::Choose(window, Qt::Key_P, Qt::Key_S);
  EXPECT_TRUE(opened);
  User::Choose(window, Qt::Key_H, Qt::Key_C);
  EXPECT_EQ(desktop_.Taken().size(), 1U);
  EXPECT_EQ(User::TextOf(window, "league"), "N/A");
  window.close();
  EXPECT_TRUE(menu.Closed);
}

TEST_F(WindowsTest, SettingsShowWhatTheirLogicMakesOfAClick) {
  for (const char* name : {"A", "B", "C"}) ASSERT_TRUE(CreateTeam(folder_.Folder, name, "1").Ok());
  Settings settings(folder_.Folder, desktop_, [](const MatchSetup&) { FAIL(); });
  SettingsWindow window(settings, nullptr);
  window.show();
  for (const char* box : {"Check1", "Check2", "Check1"}) User::Click(window, box);
  EXPECT_FALSE(window.findChild<QCheckBox*>("Check2")->isEnabled() ||
               window.findChild<QCheckBox*>("Check2")->isChecked());
  User::Pick(window, "Combo2", 0);
  EXPECT_EQ(window.findChild<QComboBox*>("Combo1")->currentText(), "B");
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());
}

TEST_F(WindowsTest, ASmallSquadKeepsContinueDisabled) {
  ASSERT_TRUE(CreateTeam(folder_.Folder, "Rovers", "70").Ok());
  ASSERT_TRUE(SaveTeam(folder_.Folder, MakeTeam("United", "U")).Ok());
  Selection selection(
      folder_.Folder, desktop_, [](const MatchSetup&) { FAIL(); }, MakeSetup());
  SelectionWindow window(selection, nullptr);
  window.show();
  ASSERT_TRUE(QTest::qWaitFor([&window] { return User::TextOf(window, "OSkill2") == "75%"; }));
  EXPECT_FALSE(window.findChild<QPushButton*>("Command1")->isEnabled());
  EXPECT_EQ(window.findChild<QComboBox*>("Combo1(0)")->count(), 0);
  EXPECT_EQ(window.findChild<QComboBox*>("Combo2(10)")->currentText(), "U10");
  EXPECT_EQ(User::TextOf(window, "Label15") + User::TextOf(window, "Label11"), "80");
  User::Click(window, "Command2");
  EXPECT_FALSE(window.isVisible());
}

TEST_F(WindowsTest, TheMatchShowsItsShootOutBesideTheGoals) {
  MatchSetup setup = MakeSetup();
  setup.Team1Name = "<i>&Rovers";
  setup.PenaltyShootOut = true;
  // Nobody scores in 89 minutes; then three kicks each, side 1's all in.
  std::vector<Draw> script{{100, 50}, {100, 3}, {4000, 7, 2 * 5340}};
  for (int k = 0; k < 6; ++k) script.insert(script.end(), {{2, 1 - k % 2}, {k % 2 == 0 ? 6 : 7, 0}});
  script.insert(script.end(), {{70, 40}, {4, 0, 1}, {0, 0}, {4, 1}, {1, 0}, {5, 1}, {5, 2}, {5, 3}, {5, 4}});
  ScriptedRandom random(script);
  Match match(folder_.Folder, desktop_, random, recording_, setup);
  MatchWindow window(match, {}, nullptr);
  window.show();
  const auto* const goals = window.findChild<QLabel*>("Inn1");
  const auto* const penalties = window.findChild<QLabel*>("Pen1");
  EXPECT_FALSE(penalties->isVisible());
  const int before = goals->mapTo(&window, QPoint()).x();
  User::Click(window, "instant");
  QTest::qWait(20);
  EXPECT_TRUE(penalties->isVisible());
  EXPECT_EQ(before - goals->mapTo(&window, QPoint()).x(), Twips(&window, 360));
  EXPECT_EQ(User::TextOf(window, "t1"), "<i>&Rovers");
  EXPECT_EQ(User::TextOf(window, "Pen1") + User::TextOf(window, "Pen2"), "(3)(0)");
  EXPECT_EQ(User::TextOf(window, "Shots2") + User::TextOf(window, "Corner1"), "41");
  EXPECT_EQ(window.findChild<QListWidget*>("List1(1)")->currentItem()->text(),
            "<i>&Rovers beats United 3-0 in PSO");
  desktop_.Yes = false;
  window.close();  // The frame asks as the exit button does.
  EXPECT_TRUE(window.isVisible());
  desktop_.Yes = true;
  window.close();
  EXPECT_FALSE(window.isVisible());
}

TEST_F(WindowsTest, TheGoalPauseLeavesTheMatchInTheUsersHands) {
  QuietRandom random;
  Match match(folder_.Folder, desktop_, random, recording_, MakeFullSetup());
  MatchWindow window(match, {1, 60000}, nullptr);
  window.show();
  const auto shows = [&window](const char* label, const char* text) {
    return User::TextOf(window, label) == text;
  };
  auto* const commentary = window.findChild<QListWidget*>("List1(0)");
  QTimer::singleShot(0, &window, [&] {
    random.ScoringSide = 2;
    User::Click(window, "halftime");
  });
  QTimer::singleShot(200, &window, [&] {
    EXPECT_TRUE(shows("Label3", "GOAL!") && shows("Inn2", "1"));
    EXPECT_EQ(window.findChild<QWidget*>("PosMet(1)")->palette().color(QPalette::Window), QColor(0, 255, 0));
    User::Click(window, "Option1(0)");
    EXPECT_TRUE(commentary->isVisible());
    EXPECT_TRUE(window.findChild<QPushButton*>("ComSave")->text() == "Save Commentary");
    desktop_.SaveName = (folder_ / "page").string();
    User::Click(window, "ComSave");
    User::Click(window, "Command1");
  });
  QElapsedTimer time;
  time.start();
  window.exec();  // Returns although the pause is a minute long.
  EXPECT_LT(time.elapsed(), 10000);
  EXPECT_EQ(match.Session().ClockText, "00:01");
  EXPECT_TRUE(std::filesystem::exists(folder_ / "page.htm"));
  EXPECT_EQ(desktop_.Taken(),
            (std::vector<std::string>{"* whistle", "* goal", "?: Do you really want to exit?"}));
}

TEST_F(WindowsTest, TheClockRunsTheMatchAndItsButtons) {
  QuietRandom random;
  Match match(folder_.Folder, desktop_, random, recording_, MakeFullSetup(true, true));
  MatchWindow window(match, {1, 1}, nullptr);
  window.show();
  auto* const halftime = window.findChild<QPushButton*>("halftime");
  for (const char* caption : {"&Normal Time 1st Half", "&Normal Time 2nd Half", "&Extra Time 1st Half",
                              "&Extra Time 2nd Half", "&Penalty Shoot Out"}) {
    ASSERT_TRUE(QTest::qWaitFor([halftime] { return halftime->isEnabled(); }));
    EXPECT_EQ(halftime->text(), caption);
    User::Press(window, Qt::Key_Return);
  }
  EXPECT_TRUE(halftime->isHidden());
  EXPECT_TRUE(window.findChild<QWidget*>("Picture2")->isHidden());
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
  const auto* const bar = window->findChild<QWidget*>("Bar");
  const auto row = [&window](int r) { return window->findChild<QWidget*>(ArrayName("Marker", r)); };
  QTest::qWait(20);
  EXPECT_EQ(bar->y(), row(1)->y());
  QTest::keyClick(window.get(), Qt::Key_Down);
  EXPECT_EQ(bar->y(), row(2)->y());
  QTest::mouseMove(row(9));
  QTest::qWait(20);
  EXPECT_EQ(table.Pages.Highlight, 9);
  User::Press(*window, Qt::Key_Return);  // "Next" has the focus.
  ASSERT_TRUE(window->isVisible());
  EXPECT_EQ(User::TextOf(*window, "Pos(1)"), "16");
  EXPECT_EQ(User::TextOf(*window, "Pos(2)"), "");
  EXPECT_TRUE(row(1)->isVisible() && !row(2)->isVisible());
  EXPECT_EQ(bar->y(), row(1)->y());
  User::Press(*window, Qt::Key_Space);  // The focus is on "Back" now, not on "Close".
  EXPECT_EQ(User::TextOf(*window, "Pos(1)"), "1");
  EXPECT_TRUE(window->isVisible());
}

}  // namespace
}  // namespace kickwell
