// Writing files: what remains after a failure, and what is kept after a success.
#include "host/Failure.h"
#include "support/FakeHost.h"

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

int syncs = 0;

}

// Takes the place of the system's function in this program, and counts.
extern "C" int fsync(int file) {
    ++syncs;
    return static_cast<int>(syscall(SYS_fsync, file));
}

namespace {

// Limits the size of all files of this process, which looks like a full disk to a writer.
class SmallDisk {
public:
    explicit SmallDisk(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &old_);
        const rlimit limit{bytes, old_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~SmallDisk() { setrlimit(RLIMIT_FSIZE, &old_); }

private:
    rlimit old_{};
};

struct FilesTest : testing::Test {
    FakeHost host;
    QtFiles files;

    // The names in the test's folder: a failed write must leave nothing behind.
    std::vector<std::string> Names() { return files.List(host.folder); }
};

TEST_F(FilesTest, AFailedWriteKeepsTheOldFile) {
    const std::string path = host.Put("a.bb", "old");
    {
        const SmallDisk disk(1000);
        EXPECT_THROW(files.Write(path, std::string(50000, 'x')), Failure);
        // Short enough for a writer's own buffer, so that only the flush can fail.
        EXPECT_THROW(files.Write(path, std::string(1500, 'x')), Failure);
    }
    EXPECT_EQ(files.Read(path), "old");
    EXPECT_EQ(Names(), std::vector<std::string>{"a.bb"});
}

TEST_F(FilesTest, EveryWriteReachesTheDisk) {
    const std::string path = host.Path("a.bb");
    for (const char* way : {"new", "beside", "in place"}) {
        syncs = 0;
        files.Write(path, way);
        EXPECT_GT(syncs, 0) << way;
        if (*way == 'b') {
            ASSERT_EQ(link(path.c_str(), host.Path("b.bb").c_str()), 0);
        }
    }
    EXPECT_EQ(Names(), (std::vector<std::string>{"a.bb", "b.bb"})) << "the copies on the way are gone";
}

TEST_F(FilesTest, AFailedWriteInPlaceBringsTheOldContentBack) {
    const std::string path = host.Put("a.bb", "old content");
    ASSERT_EQ(link(path.c_str(), host.Path("b.bb").c_str()), 0);
    {
        const SmallDisk disk(1000);
        EXPECT_THROW(files.Write(path, std::string(50000, 'x')), Failure);
    }
    EXPECT_EQ(files.Read(path), "old content");
    EXPECT_EQ(Names().size(), 2u);
}

TEST_F(FilesTest, LinksModeAndAttributesSurviveAWrite) {
    const std::string target = host.Put("real/a.bb", "old");
    chmod(target.c_str(), 0640);
    const bool attributes = setxattr(target.c_str(), "user.note", "kept", 4, 0) == 0;
    const std::string link = host.Path("link.bb");
    ASSERT_EQ(symlink(target.c_str(), link.c_str()), 0);
    files.Write(link, "new");
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(files.Read(target), "new");
    struct stat status {};
    ASSERT_EQ(stat(target.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0640u);
    char value[8] = {};
    if (attributes) {
        EXPECT_EQ(getxattr(target.c_str(), "user.note", value, sizeof value), 4);
    }
}

TEST_F(FilesTest, HardLinksStayTogetherAlsoWhenTheFileShrinks) {
    const std::string path = host.Put("a.bb", "a longer old content");
    const std::string other = host.Path("b.bb");
    ASSERT_EQ(link(path.c_str(), other.c_str()), 0);
    files.Write(path, "short");
    EXPECT_EQ(files.Read(other), "short");
}

TEST_F(FilesTest, WhatIsNoRegularFileIsRefused) {
    const std::string fifo = host.Path("fifo");
    ASSERT_EQ(mkfifo(fifo.c_str(), 0600), 0);
    EXPECT_THROW(files.Read(fifo), Failure); // and does not wait for a writer
    EXPECT_THROW(files.Write(fifo, "x"), Failure);
    EXPECT_EQ(files.Kind(fifo), PathKind::Other);
    try {
        files.Read(host.folder);
        FAIL() << "a folder was read";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.description, host.folder + ": is a folder");
    }
    try {
        files.Read(host.Path("missing"));
        FAIL() << "a missing file was read";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number, FailureFileNotFound);
    }
}

TEST_F(FilesTest, NamesAreFoundWithoutRegardToCaseOnlyWhenMissing) {
    host.Put("Conf/Hotcodes.dat", "x");
    EXPECT_EQ(files.Find(host.Path("conf/hotCODES.DAT")), host.Path("Conf/Hotcodes.dat"));
    EXPECT_EQ(files.Find(host.Path("conf/none")), host.Path("conf/none"));
    host.Put("conf/hotcodes.dat", "y");
    EXPECT_EQ(files.Find(host.Path("conf/hotcodes.dat")), host.Path("conf/hotcodes.dat"));
}

TEST_F(FilesTest, AnyBytesComeBackAsTheyWere) {
    std::string bytes;
    for (int value = 0; value < 256; ++value) bytes += static_cast<char>(value);
    const std::string path = host.Path("odd name \xE9.bin"); // a name that is no UTF-8
    files.Write(path, bytes);
    files.Append(path, "+");
    EXPECT_EQ(files.Read(path), bytes + "+");
    EXPECT_EQ(Names(), std::vector<std::string>{"odd name \xE9.bin"});
}

}
