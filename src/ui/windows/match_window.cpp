#include "ui/windows/match_window.h"

#include <QEventLoop>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLinearGradient>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>

#include "ui/widgets/accessible.h"
#include "ui/widgets/widgets.h"

namespace kickwell {
namespace {

constexpr int PenaltyRoom = 360;  ///< How far the goals move left for the shoot-out counts, in twips.

/// The ball has arrived well before the next tick.
int Glide(const MatchTimings& timings) {
  return timings.Tick * 6 / 10;
}

/// The board behind the score, dark in every theme, with white writing.
class ScoreBoard final : public QWidget {
 public:
  ScoreBoard() {
    QPalette white = palette();
    white.setColor(QPalette::WindowText, Qt::white);
    setPalette(white);
  }

 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient green(0, 0, 0, height());
    green.setColorAt(0, QColor(0x1d, 0x5a, 0x2c));
    green.setColorAt(1, QColor(0x12, 0x3a, 0x1d));
    painter.setPen(Qt::NoPen);
    painter.setBrush(green);
    painter.drawRoundedRect(rect(), 6, 6);
  }
};

void SetColours(QWidget* widget, const QColor& background, const QColor& text) {
  QPalette palette = widget->palette();
  if (palette.color(QPalette::Window) == background && palette.color(QPalette::WindowText) == text) return;
  palette.setColor(QPalette::Window, background);
  palette.setColor(QPalette::WindowText, text);
  widget->setPalette(palette);
}

}  // namespace

MatchWindow::MatchWindow(Match& match, MatchTimings timings, QWidget* parent)
    : ScreenWindow("Main", tr("Kickwell Match"), parent),
      match_(match),
      timings_(timings),
      label1_(MakeText("Label1", tr("Attendence"), Qt::AlignRight)),
      ven_(MakeText("ven", tr("Match Venue"))),
      label2_(MakeCaption({})),
      label3_(MakeText("Label3", {}, Qt::AlignHCenter)),
      picture2_(new PitchPicture(Glide(timings))),
      picture1_(new GoalPicture(Glide(timings))),
      halftime_(MakeButton("halftime", {})),
      instant_(MakeButton("instant", tr("&View Instant Match Results"))),
      kick_(MakeButton("kick", tr("&Kick Ball"))),
      nextshot_(MakeButton("nextshot", tr("&Next Player"))),
      comSave_(MakeButton("ComSave", {})),
      command1_(MakeButton("Command1", tr("E&xit"))) {
  picture2_->setObjectName("Picture2");
  auto* const place = new QHBoxLayout;
  place->addWidget(ven_, 1);
  place->addWidget(label1_);

  scoreBoard_ = BuildScoreBoard();
  auto* const field = new QHBoxLayout;
  field->setSpacing(12);
  field->addWidget(BuildFacts(side1_, 1));
  field->addWidget(picture2_, 1);
  field->addWidget(BuildShootOut(), 1);
  field->addWidget(BuildFacts(side2_, 2));

  auto* const layout = new QVBoxLayout(Page());
  layout->setContentsMargins(16, 16, 16, 16);
  layout->setSpacing(12);
  layout->addWidget(scoreBoard_);
  layout->addLayout(place);
  layout->addLayout(field, 3);
  layout->addLayout(BuildLists(), 2);
  layout->addLayout(BuildButtons());

  ConnectActions();
  timer1_.setObjectName("Timer1");
  timer1_.setTimerType(Qt::PreciseTimer);
  timer1_.setInterval(timings_.Tick);
  Refresh();
  (instant_->isHidden() ? halftime_ : instant_)->setFocus();
  OpenAt(920, 680);
}

