// Someone who uses the program: clicks and types in its real windows, one step after another.
#pragma once

#include <QObject>
#include <QString>
#include <QWidget>
#include <deque>
#include <functional>
#include <utility>

namespace kickwell {

/// Steps wait until the window that they are for is in use and then run in turn, also while an action of the
/// program is still waiting for a screen or a box that it opened.
class User {
 public:
  using Step = std::function<void(QWidget& window)>;
  using Condition = std::function<bool(QWidget& window)>;

  User();

  /// Adds a step for the window named `window` (its object name).
  void In(const QString& window, Step step) { When(window, nullptr, std::move(step)); }

  /// Adds a step for when the window is in use and `condition` holds, also in the middle of a goal's pause.
  void When(const QString& window, Condition condition, Step step);

  /// Runs the event loop until all steps are done; false when none has run for `patience` milliseconds.
  bool Finish(int patience = 10000);

  /// Lets the program go on for a while in the middle of a step.
  void Wait(int milliseconds);

  static void Press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  static void Click(QWidget& window, const QString& button);
  static void Pick(QWidget& window, const QString& combo, int entry);  ///< By keyboard.
  static void Choose(QWidget& window, int menuKey, int itemKey);       ///< Menu item by its access keys.
  static QString TextOf(QWidget& window, const QString& label);

 private:
  void Next();
  void LookAgain();

  struct Waiting {
    QString Window;
    Condition Ready;
    Step Run;
  };
  std::deque<Waiting> steps_;
  QObject context_;  ///< Ends the looking with the user.
  int idle_ = 0;     ///< Milliseconds since the last step.
  bool waiting_ = false;
};

}  // namespace kickwell
