// Parts that the editors' windows share.
#pragma once

#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QString>
#include <string>

namespace kickwell {

/// A titled section with its captions in a column.
struct Section {
  explicit Section(const QString& title);

  void Add(const QString& caption, QWidget* control);  ///< The caption names the control to screen readers.

  QGroupBox* Box;
  QFormLayout* Form;
};

/// A text box that takes at most `length` characters and keeps `text` in step.
QLineEdit* MakeTextBox(const QString& objectName, int length, std::string& text);

/// Shows `text` without moving the cursor where it is shown already.
void ShowText(QLineEdit* box, const std::string& text);

}  // namespace kickwell
