// Whatever names the files hold and the user types: nothing outside the program folder is opened, made or
// deleted.
#include "championship/championship_play.h"
#include "championship/leg_editor.h"
#include "championship/leg_results.h"
#include "championship/standings_table.h"
#include "championship/top_scorers.h"
#include "editors/stad_editor.h"
#include "editors/team_editor.h"
#include "engine/file_recording.h"
#include "setup/selection.h"
#include "support/file_faults.h"
#include "support/screen_test.h"

namespace kickwell {
namespace {

class HostileNames : public ScreenTest {
 protected:
  /// Main files called "Evil" in which every name is the hostile one.
  void WriteFiles(const std::string& name) {
    const std::string line = name + "\n", main = line + "2\n" + line + line + "1\nNP\n" + line + line;
    Write("Leagues/Evil.leg", main);
    Write("Tournies/Evil.trn", "1\n" + main + "Winner 1\n");
    Write("stadiums.sim", "1\n" + line + line + line + "500\n");
    Write("Teams/Evil", "50\n" + line + line + line);
  }

  void UseEditors(const std::string& name) {
    TeamEditor teams(folder_.Folder, desktop_, name);
    teams.Text1 = teams.Text2 = name;
    teams.Text4 = teams.Text5 = "50";
    teams.Command7_Click();
    teams.Command8_Click();
    teams.Command5_Click();
    StadEditor stadiums(folder_.Folder, desktop_);
    stadiums.Text1 = stadiums.Text2 = name;
    stadiums.Text3 = "50";
    stadiums.Command2_Click();
    stadiums.Command1_Click();
    LegEditor championships(folder_.Folder, desktop_, random_);
    for (EditorSide* side : {&championships.League, &championships.KnockOut}) {
      championships.Load_Click(*side, 0);
      side->Name = name;
      championships.Save_Click(*side);
      championships.AutoFixtures_Click(*side);
      championships.Save_Click(*side);
      championships.Delete_Click(*side);
    }
  }

  void PlayAndRecord(const std::string& name) {
    for (const auto kind : {ChampionshipKind::League, ChampionshipKind::KnockOut}) {
      MatchSession s;
      s.Setup.Mode = kind == ChampionshipKind::League ? MatchMode::League : MatchMode::KnockOut;
      s.Setup.ChampionshipName = s.Setup.Team1Name = s.Setup.Team2Name = s.LastScorer = s.ResultText = name;
      ChampionshipPlay play(kind, folder_.Folder, desktop_, [](const std::string&) {}, {});
      FileRecording recording(folder_.Folder, desktop_, [&](const std::string& file) { play.Load(file); });
      recording.StoreScorer(s);
      recording.StoreResult(s);
      recording.StoreLeagueResult(s);
      TopScorers(folder_.Folder, kind, name);
      const LegResults results(folder_.Folder, desktop_, kind, name);
      Selection(folder_.Folder, desktop_, {}, s.Setup).Timer1_Timer();
    }
    StandingsTable(folder_.Folder, name);
    ReadBracket(folder_.Folder, name);
  }
};

TEST_F(HostileNames, NeverLeaveTheProgramFolder) {
  const std::string root = folder_.Folder.Root.string();
  const Texts names = {"../../x",
                       "/x",
                       "..",
                       ".",
                       "a/../../x",
                       "Teams/../../x",
                       "..\\x",
                       "C:\\x",
                       "~kickwell-1-1.tmp",
                       "<b>&amp;</b>",
                       "\x1B[2J\a\b",
                       "\u202Egpj.exe",
                       std::string("a\0/x", 4),
                       std::string(10000, 'x'),
                       std::string(10000, '/'),
                       " ",
                       ""};
  for (const std::string& name : names) {
    WriteFiles(name);
    Faults() = {};
    UseEditors(name);
    PlayAndRecord(name);
    EXPECT_GT(Faults().Paths.size(), 5U) << name.substr(0, 20);
    for (const std::string& path : Faults().Paths) {
      const std::string place = std::filesystem::path(path).lexically_normal().string();
      EXPECT_TRUE(place == root || place.starts_with(root + "/")) << path;
    }
  }
}

}  // namespace
}  // namespace kickwell
