// Takes the guide's pictures in the real windows: friendlies, a league and a knock-out that are played, and
// the editors. Chance is the same in every run, so the pictures are too. The program folder should be a fresh
// one.
//
//   take_pictures PROGRAM_FOLDER PICTURE_FOLDER
#include <QApplication>
#include <QComboBox>
#include <QCursor>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QTimer>
#include <QtTest/QTest>
#include <cstdio>
#include <stdexcept>

#include "data/posix_file_system.h"
#include "pictures.h"
#include "ui/app.h"
#include "ui/qt_desktop.h"
#include "user.h"

namespace {

using kickwell::MatchTimings;
using kickwell::Pictures;
using kickwell::User;

constexpr MatchTimings Watched{100, 1000}, Hurried{1, 1};

/// With these the matches go through what their pictures are to show.
constexpr int MatchLuck = 41, ShootOutLuck = 99, LeagueLuck = 524, KnockOutLuck = 2;

/// Picks an entry by its text.
void PickText(QWidget& window, const QString& combo, const QString& text) {
  const int entry = window.findChild<QComboBox*>(combo)->findText(text);
  if (entry < 0) throw std::runtime_error("there is no " + text.toStdString());
  User::Pick(window, combo, entry);
}

void Type(QWidget& window, const QString& box, const QString& text) {
  QTest::keyClicks(window.findChild<QLineEdit*>(box), text);
}

bool CanGoOn(QWidget& match) {
  return match.findChild<QWidget*>("halftime")->isEnabled();
}

bool IsGoal(QWidget& match) {
  return User::TextOf(match, "Label3") == "GOAL!";
}

bool IsOver(QWidget& match) {
  return User::LinesOf(match, "List1(0)").contains("Result:");
}

/// One start of the program, with a user who does what the methods say.
class Session {
 public:
  Session(const kickwell::ProgramFolder& folder, const QString& pictures, int luck, MatchTimings timings = {})
      : desktop_(folder),
        random_(static_cast<std::uint_fast64_t>(luck)),
        app_(folder, desktop_, random_, timings),
        pictures_(user_, pictures) {
    app_.Start();
  }

  void Finish() {
    Choose(Qt::Key_P, Qt::Key_X);
    user_.Finish();
  }

  void Choose(Qt::Key menu, Qt::Key item) {
    user_.In("Opening", [=](QWidget& window) { User::Choose(window, menu, item); });
  }

  void TakeMenu() {
    user_.In("Opening", [this](QWidget& window) {
      QTest::keyClick(&window, Qt::Key_P, Qt::AltModifier);
      pictures_.Take(window, "menu");
      QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
      QTest::keyClick(&window, Qt::Key_Escape);  // Out of the menu bar.
    });
  }

  /// Opens a full simulation of two teams in the order of the alphabet, taking pictures on the way there if
  /// told to.
  void OpenFriendly(const QString& home, const QString& away, const QString& venue, bool take) {
    Choose(Qt::Key_P, Qt::Key_S);
    user_.In("Settings", [=, this](QWidget& window) {
      PickText(window, "Combo2", away);  // First: on its way it may meet the other, which then moves on.
      PickText(window, "Combo1", home);
      PickText(window, "Combo3", venue);
      PickText(window, "Combo4", "Full Simulation");
      PickText(window, "Combo5", "Overcast");
      User::Click(window, "Check1");
      User::Click(window, "Check2");
      if (take) pictures_.Take(window, "settings");
      User::Click(window, "Command1");
    });
    user_.In("Selection", [=, this](QWidget& window) {
      user_.Wait(100);  // The squads come when the screen has been drawn.
      if (take) pictures_.Take(window, "line-up");
      User::Click(window, "Command1");
    });
  }

  void PlayPeriod() {
    user_.When("Main", CanGoOn, [](QWidget& window) { User::Click(window, "halftime"); });
  }

  void LeaveMatch() {
    user_.In("Main", [](QWidget& window) { User::Click(window, "Command1"); });
    SayYes();
  }

  void SayYes() {
    user_.In("MessageBox", [](QWidget& window) { QTest::keyClick(&window, Qt::Key_Y, Qt::AltModifier); });
  }

  void Watch() {
    OpenFriendly("Harrowmere Town", "Racing Valdoree", "Millpond Lane", true);
    user_.In("Main", [](QWidget& window) { QTest::keyClick(&window, Qt::Key_C, Qt::AltModifier); });
    PlayPeriod();
    const auto at = [](const char* time) {
      return [time](QWidget& window) { return User::TextOf(window, "Label3") == time; };
    };
    user_.When("Main", at("28:00"), [this](QWidget& window) {
      auto* const clock = window.findChild<QTimer*>("Timer1");
      clock->stop();  // Or the next minute may come before the picture.
      pictures_.Take(window, "match");
      clock->start();
    });
    user_.When("Main", IsGoal, [this](QWidget& window) { pictures_.Take(window, "goal"); });
    user_.When("Main", CanGoOn, [this](QWidget& window) { pictures_.Take(window, "half-time"); });
    PlayPeriod();
    user_.When("Main", IsOver, [this](QWidget& window) {
      QTest::keyClick(&window, Qt::Key_M, Qt::AltModifier);
      pictures_.Take(window, "summary");
    });
    LeaveMatch();
    Finish();
  }

