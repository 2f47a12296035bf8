// Someone who uses the program: clicks and types in its real windows, one step after another.
#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <deque>
#include <functional>

namespace kickwell {

/// Steps are added first and taken in turn by Finish. A step waits until the window that it is for is in use
/// and until it can be taken; so steps go on while an action of the program waits for a screen or a box that
/// it has opened. Whoever waits too long for a step throws std::runtime_error, which says what was missing.
class User {
 public:
  using Step = std::function<void(QWidget& window)>;
  using Condition = std::function<bool(QWidget& window)>;

  explicit User(int patience = 10000);  ///< How long a step may wait, in milliseconds.

  /// The steps added from now on are for the window named `window` (its object name).
  User& In(const QString& window);

  User& Click(const QString& button);                   ///< Waits until the button is enabled.
  User& Pick(const QString& combo, int entry);          ///< By keyboard.
  User& Type(const QString& box, const QString& text);  ///< In place of what the box holds.
  User& Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  User& Choose(Qt::Key menu, Qt::Key item);                       ///< A menu item by its access keys.
  User& ExpectText(const QString& control, const QString& text);  ///< Waits until the control shows it.
  User& ExpectLines(const QString& list, const QStringList& lines);
  User& Do(Step step) { return When(nullptr, std::move(step)); }
  User& When(Condition condition,
             Step step);  ///< Waits for `condition`, also in the middle of a goal's pause.

  void In(const QString& window, Step step);
  void When(const QString& window, Condition condition, Step step);

  /// Runs the event loop until all steps are taken.
  void Finish();

  /// Lets the program go on for a while in the middle of a step.
  void Wait(int milliseconds);

  /// The same things done at once in `window`.
  static void Click(QWidget& window, const QString& button);
  static void Pick(QWidget& window, const QString& combo, int entry);
  static void Select(QWidget& window, const QString& list, int row);
  static void Type(QWidget& window, const QString& box, const char* text);
  static void Press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  static void Choose(QWidget& window, Qt::Key menu, Qt::Key item);
  static QString TextOf(QWidget& window, const QString& control);
  static QStringList LinesOf(QWidget& window, const QString& list);

 private:
  /// What a step waits for in its window; empty when it can be taken.
  using Missing = std::function<QString(QWidget& window)>;

  struct Waiting {
    QString Window;
    kickwell::User::Missing Missing;
    Step Run;
  };

  User& Add(Missing missing, Step step);
  void Next();
  void LookAgain();
  QString MissingNow() const;

  std::deque<Waiting> steps_;
  QString window_;   ///< What steps are added for.
  QObject context_;  ///< Ends the looking with the user.
  int patience_;
  int idle_ = 0;  ///< Milliseconds since the last step.
  bool waiting_ = false;
};

}  // namespace kickwell
