// What all windows share: text across the window's edge, labels, choosers, lists.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QString>
#include <string>
#include <string_view>

#include "base/chooser.h"

namespace kickwell {

inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The object name of member `index` of a control array, for example "Post1(0)".
QString ArrayName(const char* name, int index);

/// A label for a figure or for a text from the user's files.
QLabel* MakeText(const QString& objectName, const QString& text, Qt::Alignment alignment = Qt::AlignLeft);

/// A large heading whose text comes from the user's files.
QLabel* MakeHeading(const QString& objectName);

/// A fixed caption, which is always shown whole.
QLabel* MakeCaption(const QString& text);

/// A bold caption that names `buddy` to screen readers.
QLabel* MakeCaption(const QString& text, QWidget* buddy);

/// A pick-only drop-down list, whose width does not follow its entries.
QComboBox* MakeCombo(const QString& objectName);

QPushButton* MakeButton(const QString& objectName, const QString& caption);

/// A list of lines or names, all of one height.
QListWidget* MakeList(const QString& objectName);

/// Makes `combo` show `chooser`. Only a user's own pick emits `activated`.
void ShowChooser(QComboBox* combo, const Chooser& chooser);

/// Makes `list` show `chooser`, without the signals of a user's pick.
void ShowList(QListWidget* list, const Chooser& chooser);

/// The row that the user has selected, or Chooser::None.
int SelectedRow(const QListWidget* list);

/// Makes `list` show `lines`, which have only grown since the last call, and scrolls to the picked one.
void ShowLines(QListWidget* list, const Chooser& lines);

/// A length of the screens' own unit, 1/1440 inch, in pixels of `widget`.
int Twips(const QWidget* widget, int twips);

}  // namespace kickwell
