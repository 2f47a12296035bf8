// A look at every screen of the program, opened one after the other as its user opens them.
#pragma once

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

  /// Throws when a screen does not open.
  void Run() {
    Visit("Opening");
    Championship(Qt::Key_L, "LegSettings", Qt::Key_L, "Table", "Command1");
    Championship(Qt::Key_K, "KnockSettings", Qt::Key_K, "KnockCharts", "Command3");
    InstantFriendly();
    FullFriendly();
    Visit("Opening");
    Visit(Qt::Key_E, Qt::Key_T, "TeamEditor", "Command4");
    Visit(Qt::Key_E, Qt::Key_S, "StadEditor", "Command3");
    Open(Qt::Key_E, Qt::Key_C, "LegEditor");
    user_.Pick("Kind", 1);
    Visit("LegEditor", "Exit");
    user_.Finish();
  }

 private:
  /// Looks at a screen that is open, and leaves it by a button.
  void Visit(const char* screen, const char* leave = nullptr) {
    user_.In(screen).Do([this](QWidget& window) {
      user_.Wait(40);  // The squads come when the screen has been drawn.
      look_(window);
    });
    if (leave != nullptr) user_.Click(leave);
  }

  void Open(Qt::Key menu, Qt::Key item, const char* screen) {
    user_.In("Opening").Choose(menu, item);
    Visit(screen);
  }

  void Visit(Qt::Key menu, Qt::Key item, const char* screen, const char* leave) {
    Open(menu, item, screen);
    user_.Click(leave);
  }

  void Championship(Qt::Key item, const char* settings, Qt::Key statistics, const char* screen,
                    const char* leave) {
    Visit(Qt::Key_P, item, settings, "Command2");
    Visit("Opening");
    Visit(Qt::Key_S, Qt::Key_T, "TopScorers", "Command3");
    Visit(Qt::Key_S, Qt::Key_M, "LegResults", "Command1");
    Visit(Qt::Key_S, statistics, screen, leave);
  }

  void InstantFriendly() {
    Visit(Qt::Key_P, Qt::Key_S, "Settings", "Command1");
    Visit("Selection", "Command1");
    Visit("Main", "instant");
    Visit("Main", "Command1");
  }

  void FullFriendly() {
    Open(Qt::Key_P, Qt::Key_S, "Settings");
    user_.Pick("Combo4", 1);
    for (const char* button : {"Check1", "Check2", "Command1"}) user_.Click(button);
    Visit("Selection", "Command1");
    Visit("Main");
    constexpr int PeriodsWithShootOut = 5;
    for (int period = 0; period < PeriodsWithShootOut; ++period) user_.Click("halftime");
    user_.Click("kick");
    Visit("Main", "Command1");
  }

  Look look_;
  QuietRandom random_;
  App app_;
  User user_;
};

}  // namespace kickwell
