// Parts that the editors' windows share.
#pragma once

#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QString>
#include <string>

namespace kickwell {

/// A titled section with its captions in a column.
struct Section {
  explicit Section(const QString& title);

  void Add(const QString& caption, QWidget* control);  ///< The caption names the control to screen readers.

  /// Adds the section's button; Enter in a text box of the section presses it.
  void AddButton(QPushButton* button);

  QGroupBox* Box;
  QFormLayout* Form;
};

/// A text box that keeps `text` in step with what is typed: at most `length` characters as a reader counts
/// them, line breaks and other control characters of pasted text as blanks.
QLineEdit* MakeTextBox(const QString& objectName, int length, std::string& text);

/// Shows `text` without moving the cursor where it is shown already.
void ShowText(QLineEdit* box, const std::string& text);

}  // namespace kickwell
