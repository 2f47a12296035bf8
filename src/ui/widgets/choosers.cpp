#include "ui/widgets/choosers.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStringList>
#include <QWheelEvent>

#include "ui/text.h"
#include "ui/widgets/hint.h"
#include "ui/widgets/side_text.h"

namespace kickwell {
namespace {

QStringList Texts(const ItemList& chooser) {
  QStringList texts;
  texts.reserve(chooser.Count());
  for (const std::string& entry : chooser.Entries) texts.append(Shown(entry));
  return texts;
}

/// Where it is closed, the wheel scrolls the page, and a blank is part of the name that the user types.
class Chooser final : public QComboBox {
 protected:
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }

  void keyPressEvent(QKeyEvent* event) override {
    const bool typing = typed_.isValid() && typed_.elapsed() < QApplication::keyboardInputInterval();
    if (event->text().trimmed().isEmpty()) {
      if (typing && event->key() == Qt::Key_Space) return Search(event->text());
    } else {
      typed_.start();
    }
    QComboBox::keyPressEvent(event);
  }

 private:
  /// Goes on with what was typed, as the letters before did.
  void Search(const QString& text) {
    typed_.start();
    const int before = currentIndex();
    view()->keyboardSearch(text);
    const int found = view()->currentIndex().row();
    if (found == before) return;
    setCurrentIndex(found);
    emit activated(found);
  }

  QElapsedTimer typed_;  ///< Since the last character.
};

}  // namespace

QComboBox* MakeCombo(const QString& objectName) {
  constexpr int UsualName = 22, MostRows = 20;
  auto* const combo = new Chooser;
  combo->setObjectName(objectName);
  combo->setMaxVisibleItems(MostRows);
  // Some styles would cover the whole screen with the entries, as with a menu, and show no scroll bar. The
  // style must be known before the list is made, which the delegate needs.
  combo->setStyleSheet(QStringLiteral("QComboBox { combobox-popup: 0; }"));
  combo->setItemDelegate(new SideTextDelegate(combo));
  combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  combo->setMinimumContentsLength(UsualName);
  return combo;
}

void Name(QComboBox* combo, const QString& name) {
  combo->setAccessibleName(name);
  combo->setAccessibleDescription(name);
}

SteadyList::SteadyList(const QString& objectName) {
  setObjectName(objectName);
  setUniformItemSizes(true);
  setItemDelegate(new SideTextDelegate(this));
}

void SteadyList::LeaveRoomForSideTexts() {
  constexpr int UsualEntry = 36;  // Characters, with the side text.
  setMinimumWidth(UsualEntry * fontMetrics().averageCharWidth());
}

void SteadyList::SetHint(const QString& hint) {
  hint_ = hint;
  TellHint();
}

void SteadyList::reset() {
  QListWidget::reset();
  TellHint();
}

void SteadyList::rowsInserted(const QModelIndex& parent, int start, int end) {
  QListWidget::rowsInserted(parent, start, end);
  TellHint();
}

void SteadyList::TellHint() {
  setAccessibleDescription(count() == 0 ? hint_ : QString());
}

void SteadyList::paintEvent(QPaintEvent* event) {
  if (count() == 0) PaintHint(this, hint_);
  QListWidget::paintEvent(event);
}

QItemSelectionModel::SelectionFlags SteadyList::selectionCommand(const QModelIndex& index,
                                                                 const QEvent* event) const {
  const QItemSelectionModel::SelectionFlags command = QListWidget::selectionCommand(index, event);
  const bool last = selectedIndexes().size() == 1;
  return command.testFlag(QItemSelectionModel::Deselect) && last ? QItemSelectionModel::NoUpdate : command;
}

SteadyList* MakeList(const QString& objectName) {
  return new SteadyList(objectName);
}

void ShowChooser(QComboBox* combo, const ItemList& chooser) {
  const QStringList entries = Texts(chooser);
  bool same = combo->count() == entries.size();
  for (int i = 0; same && i < combo->count(); ++i) same = combo->itemText(i) == entries[i];
  if (!same) {
    combo->clear();
    combo->addItems(entries);
  }
  combo->setCurrentIndex(chooser.Picked);
}

void ShowEntries(QListWidget* list, const ItemList& chooser) {
  const QSignalBlocker quiet(list);
  const QStringList entries = Texts(chooser);
  bool same = list->count() == entries.size();
  for (int i = 0; same && i < list->count(); ++i) same = list->item(i)->text() == entries[i];
  if (!same) {
    list->clear();
    list->addItems(entries);
    list->keyboardSearch({});  // What is typed from now on begins a new search.
  }
}

void ShowList(QListWidget* list, const ItemList& chooser) {
  const QSignalBlocker quiet(list);
  ShowEntries(list, chooser);
  list->setCurrentRow(chooser.Picked);
}

int SelectedRow(const QListWidget* list) {
  const QList<QListWidgetItem*> selected = list->selectedItems();
  return selected.isEmpty() ? ItemList::None : list->row(selected.constFirst());
}

}  // namespace kickwell
