// The time from the start of the process to the first window: this program starts itself again, and the new
// process says when its window stands on the screen.
#include <QApplication>
#include <QProcess>
#include <QWindow>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "figures.h"
#include "ui/app.h"
#include "ui/qt_desktop.h"

namespace kickwell {
namespace {

const char* const AsProgram = "--start-program";
const char* const AsEmptyWindow = "--start-empty-window";

void Start(benchmark::State& state, const char* as) {
  for ([[maybe_unused]] auto iteration : state) {
    QProcess process;
    const auto start = std::chrono::steady_clock::now();
    process.start(QCoreApplication::applicationFilePath(), {as});
    if (!process.waitForReadyRead()) std::abort();
    state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
    process.waitForFinished();
  }
}

void SayWhenShown() {
  const auto shown = [] {
    const QWindowList windows = QGuiApplication::topLevelWindows();
    return std::any_of(windows.begin(), windows.end(), [](const QWindow* w) { return w->isExposed(); });
  };
  while (!shown()) QCoreApplication::processEvents();
  std::puts("shown");
}

}  // namespace

void AddStartFigures(Figures& figures) {
  const std::string name = "From the program's start to its first window";
  const std::string floor = name + " (floor: an empty window)";
  for (const auto& [benchmark, as] : {std::pair(name, AsProgram), std::pair(floor, AsEmptyWindow)}) {
    Figures::Register(benchmark, [as = as](benchmark::State& state) { Start(state, as); })
        ->Iterations(1)
        ->UseManualTime();
  }
  figures.Compare(name, {name}, {floor}, {.Milliseconds = 500});
}

int RunAsStarted(int argc, char** argv) {
  if (argc != 2) return -1;
  const std::string as = argv[1];
  if (as == AsProgram) {
    const QApplication application(argc, argv);
    const ProgramFolder folder{QCoreApplication::applicationDirPath().toStdString()};
    QtDesktop desktop(folder);
    SeededRandom random;
    App app(folder, desktop, random);
    app.Start();
    SayWhenShown();
    return 0;
  }
  if (as == AsEmptyWindow) {
    const QApplication application(argc, argv);
    QWidget window;
    window.show();
    SayWhenShown();
    return 0;
  }
  return -1;
}

}  // namespace kickwell
