// What the windows of all modal screens have in common.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <functional>
#include <string>

#include "ui/widgets/button_row.h"
#include "ui/widgets/page_area.h"

namespace kickwell {

/// The window of a screen. It runs the user's actions, after each of which it shows the whole state again or
/// closes, as the screen's logic says. Escape and the window's frame leave the screen as its own button does.
/// A window that its user has moved or resized opens in that place again, for as long as the program runs.
class ScreenWindow : public QDialog {
 public:
  /// `name` becomes the window's object name, `caption` its title.
  ScreenWindow(const char* name, const QString& caption, QWidget* parent);

  void reject() override;
  void done(int result) override;

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;  ///< Enter presses the focused button, or else the default.
  bool focusNextPrevChild(bool next) override;    ///< Tab scrolls to what it reaches.

  /// Runs an action of the user, then shows the state or closes the window.
  void Act(const std::function<void()>& action);

  /// A button that runs `action`. It is no auto-default button, so it never takes Enter from a text box.
  /// Screen readers announce its caption without arrows of "<" and ">".
  QPushButton* Button(QAnyStringView name, const QString& caption, std::function<void()> action);

  /// The same with an arrow instead of a caption; `tip` says what it does.
  QPushButton* ArrowButton(QAnyStringView name, QStyle::StandardPixmap arrow, const QString& tip,
                           std::function<void()> action);

  /// Runs `action` with the entry that the user picks.
  void OnPick(QComboBox* combo, std::function<void(int)> action);

  /// The column to lay the screen out in. It scrolls where the screen is too small for it.
  QVBoxLayout* Page() const { return page_; }

  /// Sets the buttons below the page, which never scroll out of sight. Tab reaches them last if the page is
  /// laid out before.
  void SetButtons(const WindowButtons& buttons) { buttons_->Add(buttons); }

  /// Gives the focus to `control` and selects its text, so that the user can go on there. Nothing for an
  /// empty name.
  void GoTo(const std::string& control);

  /// Sets the size to open at: `width` by `height` pixels where type is of the usual size, more with larger
  /// type, but never more than fits on the desktop.
  void OpenAt(int width, int height);

  virtual void Refresh() = 0;         ///< Shows the whole state of the screen's logic.
  virtual bool IsClosed() const = 0;  ///< Whether the logic is done with the screen.
  virtual void Leave() = 0;           ///< The action of the button that leaves the screen.

 private:
  QWidget* MainWindow();

  QVBoxLayout* page_;
  ButtonRow* buttons_;
  PageArea* area_;
  QRect opened_;  ///< Where the desktop has placed the window.
};

}  // namespace kickwell
