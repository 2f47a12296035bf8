// How the editors' windows follow the hands of someone who builds a club or a championship.
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QtTest/QTest>

#include "support/screen_test.h"
#include "ui/widgets/text_box.h"
#include "ui/windows/leg_editor_window.h"
#include "ui/windows/team_editor_window.h"
#include "user.h"

namespace kickwell {
namespace {

using EditingTest = WindowTest;

TEST_F(EditingTest, PlayersAreAddedFromTheKeyboardAlone) {
  ASSERT_TRUE(SaveTeam(folder_.Folder, {"Rovers", "75", {}}).Ok());
  TeamEditor editor(folder_.Folder, desktop_, "N/A");
  TeamEditorWindow window(editor, nullptr);
  window.show();
  window.findChild<QLineEdit*>("Text2")->setFocus();
  // A skill of 0 is refused and typed over; the line takes the side behind it.
  for (const char* keys : {"Ann\t", "0\r", "71\t", "mr\r", "Bea"})
    QTest::keyClicks(window.focusWidget(), keys);
  EXPECT_EQ(User::TextOf(window, "Label5"), "MFR");
  EXPECT_EQ(editor.Text2, "Bea");
  auto* const squad = window.findChild<QListWidget*>("List1");
  QTest::mouseClick(squad->viewport(), Qt::LeftButton, Qt::ControlModifier,
                    squad->visualItemRect(squad->item(0)).center());
  EXPECT_EQ(editor.List1.Text(), "Ann");  // Still selected.
}

TEST_F(EditingTest, ABoxTakesAnyTextThatFitsAndLosesNothingForMore) {
  std::string text;
  TextBox box("Text4", 2, text);
  box.setText("75");  // As a tool does, without keys.
  EXPECT_EQ(text, "75");
  box.home(false);
  QTest::keyClicks(&box, "9");
  EXPECT_EQ(text, "75");
  EXPECT_EQ(box.accessibleDescription(), "Only 2 characters fit.");
}

TEST_F(EditingTest, WhatABoxHasCutIsSaidBelowItUntilThereIsRoomAgain) {
  AddTeams({"Rovers"});
  TeamEditor teams(folder_.Folder, desktop_, "N/A");
  TeamEditorWindow players(teams, nullptr);
  LegEditor championships(folder_.Folder, desktop_, random_);
  LegEditorWindow leagues(championships, nullptr);
  const std::pair<QWidget*, QString> boxes[] = {{&players, "Text4"}, {&leagues, "LeagueName"}};
  for (const auto& [window, name] : boxes) {
    window->show();
    auto* const box = window->findChild<QLineEdit*>(name);
    const auto* const line = window->findChild<QLabel*>(name + "Cut");
    QTest::keyClicks(box, "100000000000000000000");
    EXPECT_TRUE(line->isVisible() && line->text().startsWith("Only "));
    QTest::qWait(20);
    EXPECT_GT(line->mapTo(window, QPoint()).y(), box->mapTo(window, QPoint(0, box->height() - 1)).y());
    EXPECT_GE(line->width(), line->sizeHint().width());
    QTest::keyClick(box, Qt::Key_Backspace);
    EXPECT_FALSE(line->isVisible());
  }
}

TEST_F(EditingTest, FixturesOfATeamThatWasRemovedLookDifferent) {
  AddTeams({"A", "B", "C"});
  LegEditor editor(folder_.Folder, desktop_, random_);
  LegEditorWindow window(editor, nullptr);
  window.show();
  for (const char* button : {"LeagueAddTeam", "LeagueAddTeam", "LeagueAddTeam", "LeagueAutoFixtures"})
    User::Click(window, button);
  User::Click(window, "LeagueRemoveTeam");
  const auto* const fixtures = window.findChild<QListWidget*>("LeagueFixtures");
  const auto* const note = window.findChild<QLabel*>("LeagueFixtureNote");
  EXPECT_TRUE(note->isVisible() && note->text() == fixtures->accessibleDescription());
  for (int i = 0; i < fixtures->count(); ++i) {
    const QListWidgetItem& fixture = *fixtures->item(i);
    const bool marked = fixture.data(Qt::AccessibleTextRole).toString().endsWith(", Not in the league");
    EXPECT_NE(marked, editor.League.IsInPlay(i)) << i;
    EXPECT_NE(marked, fixture.foreground() == window.palette().text()) << i;
  }
}

TEST_F(EditingTest, EscapeKeepsAnUnsavedChampionship) {
  LegEditor editor(folder_.Folder, desktop_, random_);
  LegEditorWindow window(editor, nullptr);
  window.show();
  QTest::keyClicks(window.findChild<QLineEdit*>("LeagueName"), "Cup");
  QTest::keyClick(&window, Qt::Key_Escape);
  EXPECT_TRUE(window.isVisible());
  const auto* const note = window.findChild<QLabel*>("Unsaved");
  EXPECT_TRUE(note->isVisible() && note->text() == "The league is not saved.");
  EXPECT_EQ(window.focusWidget()->accessibleDescription(), note->text());
  window.close();
  EXPECT_TRUE(editor.Closed && !window.isVisible());
}

}  // namespace
}  // namespace kickwell
