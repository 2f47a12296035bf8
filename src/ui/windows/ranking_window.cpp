#include "ui/windows/ranking_window.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "ui/widgets/accessible.h"
#include "ui/widgets/text_label.h"
#include "ui/widgets/widgets.h"

namespace kickwell {
namespace {

/// Lies over the labels of a row: takes the mouse for them, and the focus for the screen reader.
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

RankingWindow::RankingWindow(Ranking& ranking, const char* name, const QString& caption,
                             const char* closeName, std::vector<RankingColumn> columns, int width,
                             QWidget* parent)
    : ScreenWindow(name, caption, parent),
      ranking_(ranking),
      columns_(std::move(columns)),
      label1_(MakeHeading("Label1")),
      nextpage_(MakeButton("nextpage", tr("&Next >>"))),
      prevpage_(MakeButton("prevpage", tr("<< &Back"))) {
  QPushButton* const close = MakeButton(closeName, tr("Close"));
  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(prevpage_);
  buttons->addWidget(nextpage_);
  buttons->addStretch();
  buttons->addWidget(close);
  auto* const layout = new QVBoxLayout(Page());
  layout->setContentsMargins(20, 16, 20, 16);
  layout->setSpacing(12);
  layout->addWidget(label1_);
  layout->addWidget(BuildRows(), 1);
  layout->addLayout(buttons);

  const auto onClick = [this](QPushButton* button, void (Ranking::*action)()) {
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [this, action] { Act([&] { (ranking_.*action)(); }); });
  };
  onClick(nextpage_, &Ranking::nextpage_Click);
  onClick(prevpage_, &Ranking::prevpage_Click);
  onClick(close, &Ranking::Close_Click);
  close->setDefault(true);
  nextpage_->setFocus();
  for (const auto& [key, step] : {std::pair(Qt::Key_Up, -1), std::pair(Qt::Key_Down, 1)}) {
    auto* const arrow = new QShortcut(key, this);
    connect(arrow, &QShortcut::activated, this,
            [this, by = step] { MoveBar(ranking_.Pages.Highlight + by); });
  }
  Refresh();
  if (ranking_.Pages.RowCount() > 0 && !ranking_.Pages.NextEnabled()) markers_[0]->setFocus();
  OpenAt(width, 0);
}

QWidget* RankingWindow::BuildRows() {
  auto* const rows = new QFrame;
  SetRole(rows, QAccessible::List);
  rows->setAccessibleName(windowTitle());
  rows->setFrameShape(QFrame::StyledPanel);
  bar_ = new QFrame(rows);
  bar_->setObjectName("Bar");
  bar_->setAutoFillBackground(true);
  bar_->setBackgroundRole(QPalette::Highlight);
  rows->installEventFilter(this);
  auto* const grid = new QGridLayout(rows);
  grid->setSpacing(0);
  labels_.resize(columns_.size());
  for (std::size_t c = 0; c < columns_.size(); ++c) {
    const RankingColumn& column = columns_[c];
    const int place = static_cast<int>(c);
    const Qt::Alignment alignment = column.Figure ? Qt::AlignRight : Qt::AlignLeft;
    QLabel* const header = MakeCaption(column.Header, nullptr);
    header->setObjectName(ArrayName(column.Name, 0));
    header->setAccessibleName(column.Told);
    header->setAlignment(alignment | Qt::AlignVCenter);
    header->setContentsMargins(8, 2, 8, 6);
    grid->addWidget(header, 0, place);
    grid->setColumnStretch(place, column.Figure ? 0 : 1);
    for (int r = 1; r <= Paging::Rows; ++r) {
      QLabel* const label = MakeText(ArrayName(column.Name, r), {}, alignment);
      label->setContentsMargins(8, 3, 8, 3);
      SetFigureCaption(label, column.Told);
      labels_[c][static_cast<std::size_t>(r - 1)] = label;
      grid->addWidget(label, r, place);
    }
  }
  for (int r = 1; r <= Paging::Rows; ++r) {
    auto* const marker = new Marker;
    marker->setObjectName(ArrayName("Marker", r));
    marker->setMinimumHeight(fontMetrics().height() + 6);
    marker->installEventFilter(this);
    markers_[static_cast<std::size_t>(r - 1)] = marker;
    grid->addWidget(marker, r, 0, 1, static_cast<int>(columns_.size()));  // Over the labels of its row.
    grid->setRowMinimumHeight(r, marker->minimumHeight());
  }
  return rows;
}

bool RankingWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == bar_->parentWidget() && event->type() == QEvent::Resize) {
    QTimer::singleShot(0, this, [this] { PlaceBar(); });  // When the rows have found their places.
  } else if (event->type() == QEvent::MouseMove) {
    auto* const* const marker = std::find(markers_.begin(), markers_.end(), watched);
    if (marker != markers_.end()) {
      MoveBar(static_cast<int>(marker - markers_.begin()) + 1);
    }
  }
  return ScreenWindow::eventFilter(watched, event);
}

