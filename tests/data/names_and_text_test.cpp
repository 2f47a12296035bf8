// The names of files, and the text in them.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "data/file_names.h"
#include "data/line_reader.h"
#include "data/name_order.h"
#include "support/folders.h"

namespace kickwell {
namespace {

using namespace std::string_literals;

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

TEST(TextEncoding, ReadsLongLinesAndWhateverStandsAmongThem) {
  std::u16string text;
  Lines expected;
  for (int length = 0; length < 70; ++length) {  // Longer than any block that is copied at once.
    text += std::u16string(static_cast<std::size_t>(length), u'x') + u"\u00E9\u010A\u0800y\r\n";
    expected.push_back(std::string(static_cast<std::size_t>(length), 'x') + "\u00E9\u010A\u0800y");
  }
  EXPECT_EQ(Decoded(Utf16(text)), expected);
  EXPECT_EQ(Encode(expected), Utf16(text));
}

TEST(TextEncoding, ReadsWhateverBytesThereAre) {
  EXPECT_EQ(Decoded(Utf16(u"A") + "B"), Lines{"A"});  // Half a character at the end.
  EXPECT_EQ(Decoded("Fu\xDF\x92s \x80\x81\xFF\n"), Lines{"Fu\u00DF\u2019s \u20AC\u0081\u00FF"});  // No UTF-8.
  EXPECT_EQ(Decoded("\xEF\xBB\xBF\xC3\xA9\xE9\x80\xED\xA0"), Lines{"\u00E9\u00E9\u20AC\u00ED\u00A0"});
  EXPECT_EQ(Decoded("\xE0\x81\x81\n"), Lines{"\u00E0\u0081\u0081"});  // Longer than UTF-8 has an "A".
  EXPECT_EQ(Decoded("one\rtwo\n"), Lines{"one\rtwo"});                // A lone CR ends no line.
}

TEST(TextEncoding, WritesUtf16WithMarkAndLineEnds) {
  EXPECT_EQ(Encode({"A\u00E9", "", "two\nlines", "\U0001F3C6"}),
            Utf16(u"A\u00E9\r\n\r\ntwo lines\r\n\U0001F3C6\r\n"));
  EXPECT_EQ(Encode({}), Utf16(u""));
  const std::string loneSurrogates = "\xFF\xFE\x3C\xD8x\0\xC6\xDF\r\0\n\0"s;
  EXPECT_EQ(Encode(Decoded(loneSurrogates)), loneSurrogates);
}

}  // namespace
}  // namespace kickwell
