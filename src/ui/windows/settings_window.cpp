#include "ui/windows/settings_window.h"

#include <QAbstractItemView>
#include <QGridLayout>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

#include "base/at.h"
#include "data/stadium_store.h"
#include "ui/text.h"
#include "ui/widgets/accessible.h"
#include "ui/widgets/choosers.h"
#include "ui/widgets/labels.h"
#include "ui/widgets/scale.h"
#include "ui/widgets/side_text.h"
#include "ui/widgets/text_label.h"

namespace kickwell {
SettingsWindow::SettingsWindow(Settings& settings, QWidget* parent)
    : ScreenWindow("Settings", "Kickwell Settings", parent),
      settings_(settings),
      combo1_(MakeCombo("Combo1")),
      combo2_(MakeCombo("Combo2")),
      combo3_(MakeCombo("Combo3")),
      combo4_(MakeCombo("Combo4")),
      combo5_(MakeCombo("Combo5")),
      check1_(new QCheckBox("Extra Time (Golden Goal)")),
      check2_(new QCheckBox("Penalty Shoot Out")) {
  QPushButton* const command1 = Button("Command1", "&Continue >>", [this] { settings_.Command1_Click(); });
  command1->setDefault(true);
  QPushButton* const command2 = Button("Command2", "Close", [this] { settings_.Command2_Click(); });

  auto* const grid = new QGridLayout;
  grid->setHorizontalSpacing(BetweenColumns);
  grid->setVerticalSpacing(BetweenGroups);
  grid->addLayout(Captioned("Select Your Team:", combo1_), 0, 0);
  grid->addLayout(Captioned("Select Your Opposition:", combo2_), 0, 1);
  grid->addLayout(Captioned("Match Venue (Stadium/Ground):", combo3_), 1, 0);
  grid->addLayout(Captioned("Weather Condition:", combo5_), 1, 1);
  grid->addLayout(Captioned("Match Simulation Type:", combo4_), 2, 0, Qt::AlignTop);
  grid->addLayout(BuildDeciders(), 2, 1);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(1, 1);

  Page()->addLayout(grid);
  Page()->addStretch();
  SetButtons({.Right = {command1, command2}});

  constexpr int UsualName = 18;  // Two choosers stand side by side, on small screens, too.
  for (QComboBox* const combo : {combo1_, combo2_, combo3_, combo4_, combo5_})
    combo->setMinimumContentsLength(UsualName);
  OnPick(combo1_, [this](int entry) { settings_.Combo1_Click(entry); });
  OnPick(combo2_, [this](int entry) { settings_.Combo2_Click(entry); });
  OnPick(combo3_, [this](int entry) { settings_.Combo3_Click(entry); });
  OnPick(combo4_, [this](int entry) { settings_.Combo4_Click(entry); });
  OnPick(combo5_, [this](int entry) { settings_.Combo5_Click(entry); });
  Refresh();
  TellStadiums();
  OpenAt(560, 0);
}

QLayout* SettingsWindow::BuildDeciders() {
  check1_->setObjectName("Check1");
  check2_->setObjectName("Check2");
  auto* const deciders = new QVBoxLayout;
  deciders->setSpacing(InGroup);
  deciders->addWidget(MakeCaption("Match Result Decider:", check1_));
  deciders->addWidget(check1_);
  deciders->addWidget(check2_);
  check1_->setAccessibleName(check1_->text());
  connect(check1_, &QCheckBox::clicked, this, [this](bool on) { Act([&] { settings_.Check1_Click(on); }); });
  connect(check2_, &QCheckBox::clicked, this, [this](bool on) { Act([&] { settings_.Check2_Click(on); }); });
  return deciders;
}

/// Shows city and home team beside each stadium on offer.
void SettingsWindow::TellStadiums() {
  for (int i = 0; i < combo3_->count(); ++i) {
    const QString city = Shown(At(settings_.Combo7.Entries, i));
    const std::string& team = At(settings_.HomeTeams, i);
    const bool neutral = team == NoHomeTeam;
    combo3_->setItemData(i, neutral ? city : city + QStringLiteral(" \u00B7 ") + Shown(team), SideTextRole);
    const QString told = combo3_->itemText(i) + ", " + city;
    combo3_->setItemData(i, neutral ? told : told + ", home of " + Shown(team), Qt::AccessibleTextRole);
  }
  QAbstractItemView* const offers = combo3_->view();
  offers->setMinimumWidth(offers->sizeHintForColumn(0) + style()->pixelMetric(QStyle::PM_ScrollBarExtent));
}

void SettingsWindow::Refresh() {
  ShowChooser(combo1_, settings_.Combo1);
  ShowChooser(combo2_, settings_.Combo2);
  ShowChooser(combo3_, settings_.Combo3);
  ShowChooser(combo4_, settings_.Combo4);
  ShowChooser(combo5_, settings_.Combo5);
  const Settings& chosen = settings_;
  const QString stadium =
      chosen.Combo3.Picked == ItemList::None
          ? QString()
          : Shown(chosen.Combo3.Text() + ", " + chosen.Combo7.Text() + " (" + chosen.Combo6.Text() + ")");
  combo3_->setToolTip(PlainTip(stadium));
  SetDescription(combo3_, stadium);
  check1_->setChecked(settings_.Check1);
  check2_->setChecked(settings_.Check2);
  check2_->setEnabled(settings_.Check2Enabled);
}

}  // namespace kickwell
