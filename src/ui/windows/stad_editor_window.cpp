#include "ui/windows/stad_editor_window.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>

#include "base/at.h"
#include "ui/text.h"
#include "ui/widgets/choosers.h"
#include "ui/widgets/labels.h"
#include "ui/widgets/scale.h"
#include "ui/widgets/section.h"
#include "ui/widgets/text_box.h"
#include "ui/widgets/text_label.h"

namespace kickwell {
namespace {

constexpr int LongestName = 25, LongestCity = 10, LongestCapacity = 5;

const char* const Removing =
    "To Remove an existing stadium, select the stadium from the list and click on Remove Stadium button. ";
const char* const Adding =
    "To add a new stadium to the list, write the Stadium Name, City or Country of its existence and Crowd "
    "Capacity "
    "and then click on Add Stadium button. Remember that each and every field is compulsory and the Capacity "
    "field "
    "will only accept numerical values.";

QLabel* Instruction(QAnyStringView name, const QString& text) {
  QLabel* const label = MakeCaption(text);
  label->setObjectName(name);
  label->setWordWrap(true);
  return label;
}

}  // namespace

StadEditorWindow::StadEditorWindow(StadEditor& editor, QWidget* parent)
    : ScreenWindow("StadEditor", "Kickwell Stadium Editor", parent),
      editor_(editor),
      list1_(MakeList("List1")),
      label8_(MakeText("Label8", {})),
      text1_(MakeTextBox("Text1", LongestName, editor.Text1)),
      text2_(MakeTextBox("Text2", LongestCity, editor.Text2)),
      text3_(MakeTextBox("Text3", LongestCapacity, editor.Text3)),
      combo1_(MakeCombo("Combo1")) {
  list1_->setAccessibleName("Stadiums");
  connect(list1_, &QListWidget::itemSelectionChanged, this,
          [this] { Act([this] { editor_.List1_Click(SelectedRow(list1_)); }); });
  OnPick(combo1_, [this](int entry) { editor_.Combo1_Click(entry); });
  auto* const instructions = new QGroupBox("Instructions");
  auto* const texts = new QVBoxLayout(instructions);
  texts->addWidget(Instruction("Label9", Removing));
  texts->addWidget(Instruction("Label10", Adding));
  auto* const right = new QVBoxLayout;
  right->setSpacing(BetweenGroups);
  right->addWidget(BuildAddition());
  right->addWidget(instructions);
  right->addStretch();
  auto* const columns = new QHBoxLayout;
  columns->setSpacing(BetweenColumns);
  columns->addWidget(BuildRemoval(), 1);
  columns->addLayout(right, 1);
  Page()->addLayout(columns, 1);
  SetButtons(
      {.Right = {Button("Command3", "E&xit Kickwell Stadium Editor", [this] { editor_.Command3_Click(); })}});
  Refresh();
  OpenAt(760, 460);
}

QWidget* StadEditorWindow::BuildRemoval() {
  auto* const box = new QGroupBox("Remove Stadiums");
  auto* const total = new QHBoxLayout;
  total->addWidget(MakeFigureCaption("Total number of stadiums:", label8_));
  total->addWidget(label8_);
  total->addStretch();
  auto* const layout = new QVBoxLayout(box);
  layout->addWidget(list1_, 1);
  layout->addLayout(total);
  layout->addWidget(Button("Command1", "&Remove Stadium", [this] { editor_.Command1_Click(); }), 0,
                    Qt::AlignLeft);
  return box;
}

QWidget* StadEditorWindow::BuildAddition() {
  Section add("Add Stadiums");
  add.Add("Name:", text1_);
  add.Add("City/Country:", text2_);
  add.Add("Capacity:", text3_);
  add.Add("Home To:", combo1_);
  add.AddButton(Button("Command2", "&Add Stadium", [this] { editor_.Command2_Click(); }));
  return add.Box;
}

void StadEditorWindow::Refresh() {
  ShowList(list1_, editor_.List1);
  for (int i = 0; i < list1_->count(); ++i) {
    const Stadium& stadium = At(editor_.Stadiums(), i);
    const QString whole =
        Shown(stadium.Name + ", " + stadium.City + " (" + stadium.Capacity + "), " + stadium.HomeTeam);
    list1_->item(i)->setToolTip(PlainTip(whole));
    list1_->item(i)->setData(Qt::AccessibleTextRole, whole);
  }
  label8_->setText(Shown(editor_.Label8()));
  ShowText(text1_, editor_.Text1);
  ShowText(text2_, editor_.Text2);
  ShowText(text3_, editor_.Text3);
  ShowChooser(combo1_, editor_.Combo1);
}

}  // namespace kickwell
