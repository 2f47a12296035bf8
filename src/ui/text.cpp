#include "ui/text.h"

namespace kickwell {
namespace {

/// Whether the character begins or ends a run of text in the other direction.
bool ReversesText(QChar c) {
  return (c >= QChar(0x202A) && c <= QChar(0x202E)) || (c >= QChar(0x2066) && c <= QChar(0x2069));
}

}  // namespace

QString Shown(std::string_view text) {
  QString shown = ToQt(text);
  for (QChar& c : shown) {
    if (c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator) {
      c = ' ';
    } else if (ReversesText(c)) {
      c = QChar::ReplacementCharacter;
    }
  }
  return shown;
}

QString ArrayName(const char* name, int index) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

}  // namespace kickwell
