#include "setup/opening.h"

#include <gtest/gtest.h>

#include "support/fakes.h"

namespace kickwell {
namespace {

TEST(Opening, PlayItemsSetModeAndStatistics) {
  FakeDesktop desktop;
  std::string opened;
  OpeningScreens screens;
  screens.Settings = [&] { opened += "S"; };
  screens.LegSettings = [&] { opened += "L"; };
  screens.KnockSettings = [&] { opened += "K"; };
  Opening menu(desktop, screens);
  const auto state = [&menu] {
    return std::string(ToText(menu.Mode)) + " " + menu.ChampionshipName +
           (menu.StatisticsEnabled ? " on" : " off") + (menu.LeagueMenuVisible ? " league" : "") +
           (menu.KnockChartVisible ? " chart" : "");
  };
  EXPECT_EQ(state(), "Friendly N/A off league chart");
  menu.LegLoad_Click();
  EXPECT_EQ(state(), "League N/A on league");
  menu.ChampionshipName = "Cup";
  menu.KnockLoad_Click();
  EXPECT_EQ(state(), "KnockOut N/A on chart");
  menu.ChampionshipName = "Cup";
  menu.MatchMenu_Click();
  EXPECT_EQ(state(), "Friendly N/A off chart");
  EXPECT_EQ(opened, "LKS");
}

TEST(Opening, HelpNamesItsFiles) {
  FakeDesktop desktop;
  Opening menu(desktop, {});
  menu.ReadMenu_Click();
  menu.HistMenu_Click();
  EXPECT_EQ(desktop.Taken(), (std::vector<std::string>{
                                 "i: Read the file 'Help.htm' in your Kickwell folder for help.",
                                 "i: Read the file 'History.txt' in your Kickwell folder for history."}));
}

}  // namespace
}  // namespace kickwell
