// Ticks of the real window.
#include <QApplication>
#include <QTimer>
#include <string>
#include <utility>

#include "data/posix_file_system.h"
#include "engine/goal.h"
#include "engine/match.h"
#include "figures.h"
#include "stand_ins.h"
#include "ui/windows/match_window.h"

namespace kickwell {
namespace {

constexpr int Strength = 80;

MatchSetup Setup() {
  MatchSetup setup;
  setup.SimulationType = SimulationKind::FullSimulation;
  setup.Team1Name = "Rovers";
  setup.Team2Name = "United";
  setup.Team1Strength = setup.Team2Strength = Strength;
  setup.Team1Attackers = setup.Team2Attackers = {"A", "B", "C", "D", "E", "F"};
  setup.Team1Outfield = setup.Team2Outfield = {"A", "B", "C", "D", "E", "F", "G", "H", "I", "J"};
  setup.Capacity = 50000;
  return setup;
}

/// Friendlies need no files.
ProgramFolder NoFolder() {
  static PosixFileSystem files;
  return {{}, files};
}

/// Scores no goals and has a remark for every second, so that the match goes on to minute 120 with thousands
/// of lines of commentary.
class TalkativeRandom : public Random {
 public:
  int Int(int n) override { return n == 4 || n == 30 || n == GoalRangeOf(Strength) ? 0 : source_.Int(n); }

 private:
  SeededRandom source_{1};
};

/// Ticks from minute `first` on. Each one includes drawing the whole window.
void TickInWindow(benchmark::State& state, int first) {
  SilentDesktop desktop;
  NoRecording recording;
  TalkativeRandom random;
  MatchSetup setup = Setup();
  setup.ExtraTime = true;
  Match match(NoFolder(), desktop, random, recording, setup);
  MatchWindow window(match, {}, nullptr);
  window.show();
  match.Option1_Click(0);
  auto* const timer = window.findChild<QTimer*>("Timer1");
  const auto tick = [&] {
    match.halftime_Click();  // Starts the next period where one has ended.
    QMetaObject::invokeMethod(timer, "timeout");
  };
  do {
    tick();
  } while (match.Session().Minute < first);
  QCoreApplication::processEvents();  // Gives the list that the first tick has brought on view its room.
  for ([[maybe_unused]] auto iteration : state) {
    tick();
    benchmark::DoNotOptimize(window.grab());
  }
}

}  // namespace

void AddMatchFigures(Figures& figures) {
  constexpr int Ticks = 10;
  constexpr int LastMinute = 119;
  const std::string late = "A tick of the match window, minutes 110 to 119";
  const std::string early = "A tick of the match window, minutes 1 to 10";
  for (const auto& [name, last] : {std::pair(late, LastMinute), std::pair(early, Ticks)}) {
    const auto work = [first = last - Ticks](benchmark::State& state) { TickInWindow(state, first); };
    Figures::Register(name, work)->Iterations(Ticks)->Repetitions(60);
  }
  figures.AtMost(late, 16, early);
}

}  // namespace kickwell
