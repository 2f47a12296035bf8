#include "ui/windows/championship_play_window.h"

#include <QHBoxLayout>
#include <QPushButton>

#include "ui/text.h"
#include "ui/widgets/appearance.h"
#include "ui/widgets/choosers.h"
#include "ui/widgets/labels.h"
#include "ui/widgets/scale.h"
#include "ui/widgets/side_text.h"

namespace kickwell {

ChampionshipPlayWindow::ChampionshipPlayWindow(ChampionshipPlay& play, ChampionshipKind kind, QWidget* parent)
    : ScreenWindow(kind == ChampionshipKind::League ? "LegSettings" : "KnockSettings",
                   kind == ChampionshipKind::League ? "Kickwell League" : "Kickwell Knock Out", parent),
      play_(play),
      championships_(MakeCombo("Championships")),
      from_(MakeCombo("From")),
      to_(MakeCombo("To")),
      simulationType_(MakeCombo("SimulationType")),
      fixtures_(new FixtureList("Fixtures")),
      rangeText_(MakeText("RangeText", {})) {
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
  matches->addWidget(rangeText_);
  Name(from_, "Play Matches from");
  Name(to_, "Play Matches to");
  to->setAccessibleName("Play Matches to");
  Page()->addLayout(Captioned(league ? "Load League:" : "Load Knock Out:", championships_));
  Page()->addLayout(Captioned(league ? "League Fixtures:" : "Knock Out Fixtures:", fixtures_), 1);
  Page()->addLayout(matches);
  Page()->addLayout(Captioned("Match Simulation Type:", simulationType_));
  SetButtons({.Right = {command1, command2}});

  OnPick(championships_, [this](int entry) { play_.Championships_Click(entry); });
  OnPick(from_, [this](int entry) {
    play_.From_Click(entry);
    fixtures_->MarkChosen();
  });
  OnPick(to_, [this](int entry) {
    play_.To_Click(entry);
    fixtures_->MarkChosen();
  });
  connect(fixtures_, &QListWidget::itemSelectionChanged, this, [this] { Act([this] { PickRange(); }); });
  connect(fixtures_, &QListWidget::itemDoubleClicked, this,
          [this] { Act([this] { play_.Command1_Click(); }); });
  OnPick(simulationType_, [this](int entry) { play_.SimulationType_Click(entry); });
  const auto show = [this] {
    Refresh();
    fixtures_->Frame(play_.FirstUnplayed());
  };
  play_.Changed = show;
  show();
  OpenAt(560, 720);
  fixtures_->Frame(play_.FirstUnplayed());
}

void ChampionshipPlayWindow::PickRange() {
  const auto [first, last] = fixtures_->Range();
  if (first != ItemList::None) play_.Fixtures_Click(first, last);
}

/// Says beside each fixture whether it has been played, also where it is selected, and marks the next one.
void ChampionshipPlayWindow::ShowFixtures() {
  ShowEntries(fixtures_, play_.FixtureList);
  const int next = play_.FirstUnplayed();
  QFont bold = fixtures_->font();
  bold.setBold(true);
  for (int i = 0; i < fixtures_->count(); ++i) {
    const bool played = play_.IsPlayed(i);
    const QString state = played ? "Played" : i == next ? "Next" : "";
    QListWidgetItem* const item = fixtures_->item(i);
    item->setForeground(played ? FaintText(palette()) : palette().color(QPalette::Text));
    item->setFont(i == next ? bold : fixtures_->font());
    item->setToolTip(state);
    item->setData(SideTextRole, state);
    item->setData(Qt::AccessibleTextRole, state.isEmpty() ? item->text() : item->text() + ", " + state);
  }
  fixtures_->SelectRange(play_.From.Picked, play_.To.Picked);
}

void ChampionshipPlayWindow::Refresh() {
  ShowChooser(championships_, play_.Championships);
  ShowFixtures();
  ShowChooser(from_, play_.From);
  ShowChooser(to_, play_.To);
  rangeText_->setText(Shown(play_.RangeText()));
  ShowChooser(simulationType_, play_.SimulationType);
}

}  // namespace kickwell
