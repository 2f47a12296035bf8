#include "ui/windows/selection_window.h"

#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QStandardItemModel>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>
#include <optional>
#include <utility>

#include "base/at.h"
#include "ui/text.h"
#include "ui/widgets/accessible.h"
#include "ui/widgets/choosers.h"
#include "ui/widgets/labels.h"
#include "ui/widgets/scale.h"
#include "ui/widgets/side_text.h"

namespace kickwell {
namespace {

constexpr int UsualName = 14;  ///< Two choosers stand side by side.

/// Adds a figure and its caption, side by side in the grid.
QLabel* AddFigure(QGridLayout* grid, int row, int column, const QString& caption, QAnyStringView name,
                  const QString& text) {
  QLabel* const figure = Enlarged(MakeText(name, text, Qt::AlignRight), 1);
  grid->addWidget(MakeFigureCaption(caption, figure), row, column);
  grid->addWidget(figure, row, column + 1);
  return figure;
}

QString FigureText(const std::optional<int>& figure) {
  return figure ? QString::number(*figure) : QString();
}

/// A player as the choosers offer him: his name, and beside it his position and skill.
QStandardItem* Offer(const Player& player) {
  const QString name = Shown(player.Name), position = Shown(player.Position), skill = Shown(player.Skill);
  auto* const offer = new QStandardItem(name);
  offer->setData(position + "  " + skill, SideTextRole);
  offer->setData(QStringList{name, position, skill}.join(", "), Qt::AccessibleTextRole);
  return offer;
}

constexpr const char* ChosenTwice = "selected more than once";

}  // namespace

SelectionWindow::SelectionWindow(Selection& selection, QWidget* parent)
    : ScreenWindow("Selection", "Kickwell Team Selection", parent),
      selection_(selection),
      command1_(Button("Command1", "&Continue >>", [this] { selection_.Command1_Click(); })) {
  const MatchSetup& setup = selection.Setup();
  auto* const sides = new QHBoxLayout;
  sides->setSpacing(BetweenHalves);
  sides->addWidget(BuildSide(side1_, 1, Shown(setup.Team1Name), &Selection::Combo1_Click), 1);
  sides->addWidget(BuildSide(side2_, 2, Shown(setup.Team2Name), &Selection::Combo2_Click), 1);

  QLabel* const num = MakeText("num", QString::number(setup.MatchNumber));
  num->setVisible(false);
  command1_->setDefault(true);
  QPushButton* const command2 = Button("Command2", "Cancel", [this] { selection_.Command2_Click(); });
  Page()->addWidget(MakeFixtureLine(setup));
  Page()->addLayout(sides);
  Page()->addStretch();
  SetButtons({.Left = {num}, .Right = {command1_, command2}});

  Page()->parentWidget()->installEventFilter(this);
  Refresh();
  selection_.Changed = [this] { Refresh(); };
  OpenAt(860, 0);
}

QWidget* SelectionWindow::BuildSide(Column& column, int side, const QString& team, Pick pick) {
  const QString number = QString::number(side);
  auto* const box = new QWidget;
  QLabel* const name = Enlarged(MakeText("Team" + number, team, Qt::AlignHCenter), HeadingType);

  column.Note = MakeFaint("Note" + number, Qt::AlignHCenter);

  auto* const grid = new QGridLayout;
  grid->setVerticalSpacing(InGroup);
  grid->setHorizontalSpacing(BetweenColumns / 2);
  grid->setColumnStretch(0, 1);
  column.Squad = new QStandardItemModel(this);
  const QByteArray combo = ("Combo" + number).toLatin1();
  const QByteArray mark = ("Twice" + number).toLatin1();
  const QByteArray post = ("Post" + number).toLatin1();
  const QByteArray skill = ("Sk" + number).toLatin1();
  for (int i = 0; i < SlotCount; ++i) {
    QComboBox* const chooser = MakeCombo(ArrayName(combo, i));
    chooser->setModel(column.Squad);
    const QString player = team + QStringLiteral(", player %1").arg(i + 1);
    Name(chooser, player);
    chooser->setMinimumContentsLength(UsualName);
    OnPick(chooser, [this, pick, i](int entry) { (selection_.*pick)(i, entry); });
    QLabel* const position = MakeText(ArrayName(post, i), {}, Qt::AlignHCenter);
    position->setMinimumWidth(fontMetrics().horizontalAdvance("MMMM"));
    SetFigureCaption(position, player + ", position");
    QLabel* const figure = MakeText(ArrayName(skill, i), {}, Qt::AlignRight);
    figure->setMinimumWidth(fontMetrics().horizontalAdvance("000"));
    SetFigureCaption(figure, player + ", skill");
    QLabel* const twice = MakeTwiceMark(ArrayName(mark, i), player);
    grid->addWidget(chooser, i, 0);
    grid->addWidget(twice, i, 1);
    grid->addWidget(position, i, 2);
    grid->addWidget(figure, i, 3);
    At(column.Combos, i) = chooser;
    At(column.Twice, i) = twice;
    At(column.Posts, i) = position;
    At(column.Skills, i) = figure;
  }

  auto* const layout = new QVBoxLayout(box);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(BetweenGroups);
  layout->addWidget(name);
  layout->addWidget(column.Note);
  layout->addLayout(grid);
  layout->addWidget(BuildFigures(column, side, team));
  return box;
}

QLabel* SelectionWindow::MakeTwiceMark(QAnyStringView name, const QString& player) const {
  const int size = style()->pixelMetric(QStyle::PM_SmallIconSize);
  auto* const mark = new QLabel;
  mark->setObjectName(name);
  mark->setPixmap(
      style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap({size, size}, devicePixelRatio()));
  mark->setToolTip("Selected more than once");
  mark->setAccessibleName(player + ", " + ChosenTwice);
  QSizePolicy room = mark->sizePolicy();
  room.setRetainSizeWhenHidden(true);
  mark->setSizePolicy(room);
  return mark;
}

QWidget* SelectionWindow::BuildFigures(Column& column, int side, const QString& team) {
  const QString number = QString::number(side);
  auto* const figures = new QGridLayout;
  figures->setHorizontalSpacing(BetweenColumns / 2);
  figures->setVerticalSpacing(InGroup);
  figures->setColumnMinimumWidth(2, BetweenColumns);
  figures->setColumnStretch(1, 1);
  figures->setColumnStretch(4, 1);
  column.Formation = AddFigure(figures, 0, 0, "Formation:", "Formation" + number, "0-0-0");
  column.Skill = AddFigure(figures, 1, 0, "Overall Skill:", "Skill" + number, "0");
  column.OSkill = AddFigure(figures, 2, 0, "Reputation:", "OSkill" + number, "0");
  const int firstLabel = side == 1 ? 11 : 15;
  const auto labelName = [firstLabel](int i) { return "Label" + QString::number(firstLabel + i); };
  column.Attack = AddFigure(figures, 0, 3, "Attack:", labelName(0), {});
  column.Defence = AddFigure(figures, 1, 3, "Defence:", labelName(1), {});
  column.Midfield = AddFigure(figures, 2, 3, "Mid-Field:", labelName(2), {});
  column.Keeping = AddFigure(figures, 3, 3, "Keeping:", labelName(3), {});
  auto* const figuresBox = new QFrame;
  figuresBox->setAccessibleName(team);
  figuresBox->setFrameShape(QFrame::StyledPanel);
  figuresBox->setLayout(figures);
  return figuresBox;
}

bool SelectionWindow::eventFilter(QObject* watched, QEvent* event) {
  // The screen is drawn first, then the squads are loaded.
  if (watched == Page()->parentWidget() && event->type() == QEvent::Paint &&
      !std::exchange(timer1Started_, true))
    QTimer::singleShot(0, this, [this] { Act([this] { selection_.Timer1_Timer(); }); });
  return ScreenWindow::eventFilter(watched, event);
}

void SelectionWindow::Refresh() {
  ShowSide(side1_, selection_.Side1);
  ShowSide(side2_, selection_.Side2);
  const bool noted = !selection_.Side1.Note.empty() || !selection_.Side2.Note.empty();
  for (const Column* const column : {&side1_, &side2_}) column->Note->setVisible(noted);  // Rows stay level.
  command1_->setEnabled(selection_.Command1Enabled);
}

void SelectionWindow::ShowSlot(const Column& column, const LineUp& lineUp, int slot) {
  const LineUpSlot& chosen = At(lineUp.Slots, slot);
  const bool twice = lineUp.IsChosenTwice(slot);
  QComboBox* const chooser = At(column.Combos, slot);
  chooser->setCurrentIndex(chosen.Player);
  const QString empty = lineUp.Note.empty() ? QString() : ". " + Shown(lineUp.Note);
  SetDescription(chooser,
                 twice ? At(column.Twice, slot)->accessibleName() : chooser->accessibleName() + empty);
  At(column.Twice, slot)->setVisible(twice);
  At(column.Posts, slot)->setText(Shown(chosen.Position));
  At(column.Skills, slot)->setText(Shown(chosen.Skill));
}

void SelectionWindow::ShowSide(const Column& column, const LineUp& lineUp) {
  if (lineUp.CanPlay() && column.Squad->rowCount() == 0) {
    QList<QStandardItem*> players;
    for (const Player& player : lineUp.Squad) players.append(Offer(player));
    column.Squad->invisibleRootItem()->appendRows(players);
  }
  column.Note->setText(Shown(lineUp.Note));
  for (int slot = 0; slot < SlotCount; ++slot) ShowSlot(column, lineUp, slot);
  column.Formation->setText(Shown(lineUp.Formation));
  column.Skill->setText(QString::number(lineUp.OverallSkill));
  column.OSkill->setText(Shown(lineUp.Reputation));
  column.Attack->setText(FigureText(lineUp.Attack));
  column.Defence->setText(FigureText(lineUp.Defence));
  column.Midfield->setText(FigureText(lineUp.Midfield));
  column.Keeping->setText(FigureText(lineUp.Keeping));
}

}  // namespace kickwell
