#include "ui/widgets/text_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOption>
#include <QToolTip>
#include <algorithm>

namespace kickwell {
namespace {

constexpr int UsualLength = 40;    ///< Characters that a label asks room for at most.
constexpr int SmallestLength = 8;  ///< Characters that it insists on at most.
constexpr int LongestTip = 600;

/// With places where a run without blanks may be broken, or the tip would be as long as the run.
QString Broken(QString text) {
  static const QRegularExpression longRun(QStringLiteral("(\\S{40})(?=\\S)"));
  return text.replace(longRun, QStringLiteral("\\1\u200B"));
}

}  // namespace

QString PlainTip(const QString& text) {
  if (text.isEmpty()) return {};
  return "<qt>" + Broken(text.left(LongestTip)).toHtmlEscaped() + "</qt>";
}

TextLabel::TextLabel(const QString& text) : QLabel(text) {
  setTextFormat(Qt::PlainText);
}

QSize TextLabel::HintUpTo(int characters) const {
  const QString some = text().left(characters);
  const QMargins margins = contentsMargins();
  return QSize(fontMetrics().horizontalAdvance(some) + 2, fontMetrics().height()).grownBy(margins);
}

QSize TextLabel::sizeHint() const {
  return HintUpTo(UsualLength);
}

QSize TextLabel::minimumSizeHint() const {
  return HintUpTo(SmallestLength);
}

QString TextLabel::Elided() const {
  return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
}

bool TextLabel::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QLabel::event(event);
  const bool whole = Elided() == text();
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), whole ? QString() : PlainTip(text()),
                     this);
  return true;
}

void TextLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  QStyleOption option;
  option.initFrom(this);
  style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), option.palette, isEnabled(),
                        Elided(), foregroundRole());
}

}  // namespace kickwell
