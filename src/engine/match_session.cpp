#include "engine/match_session.h"

#include <utility>

namespace kickwell {
namespace {

std::string TwoDigits(int number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

}  // namespace

std::string ClockText(int minute, int second) {
  return TwoDigits(minute) + ":" + TwoDigits(second);
}

std::string AttendanceText(const MatchSession& session) {
  return "Total Attendence: " + std::to_string(session.Attendance) + " (" +
         std::to_string(session.AttendancePercent) + "%)";
}

void AddLine(Chooser& list, std::string line) {
  list.Add(std::move(line));
  list.PickLast();
}

}  // namespace kickwell
