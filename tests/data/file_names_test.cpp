#include "data/file_names.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "data/name_order.h"
#include "support/folders.h"

namespace kickwell {
namespace {

TEST(FileNames, RefusesWhatSomeSystemCannotName) {
  for (const char* name : {"Rovers", "FC 07", "St. Anne", "Fiji Con", "CONNAUGHT", "Com", "COM10",
                           "\u00D8stby", "'O'", ".hidden", "Lpt United", "Κόσμος"}) {
    EXPECT_TRUE(IsFileName(name)) << name;
  }
  for (const char* name :
       {"",    ".",       "..",       "a/b",  "a\\b",   "a:b",       "a*",    "a?",     "\"a\"",
        "<b>", "a>",      "a|b",      "a\tb", "a\x7F",  "a\u0085",   "F.C.",  "blank ", "CON",
        "con", "Nul.txt", "aux .leg", "COM1", "lpt9.x", "COM\u00B2", "conin$"}) {
    EXPECT_FALSE(IsFileName(name)) << name;
  }
  EXPECT_TRUE(IsFileName(std::string(255, 'a')));
  EXPECT_FALSE(IsFileName(std::string(256, 'a')));
  EXPECT_FALSE(IsFileName(std::string_view("a\0b", 3)));
  EXPECT_EQ(FileNameRefusal("a:b"), "a:b can't be used as a file name.");
}

TEST(FileNames, ListsFilesByTheirLettersWhateverTheirCaseAndAccents) {
  const std::vector<std::string> sorted = {".dot",  "A",    "a.leg",  "A\u0301b", "Arger", "Ärger", "b",
                                           "B.LEG", "CAFE", "cafe",   "CAFÉ",     "Café",  "café",  "Élan",
                                           "élan",  "Șa",   "Straße", "STRASSEN", "zebra", "Zulu",  "əa",
                                           "Əb",    "Όρος", "οσΑ",    "д",        "Ж"};
  TestFolder folder;
  for (const std::string& name : sorted) folder.Write(name, "");
  EXPECT_EQ(ListFiles(folder.Files, folder.Folder.Root), sorted);
  EXPECT_TRUE(std::ranges::is_sorted(sorted, ListedBefore));
  EXPECT_EQ(OrderKey("ȺȾɃƁƊƓƗƝƟƮƲŸŽẞΣЖԞՖ"), OrderKey("ⱥⱦƀɓɗɠɨɲɵʈʋÿžßςжԟֆ"));
  EXPECT_EQ(ListFiles(folder.Files, folder.Folder.Root, ".leg"), std::vector<std::string>{"a.leg"});
}

}  // namespace
}  // namespace kickwell
