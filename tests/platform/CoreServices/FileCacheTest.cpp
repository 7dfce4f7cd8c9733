#include "platform/CoreServices/FileCache.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace {

TEST(FileCacheTest, ReadsAgainUntilTheNextChangeIsSureToShow) {
    const std::string path = makeSandboxFolder("cache") / "file";
    FileCache<int> cache;
    int reads = 0;
    const auto get = [&] { return cache.get(path, [&](const std::string&) { return ++reads; }); };
    EXPECT_EQ(get(), 0) << "nothing is there to be read";
    writeFile(path, "x");
    EXPECT_EQ(get(), 1);
    EXPECT_EQ(get(), 2) << "it may change again in the same step of the clock";
    while (!stateOfFile(path).isSettled())
        usleep(20'000);
    EXPECT_EQ(get(), 3);
    EXPECT_EQ(get(), 3) << "kept";
    writeFile(path, "y");
    EXPECT_EQ(get(), 4);
    std::filesystem::remove(path);
    EXPECT_EQ(get(), 0);

    const std::chrono::nanoseconds now = std::chrono::system_clock::now().time_since_epoch();
    using std::chrono::seconds;
    for (const auto& [time, settled] : {std::pair{now - seconds(3), true},
                                        {now - seconds(1), false},
                                        {now + seconds(60), false}}) {
        EXPECT_EQ((FileState{.exists = true, .modified = time}).isSettled(), settled);
        EXPECT_EQ((FileState{.exists = true, .changed = time}).isSettled(), settled);
    }
}

} // namespace
