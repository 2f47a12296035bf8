#include "data/text_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <string>

#include "support/fakes.h"
#include "support/folders.h"

namespace kickwell {
namespace {

using namespace std::string_literals;

std::size_t FileCount(const std::filesystem::path& folder) {
  return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder), {}));
}

TEST(TextFile, ReadsEveryEncodingAndLineEnd) {
  const Lines expected = {"A\u00E9", "", "\U0001F3C6"};
  const std::pair<const char*, std::string> cases[] = {
      {"utf-16 le", "\xFF\xFE"s + "A\0\xE9\0\r\0\n\0\r\0\n\0\x3C\xD8\xC6\xDF\r\0\n\0"s},
      {"utf-16 le, no mark, LF, last line without end", "A\0\xE9\0\n\0\n\0\x3C\xD8\xC6\xDF"s},
      {"utf-16 be", "\xFE\xFF\0A\0\xE9\0\r\0\n\0\r\0\n\xD8\x3C\xDF\xC6\0\r\0\n"s},
      {"utf-16 be, no mark", "\0A\0\xE9\0\n\0\n\xD8\x3C\xDF\xC6\0\n"s},
      {"utf-8",
       "\xEF\xBB\xBF"
       "A\xC3\xA9\r\n\r\n\xF0\x9F\x8F\x86\r\n"s},
      {"utf-8, no mark", "A\xC3\xA9\n\r\n\xF0\x9F\x8F\x86"s},
  };
  for (const auto& [name, bytes] : cases) EXPECT_EQ(Decode(bytes), expected) << name;
}

TEST(TextFile, ReadsWhateverBytesThereAre) {
  const std::pair<std::string, Lines> cases[] = {
      {"", {}},
      {"\xFF\xFE", {}},
      {"\xFF\xFE"
       "A\0B"s,
       {"A"}},  // Half a character at the end.
      {"a\xFF"
       "b\xC0\x80\xED\xA0",
       {"a\uFFFDb\uFFFD\uFFFD\uFFFD\uFFFD"}},  // No UTF-8.
      {"one\rtwo\n", {"one\rtwo"}},            // A lone CR ends no line.
  };
  for (const auto& [bytes, lines] : cases) EXPECT_EQ(Decode(bytes), lines) << testing::PrintToString(bytes);
  const std::string loneSurrogates = "\xFF\xFE\x3C\xD8x\0\xC6\xDF\r\0\n\0"s;
  EXPECT_EQ(Encode(Decode(loneSurrogates)), loneSurrogates);
  const TestFolder folder;
  EXPECT_EQ(ReadLines(folder / "missing"), std::nullopt);
  EXPECT_EQ(ReadLines(folder.Folder.Root), std::nullopt);
}

TEST(TextFile, WritesUtf16WithMarkAndLineEnds) {
  EXPECT_EQ(Encode({"A\u00E9", "", "two\nlines", "\U0001F3C6"}),
            "\xFF\xFE"s + "A\0\xE9\0\r\0\n\0\r\0\n\0"s +
                "t\0w\0o\0 \0l\0i\0n\0e\0s\0\r\0\n\0\x3C\xD8\xC6\xDF\r\0\n\0"s);
  EXPECT_EQ(Encode({}), "\xFF\xFE");
}

TEST(TextFile, PutsBlocksBehindWhateverIsThere) {
  const std::pair<std::string, std::string> cases[] = {
      {"", "x\ny\n"},
      {"\xFF\xFE", "x\ny\n"},
      {AsWritten("a\n\nb\n"), "a\n\nb\n\nx\ny\n"},
      {AsWritten("a\nb").substr(0, 8) + "b\0"s, "a\nb\n\nx\ny\n"},  // No end of the last line,
      {"\xFF\xFE"
       "a\0\n\0b\0\r\0\n\0"s,
       "a\nb\n\nx\ny\n"},            // a bare LF,
      {"a\nb\n", "a\nb\n\nx\ny\n"},  // another encoding.
  };
  for (const auto& [before, after] : cases) {
    EXPECT_EQ(EncodeBehind(before, {"x", "y"}), AsWritten(after)) << testing::PrintToString(before);
  }
  // The unit U+010A holds the byte of a line feed and is none.
  EXPECT_EQ(Decode(EncodeBehind("\xFF\xFE\x0A\x01\r\0\n\0"s, {"x"})), (Lines{"\u010A", "", "x"}));
}

TEST(TextFile, SavesThroughLinksAndKeepsPermissions) {
  namespace fs = std::filesystem;
  const TestFolder folder;
  WriteBytes(folder / "real", "old");
  fs::permissions(folder / "real", fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink("real", folder / "link");
  ASSERT_TRUE(WriteLines(folder / "link", {"new"}, folder.Folder.Root).Ok());
  EXPECT_TRUE(fs::is_symlink(folder / "link"));
  EXPECT_EQ(ReadBytes(folder / "real"), AsWritten("new\n"));
  EXPECT_EQ(fs::status(folder / "real").permissions(), fs::perms::owner_read | fs::perms::owner_write);
  EXPECT_EQ(FileCount(folder.Folder.Root), 2U);

  fs::create_symlink("link2", folder / "link1");
  fs::create_symlink("not yet", folder / "link2");
  ASSERT_TRUE(WriteLines(folder / "link1", {"new"}, folder.Folder.Root).Ok());
  EXPECT_TRUE(fs::is_symlink(folder / "link2"));
  EXPECT_EQ(ReadBytes(folder / "not yet"), AsWritten("new\n"));
}

TEST(TextFile, SavesOntoAnotherDisk) {
  const std::filesystem::path other = "/dev/shm";
  if (!std::filesystem::exists(other)) GTEST_SKIP() << "no other disk here";
  const TestFolder folder;
  const std::filesystem::path file = other / folder.Folder.Root.filename();
  EXPECT_TRUE(WriteLines(file, {"far"}, folder.Folder.Root).Ok());
  EXPECT_EQ(ReadBytes(file), AsWritten("far\n"));
  std::filesystem::remove(file);
}

TEST(TextFile, AFailedSaveLeavesTheOldFileAndIsToldOnce) {
  const TestFolder folder;
  WriteBytes(folder / "file", "old");
  FakeDesktop desktop;
  EXPECT_FALSE(TellFailure(desktop, WriteLines(folder / "file", {"new"}, folder / "no such folder")));
  EXPECT_EQ(desktop.Taken(), std::vector{"!: The file " + (folder / "file").string() +
                                         " can't be saved: No such file or directory."});
  EXPECT_EQ(ReadBytes(folder / "file"), "old");

  // The target cannot be replaced: the temporary file must not stay behind.
  std::filesystem::create_directory(folder / "folder");
  EXPECT_FALSE(WriteLines(folder / "folder", {"new"}, folder.Folder.Root).Ok());
  EXPECT_EQ(FileCount(folder.Folder.Root), 2U);

  EXPECT_TRUE(TellFailure(desktop, DeleteFile(folder / "file")));
  EXPECT_TRUE(TellFailure(desktop, DeleteFile(folder / "file")));
  EXPECT_FALSE(TellFailure(desktop, DeleteFile(folder / "folder")));
  EXPECT_EQ(desktop.Messages.size(), 1U);
}

}  // namespace
}  // namespace kickwell
