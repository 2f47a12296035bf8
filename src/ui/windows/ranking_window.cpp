#include "ui/windows/ranking_window.h"

#include <QEvent>
#include <QShortcut>
#include <QTimer>
#include <algorithm>
#include <utility>

#include "base/at.h"
#include "ui/text.h"
#include "ui/widgets/accessible.h"
#include "ui/widgets/labels.h"
#include "ui/widgets/scale.h"
#include "ui/widgets/text_label.h"

namespace kickwell {
namespace {

constexpr QMargins CellMargins(InGroup, Tight, InGroup, Tight);

/// Lies over the labels of a row: takes the mouse for them, and the focus that screen readers follow.
class Marker final : public QWidget {
 public:
  Marker() {
    setMouseTracking(true);
    SetRole(this, QAccessible::ListItem);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override { DrawFocus(this); }
};

}  // namespace

RankingWindow::RankingWindow(Ranking& ranking, const RankingScreen& screen, QWidget* parent)
    : ScreenWindow(screen.Name, screen.Caption, parent),
      ranking_(ranking),
      columns_(screen.Columns),
      empty_(screen.Empty),
      label1_(MakeHeading("Label1")),
      nextpage_(Button("nextpage", "&Next >>", [this] { ranking_.nextpage_Click(); })),
      prevpage_(Button("prevpage", "<< &Back", [this] { ranking_.prevpage_Click(); })) {
  QPushButton* const close = Button(screen.CloseName, "Close", [this] { ranking_.Close_Click(); });
  close->setDefault(true);
  Page()->addWidget(label1_);
  Page()->addWidget(BuildRows(), 1);
  SetButtons({.Left = {prevpage_, nextpage_}, .Right = {close}});

  nextpage_->setFocus();
  for (const auto& [key, step] : {std::pair(Qt::Key_Up, -1), std::pair(Qt::Key_Down, 1)}) {
    auto* const arrow = new QShortcut(key, this);
    connect(arrow, &QShortcut::activated, this,
            [this, by = step] { MoveBar(ranking_.Pages.Highlight + by); });
  }
  Refresh();
  if (ranking_.Pages.RowCount() > 0 && !ranking_.Pages.NextEnabled()) markers_.front()->setFocus();
  OpenAt(screen.Width, 0);
}

QWidget* RankingWindow::BuildRows() {
  rows_ = new QFrame;
  SetRole(rows_, QAccessible::List);
  rows_->setAccessibleName(windowTitle());
  rows_->setFrameShape(QFrame::StyledPanel);
  rows_->installEventFilter(this);
  bar_ = new QFrame(rows_);
  bar_->setObjectName("Bar");
  bar_->setAutoFillBackground(true);
  bar_->setBackgroundRole(QPalette::Highlight);
  auto* const grid = new QGridLayout(rows_);
  grid->setSpacing(0);
  for (const RankingColumn& column : columns_) {
    labels_.push_back(BuildColumn(grid, static_cast<int>(labels_.size()), column));
  }
  for (int r = 1; r <= Paging::Rows; ++r) {
    auto* const marker = new Marker;
    marker->setObjectName(ArrayName("Marker", r));
    marker->setMinimumHeight(fontMetrics().height() + InGroup);
    marker->installEventFilter(this);
    At(markers_, r - 1) = marker;
    grid->addWidget(marker, r, 0, 1, static_cast<int>(columns_.size()));  // Over the labels of its row.
    grid->setRowMinimumHeight(r, marker->minimumHeight());
  }
  return rows_;
}

RankingWindow::Labels RankingWindow::BuildColumn(QGridLayout* grid, int place, const RankingColumn& column) {
  const Qt::Alignment alignment = column.Figure ? Qt::AlignRight : Qt::AlignLeft;
  QLabel* const header = MakeCaption(column.Header, nullptr);
  header->setObjectName(ArrayName(column.Name, 0));
  header->setAccessibleName(column.Announced);
  header->setAlignment(alignment | Qt::AlignVCenter);
  header->setContentsMargins(CellMargins + QMargins(0, 0, 0, Tight));
  grid->addWidget(header, 0, place);
  grid->setColumnStretch(place, column.Figure ? 0 : 1);
  Labels labels{};
  for (int r = 1; r <= Paging::Rows; ++r) {
    QLabel* const label = MakeText(ArrayName(column.Name, r), {}, alignment);
    label->setContentsMargins(CellMargins);
    SetFigureCaption(label, column.Announced);
    grid->addWidget(label, r, place);
    At(labels, r - 1) = label;
  }
  return labels;
}

bool RankingWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == rows_ && event->type() == QEvent::Resize) {
    QTimer::singleShot(0, this, [this] { PlaceBar(); });  // When the rows have found their places.
  } else if (event->type() == QEvent::MouseMove) {
    auto* const marker = std::ranges::find(markers_, watched);
    if (marker != markers_.end()) MoveBar(static_cast<int>(marker - markers_.begin()) + 1);
  }
  return ScreenWindow::eventFilter(watched, event);
}

