// Every screen by keyboard alone and by screen reader.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QRadioButton>
#include <QScrollBar>
#include <QSizeGrip>
#include <set>

#include "support/fakes.h"
#include "support/folders.h"
#include "tour.h"

namespace kickwell {
namespace {

/// The window's widgets that its user sees, but for those that Qt makes inside another one.
std::vector<QWidget*> Seen(QWidget& window) {
  std::vector<QWidget*> seen;
  for (QWidget* const widget : window.findChildren<QWidget*>()) {
    const bool inner = widget->objectName().startsWith("qt_") || widget->window() != &window ||
                       qobject_cast<QComboBox*>(widget->parentWidget()) != nullptr;
    if (widget->isVisible() && !inner) seen.push_back(widget);
  }
  return seen;
}

/// What Tab stops at; of a ranking that is the marked row.
bool IsControl(const QWidget* widget) {
  static const QStringList pictures{"Picture1", "Picture2", "Marker(1)"};
  return widget->focusPolicy() != Qt::NoFocus || qobject_cast<const QAbstractButton*>(widget) != nullptr ||
         pictures.contains(widget->objectName());
}

auto Letters(const QString& text) {
  return std::count_if(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

bool IsWordless(const QString& name) {
  return Letters(name) < 3 || name.contains('<') || name.contains('>') || name.contains('&');
}

/// What a screen reader says a widget is; of a chooser it says what is picked, too.
QString NameOf(QAccessibleInterface& face) {
  if (face.role() != QAccessible::ComboBox) return face.text(QAccessible::Name);
  const auto captions = face.relations(QAccessible::Label);
  return captions.empty() ? face.text(QAccessible::Description) : captions[0].first->text(QAccessible::Name);
}

/// Controls, figures and pictures tell what they are, and what they show.
void ExpectNames(QWidget& window) {
  for (QWidget* const widget : Seen(window)) {
    const auto* const label = qobject_cast<QLabel*>(widget);
    const bool decoration = qobject_cast<QSizeGrip*>(widget) != nullptr ||
                            qobject_cast<QScrollBar*>(widget) != nullptr ||
                            widget->metaObject() == &QFrame::staticMetaObject;
    const bool leaf = widget->findChildren<QWidget*>().isEmpty() && !decoration;
    if (!IsControl(widget) && (!leaf || (label != nullptr && label->text().isEmpty()))) continue;
    const QString where = window.objectName() + "/" + widget->objectName();
    SCOPED_TRACE(where.toStdString());
    QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(widget);
    ASSERT_NE(face, nullptr);
    const QString name = NameOf(*face);
    EXPECT_TRUE(face->role() != QAccessible::Client && face->role() != QAccessible::NoRole);
    EXPECT_FALSE(face->text(QAccessible::Description).contains("<qt>"));
    EXPECT_FALSE(IsWordless(name)) << name.toStdString();
    const bool figure = label != nullptr && Letters(label->text()) == 0;
    EXPECT_TRUE(!figure || name.contains(label->text())) << name.toStdString();
  }
}

/// Tab stops at every control once, at nothing else, and goes down or to the right.
void ExpectTabOrder(QWidget& window) {
  std::set<QWidget*> controls, stops;
  for (QWidget* const widget : Seen(window)) {
    const auto* const radio = qobject_cast<QRadioButton*>(widget);  // Arrow keys reach the others.
    if (IsControl(widget) && widget->isEnabled() && (radio == nullptr || radio->isChecked()))
      controls.insert(widget);
  }
  QWidget* const first = window.focusWidget();
  ASSERT_NE(first, nullptr);
  const QString name = QAccessible::queryAccessibleInterface(first)->text(QAccessible::Name);
  EXPECT_FALSE(name.contains("Delete") || name.contains("Remove") || name.contains("Exit"))
      << name.toStdString();
  const auto place = [&window](QWidget* widget) {
    return QRect(widget->mapTo(&window, QPoint()), widget->size());
  };
  int backward = 0;
  for (QWidget* at = first; stops.insert(at).second;) {
    QTest::keyClick(at, Qt::Key_Tab);
    QWidget* const next = window.focusWidget();
    const QRect from = place(at), to = place(next);
    const bool back = to.bottom() < from.top() && to.left() < from.right();
    const bool left = std::abs(to.center().y() - from.center().y()) < 5 && to.left() < from.left();
    backward += back || left ? 1 : 0;
    EXPECT_LE(backward, 1) << at->objectName().toStdString() << " -> " << next->objectName().toStdString();
    at = next;
  }
  EXPECT_EQ(window.focusWidget(), first);
  for (const QWidget* const control : controls) {
    EXPECT_TRUE(stops.contains(const_cast<QWidget*>(control))) << control->objectName().toStdString();
  }
  for (const QWidget* const stop : stops) {
    EXPECT_TRUE(controls.contains(const_cast<QWidget*>(stop))) << stop->objectName().toStdString();
  }
}

void ExpectMenu(const QMenuBar& bar) {
  for (const QAction* const menu : bar.actions()) {
    EXPECT_FALSE(IsWordless(menu->text().remove('&')));
    for (const QAction* const item : menu->menu()->actions()) {
      EXPECT_TRUE(item->isSeparator() || !IsWordless(item->text().remove('&')));
      EXPECT_TRUE(item->isSeparator() || item->text().count('&') == 1);
    }
  }
}

TEST(Accessibility, EveryScreenIsToldAndWalked) {
  const TestFolder folder;
  for (const char* name : {"Rovers", "United"})
    ASSERT_TRUE(SaveTeam(folder.Folder, MakeTeam(name, "Player ")).Ok());
  ASSERT_TRUE(SaveStadiums(folder.Folder, {{"Neutral", "Bowl", "Oss", "500"}}).Ok());
  WriteBytes(folder / "Leagues/Test.leg",
             "Test\n2\nRovers\nUnited\n2\nNP\nRovers\nUnited\nP\nUnited\nRovers\n");
  WriteBytes(folder / "Leagues/Test.rec", "Rovers\n1\n1\n0\n0\n3\n1\n3\nUnited\n1\n0\n0\n1\n1\n3\n0\n");
  WriteBytes(folder / "Leagues/Test.sco", "Player 9\nRovers\n3\nPlayer 8\nUnited\n1\n");
  WriteBytes(folder / "Leagues/Test.lrs", "Match: 2\nUnited 1 vs Rovers 3\nBowl, Oss\n500\nRovers\n");
  WriteBytes(folder / "Tournies/Cup.trn", "1\nCup\n2\nRovers\nUnited\nNP\nRovers\nUnited\nWinner 1\n");
  FakeDesktop desktop;
  std::set<QString> screens;
  std::string row, state;
  Tour tour(folder.Folder, desktop, [&](QWidget& window) {
    SCOPED_TRACE(window.objectName().toStdString());
    screens.insert(window.objectName());
    ExpectNames(window);
    if (const auto* const bar = window.findChild<QMenuBar*>())
      ExpectMenu(*bar);
    else
      ExpectTabOrder(window);
    const auto* const marker = window.findChild<QWidget*>("Marker(1)");
    if (window.objectName() == "Table") row = marker->accessibleName().toStdString();
    if (const auto* const pitch = window.findChild<QWidget*>("Picture2"))
      state = pitch->accessibleDescription().toStdString();
  });
  ASSERT_TRUE(tour.Run());
  EXPECT_EQ(screens.size(), 13U);
  EXPECT_EQ(row,
            "Rank 1, Team Rovers, Played 1, Won 1, Tied 0, Lost 0, Goals for 3, Goals against 1, Points 3");
  EXPECT_TRUE(state.starts_with("United 1, Rovers 1, GOAL!, ") ||
              state.starts_with("United 1, Rovers 1, MISS!, "))
      << state;
}

}  // namespace
}  // namespace kickwell
