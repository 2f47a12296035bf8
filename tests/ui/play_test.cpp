// The program played through its real windows, boxes and dialogs.
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QtTest/QTest>

#include "data/championship_store.h"
#include "data/file_names.h"
#include "support/screen_test.h"
#include "ui/app.h"
#include "ui/qt_desktop.h"
#include "user.h"

namespace kickwell {
namespace {

/// What a control shows; a list all its lines.
QString Shown(QWidget& window, const QString& name) {
  auto* const control = window.findChild<QWidget*>(name);
  const auto* const list = qobject_cast<QListWidget*>(control);
  if (list == nullptr)
    return control->property(control->inherits("QComboBox") ? "currentText" : "text").toString();
  QStringList lines;
  for (int i = 0; i < list->count(); ++i) lines.append(list->item(i)->text());
  return lines.join('|');
}

class PlayTest : public ScreenTest {
 protected:
  PlayTest() {
    AddTeams(folder_, {"Albion", "Borough", "City"});
    Write("stadiums.sim", "2\nAlbion\nMill\nLeat\n1000\nNeutral\nBowl\nOss\n500\n");
  }

  void Choose(Qt::Key menu, Qt::Key item) {
    user_.In("Opening", [=](QWidget& window) { User::Choose(window, menu, item); });
  }

  /// Does in a window one after the other: "BUTTON" is clicked, "COMBO#2" picked, "BOX<TEXT" typed, and what
  /// the controls in "LABEL LABEL=TEXT|TEXT" show is waited for.
  void Do(const char* window, const QStringList& steps) {
    user_.In(window, [this, steps](QWidget& screen) {
      for (const QString& step : steps) {
        const QString name = step.section(QRegularExpression("[#<=]"), 0, 0);
        const QString sign = step.mid(name.size(), 1), text = step.mid(name.size() + 1);
        if (sign.isEmpty()) User::Click(screen, name);
        if (sign == "#") User::Pick(screen, name, text.toInt());
        if (sign == "<") Type(*screen.findChild<QLineEdit*>(name), text);
        if (sign == "=") See(screen, name.split(' '), text);
      }
    });
  }

  static void Type(QLineEdit& box, const QString& text) {
    box.setFocus();
    box.selectAll();
    QTest::keyClicks(&box, text);
  }

  void See(QWidget& screen, const QStringList& names, const QString& text) {
    QString shown;
    for (int i = 0; i < 100 && (i == 0 || shown != text); ++i) {
      if (i > 0) user_.Wait(20);
      QStringList texts;
      for (const QString& name : names) texts.append(Shown(screen, name));
      shown = texts.join('|');
    }
    EXPECT_EQ(shown.toStdString(), text.toStdString());
  }

  void Press(const char* window, const std::vector<Qt::Key>& keys, Qt::KeyboardModifiers modifiers = {}) {
    user_.In(window, [=](QWidget& screen) {
      for (const Qt::Key key : keys) User::Press(screen, key, modifiers);
    });
  }

  /// From the selection, whose squads come when it has been drawn, to the match and out of it.
  void PlayInstant(std::initializer_list<const char*> matches) {
    for (const QString teams : matches) {
      Do("Selection", {"Team1 Team2 Sk1(0)=" + teams + "|80", "Command1"});
      Do("Main", {"instant", "Command1"});
    }
  }

  /// Goes through all steps in a program of their own.
  void Run(Desktop& desktop) {
    Choose(Qt::Key_P, Qt::Key_X);
    App app(folder_.Folder, desktop, random_, {1, 1});
    app.Start();
    ASSERT_TRUE(user_.Finish());
    for (const QWidget* const window : QApplication::topLevelWidgets()) EXPECT_FALSE(window->isVisible());
  }

