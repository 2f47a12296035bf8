// Matches compared with their random draws alone, and ticks of the real window.
#include <QApplication>
#include <QTimer>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "data/posix_file_system.h"
#include "engine/goal.h"
#include "engine/match.h"
#include "figures.h"
#include "stand_ins.h"
#include "ui/windows/match_window.h"

namespace kickwell {
namespace {

constexpr int Strength = 80;
constexpr int MinutesOfHalf = 45;

MatchSetup Setup(SimulationKind kind) {
  MatchSetup setup;
  setup.SimulationType = kind;
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

void PlayInstantMatch(Random& random) {
  SilentDesktop desktop;
  NoRecording recording;
  Match match(NoFolder(), desktop, random, recording, Setup(SimulationKind::InstantResult));
  match.instant_Click();
  benchmark::DoNotOptimize(match.Session().Summary.Entries.data());
}

/// A half rather than a whole match keeps the commentary at its average length.
void PlayHalf(Random& random) {
  SilentDesktop desktop;
  NoRecording recording;
  NoScreen screen;
  Match match(NoFolder(), desktop, random, recording, Setup(SimulationKind::FullSimulation));
  match.halftime_Click();
  for (int minute = 0; minute < MinutesOfHalf; ++minute) match.Timer1_Timer(screen);
  benchmark::DoNotOptimize(match.Session().Commentary.Entries.data());
}

/// Notes the range of each draw.
class NotingRandom : public Random {
 public:
  int Int(int n) override {
    Ranges.push_back(n);
    return source_.Int(n);
  }

  std::vector<int> Ranges;

 private:
  SeededRandom source_{1};
};

using Play = void (*)(Random&);

/// Compares `play` with a loop that makes the same draws, those of `plays` different plays. Each play counts
/// as `parts` iterations.
void AddPlay(Figures& figures, const std::string& name, Play play, int plays, int parts) {
  const std::string floor = name + " (floor)";
  Figures::Register(name, [play, parts](benchmark::State& state) {
    SeededRandom random(1);
    while (state.KeepRunningBatch(parts)) play(random);
  });
  Figures::Register(floor, [play, plays, parts](benchmark::State& state) {
    NotingRandom noting;
    std::vector<std::size_t> ends{0};
    for (int i = 0; i < plays; ++i) {
      play(noting);
      ends.push_back(noting.Ranges.size());
    }
    SeededRandom random(1);
    std::size_t next = 0;
    while (state.KeepRunningBatch(parts)) {
      for (std::size_t i = ends[next]; i < ends[next + 1]; ++i) {
        benchmark::DoNotOptimize(random.Int(noting.Ranges[i]));
      }
      next = (next + 1) % static_cast<std::size_t>(plays);
    }
  });
  figures.AtMost(name, 2, floor);
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
  MatchSetup setup = Setup(SimulationKind::FullSimulation);
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
  AddPlay(figures, "An instant match", PlayInstantMatch, 20, 1);
  AddPlay(figures, "A simulated minute", PlayHalf, 200, MinutesOfHalf);

  constexpr int Ticks = 10;
  constexpr int LastMinute = 119;
  const std::string late = "A tick of the match window, minutes 110 to 119";
  const std::string early = "A tick of the match window, minutes 1 to 10";
  for (const auto& [name, last] : {std::pair(late, LastMinute), std::pair(early, Ticks)}) {
    const auto work = [first = last - Ticks](benchmark::State& state) { TickInWindow(state, first); };
    Figures::Register(name, work)->Iterations(Ticks)->Repetitions(60);
  }
  figures.AtMost(late, 1.2, early);
  figures.AtMostMilliseconds(late, 100);
}

}  // namespace kickwell
