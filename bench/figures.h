// The figures of a run, each beside its floor, and the table that compares them.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace kickwell {

/// What a figure has to keep: so many times its floor at the most, or so many milliseconds. 0 is no demand.
struct Demand {
  double Times = 0;
  double Milliseconds = 0;
};

/// The time of a benchmark, or one of its counters that holds seconds.
struct Measure {
  std::string Benchmark;
  std::string Counter{};
};

/// Registers benchmarks and reports them: the usual table, in the order of registration, and behind it the
/// figures beside their floors. Of all repetitions the least counts: what else the machine does can only add.
class Figures : public benchmark::ConsoleReporter {
 public:
  using Work = std::function<void(benchmark::State&)>;

  Figures() : ConsoleReporter(OO_None) {}

  static benchmark::internal::Benchmark* Register(const std::string& name, const Work& work);

  /// A row of the second table, for benchmarks that are registered.
  void Compare(const std::string& name, const Measure& figure, const Measure& floor, Demand demand);

  /// Registers both and compares them.
  void Add(const std::string& name, Demand demand, const Work& figure, const Work& floor);

  void ReportRuns(const std::vector<Run>& runs) override;
  void Finalize() override;

  bool Missed = false;  ///< Whether a figure that was run has not kept its demand.

 private:
  struct Row {
    std::string Name;
    Measure Figure, Floor;
    kickwell::Demand Demand;
  };

  double Seconds(const Measure& measure) const;  ///< 0 where it was not run.

  std::vector<Row> rows_;
  std::vector<Run> runs_;
  std::map<std::string, Run> byName_;
};

/// What each file of benchmarks adds.
void AddMatchFigures(Figures& figures);
void AddRecordingFigures(Figures& figures);
void AddScreenFigures(Figures& figures);
void AddLeagueFigures(Figures& figures);
void AddStartFigures(Figures& figures);

/// Where this process was started by the benchmark of the program's start: plays its part, with the exit code
/// for main(). Else -1.
int RunAsStarted(int argc, char** argv);

}  // namespace kickwell
