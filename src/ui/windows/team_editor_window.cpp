#include "ui/windows/team_editor_window.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <utility>

#include "ui/text.h"
#include "ui/widgets/accessible.h"
#include "ui/widgets/choosers.h"
#include "ui/widgets/labels.h"
#include "ui/widgets/scale.h"
#include "ui/widgets/section.h"

namespace kickwell {
namespace {

constexpr int LongestTeamName = 16, LongestPlayerName = 25, LongestSkill = 2;

const char* const Warning =
    "Before deleting any team from the existing list of teams, please make sure that the team doesn't appear "
    "on any of the existing leagues otherwise all the data will become corrupted and unexpected bugs may "
    "creep in. Please be very careful.";

/// Lets the codes that `combo` offers explain themselves.
void ExplainCodes(QComboBox* combo) {
  QStringList all;
  for (int i = 0; i < combo->count(); ++i) {
    const QString code = combo->itemText(i);
    const QString words = PositionWords(code.toStdString());
    combo->setItemData(i, words, Qt::ToolTipRole);
    combo->setItemData(i, code + ", " + words, Qt::AccessibleTextRole);
    all.append(code + ": " + words);
  }
  combo->setToolTip(all.join("\n"));
}

QFormLayout* Figures() {
  auto* const form = new QFormLayout;
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  form->setHorizontalSpacing(BetweenColumns);
  form->setVerticalSpacing(InGroup);
  return form;
}

}  // namespace

TeamEditorWindow::TeamEditorWindow(TeamEditor& editor, QWidget* parent)
    : ScreenWindow("TeamEditor", "Kickwell Team/Player Editor", parent),
      editor_(editor),
      combo1_(Combo("Combo1", &TeamEditor::Combo1_Click)),
      combo2_(Combo("Combo2", &TeamEditor::Combo2_Click)),
      combo3_(Combo("Combo3", &TeamEditor::Combo3_Click)),
      label13_(MakeText("Label13", {})),
      label14_(MakeText("Label14", {})),
      label4_(MakeText("Label4", {})),
      label5_(MakeText("Label5", {})),
      list1_(new SquadList("List1")),
      text1_(new TextBox("Text1", LongestTeamName, editor.Text1)),
      text2_(new TextBox("Text2", LongestPlayerName, editor.Text2)),
      text4_(new TextBox("Text4", LongestSkill, editor.Text4)),
      text5_(new TextBox("Text5", LongestSkill, editor.Text5)) {
  connect(list1_, &QListWidget::itemSelectionChanged, this,
          [this] { Act([this] { editor_.List1_Click(SelectedRow(list1_)); }); });
  combo1_->installEventFilter(this);
  auto* const columns = new QHBoxLayout;
  columns->setSpacing(BetweenColumns);
  columns->addLayout(BuildSquad(), 1);
  columns->addLayout(BuildChanges(), 1);
  Page()->addLayout(columns, 1);
  SetButtons({.Right = {Button("Command4", "E&xit Kickwell Team/Player Editor",
                               [this] { editor_.Command4_Click(); })}});
  Refresh();
  ExplainCodes(combo1_);
  ExplainCodes(combo2_);
  OpenAt(820, 620);
}

QComboBox* TeamEditorWindow::Combo(const char* name, void (TeamEditor::*action)(int)) {
  QComboBox* const combo = MakeCombo(name);
  OnPick(combo, [this, action](int entry) { (editor_.*action)(entry); });
  return combo;
}

QLayout* TeamEditorWindow::BuildSquad() {
  const QList<QLabel*> captions{
      MakeCaption("Team Name:", combo3_), MakeFigureCaption("Team Skill:", label13_),
      MakeFigureCaption("No. of Players:", label14_), MakeFigureCaption("Player Skill:", label4_),
      MakeFigureCaption("Position:", label5_)};
  AlignCaptions(captions);
  QFormLayout* const team = Figures();
  team->addRow(captions[0], combo3_);
  team->addRow(captions[1], label13_);
  team->addRow(captions[2], label14_);
  QFormLayout* const player = Figures();
  player->addRow(captions[3], label4_);
  player->addRow(captions[4], label5_);

  auto* const moves = new QVBoxLayout;
  moves->setSpacing(InGroup);
  moves->addWidget(ArrowButton("Command1", QStyle::SP_ArrowUp, "Move the player up",
                               [this] { editor_.Command1_Click(); }));
  moves->addWidget(ArrowButton("Command2", QStyle::SP_ArrowDown, "Move the player down",
                               [this] { editor_.Command2_Click(); }));
  moves->addStretch();
  auto* const squad = new QHBoxLayout;
  squad->setSpacing(InGroup);
  squad->addWidget(list1_, 1);
  squad->addLayout(moves);

  auto* const remove = new Section("Remove Players");
  remove->AddButton(Button("Command6", "Delete &Player", [this] { editor_.Command6_Click(); }));
  auto* const layout = new QVBoxLayout;
  layout->setSpacing(BetweenGroups);
  layout->addLayout(team);
  layout->addLayout(squad, 1);
  layout->addLayout(player);
  layout->addWidget(remove);
  return layout;
}

QLayout* TeamEditorWindow::BuildChanges() {
  auto* const players = new Section("Add Players");
  players->Add("Name:", text2_);
  players->Add("Skill (1 - 99):", text4_);
  players->Add("Field Position:", combo1_);
  players->Add("Side:", combo2_);
  players->AddButton(Button("Command8", "&Add Player", [this] { editor_.Command8_Click(); }));
  auto* const teams = new Section("Add Team");
  teams->Add("Team Name:", text1_);
  teams->Add("Skill (1 - 99):", text5_);
  teams->AddButton(Button("Command7", "Add &Team", [this] { editor_.Command7_Click(); }));
  AlignCaptions(players->Captions() + teams->Captions());
  auto* const layout = new QVBoxLayout;
  layout->setSpacing(BetweenGroups);
  layout->addWidget(players);
  layout->addWidget(teams);
  layout->addWidget(BuildTeamRemoval());
  layout->addStretch();
  return layout;
}

QWidget* TeamEditorWindow::BuildTeamRemoval() {
  auto* const remove = new Section("Remove Team");
  QLabel* const label22 = MakeCaption("Warning Note", nullptr);
  label22->setObjectName("Label22");
  QLabel* const label23 = MakeCaption(Warning);
  label23->setObjectName("Label23");
  label23->setWordWrap(true);
  remove->AddWide(label22);
  remove->AddWide(label23);
  remove->AddButton(Button("Command5", "&Delete Team", [this] { editor_.Command5_Click(); }));
  return remove;
}

bool TeamEditorWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == combo1_ && event->type() == QEvent::KeyPress) {
    // A player's side can be typed behind his line, for example "mr": no line begins with such a letter.
    const int side = combo2_->findText(static_cast<QKeyEvent*>(event)->text(), Qt::MatchFixedString);
    if (side != ItemList::None) {
      Act([this, side] { editor_.Combo2_Click(side); });
      return true;
    }
  }
  return ScreenWindow::eventFilter(watched, event);
}

void TeamEditorWindow::Refresh() {
  ShowChooser(combo1_, editor_.Combo1);
  ShowChooser(combo2_, editor_.Combo2);
  ShowChooser(combo3_, editor_.Combo3);
  list1_->ShowSquad(editor_.List1, editor_.Players());
  label13_->setText(Shown(editor_.Label13()));
  label14_->setText(Shown(editor_.Label14()));
  label4_->setText(Shown(editor_.Label4()));
  label5_->setText(Shown(editor_.Label5()));
  label5_->setToolTip(PositionWords(editor_.Label5()));
  SetDescription(label5_, label5_->toolTip());
  for (TextBox* const box : {text1_, text2_, text4_, text5_}) box->ShowText();
  GoTo(std::exchange(editor_.Next, {}));
}

}  // namespace kickwell
