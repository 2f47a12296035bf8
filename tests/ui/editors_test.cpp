// A club built from nothing through the real windows, given a stadium, and played.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QtTest/QTest>

#include "support/fakes.h"
#include "support/folders.h"
#include "ui/app.h"
#include "user.h"

namespace kickwell {
namespace {

void Type(QWidget& window, const char* box, const QString& text) {
  QTest::keyClicks(window.findChild<QLineEdit*>(box), text);
}

TEST(Editors, AClubIsBuiltFromNothingAndPlaysInItsStadium) {
  const TestFolder folder;
  ASSERT_TRUE(SaveTeam(folder.Folder, MakeTeam("Albion", "A")).Ok());
  WriteBytes(folder / "Leagues/Test.leg", "Test\n2\nNewcomers\nAlbion\n1\nNP\nNewcomers\nAlbion\n");
  FakeDesktop desktop;
  SeededRandom random(2);
  App app(folder.Folder, desktop, random);
  User user;
  user.In("Opening", [](QWidget& window) { User::Choose(window, Qt::Key_E, Qt::Key_T); });
  user.In("TeamEditor", [](QWidget& window) {
    Type(window, "Text1", "Newcomers and more");  // Cut to 16 characters.
    Type(window, "Text5", "777");
    EXPECT_EQ(window.findChild<QLineEdit*>("Text1")->text(), "Newcomers and mo");
    EXPECT_EQ(window.findChild<QLineEdit*>("Text5")->text(), "77");
    for (int i = 0; i < 7; ++i) QTest::keyClick(window.findChild<QLineEdit*>("Text1"), Qt::Key_Backspace);
    User::Click(window, "Command7");
    EXPECT_EQ(window.findChild<QComboBox*>("Combo3")->currentText(), "Newcomers");
    for (int i = 0; i < 11; ++i) {
      Type(window, "Text2", "N" + QString::number(i));
      Type(window, "Text4", QString::number(50 + i));
      User::Pick(window, "Combo1", i == 10 ? 3 : i % 3);  // The keeper comes last,
      User::Click(window, "Command8");
    }
    for (int i = 0; i < 10; ++i) User::Click(window, "Command1");  // and is moved to the front.
    EXPECT_EQ(window.findChild<QListWidget*>("List1")->item(0)->text(), "N10");
    EXPECT_EQ(User::TextOf(window, "Label14") + User::TextOf(window, "Label5"), "11GK");
    User::Click(window, "Command4");
  });
  user.In("Opening", [](QWidget& window) { User::Choose(window, Qt::Key_E, Qt::Key_S); });
  user.In("StadEditor", [](QWidget& window) {
    Type(window, "Text1", "Newcomers Field");
    Type(window, "Text2", "Newtown");
    Type(window, "Text3", "1200");
    User::Pick(window, "Combo1", 2);
    User::Click(window, "Command2");
    EXPECT_EQ(User::TextOf(window, "Label8"), "1");
    User::Click(window, "Command3");
  });
  user.In("Opening", [](QWidget& window) { User::Choose(window, Qt::Key_P, Qt::Key_L); });
  user.In("LegSettings", [](QWidget& window) { User::Click(window, "Command1"); });
  user.In("Selection", [&user](QWidget& window) {
    user.Wait(40);
    EXPECT_EQ(window.findChild<QComboBox*>("Combo1(0)")->currentText(), "N10");
    User::Click(window, "Command1");
  });
  user.In("Main", [](QWidget& window) {
    EXPECT_EQ(User::TextOf(window, "ven"), "Newcomers Field, Newtown");
    User::Click(window, "instant");
    User::Click(window, "Command1");
  });
  user.In("LegSettings", [](QWidget& window) { User::Click(window, "Command2"); });
  user.In("Opening", [](QWidget& window) { User::Choose(window, Qt::Key_E, Qt::Key_T); });
  user.In("TeamEditor", [](QWidget& window) {
    Type(window, "Text1", "Third");
    Type(window, "Text5", "50");
    QTest::keyClick(window.findChild<QLineEdit*>("Text5"), Qt::Key_Return);  // Enter adds, too.
    User::Click(window, "Command4");
  });
  user.In("Opening", [&folder](QWidget& window) {
    EXPECT_EQ(ReadLines(folder / "Leagues/Test.rec")->size(), 24U);  // The league of the menu takes it in,
    User::Choose(window, Qt::Key_S, Qt::Key_L);
  });
  user.In("Table", [](QWidget& window) {
    EXPECT_EQ(User::TextOf(window, "Team(3)"), "");  // and its table shows its own teams.
    User::Click(window, "Command1");
  });
  user.In("Opening", [](QWidget& window) { User::Choose(window, Qt::Key_P, Qt::Key_S); });
  user.In("Settings", [](QWidget& window) {
    EXPECT_EQ(window.findChild<QComboBox*>("Combo1")->count(), 3);
    User::Pick(window, "Combo1", 1);
    User::Pick(window, "Combo2", 0);
    User::Click(window, "Command1");
  });
  user.In("Selection", [&user](QWidget& window) {
    user.Wait(40);
    User::Click(window, "Command1");
  });
  user.In("Main", [](QWidget& window) {
    User::Click(window, "instant");
    EXPECT_NE(User::TextOf(window, "PosMet(0)"), "0%");
    User::Click(window, "Command1");
  });
  user.In("Opening", [](QWidget& window) { User::Choose(window, Qt::Key_P, Qt::Key_X); });
  app.Start();
  EXPECT_TRUE(user.Finish());
}

}  // namespace
}  // namespace kickwell
