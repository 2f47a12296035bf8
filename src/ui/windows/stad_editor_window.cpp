#include "ui/windows/stad_editor_window.h"

#include <QHBoxLayout>
#include <utility>

#include "base/at.h"
#include "ui/text.h"
#include "ui/widgets/choosers.h"
#include "ui/widgets/labels.h"
#include "ui/widgets/scale.h"
#include "ui/widgets/section.h"
#include "ui/widgets/side_text.h"
#include "ui/widgets/text_label.h"

namespace kickwell {
namespace {

constexpr int LongestName = 25, LongestCity = 10, LongestCapacity = 5;

const char* const Removing =
    "To Remove an existing stadium, select the stadium from the list and click on Remove Stadium button. ";
const char* const Adding =
    "To add a new stadium to the list, write the Stadium Name, City or Country of its existence and Crowd "
    "Capacity and then click on Add Stadium button. Remember that each and every field is compulsory and the "
    "Capacity field will only accept numerical values.";

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
      text1_(new TextBox("Text1", LongestName, editor.Text1)),
      text2_(new TextBox("Text2", LongestCity, editor.Text2)),
      text3_(new TextBox("Text3", LongestCapacity, editor.Text3)),
      combo1_(MakeCombo("Combo1")) {
  list1_->setAccessibleName("Stadiums");
  list1_->LeaveRoomForSideTexts();
  connect(list1_, &QListWidget::itemSelectionChanged, this,
          [this] { Act([this] { editor_.List1_Click(SelectedRow(list1_)); }); });
  OnPick(combo1_, [this](int entry) { editor_.Combo1_Click(entry); });
  auto* const right = new QVBoxLayout;
  right->setSpacing(BetweenGroups);
  right->addWidget(BuildAddition());
  right->addWidget(BuildInstructions());
  right->addStretch();
  auto* const columns = new QHBoxLayout;
  columns->setSpacing(BetweenColumns);
  columns->addWidget(BuildRemoval(), 1);
  columns->addLayout(right, 1);
  Page()->addLayout(columns, 1);
  SetButtons(
      {.Right = {Button("Command3", "E&xit Kickwell Stadium Editor", [this] { editor_.Command3_Click(); })}});
  Refresh();
  OpenAt(820, 500);
}

QWidget* StadEditorWindow::BuildRemoval() {
  auto* const remove = new Section("Remove Stadiums");
  remove->AddWide(list1_);
  remove->AddFigure("Total number of stadiums:", label8_);
  remove->AddButton(Button("Command1", "&Remove Stadium", [this] { editor_.Command1_Click(); }));
  return remove;
}

QWidget* StadEditorWindow::BuildAddition() {
  auto* const add = new Section("Add Stadiums");
  add->Add("Name:", text1_);
  add->Add("City/Country:", text2_);
  add->Add("Capacity:", text3_);
  add->Add("Home To:", combo1_);
  add->AddButton(Button("Command2", "&Add Stadium", [this] { editor_.Command2_Click(); }));
  return add;
}

QWidget* StadEditorWindow::BuildInstructions() {
  auto* const instructions = new Section("Instructions");
  instructions->AddWide(Instruction("Label9", Removing));
  instructions->AddWide(Instruction("Label10", Adding));
  return instructions;
}

void StadEditorWindow::Refresh() {
  ShowList(list1_, editor_.List1);
  for (int i = 0; i < list1_->count(); ++i) {
    const Stadium& stadium = At(editor_.Stadiums(), i);
    const QString whole =
        Shown(stadium.Name + ", " + stadium.City + " (" + stadium.Capacity + "), " + stadium.HomeTeam);
    list1_->item(i)->setData(SideTextRole, Shown(stadium.City));
    list1_->item(i)->setToolTip(PlainTip(whole));
    list1_->item(i)->setData(Qt::AccessibleTextRole, whole);
  }
  label8_->setText(Shown(editor_.Label8()));
  for (TextBox* const box : {text1_, text2_, text3_}) box->ShowText();
  ShowChooser(combo1_, editor_.Combo1);
  GoTo(std::exchange(editor_.Next, {}));
}

}  // namespace kickwell
