// What every modal screen's window has in common.
#pragma once

#include <QComboBox>
#include <QDialog>
#include <QPushButton>
#include <QStyle>
#include <functional>

namespace kickwell {

/// Shows the whole state anew after each action and closes when the screen's logic says so. Escape and the
/// window's frame are the screen's own way out.
class ScreenWindow : public QDialog {
 public:
  /// `name` is the screen's name, `caption` its title.
  ScreenWindow(const char* name, const QString& caption, QWidget* parent);

  void reject() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;  ///< Enter presses the button that has the focus.

  /// Runs one action of the user and shows what has become of it.
  void Act(const std::function<void()>& action);

  /// A button that runs `action` and never takes Enter from a text box.
  QPushButton* Button(const QString& name, const QString& caption, std::function<void()> action);

  /// The same with an arrow for its caption; `tip` says what it does.
  QPushButton* ArrowButton(const QString& name, QStyle::StandardPixmap arrow, const QString& tip,
                           std::function<void()> action);

  /// Runs `action` with the entry that the user picks.
  void OnPick(QComboBox* combo, std::function<void(int)> action);

  /// Where the screen's widgets are laid out.
  QWidget* Page() const { return page_; }

  /// Opens at `width` by `height` pixels where type is of the usual size, larger with larger type, but always
  /// on the screen.
  void OpenAt(int width, int height);

  virtual void Refresh() = 0;
  virtual bool IsClosed() const = 0;
  virtual void Leave() = 0;  ///< The action of the button that leaves the screen.

 private:
  QWidget* page_;
};

}  // namespace kickwell
