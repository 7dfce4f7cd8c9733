#include "platform/CoreFoundation/CFNumber.h"
#include "platform/CoreServices/Files.h"
#include "src/fsutil.h"
#include "src/proputil.h"
#include "tests/support/TestBundle.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace {

class FileUtilsTest : public testing::Test {
protected:
    FileUtilsTest() { bundle_.write("digits", "0123456789"); }

    ~FileUtilsTest() override { EXPECT_EQ(countOpenFiles(), openBefore_) << "left open"; }

    TestBundle bundle_;
    long openBefore_ = countOpenFiles();
};

TEST_F(FileUtilsTest, OpensForksWithTheirSize) {
    UInt32 size = 1;
    const SInt16 fork = openURLDataFork(bundle_.resource("digits").get(), &size);
    EXPECT_GT(fork, 0);
    EXPECT_EQ(size, 10u);
    EXPECT_EQ(FSCloseFork(fork), noErr);
    for (const auto& url : {CFRef<CFURL>(), bundle_.resource("none"), bundle_.resource("")}) {
        size = 1;
        EXPECT_EQ(openURLDataFork(url.get(), &size), -1);
        EXPECT_EQ(size, 0u);
    }

    fs::resize_file(bundle_.resources() / "digits", (std::uintmax_t{1} << 32) + 3);
    const SInt16 large = openURLDataFork(bundle_.resource("digits").get(), &size);
    EXPECT_EQ(size, 3u) << "the low 32 bits";
    FSCloseFork(large);
}

TEST_F(FileUtilsTest, ReadsFromAnOffsetOn) {
    const struct {
        SInt32 offset;
        const char* read; // null when nothing is
    } cases[] = {{0, "0123456789"},
                 {-5, "0123456789"},
                 {-2147483647 - 1, "0123456789"},
                 {4, "456789"},
                 {10, ""},
                 {11, nullptr},
                 {512, nullptr},
                 {2147483647, nullptr}};

    for (const auto& row : cases) {
        const Handle handle =
            fsGetFileContentsAsHandle(bundle_.resource("digits").get(), row.offset);
        ASSERT_EQ(bool(handle), row.read != nullptr) << row.offset;
        if (handle) {
            EXPECT_EQ(std::string(*handle, *handle + GetHandleSize(handle)), row.read);
        }
    }
}

TEST_F(FileUtilsTest, ReadsWholeFilesOrNothing) {
    bundle_.write("empty", "");
    bundle_.write("secret", "x");
    bundle_.write("huge", "");
    fs::resize_file(bundle_.resources() / "huge", kMaxFileContents + 1u);
    bundle_.write("largest", "");
    fs::resize_file(bundle_.resources() / "largest", kMaxFileContents);
    mkfifo((bundle_.resources() / "pipe").c_str(), 0600);

    const struct {
        const char* name;
        CFIndex length; // -1 when nothing is read
    } cases[] = {{"digits", 10}, {"empty", 0}, {"largest", kMaxFileContents},
                 {"huge", -1},   {"none", -1}, {"", -1},
                 {"pipe", -1}};

    for (const auto& row : cases) {
        SCOPED_TRACE(row.name);
        const auto url = bundle_.resource(row.name);
        const auto data = fsGetFileContents(url.get());
        EXPECT_EQ(data ? CFDataGetLength(data.get()) : -1, row.length);
        const Handle handle = fsGetFileContentsAsHandle(url.get(), 0);
        EXPECT_EQ(handle ? GetHandleSize(handle) : -1, row.length);
    }
    EXPECT_FALSE(fsGetFileContents(nullptr));
    EXPECT_FALSE(fsGetFileContentsAsHandle(nullptr, 0));
}

TEST_F(FileUtilsTest, ReadsListsOfTheExpectedTypeOnly) {
    bundle_.write("dictionary.plist", dictionaryFile("<key>a</key><string>x</string>"));
    bundle_.write("array.plist", "<plist><array><true/></array></plist>");
    bundle_.write("damaged.plist", dictionaryFile("<key>a</key>"));
    bundle_.write("empty.plist", "");

    const struct {
        const char* name;
        CFTypeID expected;
        bool read;
    } cases[] = {
        {"dictionary", CFDictionaryGetTypeID(), true}, {"dictionary", CFArrayGetTypeID(), false},
        {"array", CFArrayGetTypeID(), true},           {"array", CFStringGetTypeID(), false},
        {"damaged", CFDictionaryGetTypeID(), false},   {"empty", CFDictionaryGetTypeID(), false},
        {"none", CFDictionaryGetTypeID(), false},      {"digits", CFArrayGetTypeID(), false},
    };

    for (const auto& row : cases) {
        SCOPED_TRACE(row.name);
        const auto list = propUtilReadResourceFile(bundle_.get(), CFSTR(row.name), row.expected);
        EXPECT_EQ(bool(list), row.read);
        const std::string file = std::string(row.name) + ".plist";
        EXPECT_EQ(bool(propUtilReadFile(bundle_.resource(file).get(), row.expected)), row.read);
    }
    EXPECT_FALSE(propUtilReadResourceFile(nullptr, CFSTR("array"), CFArrayGetTypeID()));
    EXPECT_FALSE(propUtilReadResourceFile(bundle_.get(), nullptr, CFArrayGetTypeID()));
    EXPECT_FALSE(propUtilReadFile(nullptr, CFArrayGetTypeID()));
}

TEST_F(FileUtilsTest, TakesStringsOutOfDictionaries) {
    const auto dictionary = CFDictionaryCreateMutable();
    const auto text = CFStringCreateWithUTF8("text");
    const SInt32 seven = 7;
    const auto number = CFNumberCreate(kCFNumberSInt32Type, &seven);
    CFDictionarySetValue(dictionary.get(), CFSTR("text"), text.get());
    CFDictionarySetValue(dictionary.get(), CFSTR("number"), number.get());

    const auto borrowed = propUtilGetDictString(dictionary.get(), CFSTR("text"));
    EXPECT_EQ(borrowed, text.get());
    EXPECT_EQ(text->retainCount(), 2);
    const auto retained = propUtilGetRetainedDictString(dictionary.get(), CFSTR("text"));
    EXPECT_EQ(retained.get(), text.get());
    EXPECT_EQ(text->retainCount(), 3);
    for (const char* key : {"number", "none"}) {
        EXPECT_EQ(propUtilGetDictString(dictionary.get(), CFSTR(key)), nullptr);
        EXPECT_FALSE(propUtilGetRetainedDictString(dictionary.get(), CFSTR(key)));
    }
    EXPECT_EQ(number->retainCount(), 2);
}

TEST_F(FileUtilsTest, VisitsItemsInOrder) {
    const CFType* items[] = {CFSTR("a"), CFSTR("b"), kCFBooleanTrue};
    std::vector<std::pair<const CFType*, CFIndex>> visited;
    const auto visit = [&](const CFType* item, CFIndex index) {
        visited.emplace_back(item, index);
    };
    propUtilForEachArrayItemDo(CFArrayCreate(items).get(), visit);
    EXPECT_THAT(visited, testing::ElementsAre(std::pair(items[0], 0), std::pair(items[1], 1),
                                              std::pair(items[2], 2)));
    visited.clear();
    propUtilForEachArrayItemDo(CFArrayCreate({}).get(), visit);
    EXPECT_TRUE(visited.empty());
}

} // namespace
