#include <QApplication>

#include "ui/app.h"
#include "ui/qt_desktop.h"

int main(int /*argc*/, char** argv) {
  int noArguments = 1;  // The program takes none, Qt's own neither.
  const QApplication application(noArguments, argv);
  const kickwell::ProgramFolder folder{QCoreApplication::applicationDirPath().toStdString()};
  kickwell::QtDesktop desktop(folder);
  kickwell::SeededRandom random;
  kickwell::App app(folder, desktop, random);
  app.Start();
  return QApplication::exec();
}