  void ShootOut() {
    OpenFriendly("NK Kamenorog", "Ravnsund BK", "Stadion Pod Stijenom", false);
    user_.In("Main", [](QWidget& window) { QTest::keyClick(&window, Qt::Key_C, Qt::AltModifier); });
    for (int period = 0; period < 5; ++period) PlayPeriod();
    for (int kick = 0; kick < 6; ++kick) {
      user_.In("Main", [](QWidget& window) {
        User::Click(window, "kick");
        User::Click(window, "nextshot");
      });
    }
    user_.In("Main", [this](QWidget& window) {
      User::Click(window, "kick");
      pictures_.Take(window, "shoot-out");
    });
    LeaveMatch();
    Finish();
  }

  void BuildLeague(const QString& name, int teams) {
    Choose(Qt::Key_E, Qt::Key_C);
    user_.In("LegEditor", [=](QWidget& window) {
      for (int i = 0; i < teams; ++i) User::Click(window, "LeagueAddTeam");
      User::Click(window, "LeagueAutoFixtures");
      Type(window, "LeagueName", name);
      User::Click(window, "LeagueSave");
    });
    SayYes();
    user_.In("LegEditor", [this](QWidget& window) {
      pictures_.Take(window, "championship-editor");
      User::Click(window, "Exit");
    });
  }

  /// Opens the play settings and plays the matches up to number `count`, each an instant result.
  void Play(const QString& settings, Qt::Key item, const QString& file, int count) {
    Choose(Qt::Key_P, item);
    user_.In(settings, [=](QWidget& window) {
      PickText(window, "Championships", file);
      User::Pick(window, "To", count - 1);
      User::Click(window, "Command1");
    });
    for (int i = 0; i < count; ++i) {
      user_.In("Selection", [this](QWidget& window) {
        user_.Wait(50);  // As above.
        User::Click(window, "Command1");
      });
      user_.In("Main", [](QWidget& window) { User::Click(window, "instant"); });
      LeaveMatch();
    }
  }

  /// Opens a screen of the menu, takes its picture and leaves by the button.
  struct Screen {
    QString Window, Picture, Close;  ///< Its name, its picture's, and that of the button which closes it.
  };
  void TakeScreen(Qt::Key menu, Qt::Key item, const Screen& screen, const User::Step& before = nullptr) {
    Choose(menu, item);
    user_.In(screen.Window, [=, this](QWidget& window) {
      if (before) before(window);
      pictures_.Take(window, screen.Picture);
      User::Click(window, screen.Close);
    });
  }

  void PlayLeague() {
    TakeMenu();
    BuildLeague("Lantern League", 12);
    constexpr int Matches = 36;
    Play("LegSettings", Qt::Key_L, "Lantern League.leg", Matches);
    user_.In("LegSettings", [this](QWidget& window) {
      User::Pick(window, "From", Matches);
      User::Pick(window, "To", Matches + 5);
      auto* const fixtures = window.findChild<QListWidget*>("Fixtures");
      fixtures->scrollToItem(fixtures->item(Matches), QAbstractItemView::PositionAtCenter);
      pictures_.Take(window, "play-settings");
      User::Click(window, "Command2");
    });
    TakeScreen(Qt::Key_S, Qt::Key_L, {"Table", "table", "Command1"});
    TakeScreen(Qt::Key_S, Qt::Key_T, {"TopScorers", "top-scorers", "Command3"});
    TakeScreen(Qt::Key_S, Qt::Key_M, {"LegResults", "results", "Command1"});
    Finish();
  }

  void PlayKnockOut() {
    Play("KnockSettings", Qt::Key_K, "Lucky Socks Cup.trn", 10);  // The first round and two of the second.
    user_.In("KnockSettings", [](QWidget& window) { User::Click(window, "Command2"); });
    TakeScreen(Qt::Key_S, Qt::Key_K, {"KnockCharts", "knock-out", "Command3"});
    Finish();
  }

  void Edit() {
    TakeScreen(Qt::Key_E, Qt::Key_T, {"TeamEditor", "team-editor", "Command4"}, [](QWidget& window) {
      PickText(window, "Combo3", "Kestrel Vale");
      window.findChild<QListWidget*>("List1")->setCurrentRow(10);
      Type(window, "Text2", "Cedric Thistledown");
      Type(window, "Text4", "57");
      PickText(window, "Combo1", "MF");
      PickText(window, "Combo2", "C");
    });
    TakeScreen(Qt::Key_E, Qt::Key_S, {"StadEditor", "stadium-editor", "Command3"}, [](QWidget& window) {
      Type(window, "Text1", "Teacup Park");
      Type(window, "Text2", "Kestrel");
      Type(window, "Text3", "12500");
      PickText(window, "Combo1", "Kestrel Vale");
    });
    Finish();
  }

 private:
  kickwell::QtDesktop desktop_;
  kickwell::SeededRandom random_;
  kickwell::App app_;
  User user_{20000};  // Milliseconds: a match is watched to its end.
  Pictures pictures_;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 3) {
    std::fprintf(stderr, "take_pictures PROGRAM_FOLDER PICTURE_FOLDER\n");
    return 2;
  }
  QApplication::setQuitOnLastWindowClosed(false);
  QApplication::setCursorFlashTime(0);
  QCursor::setPos(QApplication::primaryScreen()->geometry().bottomRight());  // Out of the way.
  kickwell::PosixFileSystem files;
  const kickwell::ProgramFolder folder(arguments[1].toStdString(), files);
  Session(folder, arguments[2], MatchLuck, Watched).Watch();
  Session(folder, arguments[2], ShootOutLuck, Hurried).ShootOut();
  Session(folder, arguments[2], LeagueLuck).PlayLeague();
  Session(folder, arguments[2], KnockOutLuck).PlayKnockOut();
  Session(folder, arguments[2], 1).Edit();
  return 0;
}
