// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFPreferences.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <atomic>
#include <gtest/gtest.h>
#include <new>
#include <random>
#include <sys/mman.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr int kKeys = 100;

const CFString* const kDomain = CFSTR("org.example.crash");

CFRef<CFString> text(int number) {
    return CFStringCreateWithUTF8(std::to_string(number));
}

/// The whole file of the generation whose number is in every key.
std::string document(int generation) {
    const auto all = CFDictionaryCreateMutable();
    for (int key = 0; key < kKeys; ++key)
        CFDictionarySetValue(all.get(), text(key).get(), text(generation).get());
    return CFPropertyListToXML(all.get());
}

/// Stores one generation after another until it is killed.
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
    const std::string path =
        std::string(std::getenv("XDG_CONFIG_HOME")) + "/Preferences/org.example.crash.plist";
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

        if (saved == 0 && !std::filesystem::exists(path))
            continue;
        const std::string found = readFile(path);
        const bool isNext = found == document(saved + 1);
        ASSERT_TRUE(isNext || found == document(saved)) << found << " after " << saved;
        killedWithinASave += isNext || std::filesystem::exists(path + ".new");
        saved += isNext;
    }
    EXPECT_GT(killedWithinASave, kKills / 10);
    munmap(shared, sizeof(std::atomic<int>));

    CFPreferencesSetAppValue(CFSTR("after"), CFSTR("all"), kDomain);
    EXPECT_TRUE(CFPreferencesAppSynchronize(kDomain)) << "what killed writers left hinders nobody";
    EXPECT_FALSE(std::filesystem::exists(path + ".new"));
}

TEST(CFPreferencesCrash, WritersAtTheSameTimeLoseNothing) {
    constexpr int kWriters = 4, kSaves = 25;
    std::vector<pid_t> writers;
    for (int writer = 0; writer < kWriters; ++writer) {
        writers.push_back(fork());
        if (writers.back() != 0)
            continue;
        bool saved = true;
        for (int i = 0; i < kSaves; ++i) {
            CFPreferencesSetAppValue(text(writer * kSaves + i).get(), CFSTR("x"), kDomain);
            saved = CFPreferencesAppSynchronize(kDomain) && saved;
        }
        std::_Exit(saved ? 0 : 1);
    }
    for (const pid_t writer : writers) {
        int status = -1;
        waitpid(writer, &status, 0);
        EXPECT_EQ(status, 0);
    }
    for (int key = 0; key < kWriters * kSaves; ++key)
        EXPECT_TRUE(CFPreferencesCopyAppValue(text(key).get(), kDomain)) << key;
}

} // namespace
