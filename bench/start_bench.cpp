// The time from the start of the process to its first window. This program starts itself again, and the new
// process says when its window is on the screen.
#include <QApplication>
#include <QProcess>
#include <QWindow>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "data/posix_file_system.h"
#include "figures.h"
#include "ui/app.h"
#include "ui/qt_desktop.h"

namespace kickwell {
namespace {

const char* const AsStarted = "--as-started";

void Start(benchmark::State& state) {
  for ([[maybe_unused]] auto iteration : state) {
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {AsStarted});
    if (!process.waitForReadyRead()) std::abort();
    state.PauseTiming();
    process.waitForFinished();
    state.ResumeTiming();
  }
}

bool AnyWindowIsShown() {
  return std::ranges::any_of(QGuiApplication::topLevelWindows(),
                             [](const QWindow* window) { return window->isExposed(); });
}

}  // namespace

void AddStartFigures(Figures& figures) {
  const std::string name = "From the program's start to its first window";
  Figures::Register(name, Start)->Iterations(1);
  figures.AtMost(name, 200);
}

int RunAsStarted(int argc, char** argv) {
  if (argc != 2 || std::string(argv[1]) != AsStarted) return -1;
  const QApplication application(argc, argv);
  PosixFileSystem files;
  const ProgramFolder folder(QCoreApplication::applicationDirPath().toStdString(), files);
  QtDesktop desktop(folder);
  SeededRandom random;
  App app(folder, desktop, random);
  app.Start();
  while (!AnyWindowIsShown()) QCoreApplication::processEvents();
  std::puts("shown");
  return 0;
}

}  // namespace kickwell
