// The whole program: what its users do in it, and what holds on every screen, for keyboards and screen
// readers and for names that are made to break it.
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <functional>
#include <map>
#include <set>

#include "support/screen_test.h"
#include "ui/app.h"
#include "ui/qt_desktop.h"
#include "user.h"

namespace kickwell {
namespace {

class PlayTest : public WindowTest {
 protected:
  void Choose(Qt::Key menu, Qt::Key item) { user_.In("Opening").Choose(menu, item); }

  /// The user takes all steps in a program of their own, and leaves it.
  void Run(Desktop& desktop) {
    Choose(Qt::Key_P, Qt::Key_X);
    App app(folder_.Folder, desktop, random_, {1, 1});
    app.Start();
    user_.Finish();
    for (const QWidget* const window : QApplication::topLevelWidgets()) EXPECT_FALSE(window->isVisible());
  }

  User user_;
};

TEST_F(PlayTest, AFriendlyIsOpenedAndLeftByKeyboard) {
  AddTeams({"Borough", "City"});
  AddStadiums();
  Choose(Qt::Key_P, Qt::Key_S);
  user_.In("Settings").Pick("Combo3", 1).Pick("Combo4", 1).Press(Qt::Key_Return);
  user_.In("Selection").ExpectText("Combo2(10)", "City10").Press(Qt::Key_C, Qt::AltModifier);
  user_.In("Main").Press(Qt::Key_Return).ExpectText("Label3", "45:00");
  user_.ExpectText("ven", "Bowl, Oss").Press(Qt::Key_Escape);
  user_.In("MessageBox").Press(Qt::Key_Escape);  // No: still there.
  user_.In("Main").Press(Qt::Key_X, Qt::AltModifier);
  user_.In("MessageBox").Press(Qt::Key_Y, Qt::AltModifier);
  QtDesktop desktop(folder_.Folder);
  Run(desktop);
}

TEST_F(PlayTest, ALeagueIsPlayedLeftAndFinishedOnAnotherDay) {
  AddTeams({"Albion", "Borough", "City"});
  AddStadiums();
  const std::string fixtures = "NP\nAlbion\nBorough\nNP\nBorough\nCity\nNP\nCity\nAlbion\n";
  Write("Leagues/Test.leg", "Test\n3\nAlbion\nBorough\nCity\n3\n" + fixtures);
  random_.Goals = "2";
  Choose(Qt::Key_P, Qt::Key_L);
  user_.In("LegSettings").Pick("To", 0).Pick("SimulationType", 1).Click("Command1");
  user_.In("Selection").Click("Command1");
  user_.In("Main").ExpectText("fixture", "Test, match 1").Click("halftime").Click("halftime");
  user_.ExpectText("Label3", "").ExpectText("t1", "Borough").ExpectText("Inn1", "1");
  user_.ExpectText("ven", "Mill, Leat").Click("Command1");
  user_.In("LegSettings").Click("Command2");
  Run(desktop_);

  Choose(Qt::Key_P, Qt::Key_L);
  random_.Goals = "1";
  user_.In("LegSettings").Pick("From", 1).Pick("To", 2).Click("Command1");
  for (const char* homeTeam : {"Borough", "City"}) {  // By Enter alone.
    user_.In("Selection").ExpectText("Team1", homeTeam).Press(Qt::Key_Return);
    user_.In("Main").Press(Qt::Key_Return).Press(Qt::Key_Return);  // The result, then "Exit".
  }
  user_.In("LegSettings").Click("Command2");
  Choose(Qt::Key_S, Qt::Key_L);
  user_.In("Table").ExpectText("Team(1)", "Borough").ExpectText("Points(1)", "6").Click("Command1");
  Choose(Qt::Key_S, Qt::Key_T);
  user_.In("TopScorers").ExpectText("Player(1)", "Borough5").ExpectText("Goals(1)", "2").Click("Command3");
  Run(desktop_);
}

TEST_F(PlayTest, AStartTellsOfAJournalWithoutSense) {
  Write("unfinished.journal", "no journal of ours");
  Run(desktop_);
  EXPECT_EQ(desktop_.Taken().size(), 1U);
}

TEST_F(PlayTest, AllScreensComeToTheFrontWhenCalled) {
  App app(folder_.Folder, desktop_, random_);
  Choose(Qt::Key_E, Qt::Key_S);
  user_.In("StadEditor").Do([&app](QWidget& screen) {
    QWidget* const menu = screen.parentWidget();
    for (QWidget* const window : {menu, &screen}) window->setWindowState(Qt::WindowMinimized);
    app.ComeToFront();
    EXPECT_FALSE(menu->isMinimized() || screen.isMinimized());
  });
  user_.Click("Command3");
  Choose(Qt::Key_P, Qt::Key_X);
  app.Start();
  user_.Finish();
}

class ScreensTest : public PlayTest {
 protected:
  /// Opens the screens one after the other, as their user does, and looks at each. The folder holds two teams
  /// that can play, a league and a knock-out.
  void LookAround(const std::function<void(QWidget& window)>& look) {
    // The teams change ends, so that the same side scoring at the start of both halves levels the score.
    random_.Goals = "1" + std::string(45 * 60 - 1, '.') + "1";
    const auto visit = [&](const char* screen, const char* leave = nullptr) {
      user_.In(screen).Do([&](QWidget& window) {
        user_.Wait(40);  // The squads come when the screen has been drawn.
        look(window);
      });
      if (leave != nullptr) user_.Click(leave);
    };
    const auto open = [&](Qt::Key menu, Qt::Key item, const char* screen, const char* leave = nullptr) {
      Choose(menu, item);
      visit(screen, leave);
    };
    const auto championship = [&](Qt::Key kind, const char* settings, const char* table, const char* leave) {
      open(Qt::Key_P, kind, settings, "Command2");
      visit("Opening");
      open(Qt::Key_S, Qt::Key_T, "TopScorers", "Command3");
      open(Qt::Key_S, Qt::Key_M, "LegResults", "Command1");
      open(Qt::Key_S, kind, table, leave);
    };
    visit("Opening");
    championship(Qt::Key_L, "LegSettings", "Table", "Command1");
    championship(Qt::Key_K, "KnockSettings", "KnockCharts", "Command3");
    open(Qt::Key_P, Qt::Key_S, "Settings");
    user_.Pick("Combo4", 1);
    for (const char* button : {"Check1", "Check2", "Command1"}) user_.Click(button);
    visit("Selection", "Command1");
    visit("Main");
    constexpr int PeriodsWithShootOut = 5;
    for (int period = 0; period < PeriodsWithShootOut; ++period) user_.Click("halftime");
    user_.Click("kick");
    visit("Main", "Command1");
    visit("Opening");
    open(Qt::Key_E, Qt::Key_T, "TeamEditor", "Command4");
    open(Qt::Key_E, Qt::Key_S, "StadEditor", "Command3");
    open(Qt::Key_E, Qt::Key_C, "LegEditor");
    user_.Pick("Kind", 1);
    visit("LegEditor", "Exit");
    Run(desktop_);
  }

