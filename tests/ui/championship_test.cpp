// Championships built, played and recorded through the real windows.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QListWidget>
#include <QtTest/QTest>
#include <map>
#include <set>

#include "data/championship_store.h"
#include "support/fakes.h"
#include "support/folders.h"
#include "ui/app.h"
#include "ui/widgets.h"
#include "user.h"

namespace kickwell {
namespace {

constexpr ChampionshipKind League = ChampionshipKind::League, KnockOut = ChampionshipKind::KnockOut;

class ChampionshipTest : public testing::Test {
 protected:
  void AddTeams(std::initializer_list<const char*> names) {
    for (const char* name : names) ASSERT_TRUE(SaveTeam(folder_.Folder, MakeTeam(name, name)).Ok());
    ASSERT_TRUE(SaveStadiums(folder_.Folder, {{"Neutral", "Bowl", "Oss", "500"}}).Ok());
  }

  /// Builds a championship of all teams in the editor.
  void Build(ChampionshipKind kind, int teams) {
    const QString prefix = kind == League ? "League" : "KnockOut";
    user_.In("Opening", [](QWidget& window) { User::Choose(window, Qt::Key_E, Qt::Key_C); });
    user_.In("LegEditor", [=](QWidget& window) {
      User::Pick(window, "Kind", kind == League ? 0 : 1);
      for (int i = 0; i < teams; ++i) User::Click(window, prefix + "AddTeam");
      for (int n = 2; kind == KnockOut && n < teams; n *= 2) User::Click(window, "MoreTeams");
      User::Click(window, prefix + "AutoFixtures");
      QTest::keyClicks(window.findChild<QLineEdit*>(prefix + "Name"), "Test");
      User::Click(window, prefix + "Save");
      EXPECT_EQ(User::TextOf(window, prefix + "TeamCount"), QString::number(teams));
      User::Click(window, "Exit");
    });
  }

  /// Opens the play settings and plays matches `from` to `to`, each an instant result.
  void Play(ChampionshipKind kind, int from, int to) {
    user_.In("Opening", [=](QWidget& window) {
      User::Choose(window, Qt::Key_P, kind == League ? Qt::Key_L : Qt::Key_K);
    });
    user_.In(kind == League ? "LegSettings" : "KnockSettings", [=](QWidget& window) {
      User::Pick(window, "From", from - 1);
      User::Pick(window, "To", to - 1);
      User::Click(window, "Command1");
    });
    for (int number = from; number <= to; ++number) {
      user_.In("Selection", [this, number](QWidget& window) {
        EXPECT_EQ(User::TextOf(window, "num").toInt(), number);
        user_.Wait(40);  // The squads come when the screen has been drawn.
        User::Click(window, "Command1");
      });
      user_.In("Main", [=, this](QWidget& window) {
        User::Click(window, "instant");
        Note(window);
        User::Click(window, "Command1");
      });
    }
    user_.In(kind == League ? "LegSettings" : "KnockSettings",
             [](QWidget& window) { User::Click(window, "Command2"); });
  }

  /// What a match screen shows at its end.
  void Note(QWidget& window) {
    const auto text = [&window](const char* label) { return User::TextOf(window, label).toStdString(); };
    const std::string pens = text("Pen1") + " vs " + text("t2") + " " + text("Inn2") + text("Pen2");
    const bool shootOut = !window.findChild<QWidget*>("Pen1")->isHidden();
    shootOuts_ += shootOut ? 1 : 0;
    shown_.push_back(text("t1") + " " + text("Inn1") +
                     (shootOut ? pens : " vs " + text("t2") + " " + text("Inn2")));
    const auto* const summary = window.findChild<QListWidget*>("List1(1)");
    for (int i = 0; i < summary->count(); ++i) {
      const QString line = summary->item(i)->text();
      if (line.contains(" >> ")) ++goals_[line.section(" >> ", 1).section(" (", 0, 0).toStdString()];
    }
  }