void RankingWindow::MoveBar(int row) {
  const bool focused = std::find(markers_.begin(), markers_.end(), focusWidget()) != markers_.end();
  ranking_.Marker_MouseMove(row);
  PlaceBar();
  if (focused) markers_[static_cast<std::size_t>(ranking_.Pages.Highlight - 1)]->setFocus();
}

void RankingWindow::PlaceBar() {
  bar_->parentWidget()->layout()->activate();
  const Paging& pages = ranking_.Pages;
  bar_->setVisible(pages.RowCount() > 0);
  for (int r = 1; r <= Paging::Rows; ++r) {
    const auto at = static_cast<std::size_t>(r - 1);
    const bool marked = r == pages.Highlight && pages.RowCount() > 0;
    QRect row;
    for (const auto& column : labels_) {
      column[at]->setForegroundRole(marked ? QPalette::HighlightedText : QPalette::WindowText);
      row = row.united(column[at]->geometry());
    }
    if (marked) bar_->setGeometry(row);
    markers_[at]->setFocusPolicy(marked ? Qt::TabFocus : Qt::NoFocus);  // Tab stops once, at the bar.
  }
  bar_->lower();
}

void RankingWindow::Refresh() {
  label1_->setText(Shown(ranking_.Label1));
  const Paging& pages = ranking_.Pages;
  const auto offset = static_cast<std::size_t>(pages.Offset());
  for (int r = 0; r < Paging::Rows; ++r) {
    const auto at = static_cast<std::size_t>(r);
    const bool filled = r < pages.RowCount();
    QStringList whole, told;
    for (std::size_t c = 0; c < labels_.size(); ++c) {
      const QString text = filled ? Shown(ranking_.Rows[offset + at][c]) : QString();
      labels_[c][at]->setText(text);
      told.append(columns_[c].Told + " " + text);
      if (!columns_[c].Figure) whole.append(text);
    }
    markers_[at]->setVisible(filled);
    markers_[at]->setAccessibleName(told.join(", "));
    markers_[at]->setToolTip(PlainTip(whole.join(", ")));
  }
  // The page button that goes dark hands its focus to the other one, never to "Close".
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

RankingWindow* MakeTableWindow(Ranking& table, QWidget* parent) {
  const auto tr = [](const char* text) { return RankingWindow::tr(text); };
  auto* const window = new RankingWindow(table, "Table", tr("Kickwell League Table"), "Command1",
                                         {{"Pos", tr("Rank"), true},
                                          {"Team", tr("Team"), false},
                                          {"Played", tr("Played"), true},
                                          {"Won", tr("Won"), true},
                                          {"Tied", tr("Tied"), true},
                                          {"Lost", tr("Lost"), true},
                                          {"GF", tr("GF"), true, tr("Goals for")},
                                          {"GA", tr("GA"), true, tr("Goals against")},
                                          {"Points", tr("Points"), true}},
                                         720, parent);
  return window;
}

RankingWindow* MakeTopScorersWindow(Ranking& scorers, QWidget* parent) {
  const auto tr = [](const char* text) { return RankingWindow::tr(text); };
  auto* const window = new RankingWindow(scorers, "TopScorers", tr("Kickwell Top Goal Scorers"), "Command3",
                                         {{"Rank", tr("Rank"), true},
                                          {"Player", tr("Player"), false},
                                          {"Team", tr("Team"), false},
                                          {"Goals", tr("Goals"), true}},
                                         620, parent);
  return window;
}

}  // namespace kickwell
