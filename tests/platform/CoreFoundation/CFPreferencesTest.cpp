#include "platform/CoreFoundation/CFPreferences.h"

#include "tests/platform/CoreFoundation/TestFiles.h"

#include <csignal>
#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr unsigned kNobody = 65534;

/// Each test has a domain of its own, since the process keeps domains.
class CFPreferencesTest : public testing::Test {
protected:
    CFPreferencesTest() {
        const std::string name = testing::UnitTest::GetInstance()->current_test_info()->name();
        useDomain("org.example." + name);
    }

    void useDomain(const std::string& name) {
        domain_ = CFStringCreateWithUTF8(name);
        own_ = preferences_ / (name + ".plist");
        everyones_ = fs::path(std::getenv("XDG_CONFIG_DIRS")) / "Preferences" / (name + ".plist");
    }

    void set(const char* key, const char* value) {
        CFPreferencesSetAppValue(CFSTR(key), value ? CFSTR(value) : nullptr, domain_.get());
    }

    /// "-" when there is no string.
    std::string get(const char* key) {
        const auto value = CFPreferencesCopyAppValue(CFSTR(key), domain_.get());
        const auto* string = dynamicCFCast<CFString>(value.get());
        return string ? CFStringToUTF8(string) : "-";
    }

    bool synchronize() { return CFPreferencesAppSynchronize(domain_.get()); }

    /// What the file holds as key=value pairs, "unsound" when it isn't a dictionary of strings.
    static std::string stored(const fs::path& path) {
        const std::string bytes = readFile(path);
        const auto root = CFPropertyListCreateFromXMLData(
            CFDataCreate(reinterpret_cast<const UInt8*>(bytes.data()), std::ssize(bytes)).get());
        const auto* dictionary = dynamicCFCast<CFDictionary>(root.get());
        std::string pairs = dictionary ? "" : "unsound";
        for (const auto& [key, value] : dictionary ? dictionary->items() : CFDictionary::Items()) {
            const auto* text = dynamicCFCast<CFString>(value.get());
            pairs += CFStringToUTF8(CFRef<CFString>::adopt(new CFString(key)).get()) + "=" +
                     (text ? CFStringToUTF8(text) : "?") + " ";
        }
        return pairs;
    }

    static std::string pair(const std::string& key, const std::string& value) {
        return "<key>" + key + "</key><string>" + value + "</string>";
    }

    /// The names in the folder that begin with the domain's file name.
    std::vector<std::string> files() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(own_.parent_path())) {
            const std::string name = entry.path().filename();
            if (name.starts_with(own_.filename().string()) && !name.ends_with(".lock"))
                names.push_back(name.substr(own_.filename().string().size()));
        }
        return names;
    }

    const fs::path preferences_ = fs::path(std::getenv("XDG_CONFIG_HOME")) / "Preferences";
    CFRef<CFString> domain_;
    fs::path own_, everyones_;
};

TEST_F(CFPreferencesTest, ReadersTakeWhatReadsAsTheirType) {
    constexpr CFIndex kNone = -99;

    const struct {
        const char* stored;
        int boolean; ///< -1: doesn't read as one
        CFIndex integer;
    } cases[] = {
        {"<true/>", 1, kNone},
        {"<false/>", 0, kNone},
        {"<integer>0</integer>", 0, 0},
        {"<integer>-3</integer>", 1, -3},
        {"<real>1.0</real>", 1, 1},
        {"<real>0.5</real>", 1, 0},
        {"<real>-7.9</real>", 1, -7},
        {"<string>YES</string>", 1, kNone},
        {"<string>True</string>", 1, kNone},
        {"<string>no</string>", 0, kNone},
        {"<string>fALSE</string>", 0, kNone},
        {"<string>y</string>", -1, kNone},
        {"<string>yes </string>", -1, kNone},
        {"<string>1</string>", -1, 1},
        {"<string>-42</string>", -1, -42},
        {"<string>+5</string>", -1, 5},
        {"<string>007</string>", -1, 7},
        {"<string> 12</string>", -1, kNone},
        {"<string>12 </string>", -1, kNone},
        {"<string>0x1</string>", -1, kNone},
        {"<string>1.0</string>", -1, kNone},
        {"<string>+-5</string>", -1, kNone},
        {"<string>9223372036854775808</string>", -1, kNone},
        {"<string></string>", -1, kNone},
        {"<string>\xD9\xA1</string>", -1, kNone},
        {"<data>MQ==</data>", -1, kNone},
        {"<array><integer>1</integer></array>", -1, kNone},
        {"<dict/>", -1, kNone},
        {"<date>2001-01-01T00:00:01Z</date>", -1, kNone},
    };

    std::string body;
    for (std::size_t i = 0; i < std::size(cases); ++i)
        body += "<key>" + std::to_string(i) + "</key>" + cases[i].stored;
    writeFile(own_, dictionaryFile(body));

    for (std::size_t i = 0; i < std::size(cases); ++i) {
        SCOPED_TRACE(cases[i].stored);
        const CFString* key = CFSTR(std::to_string(i).c_str());
        bool exists = true;
        const bool boolean = CFPreferencesGetAppBooleanValue(key, domain_.get(), &exists);
        EXPECT_EQ(exists ? int{boolean} : -1, cases[i].boolean);
        const CFIndex integer = CFPreferencesGetAppIntegerValue(key, domain_.get(), &exists);
        EXPECT_EQ(exists ? integer : kNone, cases[i].integer);
    }
    bool exists = true;
    EXPECT_FALSE(CFPreferencesGetAppBooleanValue(CFSTR("absent"), domain_.get(), &exists));
    EXPECT_FALSE(exists);
}

