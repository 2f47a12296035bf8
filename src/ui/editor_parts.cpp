#include "ui/editor_parts.h"

#include "ui/widgets.h"

namespace kickwell {

Section::Section(const QString& title) : Box(new QGroupBox(title)), Form(new QFormLayout(Box)) {
  Form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
}

void Section::Add(const QString& caption, QWidget* control) {
  Form->addRow(MakeCaption(caption, control), control);
}

QLineEdit* MakeTextBox(const QString& objectName, int length, std::string& text) {
  auto* const box = new QLineEdit;
  box->setObjectName(objectName);
  box->setMaxLength(length);
  QObject::connect(box, &QLineEdit::textEdited, box,
                   [&text](const QString& typed) { text = typed.toStdString(); });
  return box;
}

void ShowText(QLineEdit* box, const std::string& text) {
  if (box->text() != ToQt(text)) box->setText(ToQt(text));
}

}  // namespace kickwell
