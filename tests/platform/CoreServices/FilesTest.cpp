#include "platform/CoreServices/Files.h"
#include "platform/CoreServices/MacMemory.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <gmock/gmock.h>
#include <limits>
#include <sys/resource.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

class ForkTest : public testing::Test {
protected:
    ForkTest() { writeFile(file_.path, "0123456789"); }

    static OSErr open(const std::string& path, SInt16* fork) {
        const FSRef ref{path};
        return FSOpenFork(&ref, 0, nullptr, fsRdPerm, fork);
    }

    fs::path folder_ = makeSandboxFolder("forks");
    FSRef file_{folder_ / "file"};
};

TEST_F(ForkTest, ReadsPartsFromTheStart) {
    SInt16 fork = -1;
    ASSERT_EQ(open(file_.path, &fork), noErr);
    std::int64_t size = 0;
    EXPECT_EQ(FSGetForkSize(fork, &size), noErr);
    EXPECT_EQ(size, 10);

    const struct {
        std::int64_t offset;
        std::size_t count;
        OSErr result;
        std::string read;
    } cases[] = {
        {0, 10, noErr, "0123456789"}, {4, 3, noErr, "456"},  {7, 9, eofErr, "789"},
        {10, 1, eofErr, ""},          {10, 0, noErr, ""},    {-1, 1, paramErr, ""},
        {0, 4, noErr, "0123"},        {1000, 1, eofErr, ""},
    };

    for (const auto& row : cases) {
        SCOPED_TRACE(row.offset);
        char buffer[16] = {};
        std::size_t actual = 0;
        EXPECT_EQ(FSReadFork(fork, fsFromStart, row.offset, row.count, buffer, &actual),
                  row.result);
        EXPECT_EQ(std::string(buffer, actual), row.read);
    }
    EXPECT_EQ(FSCloseFork(fork), noErr);
    EXPECT_EQ(FSCloseFork(fork), rfNumErr);
    EXPECT_EQ(FSGetForkSize(fork, &size), rfNumErr);
}

TEST_F(ForkTest, OpensRegularFilesForReadingOnly) {
    SInt16 fork = -1;
    const UniChar name[] = {'r'};
    EXPECT_EQ(FSOpenFork(&file_, 1, name, fsRdPerm, &fork), errFSForkNotFound);
    EXPECT_EQ(FSOpenFork(&file_, 0, nullptr, 3, &fork), permErr);

    mkfifo((folder_ / "pipe").c_str(), 0600); // nobody writes to it
    fs::create_symlink("nowhere", folder_ / "link");
    for (const auto& [path, error] : {std::pair{folder_ / "none", fnfErr},
                                      {folder_ / "file/x", fnfErr},
                                      {folder_ / "link", fnfErr},
                                      {folder_, permErr},
                                      {folder_ / "pipe", permErr},
                                      {"/dev/zero", permErr}})
        EXPECT_EQ(open(path, &fork), error) << path;
    EXPECT_EQ(fork, -1);
}

TEST_F(ForkTest, TooManyOpenFilesAreAnError) {
    rlimit limit{};
    getrlimit(RLIMIT_NOFILE, &limit);
    const rlimit low{16, limit.rlim_max};
    setrlimit(RLIMIT_NOFILE, &low);
    std::vector<SInt16> forks;
    SInt16 fork = -1;
    OSErr error;
    while ((error = open(file_.path, &fork)) == noErr)
        forks.push_back(fork);
    EXPECT_EQ(error, tmfoErr);
    ASSERT_GT(forks.size(), 1u);
    EXPECT_EQ(FSCloseFork(forks[1]), noErr);
    EXPECT_EQ(open(file_.path, &fork), noErr);
    EXPECT_EQ(fork, forks[1]) << "numbers are used again";
    for (const SInt16 each : forks)
        FSCloseFork(each);
    setrlimit(RLIMIT_NOFILE, &limit);
}

TEST(HandleTest, OwnsItsBlock) {
    Handle handle = NewHandle(3);
    ASSERT_TRUE(handle);
    UInt8* const block = *handle;
    std::fill_n(block, 3, UInt8{7});
    const Handle moved = std::move(handle);
    EXPECT_EQ(*moved, block);
    EXPECT_EQ(GetHandleSize(moved), 3);
    EXPECT_FALSE(handle);
    EXPECT_EQ(GetHandleSize(handle), 0);

    EXPECT_TRUE(NewHandle(0));
    EXPECT_FALSE(NewHandle(-1));
    EXPECT_EQ(GetHandleSize(NewHandle(-1)), 0);
}

TEST(HandleTest, ShortMemoryGivesNull) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "AddressSanitizer's allocator ends the process instead";
#endif
    EXPECT_FALSE(NewHandle(std::numeric_limits<CFIndex>::max()));
}

} // namespace
