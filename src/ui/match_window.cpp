#include "ui/match_window.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/widgets.h"

namespace kickwell {
namespace {

constexpr int PenaltyRoom = 360;  ///< How far the goals move left for the shoot-out counts, in twips.

QPushButton* MakeButton(const QString& name, const QString& caption) {
  auto* const button = new QPushButton(caption);
  button->setObjectName(name);
  return button;
}

QLabel* Enlarged(QLabel* label, qreal factor) {
  QFont font = label->font();
  font.setPointSizeF(font.pointSizeF() * factor);
  font.setBold(true);
  label->setFont(font);
  return label;
}

QString LampColour(Lamp lamp) {
  switch (lamp) {
    case Lamp::Green:
      return "#00ff00";
    case Lamp::Red:
      return "#ff0000";
    default:
      return "#000000";
  }
}

}  // namespace

MatchWindow::MatchWindow(Match& match, QWidget* parent)
    : ScreenWindow("Main", tr("Kickwell Match"), parent),
      match_(match),
      label1_(MakeText("Label1", tr("Attendence"), Qt::AlignRight)),
      ven_(MakeText("ven", tr("Match Venue"))),
      label2_(MakeCaption({})),
      label3_(MakeText("Label3", {}, Qt::AlignHCenter)),
      picture2_(new Pitch),
      halftime_(MakeButton("halftime", tr("&Normal Time 1st Half"))),
      instant_(MakeButton("instant", tr("&View Instant Match Results"))),
      comSave_(MakeButton("ComSave", tr("Save Summary"))),
      command1_(MakeButton("Command1", tr("E&xit"))) {
  picture2_->setObjectName("Picture2");
  picture2_->setAccessibleName(tr("Pitch"));
  auto* const place = new QHBoxLayout;
  place->addWidget(ven_, 1);
  place->addWidget(label1_);

  QWidget* const scoreBoard = BuildScoreBoard();
  auto* const field = new QHBoxLayout;
  field->setSpacing(12);
  field->addWidget(BuildFacts(side1_, 1));
  field->addWidget(picture2_, 1);
  field->addWidget(BuildFacts(side2_, 2));

  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(16, 16, 16, 16);
  layout->setSpacing(12);
  layout->addWidget(scoreBoard);
  layout->addLayout(place);
  layout->addLayout(field, 1);
  layout->addLayout(BuildLists(), 1);
  layout->addLayout(BuildButtons());

  connect(instant_, &QPushButton::clicked, this, [this] { Act([this] { match_.instant_Click(); }); });
  connect(comSave_, &QPushButton::clicked, this, [this] { Act([this] { match_.ComSave_Click(); }); });
  connect(command1_, &QPushButton::clicked, this, [this] { Act([this] { match_.Command1_Click(); }); });
  Show();
  QPushButton* const start = instant_->isHidden() ? halftime_ : instant_;
  start->setDefault(true);
  start->setFocus();
  resize(920, 660);
}

QWidget* MatchWindow::BuildScoreBoard() {
  auto* const board = new QFrame;
  board->setObjectName("ScoreBoard");
  board->setStyleSheet(
      "#ScoreBoard { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #1d5a2c, stop:1 #123a1d);"
      "              border-radius: 6px; }"
      "#ScoreBoard QLabel { color: white; }");
  BuildScore(side1_, 1);
  BuildScore(side2_, 2);
  QLabel* const label11 = MakeText("Label11", tr("Match Timer"), Qt::AlignHCenter);
  label2_->setObjectName("Label2");
  Enlarged(label3_, 1.9);
  label3_->setMinimumWidth(label3_->fontMetrics().horizontalAdvance("000:00") + 24);
  auto* const lamp = new QHBoxLayout(label2_);  // The clock's text stands on the lamp.
  lamp->setContentsMargins(6, 2, 6, 2);
  lamp->addWidget(label3_);
  label2_->setMinimumSize(lamp->sizeHint());
  auto* const clock = new QVBoxLayout;
  clock->setSpacing(2);
  clock->addWidget(label11);
  clock->addWidget(label2_);

  auto* const layout = new QHBoxLayout(board);
  layout->setContentsMargins(18, 10, 18, 12);
  layout->setSpacing(14);
  layout->addWidget(side1_.Team, 1);
  layout->addWidget(side1_.Score);
  layout->addLayout(clock);
  layout->addWidget(side2_.Score);
  layout->addWidget(side2_.Team, 1);
  return board;
}

void MatchWindow::BuildScore(SideWidgets& side, int number) {
  const QString n = QString::number(number);
  side.Team = Enlarged(MakeText("t" + n, "Team" + n, number == 1 ? Qt::AlignRight : Qt::AlignLeft), 1.7);
  side.Goals = Enlarged(MakeText("Inn" + n, "0", Qt::AlignRight), 2.6);
  side.Penalties = Enlarged(MakeText("Pen" + n, "(0)"), 1.5);
  side.Goals->setMinimumWidth(side.Goals->fontMetrics().horizontalAdvance("00"));
  const int penaltyWidth = side.Penalties->fontMetrics().horizontalAdvance("(00)");
  side.Score = new QWidget;
  // The goals start one penalty room right of where they stand in a shoot-out, and nothing else ever moves.
  side.Score->setFixedWidth(side.Goals->minimumWidth() +
                            std::max(penaltyWidth + 4, Twips(this, PenaltyRoom)));
  auto* const layout = new QHBoxLayout(side.Score);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(4);
  layout->addWidget(side.Goals);
  layout->addWidget(side.Penalties, 1);
  layout->addStretch();
}

QWidget* MatchWindow::BuildFacts(SideWidgets& side, int number) {
  const QString n = QString::number(number);
  auto* const box = new QFrame;
  box->setFrameShape(QFrame::StyledPanel);
  auto* const grid = new QGridLayout(box);
  grid->setHorizontalSpacing(14);
  int row = 0;
  const auto fact = [&](const QString& heading, const QString& name, const QString& text) {
    QLabel* const figure = Enlarged(MakeText(name, text, Qt::AlignRight), 1.1);
    grid->addWidget(MakeCaption(heading), row, 0);
    grid->addWidget(figure, row++, 1);
    return figure;
  };
  side.Shots = fact(tr("Shots"), "Shots" + n, "0");
  side.Corners = fact(tr("Corners"), "Corner" + n, "0");
  side.Bookings = fact(tr("Bookings"), "Book" + n, "0");
  side.Fouls = fact(tr("Fouls"), "Foul" + n, "0");
  side.Possession = fact(tr("Possesion"), ArrayName("PosMet", number - 1), "0%");
  side.Possession->setMinimumWidth(side.Possession->fontMetrics().horizontalAdvance("100%") + 8);
  return box;
}

QLayout* MatchWindow::BuildLists() {
  auto* const options = new QHBoxLayout;
  options->setSpacing(18);
  auto* const layout = new QVBoxLayout;
  layout->setSpacing(6);
  layout->addLayout(options);
  const QString captions[] = {tr("&Commentary"), tr("&Match Summary")};
  const QString names[] = {tr("Commentary"), tr("Match Summary")};
  for (int i : {1, 0}) {
    const auto at = static_cast<std::size_t>(i);
    option1_[at] = new QRadioButton(captions[i]);
    option1_[at]->setObjectName(ArrayName("Option1", i));
    options->addWidget(option1_[at]);
    list1_[at] = new QListWidget;
    list1_[at]->setObjectName(ArrayName("List1", i));
    list1_[at]->setAccessibleName(names[i]);
    list1_[at]->setUniformItemSizes(true);
    list1_[at]->setMinimumHeight(90);
    layout->addWidget(list1_[at]);
    connect(option1_[at], &QRadioButton::clicked, this,
            [this, i] { Act([this, i] { match_.Option1_Click(i); }); });
  }
  options->addStretch();
  return layout;
}

QLayout* MatchWindow::BuildButtons() {
  auto* const buttons = new QHBoxLayout;
  buttons->addWidget(halftime_);
  buttons->addWidget(instant_);
  buttons->addStretch();
  buttons->addWidget(comSave_);
  buttons->addWidget(command1_);
  command1_->setAutoDefault(false);
  return buttons;
}

void MatchWindow::Show() {
  const MatchSession& session = match_.Session();
  const MatchControls& controls = session.Controls;
  ShowSide(side1_, session.Side1, session.Side1Penalties);
  ShowSide(side2_, session.Side2, session.Side2Penalties);
  ven_->setText(ToQt(session.Venue));
  label1_->setText(ToQt(AttendanceText(session)));
  label3_->setText(ToQt(controls.Label3));
  label2_->setStyleSheet(
      QStringLiteral("#Label2 { background: %1; border-radius: 3px; } #Label3 { color: %2; }")
          .arg(LampColour(controls.Label2), controls.Label2 == Lamp::Black ? "#00ff00" : "#000000"));
  picture2_->SetBall(session.BallX, session.BallY);
  ShowLines(list1_[0], session.Commentary);
  ShowLines(list1_[1], session.Summary);
  for (int i : {0, 1}) {
    const auto at = static_cast<std::size_t>(i);
    option1_[at]->setEnabled(controls.Option1Enabled);
    option1_[at]->setChecked(controls.Option1 == i);
    list1_[at]->setVisible(controls.Option1 == i);
  }
  comSave_->setText(ToQt(match_.ComSaveCaption()));
  halftime_->setVisible(controls.halftimeVisible);
  instant_->setVisible(controls.instantVisible);
  instant_->setEnabled(controls.instantEnabled);
}

void MatchWindow::ShowSide(const SideWidgets& widgets, const Side& side, int penalties) const {
  const bool pens = match_.Session().Controls.PensVisible;
  widgets.Team->setText(ToQt(side.Team));
  widgets.Goals->setText(QString::number(side.Goals));
  widgets.Penalties->setText(QStringLiteral("(%1)").arg(penalties));
  widgets.Penalties->setVisible(pens);
  widgets.Score->layout()->setContentsMargins(pens ? 0 : Twips(this, PenaltyRoom), 0, 0, 0);
  widgets.Shots->setText(QString::number(side.Shots));
  widgets.Corners->setText(QString::number(side.Corners));
  widgets.Bookings->setText(QString::number(side.Bookings));
  widgets.Fouls->setText(QString::number(side.Fouls));
  widgets.Possession->setText(QStringLiteral("%1%").arg(side.PossessionPercent));
}

}  // namespace kickwell