  /// A stadium, a league and a knock-out of two teams, with results.
  void AddChampionships(const std::string& name, const std::string& home, const std::string& away) {
    const std::string line = home + "\n", teams = line + away + "\n";
    Write("stadiums.sim", "1\nNeutral\n" + line + line + "500\n");
    Write("Leagues/" + name + ".leg", name + "\n2\n" + teams + "2\nNP\n" + teams + "P\n" + teams);
    Write("Tournies/" + name + ".trn", "1\n" + name + "\n2\n" + teams + "NP\n" + teams + "Winner 1\n");
    for (const auto& [place, scorer] : {std::pair("Leagues/", home), std::pair("Tournies/", away)}) {
      Write(place + name + ".sco", scorer + "\n" + line + "99999\n");
      Write(place + name + ".lrs", line + line + line + "5\n" + line);
    }
  }
};

/// The widgets that the window's user sees, without those that Qt makes inside another one.
std::vector<QWidget*> Seen(QWidget& window) {
  std::vector<QWidget*> seen;
  for (QWidget* const widget : window.findChildren<QWidget*>()) {
    const bool inner = widget->objectName().startsWith("qt_") || widget->window() != &window ||
                       qobject_cast<QComboBox*>(widget->parentWidget()) != nullptr;
    if (widget->isVisible() && !inner) seen.push_back(widget);
  }
  return seen;
}

/// What Tab must stop at; in a ranking that is the marked row.
bool IsControl(const QWidget* widget) {
  static const QStringList pictures{"Picture1", "Picture2", "Marker(1)"};
  return widget->focusPolicy() != Qt::NoFocus || widget->inherits("QAbstractButton") ||
         pictures.contains(widget->objectName());
}

auto Letters(const QString& text) {
  return std::count_if(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

bool IsWordless(const QString& name) {
  return Letters(name) < 3 || name.contains('<') || name.contains('>') || name.contains('&');
}

/// What a screen reader calls a widget. Of a chooser it may say the picked entry instead of the name.
QString NameOf(QAccessibleInterface& face) {
  if (face.role() != QAccessible::ComboBox) return face.text(QAccessible::Name);
  const auto captions = face.relations(QAccessible::Label);
  return captions.empty() ? face.text(QAccessible::Description) : captions[0].first->text(QAccessible::Name);
}

/// Screen readers are told what controls, figures and pictures are, and what they show.
void ExpectNames(QWidget& window) {
  for (QWidget* const widget : Seen(window)) {
    const auto* const label = qobject_cast<QLabel*>(widget);
    const bool figure = label != nullptr && !label->text().isEmpty() && Letters(label->text()) == 0;
    if (!IsControl(widget) && !figure) continue;
    SCOPED_TRACE(widget->objectName().toStdString());
    QAccessibleInterface* const face = QAccessible::queryAccessibleInterface(widget);
    ASSERT_NE(face, nullptr);
    const QString name = NameOf(*face);
    EXPECT_TRUE(face->role() != QAccessible::Client && face->role() != QAccessible::NoRole);
    EXPECT_FALSE(face->text(QAccessible::Description).contains("<qt>"));
    EXPECT_FALSE(IsWordless(name)) << name.toStdString();
    EXPECT_TRUE(!figure || name.contains(label->text())) << name.toStdString();
  }
}

/// Tab stops at every control once, at nothing else, and goes down or to the right.
void ExpectTabOrder(QWidget& window) {
  std::set<std::string> controls, stops;
  for (QWidget* const widget : Seen(window)) {
    const auto* const radio = qobject_cast<QRadioButton*>(widget);  // Arrow keys reach the others.
    if (IsControl(widget) && widget->isEnabled() && (radio == nullptr || radio->isChecked()))
      controls.insert(widget->objectName().toStdString());
  }
  const QWidget* const first = window.focusWidget();
  ASSERT_NE(first, nullptr);
  const std::string opened = first->property("text").toString().remove('&').toStdString();
  EXPECT_TRUE(opened.find("Delete") == opened.npos && opened.find("Exit") == opened.npos) << opened;
  const QWidget* const page = window.findChild<QScrollArea*>()->widget();  // It scrolls with the focus.
  const auto place = [&window, page] {
    const QWidget* const widget = window.focusWidget();
    const QPoint below(0, page->height());
    const bool scrolls = page->isAncestorOf(widget);
    return QRect(scrolls ? widget->mapTo(page, QPoint()) : widget->mapTo(&window, below), widget->size());
  };
  int backward = 0;
  while (stops.insert(window.focusWidget()->objectName().toStdString()).second) {
    const QRect from = place();
    User::Press(window, Qt::Key_Tab);
    const QRect to = place();
    const bool back = to.bottom() < from.top() && to.left() < from.right();
    const bool left = std::abs(to.center().y() - from.center().y()) < 5 && to.left() < from.left();
    backward += back || left ? 1 : 0;
    EXPECT_LE(backward, 1) << window.focusWidget()->objectName().toStdString();
  }
  EXPECT_EQ(window.focusWidget(), first);
  EXPECT_EQ(stops, controls);
}

TEST_F(ScreensTest, AreToldAndWalked) {
  AddTeams({"Rovers", "United"});
  AddChampionships("Test", "Rovers", "United");
  std::set<QString> screens;
  QStringList scorers;
  LookAround([&](QWidget& window) {
    SCOPED_TRACE(window.objectName().toStdString());
    screens.insert(window.objectName());
    ExpectNames(window);
    if (window.objectName() != "Opening") ExpectTabOrder(window);
    if (window.objectName() == "TopScorers") scorers.append(User::TextOf(window, "Player(1)"));
  });
  EXPECT_EQ(scorers, (QStringList{"Rovers", "United"}));  // Of the league, then of the knock-out of its name.
  EXPECT_EQ(screens.size(), 13U);
}

/// Markup, an entity, a would-be access key, control characters, and marks that reverse the text after them.
const std::string Tricky = "<b>B&amp;&x\x07\t\u202E\u200Fz";
const std::string Hostile = Tricky + std::string(10000, 'W');  ///< And too long for any file name.

QStringList TextsOf(const QWidget* widget) {
  QStringList texts;
  if (const auto* const label = qobject_cast<const QLabel*>(widget)) texts.append(label->text());
  if (const auto* const list = qobject_cast<const QListWidget*>(widget))
    for (int i = 0; i < list->count(); ++i) texts.append(list->item(i)->text());
  if (const auto* const combo = qobject_cast<const QComboBox*>(widget))
    for (int i = 0; i < combo->count(); ++i) texts.append(combo->itemText(i));
  return texts;
}

/// Every text is shown as it stands, within the screen. Whether a hostile name was among them.
bool ExpectPlain(const QWidget& window) {
  static const QRegularExpression unbroken("W{60}");  // A tip would be as long as that.
  bool seen = false;
  for (const QWidget* const widget : window.findChildren<QWidget*>()) {
    SCOPED_TRACE(widget->objectName().toStdString());
    const auto* const label = qobject_cast<const QLabel*>(widget);
    for (const QString& text : TextsOf(widget)) {
      seen = seen || text.contains("<b>B&amp;&x  \uFFFD\u200Fz");
      EXPECT_FALSE(text.contains(QChar(0x202E)) || text.contains('\t') || text.contains('\a'));
      EXPECT_TRUE(label == nullptr || !Qt::mightBeRichText(text) || label->textFormat() == Qt::PlainText);
    }
    const auto* const list = qobject_cast<const QListWidget*>(widget);
    const bool lines = list != nullptr && list->count() > 0;
    for (const QString& tip : {widget->toolTip(), lines ? list->item(0)->toolTip() : QString()})
      EXPECT_FALSE(tip.contains("<b>") || tip.size() > 2000 || tip.contains(unbroken));
  }
  const QSize room = QApplication::primaryScreen()->size();
  EXPECT_EQ(window.frameGeometry().size().boundedTo(room), window.frameGeometry().size());
  return seen;
}

TEST_F(ScreensTest, AreNotBrokenByAnyNameEvenInLargeType) {
  AddTeams({"Plain"});
  ASSERT_TRUE(SaveTeam(folder_.Folder, MakeTeam("Hostile", Hostile)).Ok());
  std::filesystem::rename(folder_ / "Teams/Hostile", folder_ / ("Teams/" + Tricky));
  AddChampionships(Tricky, Hostile, Tricky);
  const QFont usual = QApplication::font();
  QFont large = usual;
  large.setPointSizeF(usual.pointSizeF() * 2);
  QApplication::setFont(large);
  std::map<QString, bool> seen;
  LookAround([&](const QWidget& window) {
    SCOPED_TRACE(window.objectName().toStdString());
    seen[window.objectName()] |= ExpectPlain(window);
  });
  QApplication::setFont(usual);
  for (const auto& [screen, hostile] : seen) EXPECT_TRUE(hostile) << screen.toStdString();
}

TEST_F(ScreensTest, HaveBoxesThatShowAnyTextAsItStandsAndFitOnTheScreen) {
  std::string endless = Tricky;
  for (int word = 0; word < 5000; ++word) endless += " word";
  User user;
  user.In("MessageBox").Do([](QWidget& box) { EXPECT_TRUE(ExpectPlain(box)); }).Press(Qt::Key_Return);
  QtDesktop(folder_.Folder).Warn(endless);
}

}  // namespace
}  // namespace kickwell