  User user_;
};

TEST_F(PlayTest, AFriendlyIsPlayedSavedAndLeftByKeyboard) {
  Choose(Qt::Key_P, Qt::Key_S);
  // Borough, so that the opposition moves on to City; at Bowl; a full simulation; extra time and shoot-out.
  constexpr Qt::Key Down = Qt::Key_Down, Tab = Qt::Key_Tab, Space = Qt::Key_Space;
  Press("Settings", {Down, Tab, Tab, Down, Tab, Tab, Down, Tab, Space, Tab, Space, Qt::Key_Return});
  Do("Selection", {"Team1 Team2 Combo2(10) Post2(10) Sk2(10)=Borough|City|City10|FDR|80",
                   "Formation1 Skill1 OSkill1 Label11 Label12 Label13 Label14=4-4-2|80|75%|80|80|80|80"});
  Press("Selection", {Qt::Key_C}, Qt::AltModifier);
  for (const char* period : {"&Normal Time 1st Half", "&Normal Time 2nd Half", "&Extra Time 1st Half",
                             "&Extra Time 2nd Half", "&Penalty Shoot Out"}) {
    Do("Main", {QString("halftime=") + period});
    Press("Main", {Qt::Key_Return});
  }
  Do("Main", {"Label4 Label7=City|Borough"});
  Press("Main", std::vector(20 + 19, Qt::Key_Return));  // All kicks, and between them the next player.
  Press("Main", {Qt::Key_M}, Qt::AltModifier);
  Do("Main",
     {"t1 Inn1 Pen1 t2 Inn2 Pen2 ven Label1=City|0|(0)|Borough|0|(0)|Bowl, Oss|Total Attendence: 250 (50%)",
      "ComSave"});
  user_.In("SaveDialog", [this](QWidget& window) {
    auto* const name = window.findChild<QLineEdit*>();
    EXPECT_EQ(name->text(), "City_Borough_Summary");
    Type(*name, QString::fromStdString((folder_ / "page").string()));
    QTest::keyClick(name, Qt::Key_Return);
  });
  Press("Main", {Qt::Key_Escape});
  Press("MessageBox", {Qt::Key_Escape});  // No: still there.
  Press("Main", {Qt::Key_X}, Qt::AltModifier);
  Press("MessageBox", {Qt::Key_Y}, Qt::AltModifier);
  QtDesktop desktop(folder_.Folder);
  Run(desktop);
  const Lines page = ReadLines(folder_ / "page.htm").value_or(Lines(14));
  EXPECT_EQ(page[6] + page[9] + page[13],
            "Venue: Bowl, Oss<br>PENALTY SHOOT OUT!<br>PSO was tied at 0-0<br>");
}

TEST_F(PlayTest, ALeagueIsBuiltPlayedLeftAndFinishedOnAnotherDay) {
  Choose(Qt::Key_E, Qt::Key_C);
  Do("LegEditor", {"LeagueAddTeam", "LeagueAddTeam", "LeagueAddTeam", "LeagueAutoFixtures", "LeagueName<Test",
                   "LeagueSave", "LeagueTeamCount LeagueMatchCount LeagueLoad=3|6|Test.leg", "Exit"});
  Choose(Qt::Key_P, Qt::Key_L);
  Do("LegSettings", {"To#0", "SimulationType#1", "Command1"});
  Do("Selection", {"num Sk1(0)=1|80", "Command1"});
  random_.Later = {"11" + std::string(2698, '.') + "1", "", "2", "1", "12", "222"};
  Do("Main", {"halftime", "halftime Label3=&Normal Time 2nd Half|45:00", "halftime", "Label3=",
              "t1 Inn1 t2 Inn2 ven=Borough|1|Albion|2|Mill, Leat", "Command1"});  // The ends were changed.
  Do("LegSettings", {"From#1", "To#2", "SimulationType#0", "Command1"});
  PlayInstant({"Borough|Albion", "Albion|City"});
  Do("LegSettings", {"Command2"});
  Run(desktop_);
  Choose(Qt::Key_P, Qt::Key_L);
  Do("LegSettings", {"From#3", "To#5", "Command1"});
  PlayInstant({"City|Albion", "Borough|City", "City|Borough"});
  Do("LegSettings", {"Command2"});
  Choose(Qt::Key_S, Qt::Key_L);
  const QString row = "Pos(%1) Team(%1) Played(%1) Won(%1) Tied(%1) Lost(%1) GF(%1) GA(%1) Points(%1)=";
  Do("Table", {row.arg(1) + "1|City|4|2|1|1|3|4|7", row.arg(3) + "3|Albion|4|1|1|2|2|3|4",
               row.arg(4) + "||||||||", "Label1=Test Standings", "Command1"});
  Choose(Qt::Key_S, Qt::Key_T);
  Do("TopScorers", {"Rank(3) Player(3) Team(3) Goals(3)=3|Albion5|Albion|2", "Command3"});
  Choose(Qt::Key_S, Qt::Key_M);
  const QString mill = "|Venue: Mill, Leat|Total Attendence: 500 (50%)|Winner: ";
  Do("LegResults", {"List1=Match 1:|Borough 1 vs Albion 2" + mill + "Albion||Match 2:|Borough 0 vs Albion 0" +
                        mill + "Match Tied||Match 3:|Albion 0 vs City 1" + mill +
                        "City||Match 4:|City 1 vs Albion 0" + mill + "City||Match 5:|Borough 1 vs City 1" +
                        mill + "Match Tied||Match 6:|City 0 vs Borough 3" + mill + "Borough",
                    "Command1"});
  Run(desktop_);
  EXPECT_EQ(Bytes("Leagues/Test.leg").find(AsWritten("\nNP").substr(2)), std::string::npos);
}

TEST_F(PlayTest, AKnockOutIsPlayedToItsChampion) {
  AddTeams(folder_, {"Dynamo"});
  std::filesystem::remove(folder_ / "stadiums.sim");  // Played without any crowd.
  Choose(Qt::Key_H, Qt::Key_C);
  Choose(Qt::Key_H, Qt::Key_H);
  Choose(Qt::Key_P, Qt::Key_S);
  Press("Settings", {Qt::Key_Escape});
  Choose(Qt::Key_E, Qt::Key_C);
  Do("LegEditor", {"Kind#1", "KnockOutName<Cup", "MoreTeams", "KnockOutAddTeam", "KnockOutAddTeam",
                   "KnockOutAddTeam", "KnockOutAddTeam", "KnockOutAutoFixtures", "KnockOutSave", "Exit"});
  Choose(Qt::Key_P, Qt::Key_K);
  Do("KnockSettings", {"To#2", "Command1"});
  random_.Later = {"2", "", "1"};
  PlayInstant({"Albion|City", "Borough|Dynamo", "City|Borough"});
  Do("KnockSettings", {"Command2"});
  Choose(Qt::Key_S, Qt::Key_K);
  Do("KnockCharts", {"team(0) team(1) team(2) team(3) team(4) team(5) team(6) team(7)="
                     "Albion|City|City|Borough|Dynamo|Borough (By Toss)|City|",
                     "Command3"});
  Run(desktop_);
  EXPECT_EQ(ReadResults(folder_.Folder, ChampionshipKind::KnockOut, "Cup")[7], "Borough 0(0) vs Dynamo 0(0)");
  EXPECT_TRUE(
      desktop_.Told().starts_with("i: Read the file 'Help.htm' in your Kickwell folder for help.|"
                                  "i: Read the file 'History.txt' in your Kickwell folder for history.|"));
}

TEST_F(PlayTest, AClubIsBuiltFromNothingAndPlaysInItsStadium) {
  Write("Leagues/Test.leg", "Test\n2\nNewcomers\nAlbion\n1\nNP\nNewcomers\nAlbion\n");
  Choose(Qt::Key_E, Qt::Key_T);
  Do("TeamEditor", {"Text1<Newcomers and more", "Text1=Newcomers and mo", "Text1<Newcomers", "Text5<777"});
  Press("TeamEditor", {Qt::Key_Return});  // Adds the team, too.
  Do("TeamEditor", {"Combo3 Label13=Newcomers|77"});
  for (int i = 0; i < 11; ++i) {  // The keeper comes last,
    const QString line = "Combo1#" + QString::number(i == 10 ? 3 : i % 3);
    Do("TeamEditor", {"Text2<N" + QString::number(i), "Text4<80", line, "Command8"});
  }
  for (int i = 0; i < 10; ++i) Do("TeamEditor", {"Command1"});  // and is moved to the front.
  Do("TeamEditor", {"Label14 Label5 List1=11|GK|N10|N0|N1|N2|N3|N4|N5|N6|N7|N8|N9", "Command4"});
  Choose(Qt::Key_E, Qt::Key_S);
  Do("StadEditor", {"Text1<Newcomers Field", "Text2<Newtown", "Text3<1200", "Combo1#4", "Command2",
                    "Label8=3", "Command3"});
  Choose(Qt::Key_P, Qt::Key_L);
  Do("LegSettings", {"Command1"});
  Do("Selection", {"Sk1(0)=80", "Command1"});
  Do("Main", {"ven=Newcomers Field, Newtown", "instant", "Command1"});
  Do("LegSettings", {"Command2"});
  Run(desktop_);
}

TEST_F(PlayTest, AStartFinishesWhatACrashInterruptedAndTellsOfAJournalWithoutSense) {
  Write("Leagues/Top.rec", "old");
  Write("~kickwell-4999999-1.tmp", "new");
  Write("~kickwell-4999999-0.tmp", "left over");
  Write("unfinished.journal", "Kickwell journal 1\n~kickwell-4999999-1.tmp\nLeagues/Top.rec\nEnd\n");
  Run(desktop_);
  EXPECT_EQ(Bytes("Leagues/Top.rec") + desktop_.Told(), "new");
  EXPECT_EQ(Joined(ListFiles(folder_.Folder.Root)), "stadiums.sim");
  Write("unfinished.journal", "Leagues/Top.rec");
  Run(desktop_);
  EXPECT_EQ(desktop_.Taken().size(), 1U);
}

}  // namespace
}  // namespace kickwell
