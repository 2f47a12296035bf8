#include "ui/windows/team_editor_window.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>

#include "ui/text.h"
#include "ui/widgets/choosers.h"
#include "ui/widgets/labels.h"
#include "ui/widgets/scale.h"
#include "ui/widgets/section.h"
#include "ui/widgets/text_box.h"

namespace kickwell {
namespace {

constexpr int LongestTeamName = 16, LongestPlayerName = 25, LongestSkill = 2;

const char* const Warning =
    "Before deleting any team from the existing list of teams, please make sure that the team doesn't appear "
    "on any "
    "of the existing leagues otherwise all the data will become corrupted and unexpected bugs may creep in. "
    "Please "
    "be very careful.";

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
      list1_(MakeList("List1")),
      text1_(MakeTextBox("Text1", LongestTeamName, editor.Text1)),
      text2_(MakeTextBox("Text2", LongestPlayerName, editor.Text2)),
      text4_(MakeTextBox("Text4", LongestSkill, editor.Text4)),
      text5_(MakeTextBox("Text5", LongestSkill, editor.Text5)) {
  list1_->setAccessibleName("Players");
  connect(list1_, &QListWidget::itemSelectionChanged, this,
          [this] { Act([this] { editor_.List1_Click(SelectedRow(list1_)); }); });
  auto* const columns = new QHBoxLayout;
  columns->setSpacing(BetweenColumns);
  columns->addLayout(BuildSquad(), 1);
  columns->addLayout(BuildChanges(), 1);
  Page()->addLayout(columns, 1);
  SetButtons({.Right = {Button("Command4", "E&xit Kickwell Team/Player Editor",
                               [this] { editor_.Command4_Click(); })}});
  Refresh();
  OpenAt(820, 620);
}

QComboBox* TeamEditorWindow::Combo(const char* name, void (TeamEditor::*action)(int)) {
  QComboBox* const combo = MakeCombo(name);
  OnPick(combo, [this, action](int entry) { (editor_.*action)(entry); });
  return combo;
}

QLayout* TeamEditorWindow::BuildSquad() {
  auto* const team = new QFormLayout;
  team->addRow(MakeCaption("Team Name:", combo3_), combo3_);
  team->addRow(MakeFigureCaption("Team Skill:", label13_), label13_);
  team->addRow(MakeFigureCaption("No. of Players:", label14_), label14_);
  auto* const player = new QFormLayout;
  player->addRow(MakeFigureCaption("Player Skill:", label4_), label4_);
  player->addRow(MakeFigureCaption("Position:", label5_), label5_);

  auto* const moves = new QVBoxLayout;
  moves->addWidget(ArrowButton("Command1", QStyle::SP_ArrowUp, "Move the player up",
                               [this] { editor_.Command1_Click(); }));
  moves->addWidget(ArrowButton("Command2", QStyle::SP_ArrowDown, "Move the player down",
                               [this] { editor_.Command2_Click(); }));
  moves->addStretch();
  auto* const squad = new QHBoxLayout;
  squad->addWidget(list1_, 1);
  squad->addLayout(moves);

  Section remove("Remove Players");
  remove.Form->addRow(Button("Command6", "Delete &Player", [this] { editor_.Command6_Click(); }));
  auto* const layout = new QVBoxLayout;
  layout->setSpacing(BetweenGroups);
  layout->addLayout(team);
  layout->addLayout(squad, 1);
  layout->addLayout(player);
  layout->addWidget(remove.Box);
  return layout;
}

QLayout* TeamEditorWindow::BuildChanges() {
  Section players("Add Players");
  players.Add("Name:", text2_);
  players.Add("Skill (1 - 99):", text4_);
  players.Add("Field Position:", combo1_);
  players.Add("Side:", combo2_);
  players.AddButton(Button("Command8", "&Add Player", [this] { editor_.Command8_Click(); }));
  Section teams("Add Team");
  teams.Add("Team Name:", text1_);
  teams.Add("Skill (1 - 99):", text5_);
  teams.AddButton(Button("Command7", "Add &Team", [this] { editor_.Command7_Click(); }));
  auto* const layout = new QVBoxLayout;
  layout->setSpacing(BetweenGroups);
  layout->addWidget(players.Box);
  layout->addWidget(teams.Box);
  layout->addWidget(BuildTeamRemoval());
  layout->addStretch();
  return layout;
}

QWidget* TeamEditorWindow::BuildTeamRemoval() {
  Section remove("Remove Team");
  QLabel* const label22 = MakeCaption("Warning Note", nullptr);
  label22->setObjectName("Label22");
  QLabel* const label23 = MakeCaption(Warning);
  label23->setObjectName("Label23");
  label23->setWordWrap(true);
  remove.Form->addRow(label22);
  remove.Form->addRow(label23);
  remove.Form->addRow(Button("Command5", "&Delete Team", [this] { editor_.Command5_Click(); }));
  return remove.Box;
}

void TeamEditorWindow::Refresh() {
  ShowChooser(combo1_, editor_.Combo1);
  ShowChooser(combo2_, editor_.Combo2);
  ShowChooser(combo3_, editor_.Combo3);
  ShowList(list1_, editor_.List1);
  label13_->setText(Shown(editor_.Label13()));
  label14_->setText(Shown(editor_.Label14()));
  label4_->setText(Shown(editor_.Label4()));
  label5_->setText(Shown(editor_.Label5()));
  ShowText(text1_, editor_.Text1);
  ShowText(text2_, editor_.Text2);
  ShowText(text4_, editor_.Text4);
  ShowText(text5_, editor_.Text5);
}

}  // namespace kickwell
