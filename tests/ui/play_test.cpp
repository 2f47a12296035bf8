// The program played through its real windows, boxes and dialogs.
#include <QLineEdit>
#include <QtTest/QTest>

#include "support/screen_test.h"
#include "ui/app.h"
#include "ui/qt_desktop.h"
#include "user.h"

namespace kickwell {
namespace {

using Fields = std::vector<std::pair<const char*, const char*>>;

class PlayTest : public WindowTest {
 protected:
  PlayTest() {
    AddTeams({"Albion", "Borough", "City"});
    Write("stadiums.sim", "2\nAlbion\nMill\nLeat\n1000\nNeutral\nBowl\nOss\n500\n");
  }

  void Choose(Qt::Key menu, Qt::Key item) { user_.In("Opening").Choose(menu, item); }

  void ExpectTexts(const Fields& fields) {
    for (const auto& [control, text] : fields) user_.ExpectText(control, text);
  }

  /// From the selection to the end of an instant match and out of it, by Enter alone.
  void PlayInstant(const QString& team1, const QString& team2) {
    user_.In("Selection");
    user_.ExpectText("Team1", team1);
    user_.ExpectText("Team2", team2);
    user_.Press(Qt::Key_Return);
    user_.In("Main");
    for (int press = 0; press < 2; ++press) user_.Press(Qt::Key_Return);  // The result, then "Exit".
  }

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

TEST_F(PlayTest, AFriendlyIsPlayedSavedAndLeftByKeyboard) {
  constexpr Qt::Key Down = Qt::Key_Down, Tab = Qt::Key_Tab, Space = Qt::Key_Space, Enter = Qt::Key_Return;
  const auto press = [this](const std::vector<Qt::Key>& keys) {
    for (const Qt::Key key : keys) user_.Press(key);
  };
  Choose(Qt::Key_P, Qt::Key_S);
  user_.In("Settings");
  press({Down});                            // Borough, so that the opposition moves on to City,
  press({Tab, Tab, Down, Tab, Tab, Down});  // at Bowl, as a full simulation,
  press({Tab, Space, Tab, Space, Enter});   // with extra time and shoot-out.

  user_.In("Selection");
  ExpectTexts({{"Team1", "Borough"}, {"Team2", "City"}, {"Combo2(10)", "City10"}});
  user_.Press(Qt::Key_C, Qt::AltModifier);

  user_.In("Main");
  for (const char* period : {"&Normal Time 1st Half", "&Normal Time 2nd Half", "&Extra Time 1st Half",
                             "&Extra Time 2nd Half", "&Penalty Shoot Out"}) {
    user_.ExpectText("halftime", period);
    user_.Press(Enter);
  }
  constexpr int Kicks = 20;
  press({Enter});
  for (int kick = 1; kick < Kicks; ++kick) press({Enter, Enter});  // The next player, who kicks.
  user_.Press(Qt::Key_M, Qt::AltModifier);
  ExpectTexts({{"ven", "Bowl, Oss"}, {"Label1", "Total Attendence: 250 (50%)"}});
  user_.Click("ComSave");

  user_.In("SaveDialog");
  user_.Do([this](QWidget& window) {
    auto* const name = window.findChild<QLineEdit*>();
    EXPECT_EQ(name->text(), "City_Borough_Summary");
    name->setText(QString::fromStdString((folder_ / "page").string()));
    QTest::keyClick(name, Enter);
  });
  user_.In("Main");
  press({Qt::Key_Escape});
  user_.In("MessageBox");
  press({Qt::Key_Escape});  // No: still there.
  user_.In("Main").Press(Qt::Key_X, Qt::AltModifier);
  user_.In("MessageBox").Press(Qt::Key_Y, Qt::AltModifier);
  QtDesktop desktop(folder_.Folder);
  Run(desktop);
  EXPECT_TRUE(Exists("page.htm"));
}

TEST_F(PlayTest, ALeagueIsPlayedLeftAndFinishedOnAnotherDay) {
  Write("Leagues/Test.leg",
        "Test\n3\nAlbion\nBorough\nCity\n3\nNP\nAlbion\nBorough\nNP\nBorough\nCity\nNP\nCity\nAlbion\n");
  // The first match in full. The same side scores twice at its start and, after the change of ends, once
  // more.
  const std::string restOfFirstHalf(45 * 60 - 2, '.');
  random_.Later = {"11" + restOfFirstHalf + "1", "12", "1"};
  Choose(Qt::Key_P, Qt::Key_L);
  user_.In("LegSettings");
  user_.Pick("To", 0);
  user_.Pick("SimulationType", 1);
  user_.Click("Command1");
  user_.In("Selection");
  user_.ExpectText("num", "1");
  user_.Click("Command1");
  user_.In("Main");
  user_.ExpectText("fixture", "Test, match 1");
  user_.Do([](const QWidget& window) {
    EXPECT_TRUE(window.findChild<QWidget*>("ven")->toolTip().contains("Weather: "));  // Drawn just now.
  });
  user_.Click("halftime");
  user_.ExpectText("Label3", "45:00");
  user_.Click("halftime");
  user_.ExpectText("Label3", "");
  ExpectTexts({{"t1", "Borough"}, {"Inn1", "1"}, {"t2", "Albion"}, {"Inn2", "2"}, {"ven", "Mill, Leat"}});
  user_.Click("Command1");

  user_.In("LegSettings").Click("Command2");
  Run(desktop_);

  Choose(Qt::Key_P, Qt::Key_L);
  user_.In("LegSettings");
  user_.Pick("From", 1);
  user_.Pick("To", 2);
  user_.Click("Command1");
  PlayInstant("Borough", "City");
  user_.In("Selection").Do([](const QWidget& window) {
    const auto* const fixtures = window.parentWidget()->findChild<QListWidget*>("Fixtures");
    EXPECT_EQ(fixtures->item(1)->toolTip(), "Played");
    EXPECT_EQ(fixtures->item(2)->toolTip(), "Next");
  });
  PlayInstant("City", "Albion");
  user_.In("LegSettings").Click("Command2");

  Choose(Qt::Key_S, Qt::Key_L);
  user_.In("Table");
  ExpectTexts({{"Label1", "Test Standings"},
               {"Team(1)", "City"},
               {"Won(1)", "1"},
               {"GF(1)", "2"},
               {"Points(1)", "4"}});
  user_.Click("Command1");
  Choose(Qt::Key_S, Qt::Key_T);
  user_.In("TopScorers");
  ExpectTexts({{"Rank(3)", "3"}, {"Player(3)", "City5"}, {"Team(3)", "City"}, {"Goals(3)", "2"}});
  user_.Click("Command3");
  Run(desktop_);
}

TEST_F(PlayTest, AStartTellsOfAJournalWithoutSense) {
  Write("unfinished.journal", "no journal of ours");
  Run(desktop_);
  EXPECT_EQ(desktop_.Taken().size(), 1U);
}

}  // namespace
}  // namespace kickwell