QWidget* MatchWindow::BuildScoreBoard() {
  auto* const board = new ScoreBoard;
  SetRole(board, QAccessible::StatusBar);
  BuildScore(side1_, 1);
  BuildScore(side2_, 2);
  QLabel* const label11 = MakeCaption(tr("Match Timer"));
  label11->setObjectName("Label11");
  label11->setAlignment(Qt::AlignCenter);
  label2_->setObjectName("Label2");
  label2_->setAutoFillBackground(true);
  SetFigureCaption(label3_, tr("Match Timer"));
  Enlarged(label3_, 1.9);
  label3_->setMinimumWidth(label3_->fontMetrics().horizontalAdvance("000:00") + 24);
  auto* const lamp = new QHBoxLayout(label2_);  // The clock's text stands on the lamp.
  lamp->setContentsMargins(6, 2, 6, 2);
  lamp->addWidget(label3_);
  label2_->setMinimumSize(label3_->minimumWidth() + 12, label3_->fontMetrics().height() + 6);
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
  side.Score = new QWidget;
  // The goals start one penalty room right of where they stand in a shoot-out, and nothing else ever moves.
  const int penaltyWidth = side.Penalties->fontMetrics().horizontalAdvance("(00)");
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
    grid->addWidget(figure, row++, 1, Qt::AlignVCenter);
    return figure;
  };
  side.Shots = fact(tr("Shots"), "Shots" + n, "0");
  side.Corners = fact(tr("Corners"), "Corner" + n, "0");
  side.Bookings = fact(tr("Bookings"), "Book" + n, "0");
  side.Fouls = fact(tr("Fouls"), "Foul" + n, "0");
  side.Possession = fact(tr("Possesion"), ArrayName("PosMet", number - 1), "0%");
  side.Possession->setAlignment(Qt::AlignCenter);
  side.Possession->setAutoFillBackground(true);
  const QFontMetrics metrics = side.Possession->fontMetrics();
  side.Possession->setMinimumSize(metrics.horizontalAdvance("100%") + 14, metrics.height() + 8);
  return box;
}

QWidget* MatchWindow::BuildShootOut() {
  shootOut_ = new QWidget;
  picture1_->setObjectName("Picture1");
  QLabel* const label8 = MakeCaption(tr("PENALTY SHOOT OUT:"));
  label8->setObjectName("Label8");
  Enlarged(label8, 1.1);
  side1_.Takers = MakeText("Label4", tr("Team 1"), Qt::AlignRight);
  side2_.Takers = MakeText("Label7", tr("Team 2"), Qt::AlignRight);
  auto* const rows = new QGridLayout;
  rows->setSpacing(0);
  rows->setHorizontalSpacing(0);
  rows->setColumnMinimumWidth(1, 8);
  rows->addWidget(side1_.Takers, 0, 0);
  rows->addWidget(side2_.Takers, 1, 0);
  for (int n = 0; n < KickCount; ++n) {
    auto* const mark = new KickMark;
    mark->setObjectName(ArrayName("penalty", n));
    penalty_[static_cast<std::size_t>(n)] = mark;
    rows->addWidget(mark, n % 2, 2 + n / 2);
    rows->setColumnMinimumWidth(2 + n / 2, mark->width());
  }
  rows->setColumnStretch(0, 1);
  rows->setColumnStretch(2 + KickCount / 2, 1);
  auto* const layout = new QVBoxLayout(shootOut_);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(6);
  layout->addWidget(label8, 0, Qt::AlignHCenter);
  layout->addWidget(picture1_, 1);
  layout->addLayout(rows);
  return shootOut_;
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
    list1_[at] = MakeList(ArrayName("List1", i));
    list1_[at]->setAccessibleName(names[i]);
    list1_[at]->setMinimumHeight(5 * list1_[at]->fontMetrics().height() + 8);
    layout->addWidget(list1_[at]);
  }
  options->addStretch();
  return layout;
}

QLayout* MatchWindow::BuildButtons() {
  auto* const buttons = new QHBoxLayout;
  for (QPushButton* const button : {halftime_, instant_, kick_, nextshot_}) buttons->addWidget(button);
  buttons->addStretch();
  buttons->addWidget(comSave_);
  buttons->addWidget(command1_);
  command1_->setAutoDefault(false);
  return buttons;
}

