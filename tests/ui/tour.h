// A look at every screen of the program, opened one after the other as its user opens them.
#pragma once

#include <QComboBox>
#include <QPushButton>
#include <QtTest/QTest>
#include <functional>

#include "ui/app.h"
#include "user.h"

namespace kickwell {

/// Calls `look` for each screen, and again where it has another face: the match before and in its shoot-out,
/// both sides of the championship editor. The folder holds two teams that can play, a league and a knock-out.
class Tour {
 public:
  using Look = std::function<void(QWidget& window)>;

  Tour(const ProgramFolder& folder, Desktop& desktop, Look look)
      : look_(std::move(look)), app_(folder, desktop, random_, {1, 1}) {
    app_.Start();
  }

  /// False when a screen did not open.
  bool Run() {
    Visit("Opening");
    Friendly(false);
    Friendly(true);
    for (const auto& [item, play] :
         {std::pair(Qt::Key_L, "LegSettings"), std::pair(Qt::Key_K, "KnockSettings")}) {
      Open(Qt::Key_P, item);
      Visit(play, "Command2");
      Visit("Opening");  // With the championship's name, and its statistics.
      Statistics(Qt::Key_T, "TopScorers", "Command3");
      Statistics(Qt::Key_M, "LegResults", "Command1");
      if (item == Qt::Key_L) Statistics(Qt::Key_L, "Table", "Command1");
      if (item == Qt::Key_K) Statistics(Qt::Key_K, "KnockCharts", "Command3");
    }
    Open(Qt::Key_E, Qt::Key_T);
    Visit("TeamEditor", "Command4");
    Open(Qt::Key_E, Qt::Key_S);
    Visit("StadEditor", "Command3");
    Open(Qt::Key_E, Qt::Key_C);
    Visit("LegEditor");
    user_.In("LegEditor", [](QWidget& window) { User::Pick(window, "Kind", 1); });
    Visit("LegEditor", "Exit");
    return user_.Finish();
  }

  /// Lets the program go on while a screen is looked at.
  void Wait(int milliseconds) { user_.Wait(milliseconds); }

 private:
  void Open(Qt::Key menu, Qt::Key item) {
    user_.In("Opening", [=](QWidget& window) { User::Choose(window, menu, item); });
  }

  void Visit(const char* screen, const char* leave = nullptr) {
    user_.In(screen, [=, this](QWidget& window) {
      user_.Wait(40);  // The squads come when the screen has been drawn.
      look_(window);
      if (leave != nullptr) User::Click(window, leave);
    });
  }

  void Statistics(Qt::Key item, const char* screen, const char* leave) {
    Open(Qt::Key_S, item);
    Visit(screen, leave);
  }

  void Friendly(bool full) {
    Open(Qt::Key_P, Qt::Key_S);
    Visit("Settings");
    user_.In("Settings", [=](QWidget& window) {
      User::Pick(window, "Combo4", full ? 1 : 0);
      for (const char* decider : {"Check1", "Check2"})
        if (full) User::Click(window, decider);
      User::Click(window, "Command1");
    });
    Visit("Selection", "Command1");
    Visit("Main");
    if (!full) Visit("Main", "instant");
    if (full) user_.In("Main", [this](QWidget& window) { PlayToShootOut(window); });
    Visit("Main", "Command1");
  }

  /// The teams change ends, so that a goal on the same side in each half levels the score.
  void PlayToShootOut(QWidget& window) {
    const auto* const period = window.findChild<QPushButton*>("halftime");
    for (int half = 1; !period->isHidden() && half <= 5; ++half) {
      random_.ScoringSide = half <= 2 ? 2 : 0;
      User::Click(window, "halftime");
      for (int beat = 0; !period->isEnabled() && !period->isHidden() && beat < 500; ++beat) user_.Wait(20);
    }
    User::Click(window, "kick");
  }

  /// A lively match between sides of strength 80 with the goals that the tour asks for.
  struct FewGoals : SeededRandom {
    FewGoals() : SeededRandom(1) {}
    int Int(int n) override {
      if (n == 100) return 50;  // The goal number.
      if (n != 4000) return SeededRandom::Int(n);
      const int side = ++draws % 2 == 1 ? 1 : 2;
      return side == ScoringSide ? ScoringSide = 0, 50 : 7;
    }
    int ScoringSide = 0, draws = 0;
  };

  Look look_;
  FewGoals random_;
  App app_;
  User user_;
};

}  // namespace kickwell
