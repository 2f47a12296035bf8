#include "engine/match_session.h"

#include <utility>

namespace kickwell {

std::string ClockText(int minute, int second) {
  const auto digit = [](int number) { return static_cast<char>('0' + number % 10); };
  std::string text{digit(minute / 10), digit(minute), ':', digit(second / 10), digit(second)};
  if (minute >= 100) text.insert(0, std::to_string(minute / 100));
  return text;
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
