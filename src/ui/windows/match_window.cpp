#include "ui/windows/match_window.h"

#include <QEventLoop>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLinearGradient>
#include <QPainter>
#include <algorithm>
#include <tuple>
#include <utility>

#include "base/at.h"
#include "ui/text.h"
#include "ui/widgets/accessible.h"
#include "ui/widgets/appearance.h"
#include "ui/widgets/labels.h"
#include "ui/widgets/scale.h"
#include "ui/widgets/team_stripe.h"
#include "ui/widgets/text_label.h"

namespace kickwell {
namespace {

constexpr int PenaltyRoom = 360;  ///< How far the goals move left for the shoot-out counts, in twips.

/// How long the ball glides: it arrives well before the next tick.
int Glide(const MatchTimings& timings) {
  return timings.Tick * 6 / 10;
}

/// The board behind the score: dark in every theme, with white text.
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

}  // namespace

MatchWindow::MatchWindow(Match& match, MatchTimings timings, QWidget* parent)
    : ScreenWindow("Main", "Kickwell Match", parent),
      match_(match),
      timings_(timings),
      label1_(MakeText("Label1", "Attendence", Qt::AlignRight)),
      ven_(MakeText("ven", "Match Venue")),
      label2_(MakeCaption({})),
      label3_(MakeText("Label3", {}, Qt::AlignHCenter)),
      over_(MakeText("Over", "Match over", Qt::AlignHCenter)),
      picture2_(new PitchPicture(Glide(timings))),
      picture1_(new GoalPicture(Glide(timings))),
      kicks_(new KickRows),
      summary_(new LineList(ArrayName("List1", 0))),
      commentary_(new LineList(ArrayName("List1", 1))),
      halftime_(Button("halftime", {}, [this] { match_.halftime_Click(); })),
      instant_(Button("instant", "&View Instant Match Results", [this] { match_.instant_Click(); })),
      kick_(Button("kick", "&Kick Ball", [this] { match_.kick_Click(); })),
      nextshot_(Button("nextshot", "&Next Player", [this] { match_.nextshot_Click(); })),
      comSave_(Button("ComSave", {}, [this] { match_.ComSave_Click(); })),
      command1_(Button("Command1", "E&xit", [this] { match_.Command1_Click(); })) {
  picture2_->setObjectName("Picture2");
  auto* const place = new QHBoxLayout;
  place->addWidget(ven_, 1);
  place->addWidget(MakeFixtureLine(match.Session().Setup));
  place->addWidget(label1_, 1);

  scoreBoard_ = BuildScoreBoard();
  auto* const field = new QHBoxLayout;
  field->setSpacing(BetweenColumns);
  field->addWidget(BuildFacts(side1_, 1));
  field->addWidget(picture2_, 1);
  field->addWidget(BuildShootOut(), 1);
  field->addWidget(BuildFacts(side2_, 2));

  Page()->addWidget(scoreBoard_);
  Page()->addLayout(place);
  Page()->addLayout(field, 3);
  Page()->addLayout(BuildLists(), 2);
  SetButtons({.Left = {halftime_, instant_, kick_, nextshot_}, .Right = {comSave_, command1_}});
  // Without a text box to take Enter from, the button with the focus may show that Enter presses it.
  for (QPushButton* const button : {halftime_, instant_, kick_, nextshot_, comSave_})
    button->setAutoDefault(true);

  timer1_.setObjectName("Timer1");
  timer1_.setTimerType(Qt::PreciseTimer);
  timer1_.setInterval(timings_.Tick);
  connect(&timer1_, &QTimer::timeout, this, [this] { Act([this] { match_.Timer1_Timer(*this); }); });
  Refresh();
  (instant_->isHidden() ? halftime_ : instant_)->setFocus();
  OpenAt(920, 680);
}

QWidget* MatchWindow::BuildScoreBoard() {
  auto* const board = new ScoreBoard;
  SetRole(board, QAccessible::StatusBar);
  BuildScore(side1_, 1);
  BuildScore(side2_, 2);
  QLabel* const label11 = MakeCaption("Match Timer");
  label11->setObjectName("Label11");
  label11->setAlignment(Qt::AlignCenter);
  label2_->setObjectName("Label2");
  label2_->setAutoFillBackground(true);
  SetFigureCaption(label3_, "Match Timer");
  Enlarged(label3_, BoardType);
  label3_->setMinimumWidth(label3_->fontMetrics().horizontalAdvance("000:00") + 4 * InGroup);
  auto* const lamp = new QGridLayout(label2_);  // The clock's text is on the lamp.
  lamp->setContentsMargins(InGroup, Tight, InGroup, Tight);
  lamp->addWidget(label3_, 0, 0);
  lamp->addWidget(over_, 0, 0);
  SetColours(over_, Qt::black, QColor(0, 0xc0, 0));  // Fainter than the clock.
  label2_->setMinimumSize(label3_->minimumWidth() + 2 * InGroup, label3_->fontMetrics().height() + 2 * Tight);
  auto* const clock = new QVBoxLayout;
  clock->setSpacing(Tight);
  clock->addWidget(label11);
  clock->addWidget(label2_);

  const auto name = [](SideWidgets& side) {
    auto* const column = new QVBoxLayout;
    column->setSpacing(Tight);
    side.Stripes[0] = MakeStripe(Qt::Horizontal, 6);
    side.Stripes[0]->setFrameStyle(QFrame::Box | QFrame::Plain);  // The board is neither light nor dark.
    column->addStretch();
    column->addWidget(side.Team);
    column->addWidget(side.Stripes[0]);
    column->addStretch();
    return column;
  };
  auto* const layout = new QHBoxLayout(board);
  layout->setContentsMargins(PageMargin, BetweenGroups, PageMargin, BetweenGroups);
  layout->setSpacing(BetweenColumns);
  layout->addLayout(name(side1_), 1);
  layout->addWidget(side1_.Score);
  layout->addLayout(clock);
  layout->addWidget(side2_.Score);
  layout->addLayout(name(side2_), 1);
  return board;
}

void MatchWindow::BuildScore(SideWidgets& side, int number) {
  const QString n = QString::number(number);
  side.Team =
      Enlarged(MakeText("t" + n, "Team" + n, number == 1 ? Qt::AlignRight : Qt::AlignLeft), BoardType);
  side.Goals = Enlarged(MakeText("Inn" + n, "0", Qt::AlignRight), ScoreType);
  side.Penalties = Enlarged(MakeText("Pen" + n, "(0)"), HeadingType);
  side.Goals->setMinimumWidth(side.Goals->fontMetrics().horizontalAdvance("00"));
  side.Score = new QWidget;
  // The goals make room for the penalties by moving left. Nothing else moves, so the room is there from the
  // start.
  const int penaltyWidth = side.Penalties->fontMetrics().horizontalAdvance("(00)");
  side.Score->setFixedWidth(side.Goals->minimumWidth() +
                            std::max(penaltyWidth + Tight, Twips(this, PenaltyRoom)));
  auto* const layout = new QHBoxLayout(side.Score);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(Tight);
  layout->addWidget(side.Goals);
  layout->addWidget(side.Penalties, 1);
  layout->addStretch();
}

QWidget* MatchWindow::BuildFacts(SideWidgets& side, int number) {
  const QString n = QString::number(number);
  side.Facts = new QFrame;
  side.Facts->setFrameShape(QFrame::StyledPanel);
  auto* const layout = new QVBoxLayout(side.Facts);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(side.Stripes[1] = MakeStripe(Qt::Horizontal, 6));
  auto* const grid = new QGridLayout;
  layout->addLayout(grid, 1);
  grid->setContentsMargins(InGroup, InGroup, InGroup, InGroup);
  grid->setHorizontalSpacing(BetweenColumns);
  int row = 0;
  const auto fact = [&](const QString& heading, QAnyStringView name, const QString& text) {
    QLabel* const figure = Enlarged(MakeText(name, text, Qt::AlignRight), FigureType);
    // Room around the figure that lights up, so that all stand in line.
    figure->setContentsMargins(InGroup, 0, InGroup, 0);
    grid->addWidget(MakeCaption(heading), row, 0);
    grid->addWidget(figure, row++, 1, Qt::AlignVCenter);
    return figure;
  };
  side.Shots = fact("Shots", "Shots" + n, "0");
  side.Corners = fact("Corners", "Corner" + n, "0");
  side.Bookings = fact("Bookings", "Book" + n, "0");
  side.Fouls = fact("Fouls", "Foul" + n, "0");
  side.Possession = fact("Possesion", ArrayName("PosMet", number - 1), "0%");
  side.Possession->setAutoFillBackground(true);
  const QFontMetrics metrics = side.Possession->fontMetrics();
  side.Possession->setMinimumSize(metrics.horizontalAdvance("100%") + 14, metrics.height() + 8);
  return side.Facts;
}

QWidget* MatchWindow::BuildShootOut() {
  shootOut_ = new QWidget;
  picture1_->setObjectName("Picture1");
  QLabel* const label8 = MakeCaption("PENALTY SHOOT OUT:");
  label8->setObjectName("Label8");
  Enlarged(label8, FigureType);
  auto* const layout = new QVBoxLayout(shootOut_);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(InGroup);
  layout->addWidget(label8, 0, Qt::AlignHCenter);
  layout->addWidget(picture1_, 1);
  layout->addWidget(kicks_);
  return shootOut_;
}

QLayout* MatchWindow::BuildLists() {
  const auto option = [this](int index, const QString& caption) {
    auto* const button = new QRadioButton(caption);
    button->setObjectName(ArrayName("Option1", index));
    connect(button, &QRadioButton::clicked, this,
            [this, index] { Act([this, index] { match_.Option1_Click(index); }); });
    At(option1_, index) = button;
    return button;
  };
  auto* const options = new QHBoxLayout;
  options->setSpacing(BetweenColumns);
  options->addWidget(option(1, "&Match Summary"));
  options->addWidget(option(0, "&Commentary"));
  options->addStretch();

  auto* const layout = new QVBoxLayout;
  layout->setSpacing(InGroup);
  layout->addLayout(options);
  summary_->setAccessibleName("Match Summary");
  commentary_->setAccessibleName("Commentary");
  commentary_->SetHint("The story of the match appears here.");
  summary_->SetHint(match_.Session().Controls.Option1Enabled
                        ? "Goals appear here. Select Commentary for the whole story."
                        : "Goals and the result appear here.");
  for (LineList* const list : {summary_, commentary_}) {
    list->setMinimumHeight(3 * list->fontMetrics().height() + 8);
    layout->addWidget(list);
  }
  return layout;
}

void MatchWindow::PauseFunction() {
  QEventLoop pause;
  QTimer::singleShot(timings_.GoalPause, Qt::PreciseTimer, &pause, &QEventLoop::quit);
  connect(this, &QDialog::finished, &pause, &QEventLoop::quit);
  pause.exec();
  timer1_.start();  // The next minute is a full tick away.
}

void MatchWindow::Refresh() {
  const MatchSession& session = match_.Session();
  const MatchControls& controls = session.Controls;
  ShowSide(side1_, session.Side1, session.BallSide == 1);
  ShowSide(side2_, session.Side2, session.BallSide == 2);
  ShowVenue(session);
  label1_->setText(Shown(AttendanceText(session)));
  picture2_->SetBall(session.BallX, session.BallY);
  ShowClock(controls);
  ShowShootOut(controls);
  ShowLists(session);
  ShowButtons(controls);
  TellState(session);
}

void MatchWindow::ShowVenue(const MatchSession& session) {
  const QString venue = Shown(session.Venue);
  const QString weather = session.Weather ? ToQt(session.Weather->Text) : QString();
  ven_->setText(venue);
  ven_->setToolTip(weather.isEmpty() ? QString() : PlainTip(venue + ". Weather: " + weather));
  SetDescription(ven_, weather);
}

void MatchWindow::TellState(const MatchSession& session) {
  const auto score = [](const Side& side) { return Shown(side.Team) + " " + QString::number(side.Goals); };
  QStringList state{score(session.Side1), score(session.Side2)};
  SetName(scoreBoard_, state.join(", "));
  if (!session.Controls.Label3.empty()) state.append(Shown(session.Controls.Label3));
  if (session.BallSide != 0) {
    const bool first = session.BallSide == 1;
    const int third = std::clamp(session.BallX * 3 / (2 * CentreSpotX), 0, 2);
    const QString places[] = {"on the left", "in midfield", "on the right"};
    state.append("ball with " + Shown((first ? session.Side1 : session.Side2).Team) + " " + places[third]);
  }
  if (session.Controls.kickEnabled) {
    const bool first = KickOnView(session) % 2 == 0;
    state.append(Shown((first ? session.Side1 : session.Side2).Team) + " to kick");
  }
  const ItemList& lines = session.Commentary.Entries.empty() ? session.Summary : session.Commentary;
  if (!lines.Entries.empty()) state.append(Shown(lines.Entries.back()));
  for (QWidget* const picture : {static_cast<QWidget*>(picture1_), static_cast<QWidget*>(picture2_)})
    SetDescription(picture, state.join(", "));
}

void MatchWindow::ShowSide(const SideWidgets& widgets, const Side& side, bool hasBall) const {
  const QString team = Shown(side.Team);
  const std::tuple<QLabel*, const char*, int> figures[] = {{widgets.Goals, ", goals", side.Goals},
                                                           {widgets.Shots, ", shots", side.Shots},
                                                           {widgets.Corners, ", corners", side.Corners},
                                                           {widgets.Bookings, ", bookings", side.Bookings},
                                                           {widgets.Fouls, ", fouls", side.Fouls}};
  for (const auto& [label, caption, figure] : figures) {
    SetFigureCaption(label, team + caption);
    label->setText(QString::number(figure));
  }
  SetFigureCaption(widgets.Penalties, team + ", penalties");
  SetFigureCaption(widgets.Possession, team + (hasBall ? ", has the ball, possession" : ", possession"));
  SetName(widgets.Facts, team + ", facts");
  widgets.Team->setText(team);
  for (QFrame* const stripe : widgets.Stripes) ShowTeam(stripe, match_.Session(), side);
  widgets.Penalties->setText(QStringLiteral("(%1)").arg(side.Penalties));
  const bool pens = match_.Session().Controls.PensVisible;
  widgets.Penalties->setVisible(pens);
  widgets.Score->layout()->setContentsMargins(pens ? 0 : Twips(this, PenaltyRoom), 0, 0, 0);
  widgets.Possession->setText(QStringLiteral("%1%").arg(side.PossessionPercent));
  SetColours(widgets.Possession, hasBall ? LampColour(Lamp::Green) : palette().color(QPalette::Button),
             hasBall ? QColor(Qt::black) : palette().color(QPalette::ButtonText));
}

void MatchWindow::ShowClock(const MatchControls& controls) {
  label3_->setText(Shown(controls.Label3));
  over_->setVisible(match_.Session().IsOver() && controls.Label3.empty());
  const QString lamps[] = {"Lamp: dark", "Lamp: green", "Lamp: red"};
  SetName(label2_, lamps[static_cast<std::size_t>(controls.Label2)]);
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
  kicks_->Show(match_.Session());
}

void MatchWindow::ShowLists(const MatchSession& session) {
  commentary_->ShowLines(session.Commentary);
  summary_->ShowLines(session.Summary);
  const LineList* const onView = ListOnView();
  for (LineList* const list : {commentary_, summary_}) list->setVisible(list == onView);
  for (int i : {0, 1}) {
    At(option1_, i)->setEnabled(session.Controls.Option1Enabled);
    At(option1_, i)->setChecked(session.Controls.Option1 == i);
  }
  comSave_->setText(Shown(match_.ComSaveCaption()));
}

LineList* MatchWindow::ListOnView() const {
  return match_.Session().Controls.Option1 == 0 ? commentary_ : summary_;
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
  // A button that becomes disabled would pass the focus on to the next button, and Enter with it. The list on
  // view takes the focus instead; from there Enter presses the button that is enabled.
  for (const Play& play : buttons) {
    if (focusWidget() == play.Button && !(play.Visible && play.Enabled)) ListOnView()->setFocus();
  }
  for (const Play& play : buttons) {
    play.Button->setVisible(play.Visible);
    play.Button->setEnabled(play.Enabled);
    if (play.Visible && play.Enabled) play.Button->setDefault(true);
  }
  if (match_.Session().IsOver()) ShowEnd();
}

/// Enter leaves only when the result could be seen. That of an instant match was asked for.
void MatchWindow::ShowEnd() {
  if (std::exchange(wasOver_, true)) return;
  if (match_.Session().Setup.SimulationType == SimulationKind::InstantResult)
    return command1_->setDefault(true);
  QTimer::singleShot(timings_.ResultPause, this, [this] { command1_->setDefault(true); });
}

}  // namespace kickwell
