#include <QApplication>

#include "ui/app.h"
#include "ui/qt_desktop.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const kickwell::ProgramFolder folder{QCoreApplication::applicationDirPath().toStdString()};
  kickwell::QtDesktop desktop(folder);
  kickwell::SeededRandom random;
  kickwell::App app(folder, desktop, random);
  app.Start();
  return QApplication::exec();
}
