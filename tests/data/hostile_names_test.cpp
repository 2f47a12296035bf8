// Whatever names the files hold and the user types: nothing outside the program folder is opened, made or
// deleted.
#include <gtest/gtest.h>

#include "championship/championship_play.h"
#include "championship/leg_editor.h"
#include "championship/leg_results.h"
#include "championship/standings_table.h"
#include "championship/top_scorers.h"
#include "editors/stad_editor.h"
#include "editors/team_editor.h"
#include "engine/match.h"
#include "setup/selection.h"
#include "setup/settings.h"
#include "support/fakes.h"
#include "support/file_faults.h"
#include "support/folders.h"
#include "support/scripted_random.h"

namespace kickwell {
namespace {

constexpr ChampionshipKind Kinds[] = {ChampionshipKind::League, ChampionshipKind::KnockOut};

/// A user with a taste for odd names.
class HostileUser {
 public:
  /// Main files called "Evil" in which every name is the hostile one.
  explicit HostileUser(std::string name) : Name(std::move(name)) {
    const std::string text = Name + "\n2\n" + Name + "\n" + Name + "\n1\nNP\n" + Name + "\n" + Name + "\n";
    WriteBytes(Folder / "Leagues/Evil.leg", text);
    WriteBytes(Folder / "Tournies/Evil.trn", "1\n" + text + "Winner 1\n");
    WriteBytes(Folder / "stadiums.sim", "1\n" + Name + "\n" + Name + "\n" + Name + "\n500\n");
    WriteBytes(Folder / "Teams/Evil", "50\n" + Name + "\n" + Name + "\n" + Name + "\n");
  }

  void UseEditors() {
    TeamEditor teams(Folder.Folder, desktop_, Name);
    teams.Text1 = teams.Text2 = Name;
    teams.Text4 = teams.Text5 = "50";
    teams.Command7_Click();
    teams.Command8_Click();
    teams.Command5_Click();
    StadEditor stadiums(Folder.Folder, desktop_);
    stadiums.Text1 = stadiums.Text2 = Name;
    stadiums.Text3 = "50";
    stadiums.Command2_Click();
    stadiums.Command1_Click();
    QuietRandom random;
    LegEditor championships(Folder.Folder, desktop_, random);
    for (EditorSide* side : {&championships.League, &championships.KnockOut}) {
      championships.Load_Click(*side, 0);
      side->Name = Name;
      championships.Save_Click(*side);
      championships.AutoFixtures_Click(*side);
      championships.Save_Click(*side);
      championships.Delete_Click(*side);
    }
  }

  void PlayAndRecord() {
    for (const ChampionshipKind kind : Kinds) {
      MatchSession s;
      s.Setup.Mode = kind == ChampionshipKind::League ? MatchMode::League : MatchMode::KnockOut;
      s.Setup.ChampionshipName = s.Setup.Team1Name = s.Setup.Team2Name = s.LastScorer = s.ResultText = Name;
      const auto open = [this](const MatchSetup& setup) {
        const Selection selection(
            Folder.Folder, desktop_, [](const MatchSetup&) {}, setup);
      };
      ChampionshipPlay play(
          kind, Folder.Folder, desktop_, [](const std::string&) {}, open);
      FileRecording recording(Folder.Folder, desktop_, [&](const std::string& file) { play.Load(file); });
      recording.StoreScorer(s);
      recording.StoreResult(s);
      recording.StoreLeagueResult(s);
      TopScorers(Folder.Folder, kind, Name);
      const LegResults results(Folder.Folder, desktop_, kind, Name);
      open(s.Setup);
    }
    StandingsTable(Folder.Folder, Name);
    ReadBracket(Folder.Folder, Name);
  }

  const std::string Name;
  TestFolder Folder;

 private:
  FakeDesktop desktop_;
};

TEST(HostileNames, NeverLeaveTheProgramFolder) {
  const std::string names[] = {"../../x",
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
                               "\u200F",
                               std::string("a\0/x", 4),
                               std::string(10000, 'x'),
                               std::string(10000, '/'),
                               " ",
                               ""};
  for (const std::string& name : names) {
    HostileUser user(name);
    Faults() = {};
    user.UseEditors();
    user.PlayAndRecord();
    const std::string root = user.Folder.Folder.Root.string();
    EXPECT_GT(Faults().Paths.size(), 5U) << name.substr(0, 20);
    for (const std::string& path : Faults().Paths) {
      const std::string place = std::filesystem::path(path).lexically_normal().string();
      EXPECT_TRUE(place == root || place.starts_with(root + "/")) << path;
    }
  }
}

}  // namespace
}  // namespace kickwell
