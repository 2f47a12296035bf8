#include "ui/text.h"

#include <map>

namespace kickwell {
namespace {

/// Whether the character begins or ends a run of text in the other direction.
bool ReversesText(QChar c) {
  return (c >= QChar(0x202A) && c <= QChar(0x202E)) || (c >= QChar(0x2066) && c <= QChar(0x2069));
}

}  // namespace

QString WithoutBreaks(QString text) {
  for (QChar& c : text) {
    if (c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
      c = ' ';
  }
  return text;
}

QString Shown(std::string_view text) {
  QString shown = WithoutBreaks(ToQt(text));
  for (QChar& c : shown) {
    if (ReversesText(c)) c = QChar::ReplacementCharacter;
  }
  return shown;
}

QString PositionWords(std::string_view code) {
  static const std::map<std::string_view, QString> words{
      {"GK", "Goalkeeper"}, {"DF", "Defender"}, {"MF", "Midfielder"}, {"FD", "Forward"},
      {"L", "Left"},        {"R", "Right"},     {"C", "Centre"}};
  const auto word = [](std::string_view part) {
    const auto found = words.find(part);
    return found == words.end() ? QString() : found->second;
  };
  if (code.size() != 3) return word(code);
  const std::string_view line = code.substr(0, 2);
  const QString side = word(code.substr(2));
  const bool known = line != "GK" && !word(line).isEmpty() && !side.isEmpty();
  return known ? word(line) + ", " + side.toLower() : QString();
}

QString ArrayName(const char* name, int index) {
  return QStringLiteral("%1(%2)").arg(QLatin1String(name)).arg(index);
}

}  // namespace kickwell
