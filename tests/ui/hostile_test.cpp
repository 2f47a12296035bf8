// Every screen over files whose names are made to break it.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QListWidget>
#include <QScreen>
#include <QToolTip>
#include <map>

#include "support/fakes.h"
#include "support/folders.h"
#include "tour.h"
#include "ui/qt_desktop.h"
#include "ui/text_label.h"
#include "ui/widgets.h"

namespace kickwell {
namespace {

/// Markup, an entity, a would-be access key, control characters, and marks that turn the text after them
/// around.
const std::string Short = "<b>B&amp;&x\x07\t\u202E\u200Fz";
const std::string Long = Short + std::string(10000, 'W');

QStringList TextsOf(const QWidget* widget) {
  QStringList texts;
  if (const auto* const label = qobject_cast<const QLabel*>(widget)) texts.append(label->text());
  if (const auto* const list = qobject_cast<const QListWidget*>(widget))
    for (int i = 0; i < list->count(); ++i) texts.append(list->item(i)->text());
  if (const auto* const combo = qobject_cast<const QComboBox*>(widget))
    for (int i = 0; i < combo->count(); ++i) texts.append(combo->itemText(i));
  return texts;
}

/// Whether the hostile name was on view.
bool ExpectPlain(const QWidget& window) {
  bool seen = false;
  for (const QWidget* const widget : window.findChildren<QWidget*>()) {
    SCOPED_TRACE((window.objectName() + "/" + widget->objectName()).toStdString());
    for (const QString& text : TextsOf(widget)) {
      seen = seen || text.contains("<b>B&amp;&x  \uFFFD\u200Fz");
      EXPECT_FALSE(text.contains(QChar(0x202E)) || text.contains('\t') || text.contains('\a'));
      const auto* const label = qobject_cast<const QLabel*>(widget);
      EXPECT_TRUE(label == nullptr || !Qt::mightBeRichText(text) || label->textFormat() == Qt::PlainText);
    }
    QStringList tips{widget->toolTip()};
    if (const auto* const list = qobject_cast<const QListWidget*>(widget);
        list != nullptr && list->count() > 0)
      tips.append(list->item(0)->toolTip());
    for (const QString& tip : tips) EXPECT_FALSE(tip.contains("<b>") || tip.size() > 2000);
  }
  const QSize screen = window.screen()->size();
  EXPECT_LE(window.frameGeometry().width(), screen.width()) << window.objectName().toStdString();
  EXPECT_LE(window.frameGeometry().height(), screen.height()) << window.objectName().toStdString();
  return seen;
}

TEST(Hostile, NoNameBreaksAScreen) {
  const TestFolder folder;
  ASSERT_TRUE(SaveTeam(folder.Folder, MakeTeam("Plain", "P")).Ok());
  std::string squad = "75\n";
  for (const Player& player : MakeTeam("", Long).Players)
    squad += player.Name + "\n80\n" + player.Position + "\n";
  WriteBytes(folder / ("Teams/" + Short), squad);
  const std::string teams = Long + "\n" + Short + "\n";
  const std::string line = Long + "\n";
  WriteBytes(folder / "stadiums.sim", "1\nNeutral\n" + line + line + line);
  WriteBytes(folder / ("Leagues/" + Short + ".leg"),
             Short + "\n2\n" + teams + "2\nNP\n" + teams + "P\n" + teams);
  WriteBytes(folder / ("Tournies/" + Short + ".trn"),
             "1\n" + Short + "\n2\n" + teams + "NP\n" + teams + line);
  for (const std::string& place : {"Leagues/" + Short, "Tournies/" + Short}) {
    WriteBytes(folder / (place + ".sco"), line + line + "99999\n");
    WriteBytes(folder / (place + ".lrs"), line + line + line + "5\n" + line);
  }
  FakeDesktop desktop;
  const QFont usual = QApplication::font();
  QFont large = usual;
  large.setPointSizeF(usual.pointSizeF() * 2);
  QApplication::setFont(large);
  std::map<QString, bool> seen;
  Tour tour(folder.Folder, desktop,
            [&](const QWidget& window) { seen[window.objectName()] |= ExpectPlain(window); });
  EXPECT_TRUE(tour.Run());
  QApplication::setFont(usual);
  for (const auto& [screen, hostile] : seen) EXPECT_TRUE(hostile) << screen.toStdString();
}

TEST(Hostile, BoxesAndTipsStayOnTheScreen) {
  const QSize screen = QApplication::primaryScreen()->size();
  const TestFolder folder;
  User user;
  user.In("MessageBox", [&](QWidget& box) {
    EXPECT_LE(box.width(), screen.width());
    EXPECT_LE(box.height(), screen.height());
    for (const QLabel* const label : box.findChildren<QLabel*>())
      EXPECT_TRUE(!label->pixmap().isNull() || label->textFormat() == Qt::PlainText);
    User::Press(box, Qt::Key_Return);
  });
  QtDesktop(folder.Folder).Warn(Long);
  QToolTip::showText({}, PlainTip(Shown(Long)));
  for (const QWidget* const tip : QApplication::topLevelWidgets()) {
    EXPECT_TRUE(!tip->inherits("QTipLabel") || tip->width() <= screen.width());
  }
  QToolTip::hideText();
}

}  // namespace
}  // namespace kickwell
