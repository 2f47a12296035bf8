#include "ui/windows/editor_parts.h"

#include <algorithm>

#include "ui/widgets/widgets.h"

namespace kickwell {
namespace {

QString Cut(QString text, int length) {
  for (QChar& c : text) {
    const bool breaks =
        c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
    if (breaks) c = ' ';
  }
  const QList<uint> characters = text.toUcs4();
  if (characters.size() <= length) return text;
  return QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()), length);
}

}  // namespace

Section::Section(const QString& title) : Box(new QGroupBox(title)), Form(new QFormLayout(Box)) {
  Form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
}

void Section::Add(const QString& caption, QWidget* control) {
  Form->addRow(MakeCaption(caption, control), control);
  // The sections have fields of the same captions.
  const QString name = Box->title() + ", " + control->accessibleName();
  control->setAccessibleName(name);
  if (auto* const combo = qobject_cast<QComboBox*>(control)) Name(combo, name);
}

void Section::AddButton(QPushButton* button) {
  for (const QLineEdit* const box : Box->findChildren<QLineEdit*>()) {
    QObject::connect(box, &QLineEdit::returnPressed, button, &QPushButton::click);
  }
  Form->addRow(button);
}

QLineEdit* MakeTextBox(const QString& objectName, int length, std::string& text) {
  auto* const box = new QLineEdit;
  box->setObjectName(objectName);
  QObject::connect(box, &QLineEdit::textEdited, box, [box, length, &text](const QString& typed) {
    const QString kept = Cut(typed, length);
    if (kept != typed) {
      const int cursor = box->cursorPosition();
      box->setText(kept);
      box->setCursorPosition(std::min(cursor, static_cast<int>(kept.size())));
    }
    text = kept.toStdString();
  });
  return box;
}

void ShowText(QLineEdit* box, const std::string& text) {
  if (box->text() != ToQt(text)) box->setText(ToQt(text));
}

}  // namespace kickwell
