// What all windows share: text across the window's edge, labels, choosers, lists.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QString>
#include <string>
#include <string_view>

#include "base/item_list.h"

namespace kickwell {

inline QString ToQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// A text from the user's files as it is shown: control characters and line breaks as blanks, and U+FFFD in
/// place of what would turn the text next to it around.
QString Shown(std::string_view text);

/// The object name of member `index` of a control array, for example "Post1(0)".
QString ArrayName(const char* name, int index);

/// A label for a figure or for a text from the user's files.
QLabel* MakeText(const QString& objectName, const QString& text, Qt::Alignment alignment = Qt::AlignLeft);

/// Gives `label` bold type of `factor` times the usual size.
QLabel* Enlarged(QLabel* label, qreal factor);

/// A large heading whose text comes from the user's files.
QLabel* MakeHeading(const QString& objectName);

/// A fixed caption, which is always shown whole.
QLabel* MakeCaption(const QString& text);

/// A bold caption that names `buddy` to screen readers.
QLabel* MakeCaption(const QString& text, QWidget* buddy);

/// A caption in front of `figure`, which screen readers are told together.
QLabel* MakeFigureCaption(const QString& text, QLabel* figure);

/// A pick-only drop-down list, whose width does not follow its entries.
QComboBox* MakeCombo(const QString& objectName);

/// Names to screen readers a chooser whose caption says too little. Some are told what is picked in place of
/// a chooser's name, so that its description tells the name as well.
void Name(QComboBox* combo, const QString& name);

/// A button. Screen readers are told its caption without arrows of "<" and ">".
QPushButton* MakeButton(const QString& objectName, const QString& caption);

/// A list of lines or names, all of one height.
QListWidget* MakeList(const QString& objectName);

/// Makes `combo` show `chooser`. Only a user's own pick emits `activated`.
void ShowChooser(QComboBox* combo, const ItemList& chooser);

/// Makes `list` show `chooser`, without the signals of a user's pick.
void ShowList(QListWidget* list, const ItemList& chooser);

/// The row that the user has selected, or ItemList::None.
int SelectedRow(const QListWidget* list);

/// Makes `list` show `lines`, which have only grown since the last call, and scrolls to the picked one.
void ShowLines(QListWidget* list, const ItemList& lines);

/// Text that is less important, but still readable on the ground of `palette`.
QColor FaintText(const QPalette& palette);

/// A length of the screens' own unit, 1/1440 inch, in pixels of `widget`.
int Twips(const QWidget* widget, int twips);

}  // namespace kickwell
