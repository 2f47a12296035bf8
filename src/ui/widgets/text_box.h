// Text boxes.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QString>
#include <string>

namespace kickwell {

/// A text box that keeps a text in step with what the user types: at most `length` characters, counted as a
/// reader would. Where more was typed or pasted the box says so, until there is room again. Line breaks and
/// other control characters in pasted text become blanks.
class TextBox final : public QLineEdit {
 public:
  TextBox(const QString& objectName, int length, std::string& text);

  /// The line that says what was cut, for the layout to show below the box.
  QLabel* CutLine() const { return cutLine_; }

  /// Shows the text. The cursor does not move if the box shows it already.
  void ShowText();

 private:
  void Keep(const QString& typed);
  void TellCut(bool cut);

  int length_;
  std::string& text_;
  QAction* cutSign_;  ///< Visible while something is missing, like the line.
  QLabel* cutLine_;
};

}  // namespace kickwell
