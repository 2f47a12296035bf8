#include "championship/leg_editor.h"

#include <gtest/gtest.h>

#include <set>

#include "support/fakes.h"
#include "support/folders.h"

namespace kickwell {
namespace {

using Texts = std::vector<std::string>;

TEST(Fixtures, ALeagueMeetsAtBothGroundsAndADrawFollowsTheAlphabet) {
  SeededRandom random(7);
  Texts teams;
  for (int i = 0; i < 32; ++i) teams.push_back("T" + std::to_string(i));
  const std::vector<Pairing> league = LeagueFixture(teams, random);
  std::set<std::pair<std::string, std::string>> pairs;
  for (const Pairing& fixture : league) pairs.emplace(fixture.Home, fixture.Away);
  EXPECT_EQ(league.size(), 992U);
  EXPECT_EQ(pairs.size(), 992U);
  for (const auto& [home, away] : pairs) EXPECT_NE(home, away);

  std::set<Texts> orders;
  for (int i = 0; i < 200; ++i) {
    const std::vector<Pairing> cup = KnockOutFixture({"A", "B", "C", "D", "E", "F", "G", "H"}, random);
    ASSERT_EQ(cup.size(), 7U);
    Texts order;
    for (std::size_t k = 0; k < 4; ++k) {
      order.push_back(cup[k].Home);
      EXPECT_EQ(cup[k].Away[0], cup[k].Home[0] + 4);
    }
    orders.insert(order);
    EXPECT_EQ(cup[4], (Pairing{"Winner 1", "Winner 2"}));
    EXPECT_EQ(cup[6], (Pairing{"Winner 5", "Winner 6"}));
  }
  EXPECT_GT(orders.size(), 20U);  // Of 24.
  EXPECT_EQ(KnockOutFixture({"A", "B"}, random), (std::vector<Pairing>{{"A", "B"}}));
  std::set<std::string> first;
  for (int i = 0; i < 100; ++i) first.insert(KnockOutFixture({"A", "B", "C", "D"}, random)[0].Home);
  EXPECT_EQ(first, (std::set<std::string>{"A", "B"}));
}

class LegEditorTest : public testing::Test {
 protected:
  LegEditorTest() { AddTeams(6); }

  void AddTeams(int count) {
    for (int i = 0; i < count; ++i) {
      EXPECT_TRUE(CreateTeam(folder_.Folder, "T" + std::to_string(100 + i), "50").Ok());
    }
  }

  LegEditor Open() { return {folder_.Folder, desktop_, random_}; }

  static void Select(EditorSide& side, int count) {
    for (int i = 0; i < count; ++i) LegEditor::AddTeam_Click(side);
  }

  Texts Told() { return desktop_.Taken(); }

