// Files on the disk: links, permissions, flushing, and what cannot be read or replaced.
#include "data/posix_file_system.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <csignal>

#include "data/text_file.h"
#include "support/folders.h"

namespace {

int flushedFiles = 0, flushedFolders = 0;

}  // namespace

/// Stands in for the system's own, which it calls.
extern "C" int fsync(int descriptor) {
  struct stat facts {};
  ::fstat(descriptor, &facts);
  ++(S_ISDIR(facts.st_mode) ? flushedFolders : flushedFiles);
  return static_cast<int>(::syscall(SYS_fsync, descriptor));
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
  std::ptrdiff_t FileCount() const {
    return std::distance(fs::directory_iterator(folder_.Folder.Root), fs::directory_iterator());
  }

  DiskFolder folder_;
};

TEST_F(PosixFileSystemTest, ReadsWholeFilesAndTellsWhatThereIs) {
  folder_.Write("file", std::string(100000, 'x'));
  fs::create_directory(folder_ / "folder");
  fs::create_symlink("nowhere", folder_ / "broken link");
  std::string bytes;
  EXPECT_FALSE(folder_.Files.Read(folder_ / "file", bytes));
  EXPECT_EQ(bytes, std::string(100000, 'x'));
  EXPECT_EQ(Read("missing"), std::errc::no_such_file_or_directory);
  EXPECT_EQ(Read("file/within"), std::errc::no_such_file_or_directory);
  EXPECT_EQ(Read("folder"), std::errc::is_a_directory);
  EXPECT_EQ(Read("broken link"), std::errc::no_link);
  EXPECT_EQ(folder_.Files.Ask(folder_ / "file"), FileKind::File);
  EXPECT_EQ(folder_.Files.Ask(folder_ / "folder"), FileKind::Other);
  EXPECT_EQ(folder_.Files.Ask(folder_ / "missing"), FileKind::Missing);
  EXPECT_EQ(folder_.Files.Ask(folder_ / std::string(5000, 'x')), FileKind::Unknown);
  EXPECT_EQ(folder_.Files.List(folder_.Folder.Root), std::vector<std::string>{"file"});
  EXPECT_TRUE(folder_.Files.List(folder_ / "missing").empty());
}

TEST_F(PosixFileSystemTest, RefusesAFileThatNoFileOfTheProgramCanBe) {
  folder_.Write("huge", "");
  fs::resize_file(folder_ / "huge", (1 << 28) + 1);
  EXPECT_EQ(Read("huge"), std::errc::file_too_large);
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
  EXPECT_EQ(FileCount(), 3);  // No temporary file is left.
  EXPECT_TRUE(Save("made/on the way/file", "new").Ok());
}

TEST_F(PosixFileSystemTest, FlushesAFileBeforeItsRenamingAndTheFolderAfterIt) {
  flushedFiles = flushedFolders = 0;
  EXPECT_FALSE(folder_.Files.Prepare(folder_ / "temporary", "new", folder_ / "file"));
  EXPECT_EQ(flushedFiles, 1);
  EXPECT_TRUE(Save("file", "new").Ok());
  EXPECT_EQ(flushedFiles, 2);
  EXPECT_EQ(flushedFolders, 1);
}

TEST_F(PosixFileSystemTest, AFailedSaveSaysWhyAndLeavesNothingBehind) {
  folder_.Write("file", "old");
  fs::create_directory(folder_ / "folder");
  fs::create_symlink("missing", folder_ / "link");
  const auto why = [this](const std::string& file) {
    return "The file " + (folder_ / file).string() + " can't be ";
  };
  EXPECT_EQ(Save("folder", "new").Failure, why("folder") + "saved: Is a directory.");
  EXPECT_EQ(Save("file/within", "new").Failure, why("file/within") + "saved: Not a directory.");
  EXPECT_EQ(Save("link", "new").Failure, why("link") + "saved: Link has been severed.");
  EXPECT_EQ(DeleteFile(folder_.Files, folder_ / "folder").Failure,
            why("folder") + "deleted: Is a directory.");
  EXPECT_EQ(FileCount(), 3);
  EXPECT_EQ(folder_.Bytes("file"), "old");
  EXPECT_TRUE(DeleteFile(folder_.Files, folder_ / "file").Ok());
  EXPECT_TRUE(DeleteFile(folder_.Files, folder_ / "file").Ok());  // There is none.
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
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(PosixFileSystemTest, RefusesToSaveOnAnotherDisk) {
  const fs::path other = fs::path("/dev/shm") / folder_.Folder.Root.filename();
  struct stat here {
  }, there{};
  ::stat(folder_.Folder.Root.c_str(), &here);
  if (::stat("/dev/shm", &there) != 0 || here.st_dev == there.st_dev)
    GTEST_SKIP() << "There is no other disk here.";
  EXPECT_EQ(
      ReplaceFile(folder_.Files, other, "new", folder_.Folder.Root).Failure,
      "The file " + other.string() + " can't be saved: Its folder is on another disk than the program.");
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
  EXPECT_EQ(folder_.Bytes("file"), "old");
  EXPECT_TRUE(Save("file", "new").Ok());
  fs::permissions(folder_.Folder.Root, fs::perms(0555));
  EXPECT_FALSE(Save("file", "newer").Ok());
  fs::permissions(folder_.Folder.Root, fs::perms(0777));
  ASSERT_EQ(::setreuid(administrator ? 0 : static_cast<uid_t>(-1), static_cast<uid_t>(-1)), 0);
}

}  // namespace
}  // namespace kickwell
