#include "engine/match_session.h"

#include <utility>

namespace kickwell {

std::string_view ToText(MatchPeriod period) {
  switch (period) {
    case MatchPeriod::FirstHalf:
      return "&Normal Time 1st Half";
    case MatchPeriod::SecondHalf:
      return "&Normal Time 2nd Half";
    case MatchPeriod::ExtraTimeFirstHalf:
      return "&Extra Time 1st Half";
    case MatchPeriod::ExtraTimeSecondHalf:
      return "&Extra Time 2nd Half";
    case MatchPeriod::PenaltyShootOut:
      return "&Penalty Shoot Out";
  }
  return {};
}

std::string ClockReading(int minute, int second) {
  const auto digit = [](int number) { return static_cast<char>('0' + number % 10); };
  std::string text{digit(minute / 10), digit(minute), ':', digit(second / 10), digit(second)};
  if (minute >= 100) text.insert(0, std::to_string(minute / 100));
  return text;
}

std::string AttendanceText(const MatchSession& session) {
  return "Total Attendence: " + std::to_string(session.Attendance) + " (" +
         std::to_string(session.AttendancePercent) + "%)";
}

void DrawPossession(MatchSession& session, Random& random) {
  int percent = 0;
  do {
    percent = random.Int(70);
  } while (percent < 30);
  session.Side1.PossessionPercent = percent;
  session.Side2.PossessionPercent = 100 - percent;
}

void AddLine(ItemList& list, std::string line) {
  list.Add(std::move(line));
  list.PickLast();
}

}  // namespace kickwell
