// Files on the disk: links, permissions, flushing, and what cannot be read or replaced.
#include "data/posix_file_system.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "data/file_names.h"
#include "data/text_file.h"
#include "support/folders.h"

static int flushes = 0;

/// Counts in the place of the system's own.
extern "C" int fsync(int /*descriptor*/) {
  ++flushes;
  return 0;
}

namespace kickwell {
namespace {

namespace fs = std::filesystem;

class PosixFileSystemTest : public testing::Test {
 protected:
  FileResult Save(const std::string& file, const std::string& bytes) {
    return ReplaceFile(folder_.Files, folder_ / file, bytes, folder_.Folder.Root);
  }
  std::error_code Read(const std::string& file) {
    std::string bytes;
    return folder_.Files.Read(folder_ / file, bytes);
  }
  FileKind Ask(const std::string& file) { return folder_.Files.Ask(folder_ / file); }

  DiskFolder folder_;
};

TEST_F(PosixFileSystemTest, TellsWhatThereIsAndWhyItCannotBeReadSavedOrDeleted) {
  folder_.Write("file", "text");
  fs::create_directory(folder_ / "folder");
  fs::create_symlink("nowhere", folder_ / "broken link");
  EXPECT_EQ(Ask("file"), FileKind::File);
  EXPECT_EQ(Ask("folder"), FileKind::Other);
  EXPECT_EQ(Ask("missing"), FileKind::Missing);
  EXPECT_EQ(Ask(std::string(5000, 'x')), FileKind::Unknown);
  EXPECT_EQ(ListFiles(folder_.Files, folder_.Folder.Root), std::vector<std::string>{"file"});
  EXPECT_TRUE(FoldersCanBeRead(folder_.Folder).Ok());  // None of them is there.
  folder_.Write("Teams", "");
  EXPECT_EQ(FoldersCanBeRead(folder_.Folder).Failure,
            "The folder " + (folder_ / "Teams").string() + " can't be read: Not a directory.");
  EXPECT_EQ(Read("missing"), std::errc::no_such_file_or_directory);
  EXPECT_EQ(Read("file/within"), std::errc::no_such_file_or_directory);
  EXPECT_EQ(Read("folder"), std::errc::is_a_directory);
  EXPECT_EQ(Read("broken link"), std::errc::no_link);
  const auto begins = [this](const char* file) { return "The file " + (folder_ / file).string(); };
  EXPECT_EQ(Save("folder", "").Failure, begins("folder") + " can't be saved: Is a directory.");
  EXPECT_EQ(Save("file/within", "").Failure, begins("file/within") + " can't be saved: Not a directory.");
  EXPECT_EQ(Save("broken link", "").Failure,
            begins("broken link") + " can't be saved: It is a link to a file that is not there.");
  EXPECT_EQ(DeleteFile(folder_.Files, folder_ / "folder").Failure,
            begins("folder") + " can't be deleted: Is a directory.");
  EXPECT_TRUE(DeleteFile(folder_.Files, folder_ / "missing").Ok());
  fs::resize_file(folder_ / "file", (1 << 28) + 1);
  EXPECT_EQ(Read("file"), std::errc::file_too_large);
  ASSERT_EQ(::mkfifo((folder_ / "pipe").c_str(), 0600), 0);
  EXPECT_TRUE(Read("pipe"));  // And does not wait for its other end.
}

TEST_F(PosixFileSystemTest, SavesThroughLinksAndKeepsPermissions) {
  const fs::perms own = fs::perms::owner_read | fs::perms::owner_write;
  folder_.Write("real", "old");
  fs::permissions(folder_ / "real", own);
  fs::create_symlink("real", folder_ / "link");
  fs::create_symlink("link", folder_ / "link to a link");
  EXPECT_TRUE(Save("link to a link", "new").Ok());
  EXPECT_TRUE(fs::is_symlink(folder_ / "link"));
  EXPECT_EQ(folder_.Bytes("real"), "new");
  EXPECT_EQ(fs::status(folder_ / "real").permissions(), own);
  EXPECT_TRUE(Save("made/on the way/file", "new").Ok());
}

TEST_F(PosixFileSystemTest, FlushesAFileBeforeItsRenamingAndTheFolderAfterIt) {
  flushes = 0;
  EXPECT_FALSE(folder_.Files.Prepare(folder_ / "temporary", "new", folder_ / "file", Flush::Now));
  EXPECT_EQ(flushes, 1);
  EXPECT_FALSE(folder_.Files.Replace(folder_ / "temporary", folder_ / "file"));
  folder_.Files.FlushFoldersOf({folder_ / "file"});
  EXPECT_EQ(flushes, 2);
}

TEST_F(PosixFileSystemTest, AFullDiskLeavesTheOldFileAndNothingElse) {
  folder_.Write("file", "old");
  rlimit usual{};
  ::getrlimit(RLIMIT_FSIZE, &usual);
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit small{1000, usual.rlim_max};
  ::setrlimit(RLIMIT_FSIZE, &small);
  EXPECT_FALSE(Save("file", std::string(2000, 'x')).Ok());
  ::setrlimit(RLIMIT_FSIZE, &usual);
  EXPECT_EQ(folder_.Bytes("file"), "old");
  EXPECT_EQ(ListFiles(folder_.Files, folder_.Folder.Root), std::vector<std::string>{"file"});
}

TEST_F(PosixFileSystemTest, ReplacesNoFileThatIsProtected) {
  folder_.Write("file", "old");
  fs::permissions(folder_.Folder.Root, fs::perms(0777));
  const bool administrator = ::getuid() == 0;  // Who is refused nothing: become someone else for a while.
  ASSERT_EQ(::setreuid(administrator ? 65534 : static_cast<uid_t>(-1), static_cast<uid_t>(-1)), 0);
  for (const int refused : {0444, 0222}) {
    fs::permissions(folder_ / "file", fs::perms(refused));
    EXPECT_FALSE(Save("file", "new").Ok());
  }
  fs::permissions(folder_ / "file", fs::perms(0666));
  EXPECT_TRUE(Save("file", "new").Ok());
  fs::permissions(folder_.Folder.Root, fs::perms(0555));
  EXPECT_FALSE(Save("file", "newer").Ok());
  fs::permissions(folder_.Folder.Root, fs::perms(0777));
  ASSERT_EQ(::setreuid(administrator ? 0 : static_cast<uid_t>(-1), static_cast<uid_t>(-1)), 0);
}

}  // namespace
}  // namespace kickwell
