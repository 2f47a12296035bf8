// Plays a friendly through the real windows, as a user would, and leaves a picture of each screen and the
// saved page. Exits 0 only if the match was played and the page written.
//
//   play_friendly PROGRAM_FOLDER PICTURE_FOLDER
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QtTest/QTest>
#include <cstdio>

#include "data/posix_file_system.h"
#include "pictures.h"
#include "ui/app.h"
#include "ui/qt_desktop.h"
#include "user.h"

namespace {

using kickwell::Pictures;
using kickwell::User;

bool PlayFriendly(User& user, const Pictures& pictures, const QString& page) {
  bool played = false;
  user.In("Opening", [&](QWidget& window) {
    pictures.Take(window, "1-main-menu");
    User::Choose(window, Qt::Key_P, Qt::Key_S);
  });
  user.In("Settings", [&](QWidget& window) {
    User::Pick(window, "Combo2", 6);
    User::Pick(window, "Combo3", 3);
    User::Pick(window, "Combo5", 4);
    User::Click(window, "Check1");
    User::Click(window, "Check2");
    pictures.Take(window, "2-settings");
    User::Click(window, "Command1");
  });
  user.In("Selection", [&](QWidget& window) {
    user.Wait(100);  // The squads come when the screen has been drawn.
    User::Pick(window, "Combo1(10)", 15);
    pictures.Take(window, "3-selection");
    User::Click(window, "Command1");
  });
  user.In("Main", [&](QWidget& window) {
    pictures.Take(window, "4-match-before");
    User::Click(window, "instant");
    played = User::LinesOf(window, "List1(0)").contains("Result:");
    pictures.Take(window, "5-match-after");
    User::Click(window, "ComSave");
  });
  user.In("SaveDialog", [&](QWidget& window) {
    pictures.Take(window, "6-save");
    auto* const name = window.findChild<QLineEdit*>();
    name->setText(page);
    QTest::keyClick(name, Qt::Key_Return);
  });
  user.In("Main", [](QWidget& window) { User::Click(window, "Command1"); });
  user.In("MessageBox", [&](QWidget& window) {
    pictures.Take(window, "7-exit");
    QTest::keyClick(&window, Qt::Key_Y, Qt::AltModifier);
  });
  user.In("Opening", [](QWidget& window) { User::Choose(window, Qt::Key_P, Qt::Key_X); });
  user.Finish();
  return played && QFile(page).size() > 0;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() != 3) {
    std::fprintf(stderr, "play_friendly PROGRAM_FOLDER PICTURE_FOLDER\n");
    return 2;
  }
  kickwell::PosixFileSystem files;
  const kickwell::ProgramFolder folder(arguments[1].toStdString(), files);
  QDir().mkpath(arguments[2]);
  const QString page = QDir(arguments[2]).absoluteFilePath("friendly.htm");
  QFile::remove(page);
  kickwell::QtDesktop desktop(folder);
  kickwell::SeededRandom random;
  kickwell::App app(folder, desktop, random);
  app.Start();
  User user;
  const bool done = PlayFriendly(user, Pictures(user, arguments[2]), page);
  std::printf(
      done ? "The friendly was played and saved: %s\n" : "The friendly was NOT played to its page %s\n",
      qPrintable(page));
  return done ? 0 : 1;
}
