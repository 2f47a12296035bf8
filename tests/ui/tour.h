// A look at every screen of the program, opened one after the other as its user opens them.
#pragma once

#include <QPushButton>
#include <functional>

#include "support/scripted_random.h"
#include "ui/app.h"
#include "user.h"

namespace kickwell {

/// Calls `look` for each screen, and again where it has another face: the menu in each mode, the match before
/// and in its shoot-out, both sides of the championship editor. The folder holds two teams that can play, a
/// league and a knock-out.
class Tour {
 public:
  using Look = std::function<void(QWidget& window)>;

  Tour(const ProgramFolder& folder, Desktop& desktop, Look look)
      : look_(std::move(look)), app_(folder, desktop, random_, {1, 1}) {
    // The teams change ends, so that the same side scoring at the start of both halves levels the score.
    random_.Goals = "1" + std::string(45 * 60 - 1, '.') + "1";
    app_.Start();
  }

  /// False when a screen did not open.
  bool Run() {
    Visit("Opening");
    Play(Qt::Key_L, "LegSettings", Qt::Key_L, "Table", "Command1");
    Play(Qt::Key_K, "KnockSettings", Qt::Key_K, "KnockCharts", "Command3");
    Friendly(false);
    Friendly(true);
    Visit("Opening");
    Open(Qt::Key_E, Qt::Key_T, "TeamEditor", "Command4");
    Open(Qt::Key_E, Qt::Key_S, "StadEditor", "Command3");
    Open(Qt::Key_E, Qt::Key_C, "LegEditor");
    user_.In("LegEditor", [](QWidget& window) { User::Pick(window, "Kind", 1); });
    Visit("LegEditor", "Exit");
    return user_.Finish();
  }

 private:
  void Open(Qt::Key menu, Qt::Key item, const char* screen, const char* leave = nullptr) {
    user_.In("Opening", [=](QWidget& window) { User::Choose(window, menu, item); });
    Visit(screen, leave);
  }

  void Visit(const char* screen, const char* leave = nullptr) {
    user_.In(screen, [=, this](QWidget& window) {
      user_.Wait(40);  // The squads come when the screen has been drawn.
      look_(window);
      if (leave != nullptr) User::Click(window, leave);
    });
  }

  void Play(Qt::Key item, const char* settings, Qt::Key statistics, const char* screen, const char* leave) {
    Open(Qt::Key_P, item, settings, "Command2");
    Visit("Opening");
    Open(Qt::Key_S, Qt::Key_T, "TopScorers", "Command3");
    Open(Qt::Key_S, Qt::Key_M, "LegResults", "Command1");
    Open(Qt::Key_S, statistics, screen, leave);
  }

  void Friendly(bool full) {
    Open(Qt::Key_P, Qt::Key_S, "Settings");
    user_.In("Settings", [=](QWidget& window) {
      if (full) User::Pick(window, "Combo4", 1);
      for (const char* button : {"Check1", "Check2", "Command1"}) User::Click(window, button);
    });
    Visit("Selection", "Command1");
    Visit("Main");
    if (!full) Visit("Main", "instant");
    if (full) user_.In("Main", [this](QWidget& window) { PlayToShootOut(window); });
    Visit("Main", "Command1");
  }

  void PlayToShootOut(QWidget& window) {
    const auto* const period = window.findChild<QPushButton*>("halftime");
    for (int beat = 0; period->isVisible() && beat < 500; ++beat) {
      User::Click(window, "halftime");  // Dark while a half is played.
      user_.Wait(20);
    }
    User::Click(window, "kick");
  }

  Look look_;
  QuietRandom random_;
  App app_;
  User user_;
};

}  // namespace kickwell
