#include "ui/windows/opening_window.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QPainter>
#include <QVBoxLayout>

#include "base/program.h"
#include "ui/text.h"
#include "ui/widgets/accessible.h"
#include "ui/widgets/labels.h"
#include "ui/widgets/page_area.h"
#include "ui/widgets/scale.h"

namespace kickwell {
namespace {

/// Mown grass under the title, with the centre circle.
class Grass : public QWidget {
 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    constexpr int Stripe = 60;
    for (int x = 0; x < width(); x += Stripe) {
      painter.fillRect(x, 0, Stripe, height(),
                       x / Stripe % 2 == 0 ? QColor(0x23, 0x68, 0x33) : QColor(0x1e, 0x5e, 0x2d));
    }
    painter.setPen(QPen(QColor(255, 255, 255, 60), 3));
    const QPointF centre = rect().toRectF().center();
    painter.drawLine(QPointF(centre.x(), 0), QPointF(centre.x(), height()));
    painter.drawEllipse(centre, height() * 0.42, height() * 0.42);
  }
};

QLabel* AddText(QVBoxLayout* layout, const QString& name, const QString& text, qreal size, bool bold) {
  // Fixed texts are never cut short.
  QLabel* const label = text.isEmpty() ? MakeText(name, text) : MakeCaption(text);
  label->setObjectName(name);
  label->setAlignment(Qt::AlignCenter);
  Enlarged(label, size);
  QFont font = label->font();
  font.setBold(bold);
  label->setFont(font);
  QPalette white = label->palette();
  white.setColor(QPalette::WindowText, Qt::white);
  label->setPalette(white);
  layout->addWidget(label);
  return label;
}

}  // namespace

OpeningWindow::OpeningWindow(Opening& opening) : opening_(opening) {
  setObjectName("Opening");
  setWindowTitle("Kickwell v4.0");
  BuildMenus();
  setCentralWidget(new PageArea(BuildTitle()));
  Refresh();
  opening_.Changed = [this] { Refresh(); };
  resize(QSize(640, 420).expandedTo(sizeHint()).boundedTo(RoomOnScreen(this)));
}

void OpeningWindow::BuildMenus() {
  const auto add = [this](QMenu* menu, const char* name, const QString& caption, void (Opening::*action)()) {
    QAction* const item = menu->addAction(caption);
    item->setObjectName(QLatin1String(name));
    connect(item, &QAction::triggered, this, [this, action] {
      (opening_.*action)();
      Refresh();
    });
    return item;
  };
  QMenu* const play = menuBar()->addMenu("&Play");
  add(play, "MatchMenu", "&Single Match", &Opening::MatchMenu_Click);
  add(play, "KnockLoad", "&Knock Out", &Opening::KnockLoad_Click);
  add(play, "LegLoad", "&League", &Opening::LegLoad_Click);
  play->addSeparator();
  add(play, "ExitMenu", "E&xit", &Opening::ExitMenu_Click);

  QMenu* const editors = menuBar()->addMenu("&Editors");
  add(editors, "TeamMenu", "&Team Editor", &Opening::TeamMenu_Click);
  add(editors, "StadMenu", "&Stadium Editor", &Opening::StadMenu_Click);
  add(editors, "LegMenu", "&Championship Editor", &Opening::LegMenu_Click);

  statistics_ = menuBar()->addMenu("&Statistics");
  add(statistics_, "ScorerMenu", "&Top Scorers", &Opening::ScorerMenu_Click);
  leagueMenu_ = add(statistics_, "LeagueMenu", "&League Table", &Opening::LeagueMenu_Click);
  add(statistics_, "LegRes", "&Match Results", &Opening::LegRes_Click);
  knockChart_ = add(statistics_, "KnockChart", "&Knock Out Table", &Opening::KnockChart_Click);

  QMenu* const help = menuBar()->addMenu("&Help");
  add(help, "ReadMenu", "&Contents", &Opening::ReadMenu_Click)->setShortcut(QKeySequence::HelpContents);
  add(help, "HistMenu", "&History", &Opening::HistMenu_Click);
}

QWidget* OpeningWindow::BuildTitle() {
  auto* const grass = new Grass;
  auto* const layout = new QVBoxLayout(grass);
  layout->setContentsMargins(PageMargin, PageMargin, PageMargin, PageMargin);
  layout->addStretch(2);
  AddText(layout, "Label1", "Kickwell v4.0", TitleType, true);
  layout->addStretch(1);
  AddText(layout, "Label4", "League/Tournament", 1, false);
  league_ = AddText(layout, "league", {}, HeadingType, true);
  SetFigureCaption(league_, "League/Tournament");
  layout->addStretch(2);
  AddText(layout, "Label2", "Programming and Design", SmallType, false);
  AddText(layout, "Label3", ToQt(Credits), 1, true);
  mode_ = MakeText("mode", {});
  mode_->setParent(grass);
  mode_->setVisible(false);
  return grass;
}

void OpeningWindow::Refresh() {
  league_->setText(Shown(opening_.ChampionshipName));
  mode_->setText(Shown(ToText(opening_.Mode)));
  statistics_->menuAction()->setEnabled(opening_.StatisticsEnabled);
  leagueMenu_->setVisible(opening_.LeagueMenuVisible);
  knockChart_->setVisible(opening_.KnockChartVisible);
  if (opening_.Closed) close();
}

void OpeningWindow::closeEvent(QCloseEvent* event) {
  opening_.ExitMenu_Click();
  event->accept();
}

}  // namespace kickwell
