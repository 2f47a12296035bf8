// What files may be called, how their text is encoded, and what the stores take from damaged ones.
#include <gtest/gtest.h>

#include "data/championship_store.h"
#include "data/file_names.h"
#include "data/line_reader.h"
#include "data/name_order.h"
#include "data/stadium_store.h"
#include "data/team_store.h"
#include "support/folders.h"

namespace kickwell {
namespace {

using namespace std::string_literals;

TEST(FileNames, RefusesWhatSomeSystemCannotName) {
  for (const char* name :
       {"FC 07", "St. Anne", "Fiji Con", "CONNAUGHT", "Com", "COM10", "'O'", ".hidden", "Κόσμος"})
    EXPECT_TRUE(IsFileName(name)) << name;
  for (const char* name :
       {"",    ".",       "..",       "a/b",  "a\\b",   "a:b",       "a*",    "a?",     "\"a\"",
        "<b>", "a>",      "a|b",      "a\tb", "a\x7F",  "a\u0085",   "F.C.",  "blank ", "CON",
        "con", "Nul.txt", "aux .leg", "COM1", "lpt9.x", "COM\u00B2", "conin$"})
    EXPECT_FALSE(IsFileName(name)) << name;
  EXPECT_TRUE(IsFileName(std::string(255, 'a')));
  EXPECT_FALSE(IsFileName(std::string(256, 'a')));
  EXPECT_FALSE(IsFileName(std::string_view("a\0b", 3)));
}

TEST(FileNames, ListsFilesByTheirLettersWhateverTheirCaseAndAccents) {
  const std::vector<std::string> sorted = {".dot",  "A",    "a.leg",  "A\u0301b", "Arger", "Ärger", "b",
                                           "B.LEG", "CAFE", "cafe",   "CAFÉ",     "Café",  "café",  "Élan",
                                           "élan",  "Șa",   "Straße", "STRASSEN", "zebra", "Zulu",  "əa",
                                           "Əb",    "Όρος", "οσΑ",    "д",        "Ж"};
  TestFolder folder;
  for (const std::string& name : sorted) folder.Write(name, "");
  EXPECT_EQ(ListFiles(folder.Files, folder.Folder.Root), sorted);
  EXPECT_EQ(OrderKey("ȺȾɃƁƊƓƗƝƟƮƲŸŽẞΣЖԞՖ"), OrderKey("ⱥⱦƀɓɗɠɨɲɵʈʋÿžßςжԟֆ"));
  EXPECT_EQ(ListFiles(folder.Files, folder.Folder.Root, ".leg"), std::vector<std::string>{"a.leg"});
}

Lines Decoded(std::string_view bytes) {
  LineReader reader(Decode(bytes));
  Lines lines;
  while (reader.RecordsLeft(1) > 0) lines.push_back(reader.Text());
  return lines;
}

/// UTF-16 little-endian with the mark.
std::string Utf16(std::u16string_view text) {
  std::string bytes = "\xFF\xFE";
  for (const char16_t unit : text) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
  return bytes;
}

TEST(TextEncoding, ReadsEveryEncodingAndLineEnd) {
  const Lines expected = {"A\u00E9", "", "\U0001F3C6"};
  const std::pair<const char*, std::string> cases[] = {
      {"UTF-16 little-endian", Utf16(u"A\u00E9\r\n\r\n\U0001F3C6\r\n")},
      {"without mark, LF, and end of the last line", Utf16(u"A\u00E9\n\n\U0001F3C6").substr(2)},
      {"UTF-16 big-endian", "\xFE\xFF\0A\0\xE9\0\r\0\n\0\r\0\n\xD8\x3C\xDF\xC6\0\r\0\n"s},
      {"without mark", "\0A\0\xE9\0\n\0\n\xD8\x3C\xDF\xC6\0\n"s},
      {"UTF-8",
       "\xEF\xBB\xBF"
       "A\xC3\xA9\r\n\r\n\xF0\x9F\x8F\x86\r\n"},
      {"without mark", "A\xC3\xA9\n\r\n\xF0\x9F\x8F\x86"},
  };
  for (const auto& [name, bytes] : cases) EXPECT_EQ(Decoded(bytes), expected) << name;
}

TEST(TextEncoding, ReadsWhateverBytesThereAre) {
  EXPECT_EQ(Decoded(Utf16(u"A") + "B"), Lines{"A"});  // Half a character at the end.
  EXPECT_EQ(Decoded("Fu\xDF\x92s \x80\x81\xFF\n"), Lines{"Fu\u00DF\u2019s \u20AC\u0081\u00FF"});  // No UTF-8.
  EXPECT_EQ(Decoded("\xEF\xBB\xBF\xC3\xA9\xE9\x80\xED\xA0"), Lines{"\u00E9\u00E9\u20AC\u00ED\u00A0"});
  EXPECT_EQ(Decoded("\xE0\x81\x81\n"), Lines{"\u00E0\u0081\u0081"});  // Longer than UTF-8 has an "A".
  EXPECT_EQ(Decoded("one\rtwo\r"), Lines{"one\rtwo"});                // A lone CR ends the last line only.
  EXPECT_EQ(Decoded(Utf16(u"\u010A\u0A0D")), Lines{"\u010A\u0A0D"});  // Letters with bytes of line ends.
}

TEST(TextEncoding, WritesUtf16WithMarkAndLineEnds) {
  EXPECT_EQ(Encode({"A\u00E9", "", "two\nlines", "\U0001F3C6"}),
            Utf16(u"A\u00E9\r\n\r\ntwo lines\r\n\U0001F3C6\r\n"));
  EXPECT_EQ(Encode({}), Utf16(u""));
  const std::string loneSurrogates = "\xFF\xFE\x3C\xD8x\0\xC6\xDF\r\0\n\0"s;
  EXPECT_EQ(Encode(Decoded(loneSurrogates)), loneSurrogates);
}

const ChampionshipId Top{ChampionshipKind::League, "Top"}, Cup{ChampionshipKind::KnockOut, "Cup"};

class StoresTest : public testing::Test {
 protected:
  Championship Read(const ChampionshipId& id) const { return ReadChampionship(folder_, id).Value.value(); }

