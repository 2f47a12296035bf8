// Benchmarks with demands, and the table that shows whether each demand is met.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace kickwell {

/// Registers benchmarks and reports each beside what is demanded of it. Of all repetitions the fastest
/// counts, because other work on the machine can only slow a benchmark down.
class Figures : public benchmark::BenchmarkReporter {
 public:
  using Work = std::function<void(benchmark::State&)>;

  static benchmark::internal::Benchmark* Register(const std::string& name, const Work& work);

  /// Demands that benchmark `name` takes at most so many milliseconds. Shows beside it what benchmark `floor`
  /// takes, the least that such work can cost.
  void AtMost(const std::string& name, double milliseconds, const std::string& floor = {});

  bool ReportContext(const Context& context) override;
  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

  bool Missed = false;  ///< Whether a benchmark that was run missed its demand.

 private:
  struct Row {
    std::string Name, Floor;
    double Most;  ///< In milliseconds.
  };

  std::vector<Row> rows_;
  std::map<std::string, double> seconds_;  ///< By the name of the benchmark; only those that were run.
};

void AddMatchFigures(Figures& figures);
void AddRecordingFigures(Figures& figures);
void AddScreenFigures(Figures& figures);
void AddStartFigures(Figures& figures);

/// The benchmark of the program's start runs this program again. In such a run, plays the started program and
/// gives the exit code for main(); otherwise gives -1.
int RunAsStarted(int argc, char** argv);

}  // namespace kickwell
