#include "championship/championship_play.h"

#include <gtest/gtest.h>

#include "support/fakes.h"
#include "support/folders.h"

namespace kickwell {
namespace {

using Texts = std::vector<std::string>;

class ChampionshipPlayTest : public testing::Test {
 protected:
  ChampionshipPlay Open(ChampionshipKind kind) {
    return {kind, folder_.Folder, desktop_, [this](const std::string& name) { current_ = name; },
            [this](const MatchSetup& setup) {
              handedOver_.push_back(std::to_string(setup.MatchNumber) + " " + setup.Team1Name + "-" +
                                    setup.Team2Name);
              setup_ = setup;
              WhilePlayed();
            }};
  }

  TestFolder folder_;
  FakeDesktop desktop_;
  std::string current_ = "N/A";
  Texts handedOver_;
  MatchSetup setup_;
  std::function<void()> WhilePlayed = [] {};
};

TEST_F(ChampionshipPlayTest, OffersTheFixturesAndPlaysARange) {
  WriteBytes(folder_ / "Leagues/Top.leg", "Top\n2\nA\nB\n3\nNP\nA\nB\nx\nB\nA\nNP\nA\nB\n");
  WriteBytes(folder_ / "Leagues/One.leg", "One\n2\nA\nB\n1\nNP\nB\nA\n");
  ChampionshipPlay play = Open(ChampionshipKind::League);
  EXPECT_EQ(play.Championships.Entries, (Texts{"One.leg", "Top.leg"}));
  EXPECT_EQ(current_ + play.From.Text() + play.To.Text(), "One11");
  play.Championships_Click(1);
  EXPECT_EQ(current_ + play.From.Text() + play.To.Text(), "Top12");
  EXPECT_EQ(play.FixtureList.Entries, (Texts{"Match 1: A v B", "Match 2: B v A", "Match 3: A v B"}));
  play.To_Click(2);
  play.SimulationType_Click(1);
  play.Command1_Click();
  EXPECT_EQ(handedOver_, (Texts{"1 A-B", "3 A-B"}));
  EXPECT_EQ(setup_.Mode, MatchMode::League);
  EXPECT_EQ(setup_.ChampionshipName, "Top");
  EXPECT_EQ(setup_.SimulationType, SimulationKind::FullSimulation);
  play.From_Click(2);
  play.To_Click(0);
  play.Command1_Click();
  EXPECT_EQ(desktop_.Taken(),
            (Texts{"i: Match 2 has been played already", "i: Please select the match numbers properly"}));
  EXPECT_FALSE(play.Closed);
}

TEST_F(ChampionshipPlayTest, ARangeGoesOnIntoTheNextRound) {
  WriteBytes(folder_ / "Teams/C", "1\n");
  const std::string head = "3\nCup\n4\nA\nB\nC\nD\n";
  WriteBytes(folder_ / "Tournies/Cup.trn",
             head + "NP\nA\nC\nWinner 1\nNP\nB\nD\nWinner 2\nNP\nWinner 1\nWinner 2\nWinner 3\n");
  ChampionshipPlay play = Open(ChampionshipKind::KnockOut);
  play.To_Click(2);
  play.Command1_Click();  // Both left before their end: nothing recorded.
  EXPECT_EQ(desktop_.Taken(), Texts{"i: Match 3 can't be played before match 1 has been played"});
  WhilePlayed = [&] {
    WriteBytes(folder_ / "Tournies/Cup.trn",
               head + "P\nA\nC\nC (By Toss)\nP\nB\nD\nD\nNP\nC (By Toss)\nD\nWinner 3\n");
    play.Load("Cup.trn");
  };
  play.To_Click(2);
  play.Command1_Click();
  EXPECT_EQ(handedOver_,
            (Texts{"1 A-C", "2 B-D", "1 A-C", "3 C-D"}));  // The toss is no part of the team's name.
  EXPECT_EQ(desktop_.Taken(), Texts{"i: Match 2 has been played already"});
  EXPECT_EQ(setup_.Mode, MatchMode::KnockOut);
  EXPECT_EQ(setup_.SimulationType, SimulationKind::InstantResult);
  WriteBytes(folder_ / "Teams/C (By Toss)", "1\n");  // A team of that very name.
  WhilePlayed = [] {};
  play.From_Click(2);
  play.To_Click(2);
  play.Command1_Click();
  EXPECT_EQ(handedOver_.back(), "3 C (By Toss)-D");
}

TEST_F(ChampionshipPlayTest, DamagedFilesAreListedAndLoadedAsFarAsTheyGo) {
  const std::string proper = "i: Please make all the settings properly";
  ChampionshipPlay none = Open(ChampionshipKind::League);
  none.Command1_Click();
  EXPECT_EQ(desktop_.Taken(), Texts{proper});
  WriteBytes(folder_ / "Leagues/a.leg", "a\n2\nA\nB\n5\nNP\nA\nB\nNP\nA");
  WriteBytes(folder_ / "Leagues/b.leg", "Other\n2\nA\nB\n1\nNP\nA\nB\n");
  WriteBytes(folder_ / "Leagues/c.leg", "c\n0\n0\n");
  WriteBytes(folder_ / "Leagues/d.leg", "");
  std::string binary(3000, '\0');
  for (std::size_t i = 0; i < binary.size(); ++i) binary[i] = static_cast<char>(i * 197 % 256);
  WriteBytes(folder_ / "Leagues/e.leg", binary);
  ChampionshipPlay play = Open(ChampionshipKind::League);
  EXPECT_EQ(play.FixtureList.Count(), 1);
  play.Championships_Click(1);
  EXPECT_EQ(desktop_.Taken(), Texts{"i: b.leg holds the championship Other. Rename the file to play it."});
  EXPECT_EQ(play.Championships.Text() + current_, "a.lega");  // What is loaded stays on view.
  play.Championships_Click(2);
  play.Command1_Click();
  EXPECT_EQ(desktop_.Taken(), Texts{proper});
  play.Championships_Click(4);
  EXPECT_EQ(desktop_.Taken().size(), 1U);  // Holds another name than its own, if any.
  EXPECT_EQ(ReadBytes(folder_ / "Leagues/e.leg"), binary);
  std::filesystem::remove(folder_ / "Leagues/a.leg");
  play.Championships_Click(0);
  EXPECT_EQ(play.Championships.Text(), "c.leg");
}

}  // namespace
}  // namespace kickwell
