// A titled part of an editor.
#pragma once

#include <QFormLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QString>

namespace kickwell {

/// A box with a title, its captions in a column.
struct Section {
  explicit Section(const QString& title);

  void Add(const QString& caption, QWidget* control);  ///< The caption names the control to screen readers.

  /// Adds the section's button. Enter in a text box of the section presses it.
  void AddButton(QPushButton* button);

  QGroupBox* Box;
  QFormLayout* Form;
};

}  // namespace kickwell
