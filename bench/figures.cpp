#include "figures.h"

#include <algorithm>
#include <cstdio>
#include <iostream>

namespace kickwell {
namespace {

std::string TimeText(double seconds) {
  char text[64];
  std::snprintf(text, sizeof text, "%.3g ms", seconds * 1e3);
  return text;
}

constexpr const char* Layout = "%-55s %10s %10s %10s %s\n";

}  // namespace

benchmark::internal::Benchmark* Figures::Register(const std::string& name, const Work& work) {
  return benchmark::RegisterBenchmark(name.c_str(), work);
}

void Figures::AtMost(const std::string& name, double milliseconds, const std::string& floor) {
  rows_.push_back({name, floor, milliseconds});
}

bool Figures::ReportContext(const Context& context) {
  PrintBasicContext(&std::cerr, context);
  std::printf(Layout, "", "time", "floor", "at most", "");
  return true;
}

void Figures::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (run.run_type != Run::RT_Iteration) continue;
    const double seconds = run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
    double& fastest = seconds_.try_emplace(run.run_name.function_name, seconds).first->second;
    fastest = std::min(fastest, seconds);
  }
}

void Figures::Finalize() {
  for (const Row& row : rows_) {
    const auto figure = seconds_.find(row.Name), floor = seconds_.find(row.Floor);
    if (figure == seconds_.end()) continue;
    const bool missed = figure->second * 1e3 > row.Most;
    Missed = Missed || missed;
    std::printf(Layout, row.Name.c_str(), TimeText(figure->second).c_str(),
                floor == seconds_.end() ? "" : TimeText(floor->second).c_str(),
                TimeText(row.Most / 1e3).c_str(), missed ? "MISSED" : "");
  }
}

}  // namespace kickwell