  TestFolder folder_;
  FakeDesktop desktop_;
  SeededRandom random_{3};
};

TEST_F(LegEditorTest, TeamsMoveBetweenTheListsAndTheChoosers) {
  LegEditor editor = Open();
  EditorSide& side = editor.League;
  EXPECT_EQ(side.Available.Count(), 6);
  EXPECT_EQ(side.Available.Picked, 0);
  side.Available.Picked = 2;
  LegEditor::AddTeam_Click(side);
  LegEditor::AddTeam_Click(side);
  EXPECT_EQ(side.Selected.Entries, (Texts{"T100", "T102"}));
  EXPECT_EQ(side.Home.Entries, side.Selected.Entries);
  LegEditor::RemoveTeam_Click(side);  // None is picked yet.
  EXPECT_EQ(side.Selected.Count(), 2);
  side.Home.Picked = side.Selected.Picked = 0;
  LegEditor::RemoveTeam_Click(side);
  EXPECT_EQ(side.Selected.Entries, Texts{"T102"});
  EXPECT_EQ(side.Away.Entries, Texts{"T102"});
  EXPECT_EQ(side.Home.Picked, Chooser::None);
  EXPECT_EQ(side.Selected.Picked, 0);
  EXPECT_EQ(side.Available.Entries, (Texts{"T100", "T101", "T103", "T104", "T105"}));
  for (int i = 0; i < 5; ++i) editor.MoreTeams_Click();
  EXPECT_EQ(editor.KnockOut.NumberOfTeams, 16);
  for (int i = 0; i < 5; ++i) editor.FewerTeams_Click();
  EXPECT_EQ(editor.KnockOut.NumberOfTeams, 2);
}

TEST_F(LegEditorTest, EveryRefusalHasItsMessage) {
  LegEditor editor = Open();
  EditorSide& league = editor.League;
  EditorSide& cup = editor.KnockOut;
  const auto expect = [this](const std::string& message) { EXPECT_EQ(Told(), Texts{message}); };
  editor.AddFixture_Click();
  expect("i: There must be atleast two teams in the competition");
  Select(league, 1);
  editor.AutoFixtures_Click(league);
  expect("i: There must be at least two teams in the competition");
  editor.Save_Click(league);
  expect("i: Please select the championship teams properly");
  Select(league, 1);
  editor.AddFixture_Click();
  expect("i: Select both the home and away teams properly");
  league.Home.Picked = league.Away.Picked = 1;
  editor.AddFixture_Click();
  expect("i: T101 can't play againt itself");
  editor.Save_Click(league);
  expect("i: Please add the championship fixtures properly");
  editor.AutoFixtures_Click(league);
  editor.Save_Click(league);
  expect("i: Please enter a name for the championship");
  league.Name = "a/b";
  editor.Save_Click(league);
  expect("!: a/b can't be used as a file name.");
  editor.Delete_Click(league);
  expect("i: Please load a championship to delete");

  editor.MoreTeams_Click();
  Select(cup, 3);
  editor.AutoFixtures_Click(cup);
  expect("i: Total teams selected doesn't match the number of teams");
  Select(cup, 1);
  editor.AutoFixtures_Click(cup);
  cup.Name = "Cup";
  cup.Selected.Picked = 0;
  LegEditor::RemoveTeam_Click(cup);  // The teams no longer are those of the fixtures.
  editor.Save_Click(cup);
  editor.FewerTeams_Click();
  editor.Save_Click(cup);
  EXPECT_EQ(Told(), Texts(2, "i: Please add the championship fixtures properly"));
  EXPECT_FALSE(std::filesystem::exists(folder_.Folder.Tournies()));
}

TEST_F(LegEditorTest, TheLimitsAreHeldWhereFixturesAreMade) {
  AddTeams(101);
  LegEditor editor = Open();
  EditorSide& side = editor.League;
  Select(side, 32);
  editor.AutoFixtures_Click(side);
  EXPECT_EQ(side.FixtureList.Count(), 992);
  Select(side, 1);
  editor.AutoFixtures_Click(side);
  EXPECT_EQ(Told(), Texts{"i: A league with generated fixtures can have at most 32 teams"});
  EXPECT_EQ(side.FixtureList.Count(), 992);
  side.Home.Picked = 0;
  side.Away.Picked = 1;
  for (int i = 0; i < 1002; ++i) editor.AddFixture_Click();  // The first one replaces the generated list.
  EXPECT_EQ(Told(), Texts{"i: A championship can have at most 1001 matches"});
  EXPECT_EQ(side.FixtureList.Entries.back(), "Match 1001: T100 v T101");
  Select(side, 101 - 33);
  side.Name = "Long";
  editor.Save_Click(side);
  EXPECT_EQ(Told(), Texts{"i: A league can have at most 100 teams"});
}

TEST_F(LegEditorTest, SavesOverwritesLoadsAndDeletes) {
  LegEditor editor = Open();
  EditorSide& side = editor.League;
  Select(side, 2);
  side.Home.Picked = 1;
  side.Away.Picked = 0;
  editor.AddFixture_Click();
  side.Name = "Top";
  desktop_.Yes = false;
  editor.Save_Click(side);
  EXPECT_FALSE(std::filesystem::exists(folder_ / "Leagues/Top.leg"));
  desktop_.Yes = true;
  editor.Save_Click(side);
  EXPECT_EQ(ReadBytes(folder_ / "Leagues/Top.leg"), AsWritten("Top\n2\nT100\nT101\n1\nNP\nT101\nT100\n"));
  EXPECT_EQ(side.Load.Text(), "Top.leg");
  EXPECT_EQ(Told(), Texts(2, "?: Are you sure you want to add Top?"));

  for (const char* companion : {"Leagues/Top.rec", "Leagues/Top.sco", "Leagues/Top.lrs"})
    WriteBytes(folder_ / companion, "x");
  side.Home.Picked = 0;
  side.Away.Picked = 1;
  editor.AddFixture_Click();  // Appends to the list that is loaded.
  EXPECT_EQ(side.FixtureList.Entries, (Texts{"Match 1: T101 v T100", "Match 2: T100 v T101"}));
  desktop_.Yes = false;
  editor.Save_Click(side);
  EXPECT_TRUE(std::filesystem::exists(folder_ / "Leagues/Top.rec"));
  desktop_.Yes = true;
  editor.Save_Click(side);
  EXPECT_EQ(Told(), Texts(2, "?: Do you want to overwrite Top?"));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_.Folder.Leagues()), {}), 1);
  editor.Delete_Click(side);
  EXPECT_EQ(Told(), Texts{"i: You can't delete any more championship"});

  WriteBytes(folder_ / "Leagues/Old.leg", "Old\n3\nT105\nT100\nGone\n1\nP\nT100\nT105\n");
  LegEditor again = Open();
  again.Load_Click(again.League, 0);
  EXPECT_EQ(again.League.Name, "Old");
  EXPECT_EQ(again.League.Selected.Entries, (Texts{"Gone", "T100", "T105"}));
  EXPECT_EQ(again.League.Home.Entries, again.League.Selected.Entries);
  EXPECT_EQ(again.League.Available.Entries, (Texts{"T101", "T102", "T103", "T104"}));
  EXPECT_EQ(again.League.FixtureList.Entries, Texts{"Match 1: T100 v T105"});
  again.League.Name = "Top";  // Deletes what the question names.
  again.Delete_Click(again.League);
  EXPECT_EQ(Told(), Texts{"?: Are you sure you want to remove Old.leg?"});
  EXPECT_FALSE(std::filesystem::exists(folder_ / "Leagues/Old.leg"));
  EXPECT_TRUE(std::filesystem::exists(folder_ / "Leagues/Top.leg"));
  EXPECT_EQ(again.League.Load.Text(), "Top.leg");
  EXPECT_EQ(again.League.FixtureList.Entries, Texts{"Match 1: T100 v T105"});
}