void RankingWindow::MoveBar(int row) {
  const bool focused = std::ranges::find(markers_, focusWidget()) != markers_.end();
  ranking_.Marker_MouseMove(row);
  PlaceBar();
  if (focused) At(markers_, ranking_.Pages.Highlight - 1)->setFocus();
}

void RankingWindow::PlaceBar() {
  rows_->layout()->activate();
  const Paging& pages = ranking_.Pages;
  bar_->setVisible(pages.RowCount() > 0);
  for (int r = 1; r <= Paging::Rows; ++r) {
    const bool marked = r == pages.Highlight && pages.RowCount() > 0;
    QRect row;
    for (const Labels& column : labels_) {
      QLabel* const label = At(column, r - 1);
      label->setForegroundRole(marked ? QPalette::HighlightedText : QPalette::WindowText);
      row = row.united(label->geometry());
    }
    if (marked) bar_->setGeometry(row);
    At(markers_, r - 1)->setFocusPolicy(marked ? Qt::TabFocus : Qt::NoFocus);  // Tab stops once, at the bar.
  }
  bar_->lower();
}

void RankingWindow::Refresh() {
  label1_->setText(Shown(ranking_.Label1));
  const Paging& pages = ranking_.Pages;
  SetDescription(rows_, pages.RowCount() == 0 ? empty_ : QString());
  for (int r = 1; r <= Paging::Rows; ++r) {
    QStringList names, announced;
    for (int c = 0; c < static_cast<int>(columns_.size()); ++c) {
      const RankingColumn& column = At(columns_, c);
      const QString text = Shown(ranking_.Text(r, c));
      At(At(labels_, c), r - 1)->setText(text);
      announced.append(column.Announced + " " + text);
      if (!column.Figure) names.append(text);
    }
    QWidget* const marker = At(markers_, r - 1);
    marker->setVisible(r <= pages.RowCount());
    marker->setEnabled(r <= pages.RowCount());
    SetName(marker, announced.join(", "));
    marker->setToolTip(PlainTip(names.join(", ")));
  }
  // A page button that becomes disabled hands its focus to the other one, never to "Close".
  if (focusWidget() == nextpage_ && !pages.NextEnabled()) {
    prevpage_->setEnabled(pages.BackEnabled());
    prevpage_->setFocus();
  } else if (focusWidget() == prevpage_ && !pages.BackEnabled()) {
    nextpage_->setEnabled(pages.NextEnabled());
    nextpage_->setFocus();
  }
  nextpage_->setEnabled(pages.NextEnabled());
  prevpage_->setEnabled(pages.BackEnabled());
  PlaceBar();
}

RankingScreen TableScreen() {
  return {.Name = "Table",
          .Caption = "Kickwell League Table",
          .CloseName = "Command1",
          .Width = 720,
          .Empty = "There are no standings.",
          .Columns = {{"Pos", "Rank", true},
                      {"Team", "Team", false},
                      {"Played", "Played", true},
                      {"Won", "Won", true},
                      {"Tied", "Tied", true},
                      {"Lost", "Lost", true},
                      {"GF", "GF", true, "Goals for"},
                      {"GA", "GA", true, "Goals against"},
                      {"Points", "Points", true}}};
}

RankingScreen TopScorersScreen() {
  return {.Name = "TopScorers",
          .Caption = "Kickwell Top Goal Scorers",
          .CloseName = "Command3",
          .Width = 620,
          .Empty = "Nobody has scored yet.",
          .Columns = {{"Rank", "Rank", true},
                      {"Player", "Player", false},
                      {"Team", "Team", false},
                      {"Goals", "Goals", true}}};
}

}  // namespace kickwell
