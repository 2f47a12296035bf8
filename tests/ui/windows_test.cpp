// What windows do beyond showing their logic: places, focus, keys, the timer and the pause.
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
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
#include "ui/widgets/text_box.h"
#include "ui/windows/knock_charts_window.h"
#include "ui/windows/leg_results_window.h"
#include "ui/windows/match_window.h"
#include "ui/windows/ranking_window.h"
#include "ui/windows/team_editor_window.h"
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
    desktop_.SaveName = (folder_ / "page").string();
    User::Click(window, "ComSave");
    User::Click(window, "Command1");
  });
  QElapsedTimer time;
  time.start();
  window.exec();
  EXPECT_LT(time.elapsed(), 20000);  // The pause does not hold it.
  EXPECT_TRUE(Exists("page.htm"));
  EXPECT_EQ(desktop_.Taken(),
            (Texts{"* loaded", "* whistle", "* goal", "? (No): Do you really want to exit?"}));
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

TEST_F(WindowsTest, ABoxTakesAnyTextThatFitsAndLosesNothingForMore) {
  std::string text;
  TextBox box("Text4", 2, text);
  box.setText("75");  // As a tool does, without keys.
  EXPECT_EQ(text, "75");
  box.home(false);
  QTest::keyClicks(&box, "9");
  EXPECT_EQ(text, "75");
  EXPECT_EQ(box.accessibleDescription(), "Only 2 characters fit.");
  QTest::keyClick(&box, Qt::Key_Delete);
  EXPECT_EQ(box.accessibleDescription(), "");
}

TEST_F(WindowsTest, AWindowOpensWhereItsUserLeftIt) {
  QWidget menu;
  const auto open = [&](const QRect& moveTo) {
    LegResults results(folder_.Folder, desktop_, {ChampionshipKind::League, "Top"});
    LegResultsWindow window(results, &menu);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    const QRect opened = window.geometry();
    if (!moveTo.isNull()) window.setGeometry(moveTo);
    window.close();
    return opened;
  };
  const QRect first = open({}), left(50, 60, 500, 400);
  EXPECT_EQ(open(left), first);
  EXPECT_EQ(open({}), left);
  KnockCharts charts(folder_.Folder, desktop_, "Cup");
  KnockChartsWindow other(charts, &menu);
  EXPECT_NE(other.geometry().size(), left.size());  // Each kind of window has a place of its own.
}

TEST_F(WindowsTest, APageStaysWhereItsUserReadsAndTheChartsTypeGrowsBack) {
  AddTeams({"A", "B"});
  TeamEditor teams(folder_.Folder, desktop_, "N/A");
  TeamEditorWindow editor(teams, nullptr);
  editor.setMinimumSize(1, 1);
  editor.show();
  editor.resize(300, 200);
  editor.findChild<QWidget*>("Combo3")->setFocus();
  auto* const bar = editor.findChild<QScrollArea*>()->verticalScrollBar();
  bar->setValue(bar->maximum());
  User::Click(editor, "Command1");
  EXPECT_EQ(bar->value(), bar->maximum());

  const std::string team(30, 'W');
  Write("Tournies/Cup.trn", "1\nCup\n2\n" + team + "\nB\nNP\n" + team + "\nB\nWinner 1\n");
  KnockCharts charts(folder_.Folder, desktop_, "Cup");
  KnockChartsWindow chart(charts, nullptr);
  chart.show();
  const auto typeAt = [&chart](int width) {
    chart.resize(width, 400);
    QCoreApplication::processEvents();
    return chart.findChild<QLabel*>("team(0)")->font().pointSizeF();
  };
  const qreal usual = typeAt(1500);
  EXPECT_LT(typeAt(500), usual);
  EXPECT_EQ(typeAt(1500), usual);
}

TEST_F(WindowsTest, ADocumentThatCannotBeOpenedIsToldAndNoOther) {
  const QByteArray path = qgetenv("PATH");
  qputenv("PATH", (folder_.Folder.Root.string() + ":").c_str() + path);
  QtDesktop desktop(folder_.Folder);
  int told = 0;
  const auto open = [&](int exitCode) {
    Remove("opened");
    Write("xdg-open", "#!/bin/sh\necho \"$1\" >" + (folder_ / "opened").string() + "\nexit " +
                          std::to_string(exitCode) + "\n");
    std::filesystem::permissions(folder_ / "xdg-open", std::filesystem::perms::all);
    desktop.OpenDocument("Help.htm", [&told] { ++told; });
  };
  Write("Help.htm", "x");
  open(3);
  EXPECT_TRUE(QTest::qWaitFor([&told] { return told == 1; }));
  open(0);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Exists("opened"); }));
  QTest::qWait(50);
  EXPECT_EQ(told, 1);
  EXPECT_EQ(Bytes("opened"), (folder_ / "Help.htm").string() + "\n");
  qputenv("PATH", path);
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

TEST_F(WindowsTest, AListOfLinesShowsTheNewestAndMovesOnlyWhenALineIsNew) {
  LineList list("Lines");
  list.resize(200, 100);
  list.show();
  ItemList lines;
  for (int i = 0; i < 100; ++i) lines.Add(std::to_string(i));
  lines.PickLast();
  list.ShowLines(lines);
  const auto inView = [&list](int row) {
    return list.viewport()->rect().contains(list.visualItemRect(list.item(row)));
  };
  EXPECT_TRUE(inView(99));
  EXPECT_EQ(list.currentRow(), 99);
  QTest::keyClick(&list, Qt::Key_Home);  // To read what has been.
  list.ShowLines(lines);
  EXPECT_TRUE(inView(0));
  lines.Add("Referee starts the extra time");  // Nothing picks it.
  list.ShowLines(lines);
  EXPECT_TRUE(inView(100));
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
