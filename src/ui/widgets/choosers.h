// Drop-down lists and lists to choose from.
#pragma once

#include <QComboBox>
#include <QListWidget>
#include <QString>

#include "base/item_list.h"

namespace kickwell {

/// A drop-down list to pick from. Its width does not depend on its entries. Typing finds an entry; the mouse
/// wheel changes nothing while the list is closed.
QComboBox* MakeCombo(const QString& objectName);

/// Names `combo` to screen readers where its caption says too little. Some screen readers announce the picked
/// entry in place of the name, so the description repeats the name.
void Name(QComboBox* combo, const QString& name);

/// A list of entries of one height. What is selected stays selected until something else is.
class SteadyList : public QListWidget {
 public:
  explicit SteadyList(const QString& objectName);

  /// Asks for the room that usual entries need with their side texts.
  void LeaveRoomForSideTexts();

  /// Says in faint text what the list is for, as long as it is empty.
  void SetHint(const QString& hint);

  void reset() override;

 protected:
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;
  void rowsInserted(const QModelIndex& parent, int start, int end) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void TellHint();

  QString hint_;
};

SteadyList* MakeList(const QString& objectName);

/// Makes `combo` show `chooser`. Only a user's own pick emits `activated`.
void ShowChooser(QComboBox* combo, const ItemList& chooser);

/// Makes `list` show the entries of `chooser`, whatever is picked in either.
void ShowEntries(QListWidget* list, const ItemList& chooser);

/// Makes `list` show `chooser`, without the signals of a user's pick.
void ShowList(QListWidget* list, const ItemList& chooser);

/// The row that the user has selected, or ItemList::None.
int SelectedRow(const QListWidget* list);

}  // namespace kickwell