void MatchWindow::ConnectActions() {
  const auto onClick = [this](QPushButton* button, void (Match::*action)()) {
    connect(button, &QPushButton::clicked, this, [this, action] { Act([&] { (match_.*action)(); }); });
  };
  onClick(halftime_, &Match::halftime_Click);
  onClick(instant_, &Match::instant_Click);
  onClick(kick_, &Match::kick_Click);
  onClick(nextshot_, &Match::nextshot_Click);
  onClick(comSave_, &Match::ComSave_Click);
  onClick(command1_, &Match::Command1_Click);
  for (int i : {0, 1}) {
    connect(option1_[static_cast<std::size_t>(i)], &QRadioButton::clicked, this,
            [this, i] { Act([this, i] { match_.Option1_Click(i); }); });
  }
  connect(&timer1_, &QTimer::timeout, this, [this] { Act([this] { match_.Timer1_Timer(*this); }); });
}

void MatchWindow::PauseFunction() {
  QEventLoop pause;
  QTimer::singleShot(timings_.GoalPause, Qt::PreciseTimer, &pause, &QEventLoop::quit);
  connect(this, &QDialog::finished, &pause, &QEventLoop::quit);
  pause.exec();
  timer1_.start();  // The next minute is a whole tick away again.
}

void MatchWindow::Refresh() {
  const MatchSession& session = match_.Session();
  const MatchControls& controls = session.Controls;
  ShowSide(side1_, session.Side1, session.BallSide == 1);
  ShowSide(side2_, session.Side2, session.BallSide == 2);
  ven_->setText(Shown(session.Venue));
  label1_->setText(Shown(AttendanceText(session)));
  picture2_->SetBall(session.BallX, session.BallY);
  ShowClock(controls);
  ShowShootOut(controls);
  ShowLists(session);
  ShowButtons(controls);
  TellState(session);
}

void MatchWindow::TellState(const MatchSession& session) {
  const auto score = [](const Side& side) { return Shown(side.Team) + " " + QString::number(side.Goals); };
  QStringList state{score(session.Side1), score(session.Side2)};
  scoreBoard_->setAccessibleName(state.join(", "));
  if (!session.Controls.Label3.empty()) state.append(Shown(session.Controls.Label3));
  if (session.BallSide != 0) {
    const bool first = session.BallSide == 1;
    const int third = std::clamp(session.BallX * 3 / (2 * CentreSpotX), 0, 2);
    const QString places[] = {tr("on the left"), tr("in midfield"), tr("on the right")};
    state.append(tr("ball with ") + Shown((first ? session.Side1 : session.Side2).Team) + " " +
                 places[third]);
  }
  const ItemList& lines = session.Commentary.Entries.empty() ? session.Summary : session.Commentary;
  if (!lines.Entries.empty()) state.append(Shown(lines.Entries.back()));
  for (QWidget* const picture : {static_cast<QWidget*>(picture1_), static_cast<QWidget*>(picture2_)})
    picture->setAccessibleDescription(state.join(", "));
}

void MatchWindow::ShowSide(const SideWidgets& widgets, const Side& side, bool hasBall) const {
  const bool pens = match_.Session().Controls.PensVisible;
  const QString team = Shown(side.Team);
  SetFigureCaption(widgets.Goals, team + tr(", goals"));
  SetFigureCaption(widgets.Penalties, team + tr(", penalties"));
  SetFigureCaption(widgets.Shots, team + tr(", shots"));
  SetFigureCaption(widgets.Corners, team + tr(", corners"));
  SetFigureCaption(widgets.Bookings, team + tr(", bookings"));
  SetFigureCaption(widgets.Fouls, team + tr(", fouls"));
  SetFigureCaption(widgets.Possession,
                   team + (hasBall ? tr(", has the ball, possession") : tr(", possession")));
  widgets.Team->setText(team);
  widgets.Takers->setText(team);
  widgets.Goals->setText(QString::number(side.Goals));
  widgets.Penalties->setText(QStringLiteral("(%1)").arg(side.Penalties));
  widgets.Penalties->setVisible(pens);
  widgets.Score->layout()->setContentsMargins(pens ? 0 : Twips(this, PenaltyRoom), 0, 0, 0);
  widgets.Shots->setText(QString::number(side.Shots));
  widgets.Corners->setText(QString::number(side.Corners));
  widgets.Bookings->setText(QString::number(side.Bookings));
  widgets.Fouls->setText(QString::number(side.Fouls));
  widgets.Possession->setText(QStringLiteral("%1%").arg(side.PossessionPercent));
  SetColours(widgets.Possession, hasBall ? LampColour(Lamp::Green) : palette().color(QPalette::Button),
             hasBall ? QColor(Qt::black) : palette().color(QPalette::ButtonText));
}