  /// Opens each statistics screen of the championship played last and compares it with what the log says.
  void LookAtStatistics(ChampionshipKind kind) {
    const auto open = [this](Qt::Key item) {
      user_.In("Opening", [item](QWidget& window) { User::Choose(window, Qt::Key_S, item); });
    };
    open(Qt::Key_T);
    user_.In("TopScorers", [this](QWidget& window) {
      int last = 1000;
      for (int r = 1; r <= std::min(15, static_cast<int>(goals_.size())); ++r) {
        const int goals = User::TextOf(window, ArrayName("Goals", r)).toInt();
        EXPECT_EQ(goals, goals_[User::TextOf(window, ArrayName("Player", r)).toStdString()]);
        EXPECT_LE(goals, last);
        last = goals;
      }
      EXPECT_EQ(window.findChild<QWidget*>("nextpage")->isEnabled(), goals_.size() > 15);
      User::Click(window, "Command3");
    });
    open(Qt::Key_M);
    user_.In("LegResults", [this](QWidget& window) {
      const auto* const list = window.findChild<QListWidget*>("List1");
      ASSERT_EQ(list->count(), static_cast<int>(shown_.size()) * 6 - 1);
      for (std::size_t i = 0; i < shown_.size(); ++i) {
        EXPECT_EQ(list->item(static_cast<int>(i) * 6 + 1)->text().toStdString(), shown_[i]);
      }
      User::Click(window, "Command1");
    });
    if (kind == League) {
      open(Qt::Key_L);
      user_.In("Table", [this](QWidget& window) {
        std::map<std::string, StandingsRow> rows = StandingsOfLog();
        std::set<QString> seen;
        int points = 1000;
        for (int r = 1; r <= static_cast<int>(rows.size()); ++r) {
          ASSERT_TRUE(rows.contains(User::TextOf(window, ArrayName("Team", r)).toStdString()));
          EXPECT_TRUE(seen.insert(User::TextOf(window, ArrayName("Team", r))).second);
          EXPECT_LE(User::TextOf(window, ArrayName("Points", r)).toInt(), points);
          points = User::TextOf(window, ArrayName("Points", r)).toInt();
          const StandingsRow& row = rows[User::TextOf(window, ArrayName("Team", r)).toStdString()];
          QStringList shown;
          for (const char* column : {"Played", "Won", "Tied", "Lost", "GF", "GA", "Points"}) {
            shown.append(User::TextOf(window, ArrayName(column, r)));
          }
          EXPECT_EQ(shown.join(' ').toStdString(),
                    std::to_string(row.Played) + " " + std::to_string(row.Won) + " " +
                        std::to_string(row.Drawn) + " " + std::to_string(row.Lost) + " " +
                        std::to_string(row.GoalsFor) + " " + std::to_string(row.GoalsAgainst) + " " +
                        std::to_string(row.Points));
        }
        User::Click(window, "Command1");
      });
    } else {
      open(Qt::Key_K);
      user_.In("KnockCharts", [this](QWidget& window) {
        const Lines log = ReadResults(folder_.Folder, KnockOut, "Test");
        const int winners[] = {2, 5,  9, 12,
                               6, 13, 14};  // Of matches 1 to 7, which were played in this order.
        for (std::size_t k = 0; k < std::size(winners); ++k) {
          EXPECT_EQ("Winner: " + User::TextOf(window, ArrayName("team", winners[k])).toStdString(),
                    log[6 * k + 4]);
        }
        User::Click(window, "Command3");
      });
    }
  }

  void Quit() {
    user_.In("Opening", [](QWidget& window) { User::Choose(window, Qt::Key_P, Qt::Key_X); });
  }

  /// Runs all the steps in a program of their own.
  void Run(std::uint_fast64_t seed, MatchTimings timings = {}) {
    SeededRandom random(seed);
    App app(folder_.Folder, desktop_, random, timings);
    app.Start();
    ASSERT_TRUE(user_.Finish());
  }

  /// The second line of each block of the log is what the screens have shown, and the scorers are theirs.
  void ExpectRecorded(ChampionshipKind kind) {
    const Lines log = ReadResults(folder_.Folder, kind, "Test");
    ASSERT_EQ(log.size(), shown_.size() * 6 - 1);
    for (std::size_t i = 0; i < shown_.size(); ++i) EXPECT_EQ(log[i * 6 + 1], shown_[i]);
    std::map<std::string, int> scorers;
    for (const ScorerRow& row : ReadScorers(folder_.Folder, kind, "Test")) scorers[row.Player] = row.Goals;
    EXPECT_EQ(scorers, goals_);
  }

  /// The standings, worked out from the results log.
  std::map<std::string, StandingsRow> StandingsOfLog() const {
    std::map<std::string, StandingsRow> rows;
    const Championship league = ReadChampionship(folder_.Folder, League, "Test.leg").value();
    for (const std::string& team : league.Teams) rows[team].Team = team;
    const auto add = [&rows](const QString& team, int goals, int against) {
      StandingsRow& row = rows[team.toStdString()];
      ++row.Played;
      row.GoalsFor += goals;
      row.GoalsAgainst += against;
      ++(goals > against ? row.Won : goals == against ? row.Drawn : row.Lost);
      row.Points += goals > against ? 3 : goals == against ? 1 : 0;
    };
    const Lines log = ReadResults(folder_.Folder, League, "Test");
    for (std::size_t i = 1; i < log.size(); i += 6) {
      const QStringList sides = QString::fromStdString(log[i]).split(" vs ");
      const int goals1 = sides[0].section(' ', 1).toInt();
      const int goals2 = sides[1].section(' ', 1).toInt();
      add(sides[0].section(' ', 0, 0), goals1, goals2);
      add(sides[1].section(' ', 0, 0), goals2, goals1);
    }
    return rows;
  }