TEST_F(CFPreferencesTest, ValuesAreSeenAtOnceAndStoredBySynchronising) {
    set("a", "1");
    set("b", "2");
    set("b", nullptr);
    EXPECT_EQ(get("a"), "1");
    EXPECT_EQ(get("b"), "-");
    EXPECT_FALSE(fs::exists(own_));

    EXPECT_TRUE(synchronize());
    EXPECT_EQ(stored(own_), "a=1 ");
    EXPECT_EQ(fs::status(own_).permissions(), fs::perms(0600));
    EXPECT_EQ(fs::status(preferences_).permissions(), fs::perms(0700));
    EXPECT_THAT(files(), testing::ElementsAre(""));
}

TEST_F(CFPreferencesTest, AllUsersValuesAreDefaults) {
    writeFile(everyones_, dictionaryFile(pair("a", "admin") + pair("b", "admin")));
    set("a", "mine");
    EXPECT_EQ(get("a"), "mine");
    EXPECT_EQ(get("b"), "admin");
    set("b", "admin"); // chosen by this user too: stored, though it changes nothing now
    EXPECT_TRUE(synchronize());
    EXPECT_EQ(stored(own_), "a=mine b=admin ");
    set("a", nullptr);
    EXPECT_EQ(get("a"), "admin");

    const auto copy = [&](const CFString* user) {
        return CFPreferencesCopyValue(CFSTR("a"), domain_.get(), user, kCFPreferencesAnyHost);
    };
    EXPECT_TRUE(CFEqual(copy(kCFPreferencesAnyUser).get(), CFSTR("admin")));
    EXPECT_FALSE(copy(kCFPreferencesCurrentUser));
    EXPECT_FALSE(copy(CFSTR("somebody")));

    CFPreferencesSetValue(CFSTR("c"), CFSTR("new"), domain_.get(), kCFPreferencesAnyUser,
                          kCFPreferencesCurrentHost);
    EXPECT_TRUE(
        CFPreferencesSynchronize(domain_.get(), kCFPreferencesAnyUser, kCFPreferencesCurrentHost));
    EXPECT_EQ(stored(everyones_), "a=admin b=admin c=new ");
    EXPECT_EQ(fs::status(everyones_).permissions(), fs::perms(0644));
}

TEST_F(CFPreferencesTest, TwoWritersKeepEachOthersKeys) {
    writeFile(own_, dictionaryFile(pair("mine", "1") + pair("theirs", "1") + pair("both", "1")));
    EXPECT_EQ(get("theirs"), "1");
    writeFile(own_, dictionaryFile(pair("mine", "1") + pair("theirs", "2") + pair("both", "2") +
                                   pair("new", "2")));
    for (const char* key : {"mine", "both"})
        set(key, "3");
    set("theirs", "1"); // as it is here: not a change

    EXPECT_TRUE(synchronize());
    EXPECT_EQ(stored(own_), "both=3 mine=3 new=2 theirs=2 ");
    EXPECT_EQ(get("theirs"), "2");

    writeFile(own_, dictionaryFile(pair("theirs", "4")));
    EXPECT_EQ(get("theirs"), "2");
    EXPECT_TRUE(synchronize()) << "with nothing to write, it takes in what others wrote";
    EXPECT_EQ(get("theirs") + get("mine"), "4-");
    fs::remove(own_);
    EXPECT_TRUE(synchronize());
    EXPECT_EQ(get("theirs"), "-");
    EXPECT_FALSE(fs::exists(own_));
}

