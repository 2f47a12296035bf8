// Matches beside their bare draws, and a tick in the real window.
#include <QApplication>
#include <QTimer>
#include <chrono>
#include <cstddef>
#include <vector>

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

void PlayInstantMatch(Random& random) {
  SilentDesktop desktop;
  NoRecording recording;
  Match match({}, desktop, random, recording, Setup(SimulationKind::InstantResult));
  match.instant_Click();
  benchmark::DoNotOptimize(match.Session().Summary.Entries.data());
}

/// A half, so that the commentary stays as short as it is on average.
void PlayHalf(Random& random) {
  SilentDesktop desktop;
  NoRecording recording;
  NoScreen screen;
  Match match({}, desktop, random, recording, Setup(SimulationKind::FullSimulation));
  match.halftime_Click();
  for (int minute = 0; minute < MinutesOfHalf; ++minute) match.Timer1_Timer(screen);
  benchmark::DoNotOptimize(match.Session().Commentary.Entries.data());
}

/// Makes the draws of a source and writes their ranges down.
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

/// What is played beside exactly its draws, of so many different plays; each stands for `parts` iterations.
void AddPlay(Figures& figures, const char* name, Play play, int plays, int parts) {
  const auto figure = [play, parts](benchmark::State& state) {
    SeededRandom random(1);
    while (state.KeepRunningBatch(parts)) play(random);
  };
  const auto floor = [play, plays, parts](benchmark::State& state) {
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
  };
  figures.Add(name, {.Times = 2}, figure, floor);
}

/// No goals, and a remark in every second: a match that goes on to minute 120 with thousands of lines.
class TalkativeRandom : public Random {
 public:
  int Int(int n) override { return n == 4 || n == 30 || n == GoalRangeOf(Strength) ? 0 : source_.Int(n); }

 private:
  SeededRandom source_{1};
};

/// The ticks from minute `first` on in the real window, each with the drawing of the whole of it.
void TickInWindow(benchmark::State& state, int first) {
  SilentDesktop desktop;
  NoRecording recording;
  TalkativeRandom random;
  MatchSetup setup = Setup(SimulationKind::FullSimulation);
  setup.ExtraTime = true;
  Match match({}, desktop, random, recording, setup);
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
    const auto start = std::chrono::steady_clock::now();
    tick();
    benchmark::DoNotOptimize(window.grab());
    state.SetIterationTime(std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  }
  state.counters["minute"] = match.Session().Minute;
  state.counters["lines"] = match.Session().Commentary.Count();
}

}  // namespace

void AddMatchFigures(Figures& figures) {
  AddPlay(figures, "An instant match", PlayInstantMatch, 20, 1);
  AddPlay(figures, "A simulated minute", PlayHalf, 200, MinutesOfHalf);

  constexpr int Ticks = 10;
  constexpr int LastMinute = 119;
  const std::string name = "A tick with its window, to minute 119";
  const std::string early = name + " (floor: minute 10)";
  const auto add = [&](const std::string& benchmark, int until) {
    const auto work = [until](benchmark::State& state) { TickInWindow(state, until - Ticks); };
    Figures::Register(benchmark, work)->Iterations(Ticks)->Repetitions(10)->UseManualTime();
  };
  add(name, LastMinute);
  add(early, Ticks);
  figures.Compare(name, {name}, {early}, {.Milliseconds = 20});
}

}  // namespace kickwell
