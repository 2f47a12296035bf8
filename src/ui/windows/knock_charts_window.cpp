#include "ui/windows/knock_charts_window.h"

#include <QFontInfo>
#include <QPainter>
#include <QPushButton>
#include <algorithm>

#include "base/at.h"
#include "ui/text.h"
#include "ui/widgets/accessible.h"
#include "ui/widgets/appearance.h"
#include "ui/widgets/labels.h"

namespace kickwell {
namespace {

/// Around the chart, in screen units.
constexpr qreal ChartMargin = 240;
constexpr qreal SmallestType = 6;  ///< In points.
constexpr int SmallestName = 14;   ///< Characters that a box has room for, at least.
constexpr int LongestName = 30;    ///< That a box asks for room for; type gets smaller for longer ones.
constexpr int BoxMargin = 4;       ///< Between a box and its name, in pixels.

constexpr qreal Corner = 3;
constexpr QMarginsF Frame(BoxMargin, BoxMargin, BoxMargin, BoxMargin);  ///< Around the champion's box.

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
    const bool beyondFirstRound = At(ChartSlots(), slot).Left > ChartSlots().front().Left;
    font.setBold(IsKnown(slot) && beyondFirstRound);  // Known winners stand out.
    font.setItalic(!IsKnown(slot));
    label->setFont(font);
    if (IsChampion(slot)) label->setForegroundRole(QPalette::HighlightedText);
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

bool BracketView::IsKnown(int slot) const {
  return PlaceholderNumber(charts_.Text(slot)) == 0;
}

/// Whether the slot names the winner of the final.
bool BracketView::IsChampion(int slot) const {
  return !charts_.Matches.empty() && slot == charts_.Matches.back().Winner && IsKnown(slot);
}

/// The part of the screen units that this bracket takes up.
QRectF BracketView::Extent() const {
  QRectF extent;
  for (int slot = 0; slot < charts_.VisibleSlots; ++slot) {
    const ChartSlot& place = At(ChartSlots(), slot);
    extent |= QRectF(place.Left, place.Top, SlotWidth, SlotHeight);
  }
  return extent.adjusted(-ChartMargin, -ChartMargin, ChartMargin, ChartMargin);
}

/// The size of the chart with boxes of this size, in pixels.
QSize BracketView::SizeWith(const QSize& box) const {
  const QRectF extent = Extent();
  return QSizeF(box.width() * extent.width() / SlotWidth, box.height() * extent.height() / SlotHeight)
      .toSize();
}

QSize BracketView::minimumSizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  return SizeWith({SmallestName * metrics.averageCharWidth(), metrics.height() + BoxMargin});
}

QSize BracketView::sizeHint() const {
  int widest = SmallestName * fontMetrics().averageCharWidth();
  for (int slot = 0; slot < charts_.VisibleSlots; ++slot) {
    const QLabel* const label = At(team_, slot);
    widest = std::max(widest, QFontMetrics(label->font()).horizontalAdvance(label->text().left(LongestName)));
  }
  return SizeWith({widest + 4 * BoxMargin, fontMetrics().height() + 2 * BoxMargin});
}

QRectF BracketView::BoxOf(int slot) const {
  const ChartSlot& place = At(ChartSlots(), slot);
  const QRectF extent = Extent();
  const qreal x = width() / extent.width();
  const qreal y = height() / extent.height();
  return {(place.Left - extent.left()) * x, (place.Top - extent.top()) * y, SlotWidth * x, SlotHeight * y};
}

void BracketView::resizeEvent(QResizeEvent* /*event*/) {
  for (int slot = 0; slot < SlotTotal; ++slot) {
    QLabel* const label = At(team_, slot);
    label->setGeometry(BoxOf(slot).toRect().adjusted(BoxMargin, 1, -BoxMargin, -1));
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
  for (int slot = 0; slot < charts_.VisibleSlots; ++slot) {
    const QRectF box = BoxOf(slot);
    painter.setBrush(IsChampion(slot) ? palette().highlight() : palette().base());
    painter.drawRoundedRect(box, Corner, Corner);
    painter.setBrush(Qt::NoBrush);
    if (IsChampion(slot)) painter.drawRoundedRect(box.marginsAdded(Frame), Corner, Corner);
  }
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
  OpenAt(420, 0);
}

}  // namespace kickwell
