#include "ui/widgets/section.h"

#include "ui/widgets/choosers.h"
#include "ui/widgets/enter_key.h"
#include "ui/widgets/labels.h"
#include "ui/widgets/scale.h"

namespace kickwell {

Section::Section(const QString& title) : QGroupBox(title), form_(new QFormLayout(this)) {
  form_->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  form_->setContentsMargins(BetweenGroups, BetweenGroups, BetweenGroups, BetweenGroups);
  form_->setHorizontalSpacing(BetweenColumns);
  form_->setVerticalSpacing(InGroup);
}

void Section::Add(const QString& caption, QWidget* control) {
  captions_.append(MakeCaption(caption, control));
  form_->addRow(captions_.last(), control);
  // Captions are the same in several sections, so the section is part of the name.
  const QString name = title() + ", " + control->accessibleName();
  control->setAccessibleName(name);
  if (auto* const combo = qobject_cast<QComboBox*>(control)) Name(combo, name);
}

void Section::Add(const QString& caption, TextBox* box) {
  Add(caption, static_cast<QWidget*>(box));
  form_->addRow(nullptr, box->CutLine());
}

void Section::AddFigure(const QString& caption, QLabel* figure) {
  form_->addRow(MakeFigureCaption(caption, figure), figure);
}

void Section::AddWide(QWidget* widget) {
  form_->addRow(widget);
}

void Section::AddButton(QPushButton* button) {
  button_ = button;
  auto* const row = new QHBoxLayout;
  row->addStretch();
  row->addWidget(button);
  form_->addRow(row);
}

bool Section::event(QEvent* event) {
  if (!IsEnterPress(*event)) return QGroupBox::event(event);
  // A group box without a button leaves Enter to the window; QGroupBox would keep it on some desktops.
  // NOLINTNEXTLINE(bugprone-parent-virtual-call)
  if (button_ == nullptr) return QWidget::event(event);
  button_->click();
  return true;
}

}  // namespace kickwell