  TestFolder at_;
  const ProgramFolder& folder_ = at_.Folder;
};

TEST_F(StoresTest, ATeamOfAnyNameIsReadSavedAndDeletedButNoneIsMade) {
  at_.Write("Teams/F.C.", "50\nA\n60\nGK\nB\n61");  // The last player is cut short.
  at_.Write("settings.cfg", "");
  const Team team = LoadTeam(folder_, "F.C.").Value.value();
  EXPECT_EQ(team.Players, (std::vector<Player>{{"A", "60", "GK"}}));
  EXPECT_TRUE(SaveTeam(folder_, team).Ok());
  EXPECT_EQ(at_.Bytes("Teams/F.C."), AsWritten("50\nA\n60\nGK\nB\n61\n"));
  at_.Write("Teams/F.C.", "50\nA\n60\nGK\n\n \n\n\n\n\n\n");  // Blank lines are no players.
  EXPECT_EQ(LoadTeam(folder_, "F.C.").Value, (Team{"F.C.", "50", {{"A", "60", "GK"}}}));
  EXPECT_TRUE(CreateTeam(folder_, "F.C.", "05").Ok());  // In its place.
  EXPECT_EQ(at_.Bytes("Teams/F.C."), AsWritten("05\n"));
  EXPECT_FALSE(CreateTeam(folder_, "CON", "1").Ok());
  EXPECT_TRUE(DeleteTeam(folder_, "F.C.").Ok());
  EXPECT_TRUE(at_.Files.All().empty());
}

TEST_F(StoresTest, AWrongCountOfStadiumsGivesTheCompleteOnes) {
  const std::pair<const char*, std::size_t> counts[] = {
      {"0", 0}, {" 1\t\u00A0", 1}, {"2", 2}, {"3", 2}, {"99999999999999999999", 2}, {"many", 2}, {"-1", 2}};
  for (const auto& [count, expected] : counts) {
    at_.Write("stadiums.sim", std::string(count) + "\nA\nB\nC\n1\nD\nE\nF\n2\nG\nH");
    EXPECT_EQ(LoadStadiums(folder_).Value.size(), expected) << count;
  }
  EXPECT_TRUE(SaveStadiums(folder_, {}).Ok());
  EXPECT_EQ(at_.Bytes("stadiums.sim"), AsWritten("0\nG\nH\n"));  // The rest is kept.
}

TEST_F(StoresTest, ADamagedChampionshipGivesItsCompleteTeamsAndFixtures) {
  const std::tuple<const char*, std::size_t, std::size_t> leagues[] = {
      {"L\n1000000000\nA\nB\n2", 3, 0},
      {"L\n2\nA\nB\n1000000000\nNP\nA\nB\nNP\nA", 2, 1},
      {"L\n4\n2\n1\nNP\nA\n1\nP\nB\nA", 4, 1},  // Team lines may look like anything.
  };
  for (const auto& [text, teams, fixtures] : leagues) {
    at_.Write("Leagues/Top.leg", text);
    EXPECT_EQ(Read(Top).Teams.size(), teams) << text;
    EXPECT_EQ(Read(Top).Fixtures.size(), fixtures) << text;
  }
  at_.Write("Tournies/Cup.trn", "99\nCup\n2\nA\nB\nNP\nA\nB\nWinner 1\nNP\nA");
  EXPECT_EQ(Read(Cup).Fixtures.size(), 1U);
  EXPECT_EQ(ChangedChampionship(Read(Cup)).Bytes,
            AsWritten("1\nCup\n2\nA\nB\nNP\nA\nB\nWinner 1\nNP\nA\n"));  // The rest is kept.
}

TEST_F(StoresTest, StandingsHaveARowForEveryTeamAndANewTeamsStandBehindAllRows) {
  at_.Write("Leagues/Top.rec",
            "A\n1x\n 1\n0\n0\n2\n1\n3\nB\n1");  // A figure is no number; B's row is cut short.
  const std::vector<StandingsRow> complete = {{"A", 0, 1, 0, 0, 2, 1, 3}, {"B", 1}, {"B"}};
  EXPECT_EQ(ReadStandings(folder_, Top, {"A", "B", "B"}).Value, complete);  // As often as it is listed.
  EXPECT_EQ(ReadStandings(folder_, Top, {"A"}).Value.size(), 1U);
  at_.Files.Unreadable = {at_ / "Leagues/Top.rec"};
  EXPECT_FALSE(AppendStandings(folder_, Top, "C").Ok());
  at_.Files.Unreadable.clear();
  EXPECT_TRUE(AppendStandings(folder_, Top, "C").Ok());
  EXPECT_EQ(at_.Bytes("Leagues/Top.rec"),
            AsWritten("A\n1x\n 1\n0\n0\n2\n1\n3\nB\n1\n0\n0\n0\n0\n0\n0\nC\n0\n0\n0\n0\n0\n0\n0\n"));
}

TEST_F(StoresTest, NoNameLeadsOutOfTheFolder) {
  for (const std::string& name : {"../../x"s, "/x"s, ".."s, "a/../../x"s, "a\0/x"s, ""s}) {
    const ChampionshipId id{ChampionshipKind::League, name};
    EXPECT_FALSE(SaveTeam(folder_, {name, "1", {}}).Ok());
    EXPECT_FALSE(DeleteTeam(folder_, name).Ok());
    EXPECT_FALSE(LoadTeam(folder_, name).Value || TeamExists(folder_, name));
    EXPECT_FALSE(ReadChampionship(folder_, id).Value || ChampionshipExists(folder_, id));
    (void)WriteChampionship(folder_, {id, {}, {}});
    (void)AddGoals(folder_, id, {name, name, 1});
  }
  EXPECT_GT(at_.Files.Touched.size(), 3U);
  for (const std::filesystem::path& path : at_.Files.Touched) {
    const std::string place = (path.lexically_normal() / "").string();
    EXPECT_TRUE(place.starts_with(folder_.Root.string() + "/")) << path;
  }
}

}  // namespace
}  // namespace kickwell
