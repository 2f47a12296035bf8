#include "figures.h"

#include <algorithm>
#include <cstdio>
#include <iostream>

namespace kickwell {
namespace {

std::string Text(const char* format, double number) {
  char text[64];
  std::snprintf(text, sizeof text, format, number);
  return text;
}

std::string TimeText(double seconds) {
  return seconds < 0.9995e-3 ? Text("%.3g us", seconds * 1e6) : Text("%.3g ms", seconds * 1e3);
}

constexpr const char* Layout = "%-55s %10s %10s %8s  %s\n";

}  // namespace

benchmark::internal::Benchmark* Figures::Register(const std::string& name, const Work& work) {
  return benchmark::RegisterBenchmark(name.c_str(), work);
}

void Figures::AtMost(const std::string& name, double times, const std::string& floor) {
  rows_.push_back({name, floor, times});
}

void Figures::AtMostMilliseconds(const std::string& name, double milliseconds) {
  rows_.push_back({name, {}, milliseconds});
}

bool Figures::ReportContext(const Context& context) {
  PrintBasicContext(&std::cerr, context);
  std::printf(Layout, "", "time", "floor", "ratio", "at most");
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
    const bool compared = !row.Floor.empty();
    if (figure == seconds_.end() || (compared && floor == seconds_.end())) continue;
    const double kept = compared ? figure->second / floor->second : figure->second * 1e3;
    const bool missed = kept > row.Most;
    Missed = Missed || missed;
    std::printf(Layout, row.Name.c_str(), TimeText(figure->second).c_str(),
                compared ? TimeText(floor->second).c_str() : "", compared ? Text("%.2f", kept).c_str() : "",
                (Text(compared ? "%.3g times" : "%.3g ms", row.Most) + (missed ? "  MISSED" : "")).c_str());
  }
}

}  // namespace kickwell