  void ExpectStandings() const {
    const Championship league = ReadChampionship(folder_.Folder, League, "Test.leg").value();
    std::map<std::string, StandingsRow> rows = StandingsOfLog();
    for (const StandingsRow& row : ReadStandings(folder_.Folder, "Test", league.Teams))
      EXPECT_EQ(row, rows[row.Team]) << row.Team;
  }

  TestFolder folder_;
  FakeDesktop desktop_;
  User user_;
  std::vector<std::string> shown_;
  std::map<std::string, int> goals_;
  int shootOuts_ = 0;
};

TEST_F(ChampionshipTest, ALeagueIsBuiltPlayedLeftAndFinishedOnAnotherDay) {
  AddTeams({"Albion", "Borough", "City", "Dynamo"});
  Build(League, 4);
  Play(League, 1, 3);
  Quit();
  Run(11);
  ExpectRecorded(League);
  ExpectStandings();
  Play(League, 4, 12);
  LookAtStatistics(League);
  Quit();
  Run(12);
  ExpectRecorded(League);
  ExpectStandings();
  const Championship league = ReadChampionship(folder_.Folder, League, "Test.leg").value();
  ASSERT_EQ(league.Fixtures.size(), 12U);
  for (const Fixture& fixture : league.Fixtures) EXPECT_EQ(fixture.Status, Played);
}

TEST_F(ChampionshipTest, AKnockOutIsPlayedToItsChampion) {
  AddTeams({"Albion", "Borough", "City", "Dynamo", "Eagles", "Forest", "Grange", "Harbour"});
  Build(KnockOut, 8);
  Play(KnockOut, 1, 7);
  LookAtStatistics(KnockOut);
  Quit();
  Run(17);
  ExpectRecorded(KnockOut);
  EXPECT_GE(shootOuts_, 1);
  const Championship cup = ReadChampionship(folder_.Folder, KnockOut, "Test.trn").value();
  for (std::size_t k = 0; k < 7; ++k) EXPECT_EQ(cup.Fixtures[k].Status, Played);
  const std::size_t winnersOf[][2] = {{0, 1}, {2, 3}, {4, 5}};
  for (std::size_t k = 4; k < 7; ++k) {
    EXPECT_EQ(cup.Fixtures[k].Home, cup.Fixtures[winnersOf[k - 4][0]].Winner);
    EXPECT_EQ(cup.Fixtures[k].Away, cup.Fixtures[winnersOf[k - 4][1]].Winner);
  }
  EXPECT_EQ("Winner: " + cup.Fixtures[6].Winner, ReadResults(folder_.Folder, KnockOut, "Test").back());
}

TEST_F(ChampionshipTest, AFullSimulationIsRecordedWithTheSidesOfItsEnd) {
  AddTeams({"Albion", "Borough"});
  Build(League, 2);
  user_.In("Opening", [](QWidget& window) { User::Choose(window, Qt::Key_P, Qt::Key_L); });
  user_.In("LegSettings", [](QWidget& window) {
    User::Pick(window, "To", 0);
    User::Pick(window, "SimulationType", 1);
    User::Click(window, "Command1");
  });
  std::string home;
  user_.In("Selection", [&](QWidget& window) {
    home = User::TextOf(window, "Team1").toStdString();
    user_.Wait(40);
    User::Click(window, "Command1");
  });
  user_.In("Main", [&](QWidget& window) {
    auto* const halftime = window.findChild<QWidget*>("halftime");
    User::Click(window, "halftime");
    EXPECT_TRUE(QTest::qWaitFor([&] { return halftime->isEnabled(); }));
    User::Click(window, "halftime");
    const auto* const summary = window.findChild<QListWidget*>("List1(1)");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !summary->findItems("Result:", Qt::MatchExactly).isEmpty(); }));
    Note(window);
    EXPECT_EQ(User::TextOf(window, "t2").toStdString(), home);  // The ends were changed.
    User::Click(window, "Command1");
  });
  user_.In("LegSettings", [](QWidget& window) { User::Click(window, "Command2"); });
  Quit();
  Run(5, {1, 1});
  ExpectRecorded(League);
  ExpectStandings();
  const Championship league = ReadChampionship(folder_.Folder, League, "Test.leg").value();
  EXPECT_EQ(league.Fixtures[0].Status + league.Fixtures[1].Status, "PNP");
}

}  // namespace
}  // namespace kickwell