void MatchWindow::ShowClock(const MatchControls& controls) {
  label3_->setText(Shown(controls.Label3));
  const QString lamps[] = {tr("Lamp: dark"), tr("Lamp: green"), tr("Lamp: red")};
  label2_->setAccessibleName(lamps[static_cast<std::size_t>(controls.Label2)]);
  const bool dark = controls.Label2 == Lamp::Black;
  SetColours(label2_, LampColour(controls.Label2), LampColour(dark ? Lamp::Green : Lamp::Black));
  if (!controls.Timer1Enabled) {
    timer1_.stop();
  } else if (!timer1_.isActive()) {
    timer1_.start();
  }
}

void MatchWindow::ShowShootOut(const MatchControls& controls) {
  const bool onPitch = focusWidget() == picture2_;
  picture2_->setVisible(!controls.ShootOutVisible);
  shootOut_->setVisible(controls.ShootOutVisible);
  picture1_->SetBall(controls.Shape2);
  if (onPitch && controls.ShootOutVisible) picture1_->setFocus();
  for (std::size_t n = 0; n < penalty_.size(); ++n) {
    const Side& side = n % 2 == 0 ? match_.Session().Side1 : match_.Session().Side2;
    penalty_[n]->SetMarker(controls.penalty[n], Shown(side.Team) + tr(", kick %1").arg(n / 2 + 1));
  }
}

void MatchWindow::ShowLists(const MatchSession& session) {
  const ItemList* const lines[] = {&session.Commentary, &session.Summary};
  for (int i : {0, 1}) {
    const auto at = static_cast<std::size_t>(i);
    const bool onView = session.Controls.Option1 == i;
    ShowLines(list1_[at], *lines[i]);
    list1_[at]->setVisible(onView);
    option1_[at]->setEnabled(session.Controls.Option1Enabled);
    option1_[at]->setChecked(onView);
  }
  comSave_->setText(Shown(match_.ComSaveCaption()));
}

void MatchWindow::ShowButtons(const MatchControls& controls) {
  struct Play {
    QPushButton* Button;
    bool Visible, Enabled;
  };
  const Play buttons[] = {{halftime_, controls.halftimeVisible, controls.halftimeEnabled},
                          {instant_, controls.instantVisible, controls.instantEnabled},
                          {kick_, controls.ShootOutVisible, controls.kickEnabled},
                          {nextshot_, controls.ShootOutVisible, controls.nextshotEnabled}};
  halftime_->setText(Shown(ToText(match_.Session().Period)));
  // A button that goes dark would pass the focus on to the next button, and Enter with it. The list on view
  // takes it instead, from where Enter still presses the button that is lit.
  for (const Play& play : buttons) {
    if (focusWidget() == play.Button && !(play.Visible && play.Enabled)) {
      list1_[static_cast<std::size_t>(controls.Option1)]->setFocus();
    }
  }
  for (const Play& play : buttons) {
    play.Button->setVisible(play.Visible);
    play.Button->setEnabled(play.Enabled);
    if (play.Visible && play.Enabled) play.Button->setDefault(true);
  }
}

}  // namespace kickwell