TEST_F(CFPreferencesTest, LaterChangesOfAnObjectReachNothingThatWasSet) {
    const auto list = CFArrayCreateMutable();
    CFArrayAppendValue(list.get(), CFSTR("1"));
    CFPreferencesSetAppValue(CFSTR("list"), list.get(), domain_.get());
    EXPECT_TRUE(synchronize());
    CFArrayAppendValue(list.get(), CFSTR("2"));
    CFPreferencesSetAppValue(CFSTR("list"), list.get(), domain_.get());
    EXPECT_TRUE(synchronize());
    EXPECT_THAT(readFile(own_), testing::HasSubstr("<string>2</string>"));
}

TEST_F(CFPreferencesTest, ValuesThatCannotBeStoredDontHinderOthers) {
    for (const char16_t* text : {u"\x1", u"\xD800"})
        CFPreferencesSetAppValue(CFSTR("bad"), CFRef<CFString>::adopt(new CFString(text)).get(),
                                 domain_.get());
    CFPreferencesSetAppValue(CFSTR("\x1"), CFSTR("bad"), domain_.get());
    set("good", "1");
    EXPECT_TRUE(synchronize());
    EXPECT_EQ(stored(own_), "good=1 ");
}

TEST_F(CFPreferencesTest, NamesThatAreNoFileNamesAreRefused) {
    for (const char* name : {"", "../up", "a/b"}) {
        useDomain(name);
        set("a", "1");
        EXPECT_EQ(get("a"), "-") << name;
        EXPECT_FALSE(synchronize()) << name;
    }
}

