#include "ui/windows/championship_play_window.h"

#include <QHBoxLayout>
#include <QPushButton>

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
  OnPick(simulationType_, [this](int entry) { play_.SimulationType_Click(entry); });
  play_.Changed = [this] { Refresh(); };
  Refresh();
  OpenAt(460, 560);
}

void ChampionshipPlayWindow::Refresh() {
  ShowChooser(championships_, play_.Championships);
  ShowList(fixtures_, play_.FixtureList);
  for (int i = 0; i < fixtures_->count(); ++i) {
    const bool played = play_.IsPlayed(i);
    fixtures_->item(i)->setForeground(played ? FaintText(palette()) : palette().color(QPalette::Text));
    fixtures_->item(i)->setToolTip(played ? "Played" : QString());
    fixtures_->item(i)->setData(Qt::AccessibleTextRole,
                                fixtures_->item(i)->text() + (played ? ", Played" : QString()));
  }
  ShowChooser(from_, play_.From);
  ShowChooser(to_, play_.To);
  ShowChooser(simulationType_, play_.SimulationType);
}

}  // namespace kickwell