TEST_F(LegEditorTest, EachSideSavesItsOwnFixtures) {
  LegEditor editor = Open();
  editor.MoreTeams_Click();
  Select(editor.KnockOut, 4);
  editor.AutoFixtures_Click(editor.KnockOut);
  Select(editor.League, 2);
  editor.AutoFixtures_Click(editor.League);
  editor.KnockOut.Name = "Cup";
  editor.Save_Click(editor.KnockOut);
  const Championship cup = ReadChampionship(folder_.Folder, ChampionshipKind::KnockOut, "Cup.trn").value();
  ASSERT_EQ(cup.Fixtures.size(), 3U);
  EXPECT_EQ(cup.Fixtures[2], (Fixture{"NP", "Winner 1", "Winner 2", "Winner 3"}));
  EXPECT_EQ(editor.League.FixtureList.Count(), 2);
  EXPECT_EQ(editor.KnockOut.NumberOfTeams, 4);
}

TEST_F(LegEditorTest, ManualEntryEndsWithAutoFixturesAndGoesOnAfterALoad) {
  WriteBytes(folder_ / "Leagues/Old.leg", "Old\n2\nT100\nT101\n1\nP\nT101\nT100\n");
  LegEditor editor = Open();
  EditorSide& side = editor.League;
  const auto add = [&](int home, int away) {
    side.Home.Picked = home;
    side.Away.Picked = away;
    editor.AddFixture_Click();
  };
  Select(side, 3);
  add(0, 1);
  add(0, 1);
  editor.AutoFixtures_Click(side);
  add(1, 2);  // Starts again.
  EXPECT_EQ(side.FixtureList.Entries, Texts{"Match 1: T101 v T102"});
  LegEditor fresh = Open();
  fresh.Load_Click(fresh.League, 0);
  EXPECT_EQ(fresh.League.Available.Picked, 0);
  fresh.League.Home.Picked = 0;
  fresh.League.Away.Picked = 1;
  fresh.AddFixture_Click();
  EXPECT_EQ(fresh.League.FixtureList.Entries, (Texts{"Match 1: T101 v T100", "Match 2: T100 v T101"}));
  fresh.League.Name.clear();
  fresh.Delete_Click(fresh.League);
  EXPECT_EQ(Told(), Texts{"i: Please load a championship to delete"});
}

TEST_F(LegEditorTest, OnlyAKnockOutIsSavedAsOne) {
  const std::pair<const char*, bool> files[] = {
      {"1\nK\n2\nT100\nT101\nNP\nT100\nT101\nWinner 1\n", true},
      {"1\nK\n2\nT100\nT101\nNP\nT100 (By Toss)\nT101\nWinner 1\n", true},
      {"1\nK\n2\nT100\nT101\nNP\nT100\nT105\nWinner 1\n", false},          // A team that is not selected.
      {"1\nK\n2\nT100\nT101\nNP\nWinner 7\nWinner 1\nWinner 1\n", false},  // Waits for itself.
      {"1\nK\n2\nT100\nT100\nNP\nT100\nT100\nWinner 1\n", false},
      {"2\nK\n3\nT100\nT101\nT102\nNP\nT100\nT101\nWinner 1\nNP\nWinner 1\nT102\nWinner 2\n", false},
      {"", false},
  };
  for (const auto& [text, fine] : files) {
    SCOPED_TRACE(text);
    WriteBytes(folder_ / "Tournies/K.trn", text);
    WriteBytes(folder_ / "Tournies/K.lrs", "x");
    LegEditor editor = Open();
    editor.Load_Click(editor.KnockOut, 0);
    editor.KnockOut.Name = "K";
    for (int more = 0; more < 4; ++more) editor.MoreTeams_Click();
    EXPECT_EQ(editor.KnockOut.NumberOfTeams, 16);
    editor.Load_Click(editor.KnockOut, 0);
    editor.KnockOut.Name = "K";
    editor.Save_Click(editor.KnockOut);
    EXPECT_EQ(Told().back(), fine ? "?: Do you want to overwrite K?"
                             : editor.KnockOut.Selected.Count() == 0
                                 ? "i: Please select the championship teams properly"
                                 : "i: Please add the championship fixtures properly");
    EXPECT_EQ(std::filesystem::exists(folder_ / "Tournies/K.lrs"), !fine);
  }
  LegEditor editor = Open();
  Select(editor.KnockOut, 1);
  editor.AutoFixtures_Click(editor.KnockOut);
  EXPECT_EQ(Told(), Texts{"i: Total teams selected doesn't match the number of teams"});
}

}  // namespace
}  // namespace kickwell
