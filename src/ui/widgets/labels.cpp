#include "ui/widgets/labels.h"

#include <QFontInfo>
#include <algorithm>

#include "ui/text.h"
#include "ui/widgets/accessible.h"
#include "ui/widgets/scale.h"
#include "ui/widgets/text_label.h"

namespace kickwell {

QLabel* MakeText(QAnyStringView objectName, const QString& text, Qt::Alignment alignment) {
  auto* const label = new TextLabel(text);
  label->setObjectName(objectName);
  label->setAlignment(alignment | Qt::AlignVCenter);
  return label;
}

QLabel* MakeFaint(QAnyStringView objectName, Qt::Alignment alignment) {
  QLabel* const label = MakeText(objectName, {}, alignment);
  static_cast<TextLabel*>(label)->SetFaint(true);
  return label;
}

QLabel* Enlarged(QLabel* label, qreal factor) {
  QFont font = label->font();
  font.setPointSizeF(QFontInfo(font).pointSizeF() * factor);
  font.setBold(true);
  label->setFont(font);
  return label;
}

QLabel* MakeHeading(const QString& objectName) {
  QLabel* const heading = MakeText(objectName, {}, Qt::AlignHCenter);
  return Enlarged(heading, HeadingType);
}

QLabel* MakeFixtureLine(const MatchSetup& setup) {
  QLabel* const line = MakeFaint("fixture", Qt::AlignHCenter);
  line->setText(Shown(setup.ChampionshipName) + QStringLiteral(", match %1").arg(setup.MatchNumber));
  line->setVisible(setup.Mode != MatchMode::Friendly);
  return line;
}

QLabel* MakeCaption(const QString& text) {
  return new QLabel(text);
}

QLabel* MakeCaption(const QString& text, QWidget* buddy) {
  QLabel* const caption = MakeCaption(text);
  QFont bold = caption->font();
  bold.setBold(true);
  caption->setFont(bold);
  caption->setBuddy(buddy);
  // Lists do not take their name from their buddy by themselves.
  QString name = text;
  if (buddy != nullptr) buddy->setAccessibleName(name.remove('&').remove(':'));
  return caption;
}

QVBoxLayout* Captioned(const QString& text, QWidget* control) {
  auto* const group = new QVBoxLayout;
  group->setSpacing(InGroup);
  group->addWidget(MakeCaption(text, control));
  group->addWidget(control);
  return group;
}

void AlignCaptions(const QList<QLabel*>& captions) {
  int widest = 0;
  for (const QLabel* const caption : captions) widest = std::max(widest, caption->sizeHint().width());
  for (QLabel* const caption : captions) caption->setMinimumWidth(widest);
}

QLabel* MakeFigureCaption(const QString& text, QLabel* figure) {
  SetFigureCaption(figure, QString(text).remove(':'));
  return MakeCaption(text);
}

}  // namespace kickwell
