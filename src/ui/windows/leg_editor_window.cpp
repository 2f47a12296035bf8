#include "ui/windows/leg_editor_window.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QShortcut>
#include <utility>

#include "ui/text.h"
#include "ui/widgets/accessible.h"
#include "ui/widgets/appearance.h"
#include "ui/widgets/choosers.h"
#include "ui/widgets/labels.h"
#include "ui/widgets/scale.h"

namespace kickwell {
namespace {

constexpr int LongestName = 20;
constexpr int UsualName = 22, FewestRows = 8;  ///< That a list of teams has room for, at least.

template <typename Layout>
Layout* Spaced(Layout* layout, int spacing) {
  layout->setSpacing(spacing);
  return layout;
}

/// A caption and the control beside it, which takes the rest of the row.
QLayout* Beside(QLabel* caption, QWidget* control) {
  auto* const row = Spaced(new QHBoxLayout, BetweenColumns);
  row->addWidget(caption);
  row->addWidget(control, 1);
  return row;
}

QLayout* Figure(const QString& caption, QLabel* figure) {
  auto* const row = Spaced(new QHBoxLayout, InGroup);
  row->addWidget(MakeFigureCaption(caption, figure));
  row->addWidget(figure);
  return row;
}

}  // namespace

LegEditorWindow::LegEditorWindow(LegEditor& editor, QWidget* parent)
    : ScreenWindow("LegEditor", "Kickwell Championship Editor", parent),
      editor_(editor),
      kind_(MakeCombo("Kind")),
      exit_(Button("Exit", "E&xit Kickwell Championship Editor", [this] { editor_.Exit_Click(); })),
      unsaved_(MakeFaint("Unsaved", Qt::AlignRight)) {
  auto* const kind = Spaced(new QHBoxLayout, BetweenColumns);
  kind->addWidget(MakeCaption("Type of Competition / Championship:", kind_));
  kind->addWidget(kind_);
  kind->addStretch();
  OnPick(kind_, [this](int entry) { editor_.Kind_Click(entry); });

  Page()->addWidget(Enlarged(MakeCaption("Championship"), HeadingType));
  Page()->addLayout(kind);
  Page()->addWidget(BuildSide(league_, editor.League), 1);
  Page()->addWidget(BuildSide(knockOut_, editor.KnockOut), 1);
  SetButtons({.Left = {league_.Files, knockOut_.Files}, .Right = {unsaved_, exit_}});
  Refresh();
  OpenAt(900, 640);
}

void LegEditorWindow::OnSelect(QListWidget* list, ItemList& chooser) {
  connect(list, &QListWidget::itemSelectionChanged, this,
          [list, &chooser] { chooser.Picked = SelectedRow(list); });
}

/// A double click or Enter on an entry does what `move` does.
void LegEditorWindow::OnActivate(QListWidget* list, QPushButton* move) {
  connect(list, &QListWidget::itemDoubleClicked, move, &QPushButton::click);
  for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
    auto* const key = new QShortcut(enter, list);
    key->setContext(Qt::WidgetShortcut);
    key->setAutoRepeat(false);
    connect(key, &QShortcut::activated, move, &QPushButton::click);
  }
}

QWidget* LegEditorWindow::BuildSide(SideWidgets& widgets, EditorSide& side) {
  const QString prefix = side.IsLeague() ? "League" : "KnockOut";
  widgets.Page = new QWidget;
  widgets.Page->setObjectName(prefix);
  widgets.Name = new TextBox(prefix + "Name", LongestName, side.Name);
  widgets.Load = MakeCombo(prefix + "Load");
  widgets.Name->setMinimumHeight(widgets.Load->sizeHint().height());  // Their rows stand side by side.
  OnPick(widgets.Load, [this, &side](int entry) { editor_.Load_Click(side, entry); });

  auto* const columns = Spaced(new QGridLayout, BetweenGroups);
  columns->setHorizontalSpacing(BetweenHalves);
  columns->addLayout(
      Beside(MakeCaption(side.IsLeague() ? "League:" : "Knock Out:", widgets.Name), widgets.Name), 0, 0);
  widgets.Name->setAccessibleName(side.IsLeague() ? "Championship League" : "Championship Knock Out");
  columns->addWidget(widgets.Name->CutLine(), 1, 0, Qt::AlignRight);  // Below the sign.
  columns->addLayout(BuildTeams(widgets, side, prefix), 2, 0);
  widgets.LoadCaption = MakeCaption("Open / Load", widgets.Load);
  columns->addLayout(Beside(widgets.LoadCaption, widgets.Load), 0, 1);
  columns->addLayout(BuildFixtures(widgets, side, prefix), 2, 1);
  columns->setRowStretch(2, 1);
  for (const int half : {0, 1}) columns->setColumnStretch(half, 1);

  auto* const layout = Spaced(new QVBoxLayout(widgets.Page), BetweenGroups);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(
      Enlarged(MakeCaption(side.IsLeague() ? "League Details" : "Tournie Details"), FigureType));
  layout->addLayout(columns, 1);
  widgets.Files = BuildFiles(side, prefix);
  return widgets.Page;
}

