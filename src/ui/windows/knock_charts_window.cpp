#include "ui/windows/knock_charts_window.h"

#include <QFontInfo>
#include <QPainter>
#include <QPushButton>

#include "base/at.h"
#include "ui/text.h"
#include "ui/widgets/accessible.h"
#include "ui/widgets/appearance.h"
#include "ui/widgets/labels.h"

namespace kickwell {
namespace {

/// The part of the screen units that the chart shows.
constexpr qreal ChartWidth = 8775, ChartTop = 360, ChartHeight = 5175;
constexpr qreal SmallestType = 6;  ///< In points.
constexpr int SmallestName = 14;   ///< Characters that a box has room for, at least.

}  // namespace

BracketView::BracketView(const KnockCharts& charts) : charts_(charts) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setFocusPolicy(Qt::TabFocus);
  SetRole(this, QAccessible::Chart);
  setAccessibleName("Knock Out Table");
  for (int slot = 0; slot < SlotTotal; ++slot) {
    QLabel* const label = MakeText(ArrayName("team", slot), Shown(charts.Text(slot)), Qt::AlignHCenter);
    label->setParent(this);
    label->setVisible(slot < charts.VisibleSlots);
    QFont font = label->font();
    const bool known = PlaceholderNumber(charts.Text(slot)) == 0;
    const bool beyondFirstRound = At(ChartSlots(), slot).Left > ChartSlots().front().Left;
    font.setBold(known && beyondFirstRound);  // Known winners stand out.
    font.setItalic(!known);
    label->setFont(font);
    At(team_, slot) = label;
  }
  NameSlots();
}

void BracketView::NameSlots() {
  const auto name = [this](int slot, const QString& caption) {
    SetFigureCaption(At(team_, slot), caption);
    return Shown(charts_.Text(slot));
  };
  QStringList matches;
  int number = 0;
  for (const auto& [home, away, winner] : charts_.Matches) {
    const QString match = QStringLiteral("Match %1").arg(++number);
    matches.append(match + ": " + name(home, match + ", home") + " against " + name(away, match + ", away"));
    name(winner, "Winner");  // Unless the slot takes part in a later match, which names it again.
  }
  if (!charts_.Matches.empty())
    matches.append("Winner: " + Shown(charts_.Text(charts_.Matches.back().Winner)));
  setAccessibleDescription(matches.join("; "));
}

QSize BracketView::minimumSizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  return {static_cast<int>(SmallestName * metrics.averageCharWidth() * ChartWidth / SlotWidth),
          static_cast<int>((metrics.height() + 4) * ChartHeight / SlotHeight)};
}

QRectF BracketView::BoxOf(int slot) const {
  const ChartSlot& place = At(ChartSlots(), slot);
  const qreal x = width() / ChartWidth;
  const qreal y = height() / ChartHeight;
  return {place.Left * x, (place.Top - ChartTop) * y, SlotWidth * x, SlotHeight * y};
}

void BracketView::resizeEvent(QResizeEvent* /*event*/) {
  for (int slot = 0; slot < SlotTotal; ++slot) {
    QLabel* const label = At(team_, slot);
    label->setGeometry(BoxOf(slot).toRect().adjusted(3, 1, -3, -1));
    // Smaller type makes a long name fit: its end may tell of a toss.
    QFont fitting = label->font();
    fitting.setPointSizeF(QFontInfo(font()).pointSizeF());
    while (fitting.pointSizeF() > SmallestType &&
           QFontMetrics(fitting).horizontalAdvance(label->text()) > label->width()) {
      fitting.setPointSizeF(fitting.pointSizeF() - 0.5);
    }
    label->setFont(fitting);
  }
}

void BracketView::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(FaintText(palette()), 1.2));
  for (const auto& [home, away, winner] : charts_.Matches) {
    const QRectF next = BoxOf(winner);
    const QPointF join((BoxOf(home).right() + next.left()) / 2, next.center().y());
    painter.drawLine(join, QPointF(next.left(), join.y()));
    for (const int slot : {home, away}) {
      const QPointF from(BoxOf(slot).right(), BoxOf(slot).center().y());
      const QPointF corners[] = {from, {join.x(), from.y()}, join};
      painter.drawPolyline(corners, 3);
    }
  }
  painter.setBrush(palette().base());
  for (int slot = 0; slot < charts_.VisibleSlots; ++slot) painter.drawRoundedRect(BoxOf(slot), 3, 3);
  DrawFocus(this);
}

KnockChartsWindow::KnockChartsWindow(KnockCharts& charts, QWidget* parent)
    : ScreenWindow("KnockCharts", "Kickwell Knock Out Table", parent), charts_(charts) {
  QLabel* const label1 = MakeHeading("Label1");
  label1->setText(Shown(charts.Label1));
  QPushButton* const command3 = Button("Command3", "Close", [this] { charts_.Command3_Click(); });
  command3->setDefault(true);
  Page()->addWidget(label1);
  Page()->addWidget(new BracketView(charts), 1);
  SetButtons({.Right = {command3}});
  command3->setFocus();
  OpenAt(980, 640);
}

}  // namespace kickwell
