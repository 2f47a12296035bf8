#include "ui/widgets.h"

#include <QSignalBlocker>
#include <QStringList>

#include "ui/text_label.h"

namespace kickwell {
namespace {

QStringList Texts(const Chooser& chooser) {
  QStringList texts;
  texts.reserve(chooser.Count());
  for (const std::string& entry : chooser.Entries) texts.append(ToQt(entry));
  return texts;
}

}  // namespace

QString ArrayName(const char* name, int index) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

QLabel* MakeText(const QString& objectName, const QString& text, Qt::Alignment alignment) {
  auto* const label = new TextLabel(text);
  label->setObjectName(objectName);
  label->setAlignment(alignment | Qt::AlignVCenter);
  return label;
}

QLabel* MakeHeading(const QString& objectName) {
  QLabel* const heading = MakeText(objectName, {}, Qt::AlignHCenter);
  QFont large = heading->font();
  large.setBold(true);
  large.setPointSizeF(large.pointSizeF() * 1.5);
  heading->setFont(large);
  return heading;
}

QLabel* MakeCaption(const QString& text) {
  return new QLabel(text);
}

QLabel* MakeCaption(const QString& text, QWidget* buddy) {
  QLabel* const caption = MakeCaption(text);
  QFont bold = caption->font();
  bold.setBold(true);
  caption->setFont(bold);
  caption->setBuddy(buddy);
  // Lists do not take their name from the caption by themselves.
  QString name = text;
  if (buddy != nullptr) buddy->setAccessibleName(name.remove('&').remove(':'));
  return caption;
}

QComboBox* MakeCombo(const QString& objectName) {
  constexpr int UsualName = 22;
  auto* const combo = new QComboBox;
  combo->setObjectName(objectName);
  combo->setMaxVisibleItems(20);
  combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  combo->setMinimumContentsLength(UsualName);
  return combo;
}

QPushButton* MakeButton(const QString& objectName, const QString& caption) {
  auto* const button = new QPushButton(caption);
  button->setObjectName(objectName);
  return button;
}

QListWidget* MakeList(const QString& objectName) {
  auto* const list = new QListWidget;
  list->setObjectName(objectName);
  list->setUniformItemSizes(true);
  return list;
}

void ShowChooser(QComboBox* combo, const Chooser& chooser) {
  const QStringList entries = Texts(chooser);
  bool same = combo->count() == entries.size();
  for (int i = 0; same && i < combo->count(); ++i) same = combo->itemText(i) == entries[i];
  if (!same) {
    combo->clear();
    combo->addItems(entries);
  }
  combo->setCurrentIndex(chooser.Picked);
}

void ShowList(QListWidget* list, const Chooser& chooser) {
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
  return selected.isEmpty() ? Chooser::None : list->row(selected.constFirst());
}

void ShowLines(QListWidget* list, const Chooser& lines) {
  for (int i = list->count(); i < lines.Count(); ++i)
    list->addItem(ToQt(lines.Entries[static_cast<std::size_t>(i)]));
  if (list->currentRow() != lines.Picked) list->setCurrentRow(lines.Picked);
}

int Twips(const QWidget* widget, int twips) {
  return twips * widget->logicalDpiX() / 1440;
}

}  // namespace kickwell
