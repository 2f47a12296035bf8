#include "ui/widgets/section.h"

#include <QLineEdit>

#include "ui/widgets/choosers.h"
#include "ui/widgets/labels.h"

namespace kickwell {

Section::Section(const QString& title) : Box(new QGroupBox(title)), Form(new QFormLayout(Box)) {
  Form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
}

void Section::Add(const QString& caption, QWidget* control) {
  Form->addRow(MakeCaption(caption, control), control);
  // Captions are the same in several sections, so the section is part of the name.
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

}  // namespace kickwell
