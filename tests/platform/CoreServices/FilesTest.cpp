#include "platform/CoreServices/Files.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

namespace fs = std::filesystem;

namespace {

OSErr open(const std::string& path, SInt16* fork, SInt8 permission = fsRdPerm) {
    const FSRef ref{path};
    return FSOpenFork(&ref, 0, nullptr, permission, fork);
}

TEST(ForkTest, OpensRegularFilesForReadingAsLongAsThereIsRoom) {
    const fs::path folder = makeSandboxFolder("forks"), file = folder / "file";
    writeFile(file, "0123456789");
    SInt16 fork = -1;
    for (const auto& [path, error] : {std::pair{folder / "none", fnfErr},
                                      {file / "x", fnfErr},
                                      {folder, permErr},
                                      {"/dev/zero", permErr}})
        EXPECT_EQ(open(path, &fork), error) << path;
    EXPECT_EQ(open(file, &fork, 3), permErr);
    ASSERT_EQ(open(file, &fork), noErr);
    EXPECT_EQ(FSCloseFork(fork), noErr);
    EXPECT_EQ(FSCloseFork(fork), rfNumErr);

    rlimit limit{};
    getrlimit(RLIMIT_NOFILE, &limit);
    limit.rlim_cur = 16;
    setrlimit(RLIMIT_NOFILE, &limit);
    std::vector<SInt16> forks;
    OSErr error;
    while ((error = open(file, &fork)) == noErr)
        forks.push_back(fork);
    EXPECT_EQ(error, tmfoErr);
    ASSERT_GT(forks.size(), 1u);
    EXPECT_EQ(FSCloseFork(forks[1]), noErr);
    EXPECT_EQ(open(file, &fork), noErr);
    EXPECT_EQ(fork, forks[1]) << "numbers are used again";
}

} // namespace
