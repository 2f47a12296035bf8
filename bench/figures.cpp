#include "figures.h"

#include <algorithm>
#include <cstdio>

namespace kickwell {
namespace {

const char* const Least = "least";

std::string Text(const char* format, double number) {
  char text[64];
  std::snprintf(text, sizeof text, format, number);
  return text;
}

constexpr const char* MissedMark = "  MISSED";

std::string TimeText(double seconds) {
  if (seconds < 0.9995e-3) return Text("%.3g us", seconds * 1e6);
  if (seconds < 0.9995) return Text("%.3g ms", seconds * 1e3);
  return Text("%.3g s", seconds);
}

std::string DemandText(Demand demand, double figure, double floor) {
  const double most = demand.Times > 0 ? demand.Times * floor : demand.Milliseconds / 1e3;
  if (most == 0) return "-";
  return (demand.Times > 0 ? Text("%.3g times", demand.Times) : TimeText(most)) +
         (figure <= most ? "" : MissedMark);
}

}  // namespace

benchmark::internal::Benchmark* Figures::Register(const std::string& name, const Work& work) {
  return benchmark::RegisterBenchmark(name.c_str(), work)
      ->Unit(benchmark::kMicrosecond)
      ->ComputeStatistics(Least,
                          [](const std::vector<double>& all) { return *std::ranges::min_element(all); });
}

void Figures::Compare(const std::string& name, const Measure& figure, const Measure& floor, Demand demand) {
  rows_.push_back({name, figure, floor, demand});
}

void Figures::Add(const std::string& name, Demand demand, const Work& figure, const Work& floor) {
  Register(name, figure);
  Register(name + " (floor)", floor);
  Compare(name, {name}, {name + " (floor)"}, demand);
}

void Figures::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (run.repetitions > 1 && run.aggregate_name != Least) continue;
    runs_.push_back(run);
    runs_.back().run_type = Run::RT_Iteration;  // Shown without the statistic's name behind its own.
    byName_[run.run_name.function_name] = run;
  }
}

double Figures::Seconds(const Measure& measure) const {
  const auto found = byName_.find(measure.Benchmark);
  if (found == byName_.end()) return 0;
  const Run& run = found->second;
  if (!measure.Counter.empty()) return run.counters.at(measure.Counter).value;
  return run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
}

void Figures::Finalize() {
  std::sort(runs_.begin(), runs_.end(),
            [](const Run& a, const Run& b) { return a.family_index < b.family_index; });
  ConsoleReporter::ReportRuns(runs_);
  std::printf("\n%-58s %10s %10s %8s  %s\n", "", "figure", "floor", "ratio", "at most");
  for (const Row& row : rows_) {
    const double figure = Seconds(row.Figure);
    const double floor = Seconds(row.Floor);
    if (figure == 0 || floor == 0) continue;
    const std::string demand = DemandText(row.Demand, figure, floor);
    Missed = Missed || demand.ends_with(MissedMark);
    std::printf("%-58s %10s %10s %8s  %s\n", row.Name.c_str(), TimeText(figure).c_str(),
                TimeText(floor).c_str(), Text("%.2f", figure / floor).c_str(), demand.c_str());
  }
}

}  // namespace kickwell
