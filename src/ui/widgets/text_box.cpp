#include "ui/widgets/text_box.h"

#include <QAction>
#include <QStyle>
#include <QToolTip>
#include <algorithm>

#include "ui/text.h"

namespace kickwell {
namespace {

QString WithoutBreaks(QString text) {
  for (QChar& c : text) {
    const bool breaks =
        c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
    if (breaks) c = ' ';
  }
  return text;
}

}  // namespace

TextBox::TextBox(const QString& objectName, int length, std::string& text)
    : length_(length),
      text_(text),
      cutSign_(addAction(style()->standardIcon(QStyle::SP_MessageBoxWarning), TrailingPosition)) {
  setObjectName(objectName);
  cutSign_->setToolTip(QStringLiteral("Only %1 characters fit.").arg(length));
  cutSign_->setVisible(false);
  connect(this, &QLineEdit::textEdited, this, &TextBox::Keep);
}

void TextBox::Keep(const QString& typed) {
  QString kept = WithoutBreaks(typed);
  const QList<uint> characters = kept.toUcs4();
  const bool cut = characters.size() > length_;
  if (cut) kept = QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()), length_);
  if (kept != typed) {
    const int cursor = cursorPosition();
    setText(kept);
    setCursorPosition(std::min(cursor, static_cast<int>(kept.size())));
  }
  text_ = kept.toStdString();
  TellCut(cut);
}

void TextBox::TellCut(bool cut) {
  cutSign_->setVisible(cut);
  setAccessibleDescription(cut ? cutSign_->toolTip() : QString());
  if (cut) QToolTip::showText(mapToGlobal(rect().bottomLeft()), cutSign_->toolTip(), this);
}

void TextBox::ShowText() {
  if (text() == ToQt(text_)) return;
  setText(ToQt(text_));
  TellCut(false);
}

}  // namespace kickwell
