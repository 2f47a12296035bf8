// A friendly through the real windows, boxes and dialogs, with the keyboard alone.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QListWidget>
#include <QtTest/QTest>

#include "engine/report.h"
#include "support/folders.h"
#include "ui/app.h"
#include "ui/qt_desktop.h"
#include "user.h"

namespace kickwell {
namespace {

TEST(Friendly, IsPlayedSavedAndLeftByKeyboard) {
  const TestFolder folder;
  for (const char* name : {"Albion", "Borough", "City"})
    ASSERT_TRUE(SaveTeam(folder.Folder, MakeTeam(name, name)).Ok());
  ASSERT_TRUE(
      SaveStadiums(folder.Folder, {{"Albion", "Mill", "Leat", "1000"}, {"Neutral", "Bowl", "Oss", "500"}})
          .Ok());
  QtDesktop desktop(folder.Folder);
  SeededRandom random(5);
  App app(folder.Folder, desktop, random);
  app.Start();
  User user;
  QStringList shown;
  user.In("Opening", [](QWidget& window) { User::Choose(window, Qt::Key_P, Qt::Key_S); });
  user.In("Settings", [](QWidget& window) {
    User::Press(window, Qt::Key_Down);  // Own team: Borough, so the opposition moves on to City.
    User::Press(window, Qt::Key_Tab);
    User::Press(window, Qt::Key_Tab);
    User::Press(window, Qt::Key_Down);  // Venue: Bowl.
    for (int i = 0; i < 3; ++i) User::Press(window, Qt::Key_Tab);
    User::Press(window, Qt::Key_Space);  // Extra time, which makes the next stop the shoot-out.
    User::Press(window, Qt::Key_Tab);
    User::Press(window, Qt::Key_Space);
    User::Press(window, Qt::Key_Return);
  });
  user.In("Selection", [&user](QWidget& window) {
    user.Wait(50);  // The squads come when the screen has been drawn.
    EXPECT_EQ(User::TextOf(window, "Team1") + User::TextOf(window, "Team2"), "BoroughCity");
    EXPECT_EQ(User::TextOf(window, "Post2(10)") + User::TextOf(window, "Sk2(10)"), "FDR80");
    User::Press(window, Qt::Key_C, Qt::AltModifier);
  });
  user.In("Main", [&user, &shown](QWidget& window) {
    EXPECT_EQ(User::TextOf(window, "ven"), "Bowl, Oss");
    User::Press(window, Qt::Key_V, Qt::AltModifier);
    user.Wait(200);  // A button pressed by its key is seen to go down.
    const auto* const summary = window.findChild<QListWidget*>("List1(1)");
    for (int i = 0; i < summary->count(); ++i) shown.append(summary->item(i)->text());
    EXPECT_FALSE(window.findChild<QWidget*>("instant")->isEnabled());
    EXPECT_NE(User::TextOf(window, "PosMet(0)"), "0%");
    User::Click(window, "ComSave");
  });
  user.In("SaveDialog", [&folder](QWidget& window) {
    auto* const name = window.findChild<QLineEdit*>();
    EXPECT_EQ(name->text(), "Borough_City_Summary");
    name->setText(QString::fromStdString((folder / "page").string()));
    QTest::keyClick(name, Qt::Key_Return);
  });
  user.In("Main", [](QWidget& window) { User::Press(window, Qt::Key_Escape); });
  user.In("MessageBox", [](QWidget& window) { User::Press(window, Qt::Key_Escape); });  // No: still there.
  user.In("Main", [](QWidget& window) { User::Press(window, Qt::Key_X, Qt::AltModifier); });
  user.In("MessageBox", [](QWidget& window) { User::Press(window, Qt::Key_Y, Qt::AltModifier); });
  bool ended = false;
  user.In("Opening", [&ended](QWidget& window) {  // Both set-up screens have closed with the match.
    User::Choose(window, Qt::Key_P, Qt::Key_X);
    ended = !window.isVisible();
  });
  ASSERT_TRUE(user.Finish());
  EXPECT_TRUE(ended);
  ASSERT_GE(shown.size(), 3);
  EXPECT_TRUE(shown.contains("Result:"));
  const Lines page = ReadLines(folder / "page.htm").value_or(Lines{});
  ASSERT_GT(page.size(), 20U);
  EXPECT_EQ(page[6], "Venue: Bowl, Oss<br>");
  EXPECT_EQ(page[9], shown[0].toStdString() + "<br>");
}

}  // namespace
}  // namespace kickwell
