// What the program's work costs, and whether it costs no more than it may.
#include <QApplication>
#include <vector>

#include "figures.h"

namespace {

/// Qt's offscreen platform warns about what it cannot do, in the middle of the table.
void Silence(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*text*/) {}

}  // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(Silence);
  if (const int exitCode = kickwell::RunAsStarted(argc, argv); exitCode >= 0) return exitCode;
  const QApplication application(argc, argv);

  // With many short rounds in random order, every benchmark gets some moments in which the machine does
  // little else. Arguments from the command line override these.
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
  kickwell::AddScreenFigures(figures);
  kickwell::AddStartFigures(figures);
  benchmark::RunSpecifiedBenchmarks(&figures);
  return figures.Missed ? 1 : 0;
}
