#include <QApplication>
#include <QIcon>

#include "data/posix_file_system.h"
#include "ui/app.h"
#include "ui/one_program.h"
#include "ui/qt_desktop.h"

namespace {

/// Desktops pick the size that they need. Some take the icon from the desktop entry instead, which they find
/// by the name set here.
void SetIcon() {
  QIcon icon;
  for (const int size : {16, 24, 32, 48, 64, 128, 256}) {
    icon.addFile(QStringLiteral(":/icons/kickwell-%1.png").arg(size));
  }
  QApplication::setWindowIcon(icon);
  QGuiApplication::setDesktopFileName(QStringLiteral("kickwell"));
}

}  // namespace

int main(int /*argc*/, char** argv) {
  int noArguments = 1;  // Not even those of Qt.
  const QApplication application(noArguments, argv);
  kickwell::PosixFileSystem files;
  const kickwell::ProgramFolder folder(QCoreApplication::applicationDirPath().toStdString(), files);
  kickwell::OneProgram program(folder);
  if (!program.MayRun()) return 0;
  SetIcon();
  kickwell::QtDesktop desktop(folder);
  kickwell::SeededRandom random;
  kickwell::App app(folder, desktop, random);
  program.Wanted = [&app] { app.ComeToFront(); };
  app.Start();
  return QApplication::exec();
}
