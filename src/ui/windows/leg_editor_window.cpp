#include "ui/windows/leg_editor_window.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <utility>

#include "ui/widgets/choosers.h"
#include "ui/widgets/labels.h"
#include "ui/widgets/scale.h"
#include "ui/widgets/text_box.h"

namespace kickwell {
namespace {

constexpr int LongestName = 20;

bool IsLeague(const EditorSide& side) {
  return side.Kind == ChampionshipKind::League;
}

QFrame* Line() {
  auto* const line = new QFrame;
  line->setFrameShape(QFrame::HLine);
  line->setFrameShadow(QFrame::Sunken);
  return line;
}

}  // namespace

LegEditorWindow::LegEditorWindow(LegEditor& editor, QWidget* parent)
    : ScreenWindow("LegEditor", "Kickwell Championship Editor", parent),
      editor_(editor),
      kind_(MakeCombo("Kind")) {
  auto* const kind = new QHBoxLayout;
  kind->addWidget(MakeCaption("Type of Competition / Championship:", kind_));
  kind->addWidget(kind_);
  kind->addStretch();
  OnPick(kind_, [this](int entry) { editor_.Kind_Click(entry); });

  Page()->addLayout(kind);
  Page()->addWidget(BuildSide(league_, editor.League), 1);
  Page()->addWidget(BuildSide(knockOut_, editor.KnockOut), 1);
  SetButtons(
      {.Right = {Button("Exit", "E&xit Kickwell Championship Editor", [this] { editor_.Exit_Click(); })}});
  Refresh();
  OpenAt(900, 640);
}

void LegEditorWindow::OnSelect(QListWidget* list, ItemList& chooser) {
  connect(list, &QListWidget::itemSelectionChanged, this,
          [list, &chooser] { chooser.Picked = SelectedRow(list); });
}

QWidget* LegEditorWindow::BuildSide(SideWidgets& widgets, EditorSide& side) {
  const QString prefix = IsLeague(side) ? "League" : "KnockOut";
  widgets.Page = new QWidget;
  widgets.Page->setObjectName(prefix);
  widgets.Name = MakeTextBox(prefix + "Name", LongestName, side.Name);
  widgets.Name->setMinimumWidth(widgets.Name->fontMetrics().horizontalAdvance(QString(LongestName, 'M')));

  QLabel* const heading =
      Enlarged(MakeCaption(IsLeague(side) ? "League Details" : "Tournie Details"), HeadingType);
  auto* const name = new QHBoxLayout;
  name->addWidget(MakeCaption("Championship"));
  name->addSpacing(BetweenColumns);
  name->addWidget(MakeCaption(IsLeague(side) ? "League:" : "Knock Out:", widgets.Name));
  widgets.Name->setAccessibleName(IsLeague(side) ? "Championship League" : "Championship Knock Out");
  name->addWidget(widgets.Name);
  name->addStretch();

  auto* const columns = new QHBoxLayout;
  columns->setSpacing(BetweenColumns);
  columns->addLayout(BuildTeams(widgets, side, prefix), 1);
  columns->addLayout(BuildFixtures(widgets, side, prefix), 1);
  auto* const layout = new QVBoxLayout(widgets.Page);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(heading);
  layout->addLayout(name);
  layout->addLayout(columns, 1);
  layout->addWidget(Line());
  layout->addLayout(BuildFiles(widgets, side, prefix));
  layout->addWidget(Line());
  return widgets.Page;
}

QLayout* LegEditorWindow::BuildTeams(SideWidgets& widgets, EditorSide& side, const QString& prefix) {
  widgets.Available = MakeList(prefix + "Available");
  widgets.Selected = MakeList(prefix + "Selected");
  widgets.Selected->setAccessibleName("Selected teams");
  OnSelect(widgets.Available, side.Available);
  OnSelect(widgets.Selected, side.Selected);
  auto* const moves = new QVBoxLayout;
  moves->addStretch();
  moves->addWidget(ArrowButton(prefix + "AddTeam", QStyle::SP_ArrowRight, "Add the team",
                               [&side] { LegEditor::AddTeam_Click(side); }));
  moves->addWidget(ArrowButton(prefix + "RemoveTeam", QStyle::SP_ArrowLeft, "Remove the team",
                               [&side] { LegEditor::RemoveTeam_Click(side); }));
  moves->addStretch();

  auto* const grid = new QGridLayout;
  grid->addWidget(MakeCaption("Select Teams:", widgets.Available), 0, 0);
  grid->addWidget(widgets.Available, 1, 0);
  grid->addLayout(moves, 1, 1);
  grid->addWidget(widgets.Selected, 1, 2);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(2, 1);

  auto* const counts = new QGridLayout;
  widgets.TeamCount = MakeText(prefix + "TeamCount", "0");
  widgets.MatchCount = MakeText(prefix + "MatchCount", "0");
  int row = 0;
  if (!IsLeague(side)) {
    widgets.NumberOfTeams = MakeText("NumberOfTeams", "2");
    counts->addWidget(MakeFigureCaption("Total number of teams:", widgets.NumberOfTeams), row, 0);
    counts->addWidget(widgets.NumberOfTeams, row, 1);
    counts->addWidget(
        ArrowButton("MoreTeams", QStyle::SP_ArrowUp, "More teams", [this] { editor_.MoreTeams_Click(); }),
        row, 2);
    counts->addWidget(ArrowButton("FewerTeams", QStyle::SP_ArrowDown, "Fewer teams",
                                  [this] { editor_.FewerTeams_Click(); }),
                      row++, 3);
  }
  counts->addWidget(
      MakeFigureCaption(IsLeague(side) ? "Total teams in the League:" : "Total teams currently selected:",
                        widgets.TeamCount),
      row, 0);
  counts->addWidget(widgets.TeamCount, row++, 1);
  counts->addWidget(
      MakeFigureCaption(IsLeague(side) ? "Total matches in the League:" : "Total number of matches:",
                        widgets.MatchCount),
      row, 0);
  counts->addWidget(widgets.MatchCount, row, 1);
  counts->setColumnStretch(4, 1);
  grid->addLayout(counts, 2, 0, 1, 3);
  return grid;
}

QLayout* LegEditorWindow::BuildFixtures(SideWidgets& widgets, EditorSide& side, const QString& prefix) {
  widgets.Fixtures = MakeList(prefix + "Fixtures");
  auto* const layout = new QVBoxLayout;
  layout->addWidget(MakeCaption("Fixtures", widgets.Fixtures));
  layout->addWidget(widgets.Fixtures, 1);
  auto* const buttons = new QHBoxLayout;
  if (IsLeague(side)) {
    widgets.Home = MakeCombo("Home");
    widgets.Away = MakeCombo("Away");
    auto* const teams = new QGridLayout;
    teams->addWidget(MakeCaption("Home Team:", widgets.Home), 0, 0);
    teams->addWidget(widgets.Home, 0, 1);
    teams->addWidget(MakeCaption("Away Team:", widgets.Away), 1, 0);
    teams->addWidget(widgets.Away, 1, 1);
    teams->setColumnStretch(1, 1);
    layout->addLayout(teams);
    OnPick(widgets.Home, [&side](int entry) { side.Home.Picked = entry; });
    OnPick(widgets.Away, [&side](int entry) { side.Away.Picked = entry; });
    QPushButton* const add = Button("AddFixture", "&Add &Fixture", [this] { editor_.AddFixture_Click(); });
    add->setShortcut(QKeySequence("Alt+F"));  // Alt+A is the other button's.
    buttons->addWidget(add);
  }
  buttons->addWidget(
      Button(prefix + "AutoFixtures", "&Auto Fixtures", [this, &side] { editor_.AutoFixtures_Click(side); }));
  buttons->addStretch();
  layout->addLayout(buttons);
  return layout;
}

QLayout* LegEditorWindow::BuildFiles(SideWidgets& widgets, EditorSide& side, const QString& prefix) {
  widgets.Load = MakeCombo(prefix + "Load");
  OnPick(widgets.Load, [this, &side](int entry) { editor_.Load_Click(side, entry); });
  auto* const layout = new QHBoxLayout;
  layout->addWidget(MakeCaption("Open / Load", widgets.Load));
  layout->addWidget(widgets.Load);
  layout->addStretch();
  layout->addWidget(MakeCaption("Save / Delete", nullptr));
  layout->addWidget(Button(prefix + "Save", IsLeague(side) ? "&Save League" : "&Save Knock Out",
                           [this, &side] { editor_.Save_Click(side); }));
  layout->addWidget(Button(prefix + "Delete", IsLeague(side) ? "Delete &League" : "Delete &Knock Out",
                           [this, &side] { editor_.Delete_Click(side); }));
  return layout;
}

void LegEditorWindow::Refresh() {
  ShowChooser(kind_, editor_.Kind);
  ShowSide(league_, editor_.League);
  ShowSide(knockOut_, editor_.KnockOut);
  ShowChooser(league_.Home, editor_.League.Home);
  ShowChooser(league_.Away, editor_.League.Away);
  knockOut_.NumberOfTeams->setText(QString::number(editor_.KnockOut.NumberOfTeams));
  league_.Page->setVisible(editor_.Kind.Picked == 0);
  knockOut_.Page->setVisible(editor_.Kind.Picked == 1);
}

void LegEditorWindow::ShowSide(const SideWidgets& widgets, const EditorSide& side) {
  ShowText(widgets.Name, side.Name);
  ShowList(widgets.Available, side.Available);
  ShowList(widgets.Selected, side.Selected);
  ShowList(widgets.Fixtures, side.FixtureList);
  ShowChooser(widgets.Load, side.Load);
  widgets.TeamCount->setText(QString::number(side.Selected.Count()));
  widgets.MatchCount->setText(QString::number(side.FixtureList.Count()));
}

}  // namespace kickwell