QLayout* LegEditorWindow::BuildTeams(SideWidgets& widgets, EditorSide& side, const QString& prefix) {
  SteadyList* const selected = MakeList(prefix + "Selected");
  selected->setAccessibleName("Selected teams");
  selected->SetHint("Add teams from the left.");
  widgets.Selected = selected;
  widgets.Available = MakeList(prefix + "Available");
  for (QListWidget* const list : {widgets.Available, widgets.Selected}) {
    const QFontMetrics metrics = list->fontMetrics();
    list->setMinimumSize(UsualName * metrics.averageCharWidth(), FewestRows * metrics.height());
  }
  widgets.TeamCount = MakeText(prefix + "TeamCount", "0");
  OnSelect(widgets.Available, side.Available);
  OnSelect(widgets.Selected, side.Selected);
  QPushButton* const add = ArrowButton(prefix + "AddTeam", QStyle::SP_ArrowRight, "Add the team",
                                       [&side] { LegEditor::AddTeam_Click(side); });
  QPushButton* const remove = ArrowButton(prefix + "RemoveTeam", QStyle::SP_ArrowLeft, "Remove the team",
                                          [&side] { LegEditor::RemoveTeam_Click(side); });
  OnActivate(widgets.Available, add);
  OnActivate(widgets.Selected, remove);
  auto* const moves = Spaced(new QVBoxLayout, InGroup);
  moves->addStretch();
  moves->addWidget(add);
  moves->addWidget(remove);
  moves->addStretch();

  auto* const grid = Spaced(new QGridLayout, InGroup);
  grid->addWidget(MakeCaption("Select Teams:", widgets.Available), 0, 0);
  grid->addLayout(Figure(side.IsLeague() ? "Total teams in the League:" : "Total teams currently selected:",
                         widgets.TeamCount),
                  0, 2, Qt::AlignLeft);
  grid->addWidget(widgets.Available, 1, 0);
  grid->addLayout(moves, 1, 1);
  grid->addWidget(widgets.Selected, 1, 2);
  if (!side.IsLeague()) grid->addLayout(BuildNumberOfTeams(widgets), 2, 0, 1, 3);
  grid->setRowStretch(1, 1);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(2, 1);
  return grid;
}

QLayout* LegEditorWindow::BuildNumberOfTeams(SideWidgets& widgets) {
  widgets.NumberOfTeams = MakeText("NumberOfTeams", "2", Qt::AlignRight);
  widgets.NumberOfTeams->setMinimumWidth(fontMetrics().horizontalAdvance("00"));
  auto* const row = Spaced(new QHBoxLayout, InGroup);
  row->addWidget(MakeFigureCaption("Total number of teams:", widgets.NumberOfTeams));
  row->addWidget(widgets.NumberOfTeams);
  row->addWidget(
      ArrowButton("MoreTeams", QStyle::SP_ArrowUp, "More teams", [this] { editor_.MoreTeams_Click(); }));
  row->addWidget(
      ArrowButton("FewerTeams", QStyle::SP_ArrowDown, "Fewer teams", [this] { editor_.FewerTeams_Click(); }));
  row->addStretch();
  return row;
}

