// What the program's work costs, each figure beside its floor in the same run.
#include <QApplication>
#include <vector>

#include "figures.h"

namespace {

/// Warnings of Qt's offscreen platform about what it cannot do would stand between the figures.
void Silence(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*text*/) {}

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(Silence);
  if (const int exitCode = kickwell::RunAsStarted(argc, argv); exitCode >= 0) return exitCode;
  const QApplication application(argc, argv);

  // Many short rounds in a random order: each figure and each floor then finds a moment in which the machine
  // does little else. Arguments of the command line have the last word.
  char rounds[] = "--benchmark_repetitions=60";
  char mixed[] = "--benchmark_enable_random_interleaving=true";
  char minTime[] = "--benchmark_min_time=0.003";
  std::vector<char*> arguments = {argv[0], rounds, mixed, minTime};
  arguments.insert(arguments.end(), argv + 1, argv + argc);
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;

  kickwell::Figures figures;
  kickwell::AddMatchFigures(figures);
  kickwell::AddRecordingFigures(figures);
  kickwell::AddLeagueFigures(figures);
  kickwell::AddScreenFigures(figures);
  kickwell::AddStartFigures(figures);
  benchmark::RunSpecifiedBenchmarks(&figures);
  return figures.Missed ? 1 : 0;
}
