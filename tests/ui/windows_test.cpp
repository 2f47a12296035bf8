// What windows do beyond showing their logic: places, focus, keys, the timer and the pause.
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QTimer>
#include <QWheelEvent>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <chrono>
#include <future>

#include "support/screen_test.h"
#include "ui/one_program.h"
#include "ui/qt_desktop.h"
#include "ui/widgets/choosers.h"
#include "ui/widgets/goal_picture.h"
#include "ui/widgets/line_list.h"
#include "ui/widgets/pitch_picture.h"
#include "ui/windows/championship_play_window.h"
#include "ui/windows/match_window.h"
#include "ui/windows/ranking_window.h"
#include "ui/windows/selection_window.h"
#include "user.h"

namespace kickwell {
namespace {

using namespace std::chrono_literals;
using WindowsTest = WindowTest;

TEST_F(WindowsTest, TheGoalPauseLeavesTheMatchInTheUsersHands) {
  Match match(folder_.Folder, desktop_, random_, recording_, MakeFullSetup());
  MatchWindow window(match, {1, 30000}, nullptr);
  random_.Goals = "2";
  QTimer::singleShot(0, &window, [&] { User::Click(window, "halftime"); });
  QTimer::singleShot(200, &window, [&] {
    EXPECT_EQ(User::TextOf(window, "Label3"), "GOAL!");
    EXPECT_EQ(User::TextOf(window, "Inn2"), "1");
    User::Click(window, "Option1(0)");
    EXPECT_TRUE(window.findChild<QListWidget*>("List1(1)")->isVisible());
    desktop_.SaveName = (folder_ / "page").string();
    User::Click(window, "ComSave");
    User::Click(window, "Command1");
  });
  QElapsedTimer time;
  time.start();
  window.exec();
  EXPECT_LT(time.elapsed(), 20000);  // The pause does not hold it.
  EXPECT_TRUE(Exists("page.htm"));
  EXPECT_EQ(desktop_.Taken(), (Texts{"* loaded", "* whistle", "* goal", "? (No): Do you really want to exit?"}));
}

TEST_F(WindowsTest, ATeamWithoutAFileIsToldInItsColumn) {
  AddTeams({"Rovers"});
  Selection selection(
      folder_.Folder, desktop_, [](auto&) {}, MakeSetup());
  SelectionWindow window(selection, nullptr);
  window.show();
  const auto* const note = window.findChild<QLabel*>("Note2");
  EXPECT_TRUE(QTest::qWaitFor([note] { return note->isVisible(); }));
  EXPECT_EQ(note->text(), "There is no file \"United\" in \"Teams\".");
  EXPECT_TRUE(window.findChild<QComboBox*>("Combo2(0)")->accessibleDescription().endsWith(note->text()));
}

/// The first and the last chalk-white pixel in the row of `picture` at this part of its height.
std::pair<int, int> Chalked(const QImage& picture, qreal part) {
  int first = picture.width(), last = 0;
  for (int x = 0; x < picture.width(); ++x) {
    if (picture.pixelColor(x, static_cast<int>(picture.height() * part)).lightness() < 200) continue;
    first = std::min(first, x);
    last = x;
  }
  return {first, last};
}

TEST_F(WindowsTest, ThePitchKeepsItsShapeInAnyWindow) {
  for (const QSize size : {QSize(700, 200), QSize(300, 300)}) {
    PitchPicture pitch(0);
    pitch.resize(size);
    const QImage picture = pitch.grab().toImage();
    const auto [left, right] = Chalked(picture, 0.4);
    const auto [top, bottom] = Chalked(picture.transformed(QTransform().rotate(90)), 0.4);
    EXPECT_NEAR(qreal(right - left) / (bottom - top), 105.0 / 68, 0.03);
    EXPECT_NEAR(left + right, picture.width(), 3);
  }
}

TEST_F(WindowsTest, PenaltiesGoFromTheMiddleIntoTheNetOrBesideTheGoal) {
  GoalPicture goal(0);
  goal.resize(600, 240);
  const QImage before = goal.grab().toImage();
  const auto [left, right] = Chalked(before, 0.4);  // The posts.
  EXPECT_NEAR(left + right, before.width(), 2);
  const auto arrival = [&](int place) {
    goal.SetBall({place, 0});
    const QImage after = goal.grab().toImage();
    const auto [spotLeft, spotRight] = Chalked(after, 0.95);
    EXPECT_NEAR(spotLeft + spotRight, before.width(), 2);
    const int y = before.height() * 3 / 10;
    int x = 0;
    while (x < before.width() && after.pixel(x, y) == before.pixel(x, y)) ++x;
    return x;
  };
  EXPECT_TRUE(arrival(1200) > left && arrival(1200) < right);
  EXPECT_TRUE(arrival(480) > 0 && arrival(480) < arrival(1040) && arrival(1040) < left - 20);
}

TEST_F(WindowsTest, AClosedChooserIgnoresTheWheelAndFindsWhatIsTyped) {
  QComboBox* const chooser = MakeCombo("Teams");
  const std::unique_ptr<QWidget> owner(chooser);
  chooser->addItems({"Dale", "New Ashford", "New Burton"});
  chooser->show();
  QWheelEvent notch({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(chooser, &notch);
  EXPECT_FALSE(notch.isAccepted());  // The page takes it.
  EXPECT_EQ(chooser->currentText(), "Dale");
  QSignalSpy picks(chooser, &QComboBox::activated);
  QTest::keyClicks(chooser, "New B");
  EXPECT_EQ(chooser->currentText(), "New Burton");
  EXPECT_EQ(picks.last().first().toInt(), 2);
}

TEST_F(WindowsTest, TheFixtureListSetsTheRangeAndPlaysIt) {
  Write("Leagues/Top.leg", "Top\n2\nA\nB\n4\nP\nA\nB\nNP\nB\nA\nNP\nA\nB\nNP\nB\nA\n");
  std::vector<int> played;
  ChampionshipPlay play(
      ChampionshipKind::League, folder_.Folder, desktop_, [](auto&) {},
      [&played](const MatchSetup& setup) { played.push_back(setup.MatchNumber); });
  ChampionshipPlayWindow window(play, ChampionshipKind::League, nullptr);
  window.show();
  auto* const fixtures = window.findChild<QListWidget*>("Fixtures");
  EXPECT_EQ(fixtures->currentRow(), 1);  // The next one to play.
  const auto range = [&window] { return User::TextOf(window, "From") + " to " + User::TextOf(window, "To"); };
  EXPECT_EQ(range(), "1 to 2");
  const auto on = [fixtures](int row) { return fixtures->visualItemRect(fixtures->item(row)).center(); };
  QTest::mouseClick(fixtures->viewport(), Qt::LeftButton, {}, on(2));
  EXPECT_EQ(range(), "3 to 3");
  QTest::keyClick(fixtures, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(range(), "3 to 4");
  QTest::mouseClick(fixtures->viewport(), Qt::LeftButton, {}, on(1));
  QTest::mouseDClick(fixtures->viewport(), Qt::LeftButton, {}, on(1));
  EXPECT_EQ(played, std::vector{2});
}

TEST_F(WindowsTest, ASecondStartCallsTheFirstProgramAndEnds) {
  OneProgram first(folder_.Folder);
  bool wanted = false;
  first.Wanted = [&wanted] { wanted = true; };
  auto second = std::async([this] { return OneProgram(folder_.Folder).MayRun(); });
  EXPECT_TRUE(QTest::qWaitFor([&] { return second.wait_for(0s) == std::future_status::ready; }));
  EXPECT_TRUE(first.MayRun());
  EXPECT_FALSE(second.get());
  EXPECT_TRUE(wanted);
}

TEST_F(WindowsTest, EnterAnswersAQuestionWithWhatLosesNothing) {
  QtDesktop desktop(folder_.Folder);
  User user;
  user.In("MessageBox").Press(Qt::Key_Return);
  EXPECT_TRUE(desktop.Ask("Add?", Enter::Yes));
  user.In("MessageBox").Press(Qt::Key_Return);
  EXPECT_FALSE(desktop.Ask("Delete?", Enter::No));
}

/// Shows a list that has no room for all of its lines.
ItemList ShowHundredLines(LineList& list) {
  list.resize(200, 100);
  list.show();
  ItemList lines;
  for (int i = 0; i < 100; ++i) lines.Add(std::to_string(i));
  lines.PickLast();
  list.ShowLines(lines);
  return lines;
}

TEST_F(WindowsTest, TheSaveDialogRemembersItsFolderAndProposesWhatAFileCanBeCalled) {
  QtDesktop desktop(folder_.Folder);
  const std::string page = (folder_.Folder.Teams() / "page").string();
  AddTeams({"Albion"});
  User user;
  user.In("SaveDialog").Do([&page, this](QWidget& dialog) {
    EXPECT_NE(static_cast<QFileDialog&>(dialog).directory().path().toStdString(), folder_.Folder.Root);
    auto* const name = dialog.findChild<QLineEdit*>();
    EXPECT_EQ(name->text(), "What- FC_B-C_Summary");
    name->setText(QString::fromStdString(page));
    QTest::keyClick(name, Qt::Key_Return);
  });
  EXPECT_EQ(desktop.AskSaveName("What? FC_B/C_Summary"), page);
  user.In("SaveDialog").Do([](QWidget& dialog) {
    EXPECT_EQ(static_cast<QFileDialog&>(dialog).directory().dirName(), "Teams");
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  EXPECT_EQ(desktop.AskSaveName("page"), std::nullopt);
}

TEST_F(WindowsTest, AListOfLinesShowsTheNewestAndIsWalkedByKeyboardAndMouse) {
  LineList list("Lines");
  ShowHundredLines(list);
  const auto expectCurrent = [&list](int row) {
    EXPECT_EQ(list.currentRow(), row);
    EXPECT_TRUE(list.viewport()->rect().contains(list.visualItemRect(list.currentItem()))) << row;
  };
  expectCurrent(99);
  QTest::keyClick(&list, Qt::Key_Home);
  expectCurrent(0);
  QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(3)).center());
  expectCurrent(3);
}

TEST_F(WindowsTest, AListOfLinesMovesOnlyWhenALineIsNew) {
  LineList list("Lines");
  ItemList lines = ShowHundredLines(list);
  const auto inView = [&list](int row) {
    return list.viewport()->rect().contains(list.visualItemRect(list.item(row)));
  };
  list.scrollToTop();  // To read what has been.
  list.ShowLines(lines);
  EXPECT_TRUE(inView(0));
  lines.Add("Referee starts the extra time");  // Nothing picks it.
  list.ShowLines(lines);
  EXPECT_TRUE(inView(100));
  EXPECT_EQ(list.currentRow(), 99);
  list.resize(200, 60);
  EXPECT_TRUE(QTest::qWaitFor([&] { return inView(100); }));
}

TEST_F(WindowsTest, AnEmptyRankingShowsOnlyItsHeaderAndTellsScreenReadersWhy) {
  Ranking scorers;
  RankingWindow window(scorers, TopScorersScreen(), nullptr);
  const QWidget* const rows = window.findChild<QWidget*>("Bar")->parentWidget();
  EXPECT_EQ(rows->accessibleDescription(), "Nobody has scored yet.");
  QString seen;
  for (const QLabel* const label : rows->findChildren<QLabel*>()) seen += label->text();
  EXPECT_EQ(seen, "RankPlayerTeamGoals");
}

}  // namespace
}  // namespace kickwell
