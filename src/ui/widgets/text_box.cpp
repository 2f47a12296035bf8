#include "ui/widgets/text_box.h"

#include <algorithm>

#include "ui/text.h"

namespace kickwell {
namespace {

QString Cut(QString text, int length) {
  for (QChar& c : text) {
    const bool breaks =
        c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
    if (breaks) c = ' ';
  }
  const QList<uint> characters = text.toUcs4();
  if (characters.size() <= length) return text;
  return QString::fromUcs4(reinterpret_cast<const char32_t*>(characters.constData()), length);
}

}  // namespace

QLineEdit* MakeTextBox(const QString& objectName, int length, std::string& text) {
  auto* const box = new QLineEdit;
  box->setObjectName(objectName);
  QObject::connect(box, &QLineEdit::textEdited, box, [box, length, &text](const QString& typed) {
    const QString kept = Cut(typed, length);
    if (kept != typed) {
      const int cursor = box->cursorPosition();
      box->setText(kept);
      box->setCursorPosition(std::min(cursor, static_cast<int>(kept.size())));
    }
    text = kept.toStdString();
  });
  return box;
}

void ShowText(QLineEdit* box, const std::string& text) {
  if (box->text() != ToQt(text)) box->setText(ToQt(text));
}

}  // namespace kickwell
