#include "platform/CoreFoundation/CFPreferences.h"

#include "tests/platform/CoreFoundation/TestFiles.h"

#include <atomic>
#include <gmock/gmock.h>
#include <new>
#include <random>
#include <sys/mman.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace {

constexpr int kKills = 300;
constexpr int kKeys = 100;
constexpr int kLongestLifeMicroseconds = 12'000;

const CFString* domain() {
    return CFSTR("org.example.crash");
}

CFRef<CFString> text(int number) {
    return CFStringCreateWithUTF8(std::to_string(number));
}

/// Stores one generation after another, each with its number in every key, until it is killed.
[[noreturn]] void saveForEver(int generation, std::atomic<int>& saved) {
    for (;; ++generation) {
        for (int key = 0; key < kKeys; ++key)
            CFPreferencesSetAppValue(text(key).get(), text(generation).get(), domain());
        if (CFPreferencesAppSynchronize(domain()))
            saved = generation;
    }
}

/// The generation in the file, -1 when it isn't whole and of one generation.
int storedGeneration(const std::string& path) {
    const std::string bytes = readFile(path);
    const auto root = CFPropertyListCreateFromXMLData(
        CFDataCreate(reinterpret_cast<const UInt8*>(bytes.data()), std::ssize(bytes)).get());
    const auto* dictionary = dynamicCFCast<CFDictionary>(root.get());
    if (!dictionary || CFDictionaryGetCount(dictionary) != kKeys)
        return -1;
    const CFType* first = dictionary->items().begin()->second.get();
    for (const auto& [key, value] : dictionary->items()) {
        if (!CFEqual(value.get(), first))
            return -1;
    }
    return std::stoi(CFStringToUTF8(dynamicCFCast<CFString>(first)));
}

TEST(CFPreferencesCrash, KilledWriterLeavesTheOldOrTheNewFile) {
    void* shared = mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE,
                        MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(shared, MAP_FAILED);
    auto& saved = *new (shared) std::atomic<int>(0);
    const std::string path =
        std::string(std::getenv("XDG_CONFIG_HOME")) + "/Preferences/org.example.crash.plist";
    std::mt19937 random(1);
    std::uniform_int_distribution<int> life(0, kLongestLifeMicroseconds);

    int killedWithinASave = 0;
    for (int kill = 0; kill < kKills; ++kill) {
        const int before = saved;
        const pid_t child = fork();
        if (child == 0)
            saveForEver(before + 1, saved);
        std::this_thread::sleep_for(std::chrono::microseconds(life(random)));
        ::kill(child, SIGKILL);
        waitpid(child, nullptr, 0);

        if (saved == 0 && !std::filesystem::exists(path))
            continue;
        const int found = storedGeneration(path);
        ASSERT_TRUE(found == saved || found == saved + 1) << found << " after " << saved;
        killedWithinASave += std::filesystem::exists(path + ".new") || found == saved + 1;
        saved = found;
    }
    EXPECT_GT(saved, kKills / 10);
    EXPECT_GT(killedWithinASave, kKills / 10);
    munmap(shared, sizeof(std::atomic<int>));

    CFPreferencesSetAppValue(CFSTR("after"), CFSTR("all"), domain());
    EXPECT_TRUE(CFPreferencesAppSynchronize(domain())) << "what killed writers left hinders nobody";
    EXPECT_FALSE(std::filesystem::exists(path + ".new"));
}

TEST(CFPreferencesCrash, WritersAtTheSameTimeLoseNothing) {
    constexpr int kWriters = 4;
    constexpr int kSaves = 25;
    std::vector<pid_t> writers;
    for (int writer = 0; writer < kWriters; ++writer) {
        writers.push_back(fork());
        if (writers.back() != 0)
            continue;
        bool saved = true;
        for (int i = 0; i < kSaves; ++i) {
            CFPreferencesSetAppValue(text(writer * kSaves + i).get(), CFSTR("x"), domain());
            saved = CFPreferencesAppSynchronize(domain()) && saved;
        }
        std::_Exit(saved ? 0 : 1);
    }
    for (const pid_t writer : writers) {
        int status = -1;
        waitpid(writer, &status, 0);
        EXPECT_EQ(status, 0);
    }
    for (int key = 0; key < kWriters * kSaves; ++key)
        EXPECT_TRUE(CFPreferencesCopyAppValue(text(key).get(), domain())) << key;
}

} // namespace
