// The program played through its real windows, boxes and dialogs.
#include <QtTest/QTest>

#include "support/screen_test.h"
#include "ui/app.h"
#include "ui/qt_desktop.h"
#include "user.h"

namespace kickwell {
namespace {

class PlayTest : public WindowTest {
 protected:
  PlayTest() {
    AddTeams({"Albion", "Borough", "City"});
    AddStadiums();
  }

  void Choose(Qt::Key menu, Qt::Key item) { user_.In("Opening").Choose(menu, item); }

  /// The user takes all steps in a program of their own, and leaves it.
  void Run(Desktop& desktop) {
    Choose(Qt::Key_P, Qt::Key_X);
    App app(folder_.Folder, desktop, random_, {1, 1});
    app.Start();
    user_.Finish();
    for (const QWidget* const window : QApplication::topLevelWidgets()) EXPECT_FALSE(window->isVisible());
  }

  User user_;
};

TEST_F(PlayTest, AFriendlyIsOpenedAndLeftByKeyboard) {
  Choose(Qt::Key_P, Qt::Key_S);
  user_.In("Settings").Pick("Combo1", 1).Pick("Combo3", 1).Pick("Combo4", 1).Press(Qt::Key_Return);
  user_.In("Selection").ExpectText("Combo2(10)", "City10").Press(Qt::Key_C, Qt::AltModifier);
  user_.In("Main").Press(Qt::Key_Return).ExpectText("Label3", "45:00");
  user_.ExpectText("ven", "Bowl, Oss").Press(Qt::Key_Escape);
  user_.In("MessageBox").Press(Qt::Key_Escape);  // No: still there.
  user_.In("Main").Press(Qt::Key_X, Qt::AltModifier);
  user_.In("MessageBox").Press(Qt::Key_Y, Qt::AltModifier);
  QtDesktop desktop(folder_.Folder);
  Run(desktop);
}

TEST_F(PlayTest, ALeagueIsPlayedLeftAndFinishedOnAnotherDay) {
  const std::string fixtures = "NP\nAlbion\nBorough\nNP\nBorough\nCity\nNP\nCity\nAlbion\n";
  Write("Leagues/Test.leg", "Test\n3\nAlbion\nBorough\nCity\n3\n" + fixtures);
  random_.Goals = "2";
  Choose(Qt::Key_P, Qt::Key_L);
  user_.In("LegSettings").Pick("To", 0).Pick("SimulationType", 1).Click("Command1");
  user_.In("Selection").Click("Command1");
  user_.In("Main").ExpectText("fixture", "Test, match 1").Click("halftime").Click("halftime");
  user_.ExpectText("Label3", "").ExpectText("t1", "Borough").ExpectText("Inn1", "1");
  user_.ExpectText("ven", "Mill, Leat").Click("Command1");
  user_.In("LegSettings").Click("Command2");
  Run(desktop_);

  Choose(Qt::Key_P, Qt::Key_L);
  random_.Goals = "1";
  user_.In("LegSettings").Pick("From", 1).Pick("To", 2).Click("Command1");
  for (const char* homeTeam : {"Borough", "City"}) {  // By Enter alone.
    user_.In("Selection").ExpectText("Team1", homeTeam).Press(Qt::Key_Return);
    user_.In("Main").Press(Qt::Key_Return).Press(Qt::Key_Return);  // The result, then "Exit".
  }
  user_.In("LegSettings").Click("Command2");
  Choose(Qt::Key_S, Qt::Key_L);
  user_.In("Table").ExpectText("Team(1)", "Borough").ExpectText("Points(1)", "6").Click("Command1");
  Choose(Qt::Key_S, Qt::Key_T);
  user_.In("TopScorers").ExpectText("Player(1)", "Borough5").ExpectText("Goals(1)", "2").Click("Command3");
  Run(desktop_);
}

TEST_F(PlayTest, AStartTellsOfAJournalWithoutSense) {
  Write("unfinished.journal", "no journal of ours");
  Run(desktop_);
  EXPECT_EQ(desktop_.Taken().size(), 1U);
}

TEST_F(PlayTest, AllScreensComeToTheFrontWhenCalled) {
  App app(folder_.Folder, desktop_, random_);
  Choose(Qt::Key_E, Qt::Key_S);
  user_.In("StadEditor").Do([&app](QWidget& screen) {
    QWidget* const menu = screen.parentWidget();
    for (QWidget* const window : {menu, &screen}) window->setWindowState(Qt::WindowMinimized);
    app.ComeToFront();
    EXPECT_FALSE(menu->isMinimized() || screen.isMinimized());
  });
  user_.Click("Command3");
  Choose(Qt::Key_P, Qt::Key_X);
  app.Start();
  user_.Finish();
}

}  // namespace
}  // namespace kickwell
