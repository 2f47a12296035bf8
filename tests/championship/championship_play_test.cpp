#include "championship/championship_play.h"

#include "support/screen_test.h"

namespace kickwell {
namespace {

constexpr ChampionshipKind League = ChampionshipKind::League, KnockOut = ChampionshipKind::KnockOut;

class ChampionshipPlayTest : public ScreenTest {
 protected:
  ChampionshipPlay Open(ChampionshipKind kind) {
    return {kind, folder_.Folder, desktop_, [this](const std::string& name) { current_ = name; },
            [this](const MatchSetup& setup) {
              setup_ = setup;
              handedOver_.push_back(FixtureText(setup.MatchNumber, {setup.Team1Name, setup.Team2Name}));
              WhilePlayed();
            }};
  }

  /// Continues with the matches of a range; gives those that were handed over.
  Texts Play(ChampionshipPlay& play, int from, int to) {
    play.From_Click(from - 1);
    play.To_Click(to - 1);
    play.Command1_Click();
    return std::exchange(handedOver_, {});
  }

  std::string current_ = "N/A";
  MatchSetup setup_;  ///< Of the last match handed over.
  Texts handedOver_;
  std::function<void()> WhilePlayed = [] {};
};

TEST_F(ChampionshipPlayTest, OffersAndPlaysTheFixturesOfALeague) {
  Write("Leagues/Short.leg", "Short\n2\nA\nB\n1\nNP\nB\nA\n");
  Write("Leagues/Top.leg", "Top\n2\nA\nB\n3\nNP\nA\nB\nx\nB\nA\nNP\nA\nB\n");
  ChampionshipPlay play = Open(League);
  EXPECT_EQ(play.To.Text(), "1");
  play.Championships_Click(1);
  EXPECT_EQ(play.To.Text(), "2");
  EXPECT_EQ(play.FixtureList.Entries, (Texts{"Match 1: A v B", "Match 2: B v A", "Match 3: A v B"}));
  play.SimulationType_Click(1);
  EXPECT_EQ(Play(play, 1, 3), (Texts{"Match 1: A v B", "Match 3: A v B"}));
  EXPECT_EQ(setup_.SimulationType, SimulationKind::FullSimulation);
  EXPECT_EQ(Play(play, 3, 1), Texts{});
  EXPECT_EQ(desktop_.Taken(),
            (Texts{"i: Match 2 has been played already", "i: Please select the match numbers properly"}));
}

TEST_F(ChampionshipPlayTest, ARangeGoesOnIntoTheNextRound) {
  Write("Teams/C", "1\n");
  const std::string cup = "3\nCup\n4\nA\nB\nC\nD\n", first = "NP\nA\nC\nWinner 1\n";
  Write("Tournies/Cup.trn", cup + first + "NP\nB\nD\nWinner 2\nNP\nA\nWinner 2\nWinner 3\n");
  ChampionshipPlay play = Open(KnockOut);
  EXPECT_EQ(Play(play, 2, 3), Texts{"Match 2: B v D"});  // Which was not recorded.
  EXPECT_EQ(desktop_.Taken(), Texts{"i: Match 3 can't be played before match 2 has been played"});

  WhilePlayed = [&] {
    Write("Tournies/Cup.trn", cup + "P\nA\nC\nC (By Toss)\nP\nB\nD\nD\nNP\nC (By Toss)\nD\nWinner 3\n");
    play.Load("Cup.trn");
  };
  EXPECT_EQ(Play(play, 1, 3), (Texts{"Match 1: A v C", "Match 3: C v D"}));
  EXPECT_EQ(desktop_.Taken(), Texts{"i: Match 2 has been played already"});
  Write("Teams/C (By Toss)", "1\n");  // Here the toss is part of a team's name.
  EXPECT_EQ(Play(play, 3, 3), Texts{"Match 3: C (By Toss) v D"});

  WhilePlayed = [&] {
    Write("Tournies/Cup.trn", cup + first);
    play.Load("Cup.trn");
  };
  Play(play, 3, 3);
  EXPECT_EQ(Play(play, 1, 3), Texts{"Match 1: A v C"});  // What the file has lost is passed over.
}

TEST_F(ChampionshipPlayTest, WhatIsRecordedInPartIsNotPlayedAgain) {
  Write("Leagues/Top.leg", "Top\n2\nA\nB\n2\nNP\nA\nB\nNP\nB\nA\n");
  ChampionshipPlay play = Open(League);
  WhilePlayed = [this] {
    Remove("Leagues/Top.leg");
    Write("Leagues/Top.leg/in the way", "");
    Write("~kickwell-7-1.tmp", "Top\n2\nA\nB\n2\nP\nA\nB\nNP\nB\nA\n");
    Write("unfinished.journal", "Kickwell journal 1\n~kickwell-7-1.tmp\nLeagues/Top.leg\nEnd\n");
  };
  EXPECT_EQ(Play(play, 1, 2), Texts{"Match 1: A v B"});
  EXPECT_EQ(desktop_.Taken(), Texts{"!: The file /kickwell/Leagues/Top.leg can't be saved: Is a directory."});
  Remove("Leagues/Top.leg");
  EXPECT_EQ(Play(play, 1, 2), Texts{"Match 2: B v A"});
  EXPECT_EQ(desktop_.Taken(), Texts{"i: Match 1 has been played already"});
}

TEST_F(ChampionshipPlayTest, OnlyAChampionshipUnderItsOwnNameIsPlayed) {
  Open(League).Command1_Click();  // There is none.
  Write("Leagues/Another.leg", "Other\n2\nA\nB\n1\nNP\nA\nB\n");
  Write("Leagues/Cut.leg", "Cut\n2\nA\nB\n5\nNP\nA\nB\nNP\nA");
  Write("Leagues/Empty.leg", "Empty\n0\n0\n");
  ChampionshipPlay play = Open(League);
  EXPECT_EQ(play.Championships.Text(), "Cut.leg");  // The first that can be played.
  EXPECT_EQ(play.FixtureList.Count(), 1);           // All that the file holds.
  play.Championships_Click(0);
  EXPECT_EQ(play.Championships.Text(), "Cut.leg");
  EXPECT_EQ(current_, "Cut");
  play.Championships_Click(2);
  play.Command1_Click();
  const std::string refusal = "i: Another.leg holds the championship Other. Rename the file to play it.";
  EXPECT_EQ(desktop_.Taken(), (Texts{"i: Please make all the settings properly", refusal, refusal,
                                     "i: Please make all the settings properly"}));
}

}  // namespace
}  // namespace kickwell
