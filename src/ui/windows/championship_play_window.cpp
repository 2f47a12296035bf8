#include "ui/windows/championship_play_window.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalBlocker>
#include <algorithm>

#include "ui/widgets/appearance.h"
#include "ui/widgets/choosers.h"
#include "ui/widgets/labels.h"
#include "ui/widgets/scale.h"

namespace kickwell {

ChampionshipPlayWindow::ChampionshipPlayWindow(ChampionshipPlay& play, ChampionshipKind kind, QWidget* parent)
    : ScreenWindow(kind == ChampionshipKind::League ? "LegSettings" : "KnockSettings",
                   kind == ChampionshipKind::League ? "Kickwell League" : "Kickwell Knock Out", parent),
      play_(play),
      championships_(MakeCombo("Championships")),
      from_(MakeCombo("From")),
      to_(MakeCombo("To")),
      simulationType_(MakeCombo("SimulationType")),
      fixtures_(MakeList("Fixtures")) {
  const bool league = kind == ChampionshipKind::League;
  for (QComboBox* const number : {from_, to_}) number->setMinimumContentsLength(6);
  auto* const range = new QHBoxLayout;
  range->setSpacing(InGroup);
  range->addWidget(from_);
  QLabel* const to = MakeCaption("To", to_);
  range->addWidget(to);
  range->addWidget(to_);
  range->addStretch();

  QPushButton* const command1 = Button("Command1", "&Continue >>", [this] { play_.Command1_Click(); });
  command1->setDefault(true);
  QPushButton* const command2 = Button("Command2", "Close", [this] { play_.Command2_Click(); });
  auto* const matches = new QVBoxLayout;
  matches->setSpacing(InGroup);
  matches->addWidget(MakeCaption("Play Matches:", from_));
  matches->addLayout(range);
  Name(from_, "Play Matches from");
  Name(to_, "Play Matches to");
  to->setAccessibleName("Play Matches to");
  Page()->addLayout(Captioned(league ? "Load League:" : "Load Knock Out:", championships_));
  Page()->addLayout(Captioned(league ? "League Fixtures:" : "Knock Out Fixtures:", fixtures_), 1);
  Page()->addLayout(matches);
  Page()->addLayout(Captioned("Match Simulation Type:", simulationType_));
  SetButtons({.Right = {command1, command2}});

  OnPick(championships_, [this](int entry) { play_.Championships_Click(entry); });
  OnPick(from_, [this](int entry) { play_.From_Click(entry); });
  OnPick(to_, [this](int entry) { play_.To_Click(entry); });
  fixtures_->setSelectionMode(QAbstractItemView::ContiguousSelection);
  connect(fixtures_, &QListWidget::itemSelectionChanged, this, [this] { Act([this] { PickRange(); }); });
  connect(fixtures_, &QListWidget::itemDoubleClicked, this,
          [this] { Act([this] { play_.Command1_Click(); }); });
  OnPick(simulationType_, [this](int entry) { play_.SimulationType_Click(entry); });
  play_.Changed = [this] {
    Refresh();
    ShowNext();
  };
  Refresh();
  OpenAt(560, 720);
  ShowNext();
}

/// The first and the last selected row; ItemList::None without any.
std::pair<int, int> ChampionshipPlayWindow::SelectedRange() const {
  const QModelIndexList picked = fixtures_->selectionModel()->selectedIndexes();
  if (picked.isEmpty()) return {ItemList::None, ItemList::None};
  const auto [first, last] = std::ranges::minmax(picked, {}, &QModelIndex::row);
  return {first.row(), last.row()};
}

void ChampionshipPlayWindow::PickRange() {
  const auto [first, last] = SelectedRange();
  if (first != ItemList::None) play_.Fixtures_Click(first, last);
}

/// Selects the fixtures of the range without the signals of a user's pick.
void ChampionshipPlayWindow::ShowRange() {
  if (SelectedRange() == std::pair(play_.From.Picked, play_.To.Picked)) return;
  const QSignalBlocker quiet(fixtures_);
  fixtures_->clearSelection();
  for (int place = std::max(play_.From.Picked, 0); place <= play_.To.Picked; ++place)
    fixtures_->item(place)->setSelected(true);
}

/// Scrolls to the first fixture that is still to be played, below the last results.
void ChampionshipPlayWindow::ShowNext() {
  constexpr int Before = 2;
  const int next = play_.FirstUnplayed();
  if (next == ItemList::None) return fixtures_->scrollToBottom();
  fixtures_->selectionModel()->setCurrentIndex(fixtures_->model()->index(next, 0),
                                               QItemSelectionModel::NoUpdate);
  fixtures_->scrollToItem(fixtures_->item(std::max(next - Before, 0)), QAbstractItemView::PositionAtTop);
}

void ChampionshipPlayWindow::Refresh() {
  ShowChooser(championships_, play_.Championships);
  ShowEntries(fixtures_, play_.FixtureList);
  for (int i = 0; i < fixtures_->count(); ++i) {
    const bool played = play_.IsPlayed(i);
    fixtures_->item(i)->setForeground(played ? FaintText(palette()) : palette().color(QPalette::Text));
    fixtures_->item(i)->setToolTip(played ? "Played" : QString());
    fixtures_->item(i)->setData(Qt::AccessibleTextRole,
                                fixtures_->item(i)->text() + (played ? ", Played" : QString()));
  }
  ShowRange();
  ShowChooser(from_, play_.From);
  ShowChooser(to_, play_.To);
  ShowChooser(simulationType_, play_.SimulationType);
}

}  // namespace kickwell
