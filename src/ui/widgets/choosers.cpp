#include "ui/widgets/choosers.h"

#include <QSignalBlocker>
#include <QStringList>

#include "ui/text.h"

namespace kickwell {
namespace {

QStringList Texts(const ItemList& chooser) {
  QStringList texts;
  texts.reserve(chooser.Count());
  for (const std::string& entry : chooser.Entries) texts.append(Shown(entry));
  return texts;
}

}  // namespace

QComboBox* MakeCombo(const QString& objectName) {
  constexpr int UsualName = 22;
  auto* const combo = new QComboBox;
  combo->setObjectName(objectName);
  combo->setMaxVisibleItems(20);
  combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  combo->setMinimumContentsLength(UsualName);
  return combo;
}

void Name(QComboBox* combo, const QString& name) {
  combo->setAccessibleName(name);
  combo->setAccessibleDescription(name);
}

QListWidget* MakeList(const QString& objectName) {
  auto* const list = new QListWidget;
  list->setObjectName(objectName);
  list->setUniformItemSizes(true);
  return list;
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

void ShowList(QListWidget* list, const ItemList& chooser) {
  const QSignalBlocker quiet(list);
  const QStringList entries = Texts(chooser);
  bool same = list->count() == entries.size();
  for (int i = 0; same && i < list->count(); ++i) same = list->item(i)->text() == entries[i];
  if (!same) {
    list->clear();
    list->addItems(entries);
  }
  list->setCurrentRow(chooser.Picked);
}

int SelectedRow(const QListWidget* list) {
  const QList<QListWidgetItem*> selected = list->selectedItems();
  return selected.isEmpty() ? ItemList::None : list->row(selected.constFirst());
}

}  // namespace kickwell
