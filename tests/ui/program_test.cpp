// The running program among its windows, documents and the desktop.
#include <QtTest/QTest>

#include "support/screen_test.h"
#include "ui/app.h"
#include "ui/qt_desktop.h"
#include "ui/windows/leg_results_window.h"
#include "user.h"

namespace kickwell {
namespace {

using ProgramTest = WindowTest;

TEST_F(ProgramTest, AWindowOpensWhereItsUserLeftIt) {
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
}

TEST_F(ProgramTest, StatisticsAreThoseOfTheKindThatWasPlayedAndComeToTheFrontWhenCalled) {
  AddTeams({"A", "B"});
  Write("Leagues/Cup.leg", "Cup\n2\nA\nB\n1\nNP\nA\nB\n");
  Write("Tournies/Cup.trn", "1\nCup\n2\nA\nB\nNP\nA\nB\nWinner 1\n");
  App app(folder_.Folder, desktop_, random_);
  const auto minimizeAndCall = [&app](QWidget& screen) {
    QWidget* const menu = screen.parentWidget();
    for (QWidget* const window : {menu, &screen}) window->setWindowState(Qt::WindowMinimized);
    app.ComeToFront();
    EXPECT_FALSE(menu->isMinimized() || screen.isMinimized());
  };
  User user;
  for (const auto& [folder, kind, settings] : {std::tuple("Leagues", Qt::Key_L, "LegSettings"),
                                               std::tuple("Tournies", Qt::Key_K, "KnockSettings")}) {
    Write(std::string(folder) + "/Cup.sco", std::string(folder) + "\nA\n1\n");
    Write(std::string(folder) + "/Cup.lrs", std::string(folder) + "\n");
    user.In("Opening").Choose(Qt::Key_P, kind);
    user.In(settings).Click("Command2");
    user.In("Opening").Choose(Qt::Key_S, Qt::Key_T);
    user.In("TopScorers").ExpectText("Player(1)", folder).Click("Command3");
    user.In("Opening").Choose(Qt::Key_S, Qt::Key_M);
    user.In("LegResults").ExpectLines("List1", {folder}).Do(minimizeAndCall).Click("Command1");
  }
  user.In("Opening").Choose(Qt::Key_P, Qt::Key_X);
  app.Start();
  user.Finish();
}

TEST_F(ProgramTest, ADocumentThatCannotBeOpenedIsToldAndNoOther) {
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
  open(0);
  EXPECT_EQ(told, 1);  // There is no such file.
  EXPECT_FALSE(Exists("opened"));
  Write("Help.htm", "x");
  open(3);
  EXPECT_TRUE(QTest::qWaitFor([&told] { return told == 2; }));
  open(0);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Exists("opened"); }));
  QTest::qWait(50);
  EXPECT_EQ(told, 2);
  EXPECT_EQ(Bytes("opened"), (folder_ / "Help.htm").string() + "\n");
  qputenv("PATH", path);
}

}  // namespace
}  // namespace kickwell
