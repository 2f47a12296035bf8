#include "ui/widgets/text_box.h"

#include <QAction>
#include <QSignalBlocker>
#include <QStyle>
#include <algorithm>

#include "ui/text.h"

namespace kickwell {
namespace {

/// The first `count` characters, as a reader counts them.
QString FirstOf(const QString& text, qsizetype count) {
  const QList<uint> characters = text.toUcs4();
  return QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()),
                           std::min(count, characters.size()));
}

}  // namespace

TextBox::TextBox(const QString& objectName, int length, std::string& text)
    : length_(length),
      text_(text),
      cutSign_(addAction(style()->standardIcon(QStyle::SP_MessageBoxWarning), TrailingPosition)),
      cutLine_(new QLabel(QStringLiteral("Only %1 characters fit.").arg(length), this)) {
  setObjectName(objectName);
  cutLine_->setObjectName(objectName + "Cut");
  TellCut(false);
  connect(this, &QLineEdit::textChanged, this, &TextBox::Keep);
}

void TextBox::Keep(const QString& typed) {
  QString kept = WithoutBreaks(typed);
  QString before = kept.left(cursorPosition());
  const auto excess = kept.toUcs4().size() - length_;
  if (excess > 0) {  // What was typed last has no room.
    const QString after = kept.mid(before.size());
    before = FirstOf(before, std::max(before.toUcs4().size() - excess, qsizetype(0)));
    kept = FirstOf(before + after, length_);
  }
  if (kept != typed) {
    const QSignalBlocker quiet(this);
    setText(kept);
    setCursorPosition(static_cast<int>(before.size()));
  }
  text_ = kept.toStdString();
  TellCut(excess > 0);
}

void TextBox::TellCut(bool cut) {
  cutSign_->setVisible(cut);
  cutLine_->setVisible(cut);
  setAccessibleDescription(cut ? cutLine_->text() : QString());
}

void TextBox::ShowText() {
  if (text() == ToQt(text_)) return;
  const QSignalBlocker quiet(this);
  setText(ToQt(text_));
  TellCut(false);
}

}  // namespace kickwell
