#include "ui/widgets/text_label.h"

#include <QHelpEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOption>
#include <QToolTip>
#include <algorithm>

#include "ui/widgets/appearance.h"

namespace kickwell {
namespace {

constexpr int UsualLength = 40;    ///< A label asks for room for so many characters at most,
constexpr int SmallestLength = 8;  ///< and insists on room for so many.
constexpr int LongestTip = 600;

/// Allows line breaks in long runs without blanks. Without them the tip would be as wide as the run.
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

void TextLabel::SetFaint(bool faint) {
  faint_ = faint;
  update();
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
  if (event->type() != QEvent::ToolTip || !toolTip().isEmpty()) return QLabel::event(event);
  const bool whole = Elided() == text();
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), whole ? QString() : PlainTip(text()),
                     this);
  return true;
}

void TextLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  QStyleOption option;
  option.initFrom(this);
  if (faint_) option.palette.setColor(foregroundRole(), FaintText(option.palette));
  style()->drawItemText(&painter, contentsRect(), static_cast<int>(alignment()), option.palette, isEnabled(),
                        Elided(), foregroundRole());
}

}  // namespace kickwell