TEST_F(CFPreferencesTest, DamagedFileIsKeptAside) {
    const std::string sound = dictionaryFile(pair("a", "1"));
    const std::string deep = "<plist>" + std::string(300'000 * 7, ' ');
    const std::string cases[] = {"",
                                 sound.substr(0, sound.size() / 2),
                                 "<plist><array/></plist>",
                                 "\xFF\xFE garbage",
                                 "bplist00",
                                 deep,
                                 std::string(10u << 20, 'x')};
    int number = 0;
    for (const std::string& content : cases) {
        useDomain("org.example.damaged" + std::to_string(++number));
        SCOPED_TRACE(content.substr(0, 40));
        writeFile(own_, content);
        writeFile(own_.string() + ".damaged-1", "earlier");
        EXPECT_EQ(get("a"), "-");
        EXPECT_FALSE(synchronize());
        EXPECT_EQ(readFile(own_), content) << "reading changes nothing";

        set("b", "2");
        EXPECT_TRUE(synchronize());
        EXPECT_EQ(stored(own_), "b=2 ");
        EXPECT_EQ(readFile(own_.string() + ".damaged-1"), "earlier");
        EXPECT_EQ(readFile(own_.string() + ".damaged-2"), content);
    }
}

TEST_F(CFPreferencesTest, FileDamagedLaterIsReplacedByWhatIsKnown) {
    writeFile(own_, dictionaryFile(pair("a", "1") + pair("b", "1")));
    EXPECT_EQ(get("a"), "1");
    writeFile(own_, "garbage");
    set("b", "2");
    EXPECT_TRUE(synchronize());
    EXPECT_EQ(stored(own_), "a=1 b=2 ");
    EXPECT_EQ(readFile(own_.string() + ".damaged-1"), "garbage");
}

TEST_F(CFPreferencesTest, BinaryFileIsReadAndRewritten) {
    const std::string zeros(7, '\0');
    writeFile(own_, "bplist00\xD1\x01\x02\x51k\x51v\x08\x0B\x0D" + std::string(6, '\0') +
                        "\x01\x01" + zeros + "\x03" + zeros + std::string(1, '\0') + zeros +
                        "\x0F");
    EXPECT_EQ(get("k"), "v");
    set("n", "1");
    EXPECT_TRUE(synchronize());
    EXPECT_EQ(stored(own_), "k=v n=1 ");
    EXPECT_THAT(files(), testing::ElementsAre(""));
}

TEST_F(CFPreferencesTest, SymbolicLinkStaysAndItsTargetIsReplaced) {
    const fs::path target = makeSandboxFolder("dotfiles") / "target.plist";
    writeFile(target, dictionaryFile(pair("a", "1")));
    fs::create_directories(preferences_);
    fs::create_symlink("../../../dotfiles/target.plist", own_);
    EXPECT_EQ(get("a"), "1");
    set("b", "2");
    EXPECT_TRUE(synchronize());
    EXPECT_TRUE(fs::is_symlink(own_));
    EXPECT_EQ(stored(target), "a=1 b=2 ");
}

TEST_F(CFPreferencesTest, WhatIsNoRegularFileIsLeftAlone) {
    fs::create_directories(preferences_);
    ASSERT_EQ(mkfifo(own_.c_str(), 0600), 0);
    EXPECT_EQ(get("a"), "-");
    set("a", "1");
    EXPECT_FALSE(synchronize());
    EXPECT_TRUE(fs::is_fifo(own_));
}

TEST_F(CFPreferencesTest, UnreadableFileIsNotReplaced) {
    const fs::path home = makeSandboxFolder("open");
    fs::permissions(home.parent_path(), fs::perms(0711));
    setenv("XDG_CONFIG_HOME", home.c_str(), 1);
    own_ = home / "Preferences" / own_.filename();
    writeFile(own_, dictionaryFile(pair("a", "1")));
    fs::permissions(own_, fs::perms::none);
    fs::permissions(own_.parent_path(), fs::perms(0777));
    if (geteuid() == 0) {
        ASSERT_EQ(seteuid(kNobody), 0); // root reads everything
    }

    EXPECT_EQ(get("a"), "-");
    EXPECT_FALSE(synchronize());
    set("b", "2");
    EXPECT_FALSE(synchronize());
    ASSERT_EQ(seteuid(getuid()), 0);
    fs::permissions(own_, fs::perms(0644));
    EXPECT_EQ(stored(own_), "a=1 ");
    EXPECT_TRUE(synchronize()) << "the mark is still there";
    EXPECT_EQ(stored(own_), "a=1 b=2 ");
}

TEST_F(CFPreferencesTest, FolderThatCannotBeMade) {
    const fs::path file = makeSandboxFolder("blocked") / "file";
    writeFile(file, "in the way");
    setenv("XDG_CONFIG_HOME", file.c_str(), 1);
    set("a", "1");
    EXPECT_FALSE(synchronize());
    fs::remove(file);
    EXPECT_TRUE(synchronize());
    EXPECT_EQ(stored(file / "Preferences" / own_.filename()), "a=1 ");
}

TEST_F(CFPreferencesTest, FullDiskLeavesTheOldFileAndTheMarks) {
    writeFile(own_, dictionaryFile(pair("a", "1")));
    set("a", "2");
    set("long", std::string(5000, 'x').c_str());

    // A limit of the file size stops a write midway, as a full disk does.
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit small{1000, before.rlim_max};
    setrlimit(RLIMIT_FSIZE, &small);
    EXPECT_FALSE(synchronize());
    setrlimit(RLIMIT_FSIZE, &before);

    EXPECT_EQ(stored(own_), "a=1 ");
    EXPECT_THAT(files(), testing::ElementsAre("")) << "nothing half-written stays";
    EXPECT_TRUE(synchronize());
    EXPECT_EQ(stored(own_), "a=2 long=" + std::string(5000, 'x') + " ");
}

TEST_F(CFPreferencesTest, LockThatSomebodyHoldsIsNotWaitedForForEver) {
    fs::create_directories(preferences_);
    const int lock = open((own_.string() + ".lock").c_str(), O_RDWR | O_CREAT, 0600);
    ASSERT_EQ(flock(lock, LOCK_EX), 0);
    set("a", "1");
    EXPECT_FALSE(synchronize());
    close(lock);
    EXPECT_TRUE(synchronize());
    EXPECT_EQ(stored(own_), "a=1 ");
}

TEST_F(CFPreferencesTest, OddEnvironmentFallsBackToTheDefaults) {
    setenv("XDG_CONFIG_HOME", "relative", 1);
    set("a", "1");
    EXPECT_TRUE(synchronize());
    EXPECT_EQ(stored(fs::path(std::getenv("HOME")) / ".config/Preferences" / own_.filename()),
              "a=1 ");

    useDomain("org.example.dirs");
    const std::string dirs = "relative::" + std::string(std::getenv("XDG_CONFIG_DIRS")) + ":/none";
    setenv("XDG_CONFIG_DIRS", dirs.c_str(), 1);
    writeFile(fs::path(dirs.substr(10, dirs.size() - 16)) / "Preferences/org.example.dirs.plist",
              dictionaryFile(pair("a", "admin")));
    EXPECT_EQ(get("a"), "admin");
}

} // namespace