QLayout* LegEditorWindow::BuildFixtures(SideWidgets& widgets, EditorSide& side, const QString& prefix) {
  SteadyList* const list = MakeList(prefix + "Fixtures");
  list->SetHint("The fixtures of the selected teams appear here.");
  widgets.Fixtures = list;
  widgets.MatchCount = MakeText(prefix + "MatchCount", "0");
  OnSelect(widgets.Fixtures, side.FixtureList);
  auto* const captions = new QHBoxLayout;
  captions->addWidget(MakeCaption("Fixtures", widgets.Fixtures));
  captions->addStretch();
  captions->addLayout(Figure(side.IsLeague() ? "Total matches in the League:" : "Total number of matches:",
                             widgets.MatchCount));
  auto* const layout = Spaced(new QVBoxLayout, InGroup);
  layout->addLayout(captions);
  layout->addWidget(widgets.Fixtures, 1);
  widgets.FixtureNote = MakeCaption(QString());
  widgets.FixtureNote->setObjectName(prefix + "FixtureNote");
  widgets.FixtureNote->setWordWrap(true);
  layout->addWidget(widgets.FixtureNote);
  auto* const buttons = Spaced(new QHBoxLayout, InGroup);
  if (side.IsLeague()) {
    layout->addLayout(BuildPairing(widgets, side));
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

QLayout* LegEditorWindow::BuildPairing(SideWidgets& widgets, EditorSide& side) {
  widgets.Home = MakeCombo("Home");
  widgets.Away = MakeCombo("Away");
  OnPick(widgets.Home, [&side](int entry) { side.Home.Picked = entry; });
  OnPick(widgets.Away, [&side](int entry) { side.Away.Picked = entry; });
  QLabel* const home = MakeCaption("Home Team:", widgets.Home);
  QLabel* const away = MakeCaption("Away Team:", widgets.Away);
  AlignCaptions({widgets.LoadCaption, home, away});
  auto* const pairing = Spaced(new QVBoxLayout, InGroup);
  pairing->addLayout(Beside(home, widgets.Home));
  pairing->addLayout(Beside(away, widgets.Away));
  return pairing;
}

QWidget* LegEditorWindow::BuildFiles(EditorSide& side, const QString& prefix) {
  auto* const files = new QWidget;
  auto* const row = Spaced(new QHBoxLayout(files), InGroup);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(MakeCaption("Save / Delete", nullptr));
  row->addSpacing(BetweenColumns - InGroup);
  row->addWidget(Button(prefix + "Save", side.IsLeague() ? "&Save League" : "&Save Knock Out",
                        [this, &side] { editor_.Save_Click(side); }));
  row->addWidget(Button(prefix + "Delete", side.IsLeague() ? "Delete &League" : "Delete &Knock Out",
                        [this, &side] { editor_.Delete_Click(side); }));
  return files;
}

void LegEditorWindow::reject() {
  const std::string note = editor_.UnsavedNote();
  if (note.empty()) return ScreenWindow::reject();
  unsaved_->setText(ToQt(note));
  Refresh();
  exit_->setFocus();
}

void LegEditorWindow::Refresh() {
  ShowChooser(kind_, editor_.Kind);
  ShowSide(league_, editor_.League);
  ShowSide(knockOut_, editor_.KnockOut);
  ShowChooser(league_.Home, editor_.League.Home);
  ShowChooser(league_.Away, editor_.League.Away);
  knockOut_.NumberOfTeams->setText(QString::number(editor_.KnockOut.NumberOfTeams));
  for (QWidget* const part : {league_.Page, league_.Files}) part->setVisible(editor_.Kind.Picked == 0);
  for (QWidget* const part : {knockOut_.Page, knockOut_.Files}) part->setVisible(editor_.Kind.Picked == 1);
  if (!unsaved_->text().isEmpty()) unsaved_->setText(ToQt(editor_.UnsavedNote()));
  unsaved_->setVisible(!unsaved_->text().isEmpty());
  SetDescription(exit_, unsaved_->text());
  GoTo(std::exchange(editor_.Next, {}));
}

void LegEditorWindow::ShowSide(const SideWidgets& widgets, const EditorSide& side) {
  widgets.Name->ShowText();
  ShowList(widgets.Available, side.Available);
  ShowList(widgets.Selected, side.Selected);
  ShowFixtures(widgets, side);
  ShowChooser(widgets.Load, side.Load);
  widgets.TeamCount->setText(QString::number(side.Selected.Count()));
  widgets.MatchCount->setText(QString::number(side.FixtureList.Count()));
}

void LegEditorWindow::ShowFixtures(const SideWidgets& widgets, const EditorSide& side) {
  ShowList(widgets.Fixtures, side.FixtureList);
  for (int i = 0; i < widgets.Fixtures->count(); ++i) {
    QListWidgetItem* const fixture = widgets.Fixtures->item(i);
    const bool fits = side.IsInPlay(i);
    const QString note = fits ? QString() : side.IsLeague() ? "Not in the league" : "Not in the knock-out";
    fixture->setForeground(fits ? palette().color(QPalette::Text) : FaintText(palette()));
    fixture->setToolTip(note);
    fixture->setData(Qt::AccessibleTextRole, fixture->text() + (fits ? note : ", " + note));
  }
  const QString note = ToQt(side.FixtureNote());
  widgets.FixtureNote->setText(note);
  widgets.FixtureNote->setVisible(!note.isEmpty());
  if (widgets.Fixtures->count() > 0) SetDescription(widgets.Fixtures, note);  // An empty list has its hint.
}

}  // namespace kickwell
