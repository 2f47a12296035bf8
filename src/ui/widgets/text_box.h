// Text boxes.
#pragma once

#include <QLineEdit>
#include <QString>
#include <string>

namespace kickwell {

/// A text box that keeps `text` in step with what the user types: at most `length` characters, counted as a
/// reader would. Line breaks and other control characters in pasted text become blanks.
QLineEdit* MakeTextBox(const QString& objectName, int length, std::string& text);

/// Shows `text`. The cursor does not move if the box shows it already.
void ShowText(QLineEdit* box, const std::string& text);

}  // namespace kickwell
