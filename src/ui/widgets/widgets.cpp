#include "ui/widgets/widgets.h"

#include <QFontInfo>
#include <QSignalBlocker>
#include <QStringList>

#include "ui/widgets/accessible.h"
#include "ui/widgets/text_label.h"

namespace kickwell {
namespace {

QStringList Texts(const ItemList& chooser) {
  QStringList texts;
  texts.reserve(chooser.Count());
  for (const std::string& entry : chooser.Entries) texts.append(Shown(entry));
  return texts;
}

/// What opens a run of another direction, or ends one that the text around it has opened.
bool TurnsText(QChar c) {
  return (c >= QChar(0x202A) && c <= QChar(0x202E)) || (c >= QChar(0x2066) && c <= QChar(0x2069));
}

}  // namespace

QString Shown(std::string_view text) {
  QString shown = ToQt(text);
  for (QChar& c : shown) {
    if (c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator) {
      c = ' ';
    } else if (TurnsText(c)) {
      c = QChar::ReplacementCharacter;
    }
  }
  return shown;
}

QString ArrayName(const char* name, int index) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

QLabel* MakeText(const QString& objectName, const QString& text, Qt::Alignment alignment) {
  auto* const label = new TextLabel(text);
  label->setObjectName(objectName);
  label->setAlignment(alignment | Qt::AlignVCenter);
  return label;
}

QLabel* Enlarged(QLabel* label, qreal factor) {
  QFont font = label->font();
  font.setPointSizeF(QFontInfo(font).pointSizeF() * factor);
  font.setBold(true);
  label->setFont(font);
  return label;
}

QLabel* MakeHeading(const QString& objectName) {
  QLabel* const heading = MakeText(objectName, {}, Qt::AlignHCenter);
  return Enlarged(heading, 1.5);
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

QLabel* MakeFigureCaption(const QString& text, QLabel* figure) {
  SetFigureCaption(figure, QString(text).remove(':'));
  return MakeCaption(text);
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

void Name(QComboBox* combo, const QString& name) {
  combo->setAccessibleName(name);
  combo->setAccessibleDescription(name);
}

QPushButton* MakeButton(const QString& objectName, const QString& caption) {
  auto* const button = new QPushButton(caption);
  button->setObjectName(objectName);
  if (caption.contains('<') || caption.contains('>') || caption.count('&') > 1) {
    QString name = caption;
    button->setAccessibleName(name.remove('&').remove('<').remove('>').trimmed());
  }
  return button;
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

void ShowLines(QListWidget* list, const ItemList& lines) {
  for (int i = list->count(); i < lines.Count(); ++i)
    list->addItem(Shown(lines.Entries[static_cast<std::size_t>(i)]));
  if (list->currentRow() != lines.Picked) list->setCurrentRow(lines.Picked);
}

QColor FaintText(const QPalette& palette) {
  constexpr qreal Strength = 0.7;
  const QColor text = palette.color(QPalette::Text);
  const QColor ground = palette.color(QPalette::Base);
  const auto mix = [](float of, float with) { return of * float(Strength) + with * float(1 - Strength); };
  return QColor::fromRgbF(mix(text.redF(), ground.redF()), mix(text.greenF(), ground.greenF()),
                          mix(text.blueF(), ground.blueF()));
}

int Twips(const QWidget* widget, int twips) {
  return twips * widget->logicalDpiX() / 1440;
}

}  // namespace kickwell
