#include "ui/widgets.h"

#include "ui/text_label.h"

namespace kickwell {

QString ArrayName(const char* name, int index) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

QLabel* MakeText(const QString& objectName, const QString& text, Qt::Alignment alignment) {
  auto* const label = new TextLabel(text);
  label->setObjectName(objectName);
  label->setAlignment(alignment | Qt::AlignVCenter);
  return label;
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

void ShowChooser(QComboBox* combo, const Chooser& chooser) {
  if (combo->count() != chooser.Count()) {
    combo->clear();
    QStringList entries;
    for (const std::string& entry : chooser.Entries) entries.append(ToQt(entry));
    combo->addItems(entries);
  }
  combo->setCurrentIndex(chooser.Picked);
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
