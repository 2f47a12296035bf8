#include "engine/match_session.h"

#include <utility>

namespace kickwell {

std::string_view ToText(Period period) {
  constexpr std::array<std::string_view, 5> Captions = {"&Normal Time 1st Half", "&Normal Time 2nd Half",
                                                        "&Extra Time 1st Half", "&Extra Time 2nd Half",
                                                        "&Penalty Shoot Out"};
  return Captions[static_cast<std::size_t>(period)];
}

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

void ShowPossession(MatchSession& session, Random& random) {
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
