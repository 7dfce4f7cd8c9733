// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFPreferences.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <atomic>
#include <cerrno>
#include <new>
#include <random>
#include <sys/mman.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr int kKeys = 100;

bool hasLocks = true; ///< false: a file system without locks, like some network ones

} // namespace

// Replaces the C library's.
extern "C" int flock(int file, int operation) noexcept {
    if (hasLocks)
        return static_cast<int>(syscall(SYS_flock, file, operation));
    errno = ENOLCK;
    return -1;
}

namespace {

const CFString* const kDomain = CFSTR("org.example.crash");

std::string pathOfDomain() {
    return std::string(std::getenv("XDG_CONFIG_HOME")) + "/Preferences/org.example.crash.plist";
}

CFRef<CFString> text(int number) {
    return createFromUTF8(std::to_string(number));
}

/// The whole file of one generation. Every key has the generation's number.
std::string document(int generation) {
    const auto all = CFDictionaryCreateMutable();
    for (int key = 0; key < kKeys; ++key)
        CFDictionarySetValue(all.get(), text(key).get(), text(generation).get());
    return propertyListToXML(all.get());
}

/// Stores one generation after the other until it is killed.
[[noreturn]] void saveForEver(int generation, std::atomic<int>& saved) {
    for (;; ++generation) {
        for (int key = 0; key < kKeys; ++key)
            CFPreferencesSetAppValue(text(key).get(), text(generation).get(), kDomain);
        if (CFPreferencesAppSynchronize(kDomain))
            saved = generation;
    }
}

TEST(CFPreferencesCrash, KilledWriterLeavesTheOldOrTheNewFile) {
    constexpr int kKills = 300;
    void* shared = mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE,
                        MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(shared, MAP_FAILED);
    auto& saved = *new (shared) std::atomic<int>(0);
    const std::string path = pathOfDomain();
    std::mt19937 random(1);
    std::uniform_int_distribution<int> microseconds(0, 12'000);

    int killedWithinASave = 0;
    for (int kill = 0; kill < kKills; ++kill) {
        const pid_t child = fork();
        if (child == 0)
            saveForEver(saved + 1, saved);
        std::this_thread::sleep_for(std::chrono::microseconds(microseconds(random)));
        ::kill(child, SIGKILL);
        waitpid(child, nullptr, 0);

        if (saved == 0 && !fs::exists(path))
            continue;
        const std::string found = readFile(path);
        const bool isNext = found == document(saved + 1);
        ASSERT_TRUE(isNext || found == document(saved)) << found << " after " << saved;
        killedWithinASave += isNext || countPending(path) > 0;
        saved += isNext;
    }
    EXPECT_GT(killedWithinASave, kKills / 10);
    munmap(shared, sizeof(std::atomic<int>));
    EXPECT_GT(countPending(path), 0);
    for (const auto& file : fs::directory_iterator(fs::path(path).parent_path()))
        fs::last_write_time(file, fs::file_time_type::clock::now() - std::chrono::minutes(2));

    CFPreferencesSetAppValue(CFSTR("after"), CFSTR("all"), kDomain);
    EXPECT_TRUE(CFPreferencesAppSynchronize(kDomain)) << "what killed writers left hinders nobody";
    EXPECT_TRUE(soonNonePending(path));
}

TEST(CFPreferencesCrash, WhereThereAreNoLocksASaveSucceedsAndTheFileIsWhole) {
    hasLocks = false;
    CFPreferencesSetAppValue(CFSTR("key"), CFSTR("x"), kDomain);
    EXPECT_TRUE(CFPreferencesAppSynchronize(kDomain));
    const std::string found = readFile(pathOfDomain());
    EXPECT_TRUE(found.starts_with("<?xml") && found.ends_with("</plist>\n")) << found;
    EXPECT_EQ(countPending(pathOfDomain()), 0);
}

} // namespace
